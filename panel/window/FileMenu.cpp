#include <panel/window/FileMenu.hpp>

#include <QAction>
#include <QFileDialog>
#include <QFileInfo>
#include <QMessageBox>
#include <QPushButton>

namespace Panel {

namespace {

QString networkFilter() {
    return FileMenu::tr("Networks (*.json);;All files (*)");
}

} // namespace

FileMenu::FileMenu(Document& document, QWidget& window)
    : QMenu(tr("&File"), &window),
      document_(document),
      window_(window),
      recent_(new RecentMenu(this)),
      revertAction_(new QAction(tr("Re&vert to the file"), this)) {
    auto* const openAction = addAction(tr("&Open..."), this, &FileMenu::askForNetwork, QKeySequence::Open);
    openAction->setObjectName(QStringLiteral("open"));
    addMenu(recent_);
    auto* const saveAction = addAction(tr("&Save values"), this, &FileMenu::saveOpen, QKeySequence::Save);
    saveAction->setObjectName(QStringLiteral("save"));
    addAction(tr("Save values &as..."), this, &FileMenu::askForSaveFile, QKeySequence(tr("Ctrl+Shift+S")))
        ->setObjectName(QStringLiteral("saveAs"));
    revertAction_->setObjectName(QStringLiteral("revert"));
    addAction(revertAction_);
    addSeparator();
    addAction(tr("&Quit"), &window_, &QWidget::close, QKeySequence(tr("Ctrl+Q")))
        ->setObjectName(QStringLiteral("quit"));
    connect(recent_, &RecentMenu::chosen, this, &FileMenu::openRecent);
    connect(revertAction_, &QAction::triggered, this, &FileMenu::revert);
    connect(&document, &Document::opened, this, &FileMenu::showFile);
    connect(&document, &Document::saved, this, &FileMenu::showFile);
    showFile();
}

FileMenu::~FileMenu() = default;

void FileMenu::askForNetwork() {
    if (!mayClose())
        return;
    auto const current = document_.network() ? document_.network()->file() : QString();
    auto const file = QFileDialog::getOpenFileName(&window_, tr("Open a network"), current, networkFilter());
    if (!file.isEmpty())
        load(file);
}

void FileMenu::load(QString const& file) {
    auto const reason = document_.open(file);
    if (!reason.isEmpty())
        emit failed(tr("The network cannot be opened"), reason);
}

void FileMenu::openFile(QString const& file) {
    if (mayClose())
        load(file);
}

void FileMenu::openRecent(QString const& file) {
    if (QFileInfo::exists(file)) {
        openFile(file);
        return;
    }
    recent_->drop(file);
    emit failed(tr("The network cannot be opened"), tr("%1 is gone. It is not listed any more.").arg(file));
}

void FileMenu::showFile() {
    recent_->add(document_.path());
    revertAction_->setEnabled(!document_.path().isEmpty());
}

void FileMenu::revert() {
    // The running work belongs to the network that goes.
    if (document_.network() && mayEndWork() && mayRevert())
        load(document_.network()->file());
}

bool FileMenu::mayRevert() {
    emit commitRequested();
    document_.checkModified();
    if (!document_.isModified())
        return true;
    QMessageBox box(QMessageBox::Warning, tr("Unsaved values"),
                    tr("The values of “%1” were changed.").arg(document_.title()), QMessageBox::Cancel, &window_);
    box.setTextFormat(Qt::PlainText);
    box.setInformativeText(tr("They become those of the file. The changes are lost, and so is the history."));
    auto* const revertButton = box.addButton(tr("Re&vert"), QMessageBox::DestructiveRole);
    revertButton->setObjectName(QStringLiteral("revertValues"));
    box.setDefaultButton(QMessageBox::Cancel);
    box.exec();
    return box.clickedButton() == revertButton;
}

void FileMenu::askForSaveFile() {
    QFileDialog dialog(&window_, tr("Save the values"), QString(), networkFilter());
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    dialog.setFileMode(QFileDialog::AnyFile);
    // What is saved is then among what Open lists.
    dialog.setDefaultSuffix(QStringLiteral("json"));
    if (document_.network())
        dialog.selectFile(document_.network()->file());
    if (dialog.exec() == QDialog::Accepted)
        save(dialog.selectedFiles().value(0));
}

bool FileMenu::saveOpen() {
    return document_.network() && mayOverwrite() && save(document_.network()->file());
}

bool FileMenu::mayOverwrite() {
    auto const state = document_.fileState();
    if (state == FileGuard::State::Same)
        return true;
    auto const file = document_.network()->file();
    bool const isGone = state == FileGuard::State::Vanished;
    QMessageBox box(QMessageBox::Warning, isGone ? tr("The file is gone") : tr("The file was changed"),
                    isGone ? tr("%1 is gone since it was opened or saved here.").arg(file)
                           : tr("Another program has changed %1 since it was opened or saved here.").arg(file),
                    QMessageBox::Save | QMessageBox::Cancel, &window_);
    box.setTextFormat(Qt::PlainText);
    box.setInformativeText(isGone ? tr("Shall it be written again?")
                                  : tr("Saving overwrites what the other program wrote."));
    box.setDefaultButton(QMessageBox::Cancel);
    return box.exec() == QMessageBox::Save;
}

bool FileMenu::mayClose() {
    return mayEndWork() && mayDiscardChanges();
}

bool FileMenu::mayEndWork() {
    auto const work = runningWork_ ? runningWork_() : QString();
    if (work.isEmpty())
        return true;
    QMessageBox box(QMessageBox::Warning, tr("Unfinished work"), work, QMessageBox::Cancel, &window_);
    box.setTextFormat(Qt::PlainText);
    box.setInformativeText(tr("It ends with the network, and its file is not written."));
    auto* const end = box.addButton(tr("&End it"), QMessageBox::DestructiveRole);
    end->setObjectName(QStringLiteral("endWork"));
    box.setDefaultButton(QMessageBox::Cancel);
    box.exec();
    return box.clickedButton() == end;
}

bool FileMenu::save(QString const& file) {
    if (file.isEmpty())
        return false;
    emit commitRequested();
    auto const reason = document_.save(file);
    if (!reason.isEmpty())
        emit failed(tr("The values cannot be saved"), reason);
    return reason.isEmpty();
}

bool FileMenu::mayDiscardChanges() {
    emit commitRequested();
    document_.checkModified();
    if (!document_.isModified())
        return true;
    QMessageBox box(QMessageBox::Warning, tr("Unsaved values"),
                    tr("The values of “%1” were changed.").arg(document_.title()),
                    QMessageBox::Save | QMessageBox::Discard | QMessageBox::Cancel, &window_);
    // The title is a text of the file.
    box.setTextFormat(Qt::PlainText);
    box.setInformativeText(tr("Unless they are saved, the changes are lost."));
    box.setDefaultButton(QMessageBox::Save);
    box.setEscapeButton(QMessageBox::Cancel);
    int const answer = box.exec();
    return answer == QMessageBox::Discard || (answer == QMessageBox::Save && saveOpen());
}

} // namespace Panel

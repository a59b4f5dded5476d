#include <panel/window/FileMenu.hpp>

#include <QFileDialog>
#include <QMessageBox>

namespace Panel {

namespace {

QString networkFilter() {
    return FileMenu::tr("Networks (*.json);;All files (*)");
}

} // namespace

FileMenu::FileMenu(Document& document, QWidget& window)
    : QMenu(tr("&File"), &window), document_(document), window_(window) {
    auto* const openAction = addAction(tr("&Open..."), this, &FileMenu::askForNetwork, QKeySequence::Open);
    openAction->setObjectName(QStringLiteral("open"));
    auto* const saveAction = addAction(
        tr("&Save values"), this,
        [this] {
            if (document_.network())
                save(document_.network()->file());
        },
        QKeySequence::Save);
    saveAction->setObjectName(QStringLiteral("save"));
    addAction(tr("Save values &as..."), this, &FileMenu::askForSaveFile, QKeySequence(tr("Ctrl+Shift+S")));
    addSeparator();
    addAction(tr("&Quit"), &window_, &QWidget::close, QKeySequence(tr("Ctrl+Q")));
}

FileMenu::~FileMenu() = default;

void FileMenu::askForNetwork() {
    if (!mayDiscardChanges())
        return;
    auto const current = document_.network() ? document_.network()->file() : QString();
    auto const file = QFileDialog::getOpenFileName(&window_, tr("Open a network"), current, networkFilter());
    auto const reason = file.isEmpty() ? QString() : document_.open(file);
    if (!reason.isEmpty())
        emit failed(tr("The network cannot be opened"), reason);
}

void FileMenu::askForSaveFile() {
    auto const current = document_.network() ? document_.network()->file() : QString();
    save(QFileDialog::getSaveFileName(&window_, tr("Save the values"), current, networkFilter()));
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
    return answer == QMessageBox::Discard || (answer == QMessageBox::Save && save(document_.network()->file()));
}

} // namespace Panel

#include <panel/window/FileNotices.hpp>

#include <QLocale>
#include <QMessageBox>
#include <QPushButton>
#include <QTimer>

namespace Panel {

FileNotices::FileNotices(Document& document, NoticeBar& bar, QObject* parent)
    : QObject(parent), document_(document), bar_(bar) {
    connect(&document, &Document::fileChanged, this, &FileNotices::showFileChanged);
    connect(&document, &Document::opened, &bar, &QWidget::hide);
    connect(&document, &Document::saved, &bar, &QWidget::hide);
}

FileNotices::~FileNotices() = default;

void FileNotices::showFileChanged() {
    auto const file = document_.network()->file();
    if (document_.fileState() == FileGuard::State::Vanished)
        bar_.showNotice(tr("%1 is gone. The values are still here; saving writes the file again.").arg(file));
    else if (document_.isModified())
        bar_.showNotice(tr("Another program has changed %1. Saving will ask before it overwrites the file.").arg(file));
    else
        bar_.showNotice(tr("Another program has changed %1.").arg(file), tr("&Load it again"), [this] { loadAgain(); });
}

void FileNotices::loadAgain() {
    // Something may have been edited since it was offered.
    if (document_.isModified()) {
        showFileChanged();
        return;
    }
    auto const reason = document_.open(document_.network()->file());
    if (!reason.isEmpty())
        emit failed(tr("The network cannot be opened"), reason);
}

void FileNotices::follow(Recovery& recovery) {
    connect(&recovery, &Recovery::failed, this, &FileNotices::reported);
    // Later, as the network is still being shown.
    auto const show = [this, &recovery] { QTimer::singleShot(0, this, [this, &recovery] { showRecovery(recovery); }); };
    connect(&recovery, &Recovery::fileChanged, this, show);
    show();
}

void FileNotices::showRecovery(Recovery& recovery) {
    if (recovery.isOpenElsewhere())
        bar_.showNotice(tr("%1 is open in another panel, too. Who saves last overwrites what the other one saved.")
                            .arg(document_.network()->file()));
    if (!recovery.found().written.isValid())
        return;
    QMessageBox box(QMessageBox::Question, tr("Unsaved values"),
                    tr("The panel ended while values of “%1” were not saved.").arg(document_.title()),
                    QMessageBox::NoButton, bar_.window());
    box.setTextFormat(Qt::PlainText);
    auto const when = QLocale().toString(recovery.found().written, QLocale::ShortFormat);
    box.setInformativeText(tr("They were kept on %1. Shall they be restored?").arg(when));
    auto* const restoreButton = box.addButton(tr("&Restore"), QMessageBox::AcceptRole);
    restoreButton->setObjectName(QStringLiteral("restore"));
    box.addButton(tr("&Discard"), QMessageBox::DestructiveRole)->setObjectName(QStringLiteral("discard"));
    box.setDefaultButton(restoreButton);
    box.exec();
    if (box.clickedButton() == restoreButton)
        restore(recovery);
    else if (box.clickedButton())
        recovery.discard();
}

void FileNotices::restore(Recovery& recovery) {
    auto const refused = document_.network()->takeValues(recovery.take().values);
    document_.checkModified();
    recovery.write();
    emit reported(tr("Restored unsaved values."));
    if (!refused.isEmpty())
        emit failed(tr("Not all values could be restored"), refused.join(QLatin1Char('\n')));
}

} // namespace Panel

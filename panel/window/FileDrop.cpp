#include <panel/window/FileDrop.hpp>

#include <QDropEvent>
#include <QFileInfo>
#include <QMimeData>
#include <QUrl>

namespace Panel {

FileDrop::FileDrop(QWidget& window) : QObject(&window) {
    window.setAcceptDrops(true);
    window.installEventFilter(this);
}

FileDrop::~FileDrop() = default;

bool FileDrop::eventFilter(QObject* watched, QEvent* event) {
    auto const type = event->type();
    if (type != QEvent::DragEnter && type != QEvent::DragMove && type != QEvent::Drop)
        return QObject::eventFilter(watched, event);
    auto* const drop = static_cast<QDropEvent*>(event);
    if (!drop->mimeData()->hasUrls()) {
        drop->ignore();
        return true;
    }
    // The file stays where it is, whatever the other program offers first.
    drop->setDropAction(Qt::CopyAction);
    drop->accept();
    if (type == QEvent::Drop) {
        // The other program waits for the end of the event, and a question may follow.
        auto const places = drop->mimeData()->urls();
        QMetaObject::invokeMethod(
            this, [this, places] { take(places); }, Qt::QueuedConnection);
    }
    return true;
}

void FileDrop::take(QList<QUrl> const& places) {
    if (places.size() != 1)
        emit refused(tr("Only one network file can be opened at a time."));
    else if (!places.first().isLocalFile())
        emit refused(tr("%1 is no file of this computer.").arg(places.first().toDisplayString()));
    else if (!QFileInfo(places.first().toLocalFile()).isFile())
        emit refused(tr("%1 is no file.").arg(places.first().toLocalFile()));
    else
        emit dropped(places.first().toLocalFile());
}

} // namespace Panel

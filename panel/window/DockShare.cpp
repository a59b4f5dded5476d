#include <panel/window/DockShare.hpp>

#include <QEvent>
#include <QScopedValueRollback>

namespace Panel {

DockShare::DockShare(QMainWindow& window, QDockWidget& dock, double share, int rest)
    : QObject(&window), window_(window), dock_(dock), share_(share), rest_(rest) {
    window.installEventFilter(this);
    dock.installEventFilter(this);
}

DockShare::~DockShare() = default;

void DockShare::adoptWidth() {
    adopts_ = true;
}

bool DockShare::eventFilter(QObject* watched, QEvent* event) {
    bool const isShown = event->type() == QEvent::Show;
    // Qt has given the docks their places when a filter sees that the window was resized.
    if (watched == &window_ && window_.isVisible() && (isShown || event->type() == QEvent::Resize))
        apply();
    else if (watched == &dock_ && event->type() == QEvent::Resize)
        noteWidth();
    return QObject::eventFilter(watched, event);
}

void DockShare::noteWidth() {
    // While the window is being resized, the dock's width is what Qt makes of it. One that was set here may be less
    // than the share.
    bool const isSet = applies_ || dock_.width() == qMax(setWidth_, dock_.minimumSizeHint().width());
    if (!isSet && windowWidth_ == window_.width() && !dock_.isFloating())
        share_ = static_cast<double>(dock_.width()) / windowWidth_;
}

void DockShare::apply() {
    windowWidth_ = window_.width();
    if (adopts_) {
        adopts_ = false;
        noteWidth();
        return;
    }
    QScopedValueRollback const guard(applies_, true);
    if (dock_.isFloating())
        return;
    int const left = windowWidth_ - rest_ * window_.fontMetrics().averageCharWidth();
    // Nothing may be left, and Qt gives a dock at least its least width, but warns of 0.
    setWidth_ = qMax(1, qMin(qRound(share_ * windowWidth_), left));
    window_.resizeDocks({&dock_}, {setWidth_}, Qt::Horizontal);
}

} // namespace Panel

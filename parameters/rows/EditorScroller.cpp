#include <parameters/rows/EditorScroller.hpp>

#include <QEvent>
#include <QScrollBar>

namespace Talo {

namespace {

// In characters; what is to be seen at once.
constexpr int leastWidth = 10;

} // namespace

EditorScroller::EditorScroller(QWidget* editor, QWidget* parent) : QScrollArea(parent) {
    setFrameShape(QFrame::NoFrame);
    setFocusPolicy(Qt::NoFocus);
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setWidgetResizable(true);
    setWidget(editor);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Preferred);
}

EditorScroller::~EditorScroller() = default;

int EditorScroller::heightForWidth(int width) const {
    if (!widget())
        return 0;
    auto const least = widget()->minimumSizeHint().expandedTo(widget()->minimumSize());
    int const content = qMax(least.height(), widget()->sizeHint().boundedTo(widget()->maximumSize()).height());
    return content + (least.width() > width ? horizontalScrollBar()->sizeHint().height() : 0);
}

QSize EditorScroller::sizeHint() const {
    int const width = widget() ? widget()->sizeHint().width() : 0;
    return {width, heightForWidth(width)};
}

QSize EditorScroller::minimumSizeHint() const {
    return {leastWidth * fontMetrics().averageCharWidth(), heightForWidth(0)};
}

bool EditorScroller::eventFilter(QObject* watched, QEvent* event) {
    // The base watches the editor already.
    if (event->type() == QEvent::LayoutRequest)
        updateGeometry();
    return QScrollArea::eventFilter(watched, event);
}

bool EditorScroller::viewportEvent(QEvent* event) {
    bool const handled = QScrollArea::viewportEvent(event);
    // Some editors have the widget around them adjust its size; this one keeps its place.
    if (event->type() == QEvent::Resize && viewport()->size() != maximumViewportSize() &&
        !horizontalScrollBar()->isVisible())
        setViewportMargins(viewportMargins());
    return handled;
}

} // namespace Talo

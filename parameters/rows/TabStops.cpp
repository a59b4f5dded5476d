#include <parameters/rows/TabStops.hpp>

#include <algorithm>
#include <QApplication>

namespace Talo {

namespace {

bool takesTab(QWidget const& widget) {
    return (widget.focusPolicy() & Qt::TabFocus) == Qt::TabFocus && !widget.focusProxy() && widget.isEnabled();
}

} // namespace

std::vector<QWidget*> tabStopsIn(QWidget const& widget) {
    std::vector<QWidget*> stops;
    auto const all = widget.findChildren<QWidget*>();
    for (auto* const each : all)
        if (takesTab(*each) && each->window() == widget.window() && each->isVisibleTo(&widget))
            stops.push_back(each);
    return stops;
}

bool focusOutside(QWidget const& area, QWidget const& from, bool next) {
    auto const step = [next](QWidget const* widget) {
        return next ? widget->nextInFocusChain() : widget->previousInFocusChain();
    };
    for (auto* widget = step(&from); widget != &from; widget = step(widget)) {
        if (area.isAncestorOf(widget) || widget == &area || !takesTab(*widget) || !widget->isVisible())
            continue;
        widget->setFocus(next ? Qt::TabFocusReason : Qt::BacktabFocusReason);
        return true;
    }
    return false;
}

bool isInUse(QWidget const& widget) {
    auto const* const focus = QApplication::focusWidget();
    if (focus && widget.isAncestorOf(focus))
        return true;
    auto const all = widget.findChildren<QWidget*>();
    return std::any_of(all.begin(), all.end(), [](auto const* each) { return each->isWindow() && each->isVisible(); });
}

} // namespace Talo

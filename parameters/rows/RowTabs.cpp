#include <parameters/rows/RowTabs.hpp>

#include <algorithm>
#include <parameters/rows/TabStops.hpp>
#include <utility>

namespace Talo {

RowTabs::RowTabs(QScrollArea& area, std::size_t count, RowOf rowOf)
    : area_(area), count_(count), rowOf_(std::move(rowOf)) {}

void RowTabs::focusStop(QWidget& stop, bool next) const {
    stop.setFocus(next ? Qt::TabFocusReason : Qt::BacktabFocusReason);
    area_.ensureWidgetVisible(&stop);
}

bool RowTabs::focusIn(ParameterRow& row, bool first, bool toEditor) const {
    auto stops = tabStopsIn(row);
    if (toEditor)
        stops.erase(std::remove(stops.begin(), stops.end(), row.modifiedIndicator()), stops.end());
    if (stops.empty())
        return false;
    focusStop(first ? *stops.front() : *stops.back(), first);
    return true;
}

bool RowTabs::focusFrom(std::ptrdiff_t row, bool next, bool toEditor) const {
    for (; row >= 0 && row < static_cast<std::ptrdiff_t>(count_); row += next ? 1 : -1) {
        auto* const shown = rowOf_(static_cast<std::size_t>(row));
        if (shown && focusIn(*shown, next, toEditor))
            return true;
    }
    return false;
}

bool RowTabs::focusFirstEditor() const {
    return focusFrom(0, true, true);
}

bool RowTabs::focusNext(QWidget& focus, std::size_t row, bool next) const {
    auto* const current = rowOf_(row);
    auto const stops = current ? tabStopsIn(*current) : std::vector<QWidget*>();
    auto const stop = std::find(stops.begin(), stops.end(), &focus);
    if (stop != stops.end() && (next ? stop + 1 != stops.end() : stop != stops.begin())) {
        focusStop(next ? **(stop + 1) : **(stop - 1), next);
        return true;
    }
    return focusFrom(static_cast<std::ptrdiff_t>(row) + (next ? 1 : -1), next, false) ||
           focusOutside(area_, focus, next);
}

} // namespace Talo

#include <parameters/rows/ComponentColumns.hpp>

#include <algorithm>
#include <limits>
#include <utility>

namespace Talo {

namespace {

// Side by side.
constexpr int mostColumns = 4;
// Between two columns, in pixels.
constexpr int columnDistance = 12;

} // namespace

ComponentColumns::ComponentColumns(std::map<std::size_t, ParameterVector> const& vectors) {
    for (auto const& [row, parameters] : vectors) {
        Vector vector;
        vector.parameters = parameters;
        vector.firstRow = row;
        vector.headedRow = row;
        fit(vector, std::numeric_limits<int>::max() / 2, 1);
        vectors_.insert({row, std::move(vector)});
    }
}

ComponentColumns::Vector* ComponentColumns::find(std::size_t row) {
    auto const next = vectors_.upper_bound(row);
    if (next == vectors_.begin())
        return nullptr;
    auto& vector = std::prev(next)->second;
    return row < vector.endRow() ? &vector : nullptr;
}

bool ComponentColumns::fit(Vector& vector, int room, int least) {
    int const count = static_cast<int>(vector.parameters.members.size());
    int const most = std::clamp((room + columnDistance) / (std::max(least, 1) + columnDistance), 1, mostColumns);
    // Lines of equal length: six components are three and three.
    int const lines = (count + most - 1) / most;
    int const columns = (count + lines - 1) / lines;
    return std::exchange(vector.columns, columns) != columns;
}

bool ComponentColumns::join(Vector& vector, RowLayout& layout) {
    auto const before = vector.headedRow;
    vector.places.clear();
    int place = 0;
    for (auto row = vector.firstRow; row < vector.endRow(); ++row) {
        layout.setJoined(row, place % vector.columns != 0);
        vector.places.push_back(place);
        if (!layout.passesFilter(row))
            continue;
        if (place == 0)
            vector.headedRow = row;
        ++place;
    }
    return vector.headedRow != before;
}

ComponentColumns::Span ComponentColumns::span(Vector const& vector, std::size_t row, int lineWidth, int nameWidth) {
    int const column = vector.places.at(row - vector.firstRow) % vector.columns;
    int const room = lineWidth - nameWidth - (vector.columns - 1) * columnDistance;
    int const width = room / vector.columns;
    int const left = nameWidth + column * (width + columnDistance);
    return row == vector.headedRow ? Span{0, left + width} : Span{left, width};
}

} // namespace Talo

#include <parameters/rows/VectorRows.hpp>

#include <algorithm>
#include <utility>

namespace Talo {

VectorRows::VectorRows(RowLayout& layout, std::function<ParameterRow*(std::size_t row)> madeRow)
    : layout_(layout), madeRow_(std::move(madeRow)) {}

void VectorRows::setVectors(std::map<std::size_t, ParameterVector> const& vectors) {
    columns_ = ComponentColumns(vectors);
    (void)join();
}

std::vector<std::size_t> VectorRows::madeRows(ComponentColumns::Vector const& vector) const {
    std::vector<std::size_t> made;
    for (auto row = vector.firstRow; row < vector.endRow(); ++row)
        if (madeRow_(row))
            made.push_back(row);
    return made;
}

std::vector<std::size_t> VectorRows::join() {
    std::vector<std::size_t> changed;
    for (auto& [first, vector] : columns_.vectors()) {
        if (!ComponentColumns::join(vector, layout_))
            continue;
        for (auto const row : madeRows(vector)) {
            showNames(row);
            changed.push_back(row);
        }
    }
    return changed;
}

void VectorRows::showNames(std::size_t row) {
    if (auto const* const vector = columns_.find(row))
        madeRow_(row)->setComponent(vector->parameters, static_cast<int>(row - vector->firstRow),
                                    row == vector->headedRow);
}

std::vector<std::size_t> VectorRows::fit(std::size_t row, int lineWidth, int nameColumn) {
    auto* const vector = columns_.find(row);
    if (!vector)
        return {};
    int least = 0;
    auto made = madeRows(*vector);
    for (auto const each : made)
        least = std::max(least, madeRow_(each)->leastWidth());
    if (!ComponentColumns::fit(*vector, lineWidth - RowName::vectorWidth(nameColumn), least))
        return {};
    ComponentColumns::join(*vector, layout_);
    return made;
}

ComponentColumns::Span VectorRows::span(std::size_t row, int lineWidth, int nameColumn) {
    auto const* const vector = columns_.find(row);
    return vector ? ComponentColumns::span(*vector, row, lineWidth, RowName::vectorWidth(nameColumn))
                  : ComponentColumns::Span{0, lineWidth};
}

} // namespace Talo

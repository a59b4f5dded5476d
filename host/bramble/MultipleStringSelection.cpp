#include <bramble/MultipleStringSelection.hpp>

#include <algorithm>
#include <bramble/TextLines.hpp>
#include <lattice/ValueCreator.hpp>

namespace Kolt {

MultipleStringSelection::MultipleStringSelection() = default;

MultipleStringSelection::MultipleStringSelection(std::vector<std::string> strings)
    : StringList(std::move(strings)), chosen_(size()) {}

MultipleStringSelection::MultipleStringSelection(MultipleStringSelection const&) = default;

MultipleStringSelection::~MultipleStringSelection() = default;

std::size_t MultipleStringSelection::firstPlace(std::string const& text) const {
    if (nextPlace_ < size() && strings()[nextPlace_] == text)
        return block().firstPlace(nextPlace_++);
    auto const place = find(text);
    if (place < size())
        nextPlace_ = place + 1;
    return place;
}

void MultipleStringSelection::add(std::string const& text) {
    auto const place = firstPlace(text);
    if (place < size())
        chosen_.set(place, true);
}

void MultipleStringSelection::addOrRemove(std::string const& text) {
    auto const place = firstPlace(text);
    if (place < size())
        chosen_.set(place, !chosen_[place]);
}

bool MultipleStringSelection::isInSelection(std::string const& text) const {
    auto const place = firstPlace(text);
    return place < size() && chosen_[place];
}

void MultipleStringSelection::removeFromSelection(std::string const& text) {
    auto const place = firstPlace(text);
    if (place < size())
        chosen_.set(place, false);
}

void MultipleStringSelection::addAll() {
    chosen_.setAll(true);
}

void MultipleStringSelection::invertAll() {
    chosen_.flip();
}

void MultipleStringSelection::removeAll() {
    chosen_.setAll(false);
}

std::size_t MultipleStringSelection::chosenCount() const {
    std::size_t count = 0;
    for (std::size_t place = 0; place < size(); ++place)
        count += chosen_[place] && block().firstPlace(place) == place ? 1 : 0;
    return count;
}

bool MultipleStringSelection::hasSameChoice(MultipleStringSelection const& other) const {
    return hasSameTexts(other) && firstDifference(other) == size();
}

std::size_t MultipleStringSelection::firstDifference(MultipleStringSelection const& other) const {
    auto place = chosen_.firstDifference(other.chosen_);
    while (place < size() && block().firstPlace(place) != place)
        place = chosen_.firstDifference(other.chosen_, place + 1);
    return place;
}

Tessera::StrongPtr<Tessera::StringList> MultipleStringSelection::clone() const {
    return Tessera::StrongPtr<Tessera::StringList>(new MultipleStringSelection(*this));
}

std::string VValueTrait<VMultipleStringList>::Text(VMultipleStringList const& value) {
    std::string text;
    if (!value)
        return text;
    bool first = true;
    for (auto const& chosen : *value) {
        if (!value->isInSelection(chosen))
            continue;
        text += (first ? "" : "\n") + lineOfText(chosen);
        first = false;
    }
    // No line would mean that nothing is chosen.
    return !first && text.empty() ? "\n" : text;
}

bool VValueTrait<VMultipleStringList>::setValueFromText(VMultipleStringList& value, std::string const& text) {
    if (!value)
        return false;
    auto chosen = textsOfLines(text);
    // Files and clipboards end their last line, too.
    if (!chosen.empty() && chosen.back().empty() && !value->contains(std::string()))
        chosen.pop_back();
    if (!std::all_of(chosen.begin(), chosen.end(), [&](auto const& each) { return value->contains(each); }))
        return false;
    value->removeAll();
    for (auto const& each : chosen)
        value->add(each);
    return true;
}

VMultipleStringList VValueTrait<VMultipleStringList>::Clone(VMultipleStringList const& value) {
    return Tessera::cloned(value);
}

bool VValueTrait<VMultipleStringList>::Equal(VMultipleStringList const& left, VMultipleStringList const& right) {
    return left && right ? left->hasSameChoice(*right) : !left && !right;
}

std::size_t VValueTrait<VMultipleStringList>::ByteCount(VMultipleStringList const& value) {
    return value ? sizeof *value + value->choiceBytes() : 0;
}

template class VTypedValueBase<VMultipleStringList>;
template class VValue<VMultipleStringList>;

namespace {

// Makes the type known while the library loads.
[[maybe_unused]] bool const choicesAreRegistered = (registerValueCreatorOnce<VMultipleStringList>(), true);

} // namespace

} // namespace Kolt

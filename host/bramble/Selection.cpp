#include <algorithm>
#include <bramble/Selection.hpp>
#include <sstream>

namespace Kolt {

VEnumSelection::VEnumSelection() = default;

VEnumSelection::VEnumSelection(std::vector<std::string> names) : StringList(std::move(names)) {}

VEnumSelection::~VEnumSelection() = default;

void VEnumSelection::select(unsigned number) {
    if (number < size())
        selected_ = static_cast<int>(number);
}

Tessera::StrongPtr<Tessera::StringList> VEnumSelection::clone() const {
    return Tessera::StrongPtr<Tessera::StringList>(new VEnumSelection(*this));
}

StringSelection::StringSelection() = default;

StringSelection::StringSelection(std::vector<std::string> strings, std::string const& selected)
    : StringList(std::move(strings)) {
    select(selected);
}

StringSelection::~StringSelection() = default;

bool StringSelection::select(std::string const& text) {
    if (!contains(text))
        return false;
    selected_ = text;
    return true;
}

Tessera::StrongPtr<Tessera::StringList> StringSelection::clone() const {
    return Tessera::StrongPtr<Tessera::StringList>(new StringSelection(*this));
}

MultipleStringSelection::MultipleStringSelection() = default;

MultipleStringSelection::MultipleStringSelection(std::vector<std::string> strings)
    : StringList(std::move(strings)), chosen_(size()) {
    indexTexts();
}

MultipleStringSelection::MultipleStringSelection(MultipleStringSelection const& other)
    : StringList(other), chosen_(other.chosen_) {
    indexTexts();
}

MultipleStringSelection::~MultipleStringSelection() = default;

void MultipleStringSelection::indexTexts() {
    places_.reserve(size());
    firstPlaces_.reserve(size());
    for (auto const& text : *this)
        firstPlaces_.push_back(places_.emplace(text, firstPlaces_.size()).first->second);
}

std::size_t MultipleStringSelection::firstPlace(std::string const& text) const {
    if (nextPlace_ < size() && strings()[nextPlace_] == text)
        return firstPlaces_[nextPlace_++];
    auto const found = places_.find(text);
    if (found == places_.end())
        return size();
    nextPlace_ = found->second + 1;
    return found->second;
}

void MultipleStringSelection::add(std::string const& text) {
    auto const place = firstPlace(text);
    if (place < size())
        chosen_[place] = true;
}

void MultipleStringSelection::addOrRemove(std::string const& text) {
    auto const place = firstPlace(text);
    if (place < size())
        chosen_[place] = !chosen_[place];
}

bool MultipleStringSelection::isInSelection(std::string const& text) const {
    auto const place = firstPlace(text);
    return place < size() && chosen_[place];
}

void MultipleStringSelection::removeFromSelection(std::string const& text) {
    auto const place = firstPlace(text);
    if (place < size())
        chosen_[place] = false;
}

void MultipleStringSelection::addAll() {
    chosen_.assign(size(), true);
}

void MultipleStringSelection::invertAll() {
    chosen_.flip();
}

void MultipleStringSelection::removeAll() {
    chosen_.assign(size(), false);
}

std::size_t MultipleStringSelection::chosenCount() const {
    std::size_t count = 0;
    for (std::size_t place = 0; place < size(); ++place)
        count += firstPlaces_[place] == place && chosen_[place] ? 1 : 0;
    return count;
}

Tessera::StrongPtr<Tessera::StringList> MultipleStringSelection::clone() const {
    return Tessera::StrongPtr<Tessera::StringList>(new MultipleStringSelection(*this));
}

namespace {

/// A clone, as the class of the original; null for null.
template <typename Selection>
Tessera::StrongPtr<Selection, Tessera::StringList>
cloned(Tessera::StrongPtr<Selection, Tessera::StringList> const& selection) {
    if (!selection)
        return nullptr;
    return Tessera::DynPtr<Selection, Tessera::StringList>(selection->clone());
}

/// Whether both are null, or both have the same texts.
template <typename List>
bool sameTexts(List const& left, List const& right) {
    return left && right ? left->strings() == right->strings() : !left && !right;
}

int selectedNumber(Enum const& value) {
    auto const* const selection = dynamic_cast<VEnumSelection const*>(value.names().get());
    return selection ? selection->selectedNumber() : -1;
}

} // namespace

std::string VValueTrait<Enum>::Text(Enum const& value) {
    int const number = selectedNumber(value);
    return number < 0 ? std::string() : value.names()->at(static_cast<std::size_t>(number));
}

bool VValueTrait<Enum>::setValueFromText(Enum& value, std::string const& text) {
    auto* const selection = dynamic_cast<VEnumSelection*>(value.names().get());
    if (!selection)
        return false;
    auto const found = std::find(selection->begin(), selection->end(), text);
    if (found == selection->end())
        return false;
    selection->select(static_cast<unsigned>(found - selection->begin()));
    return true;
}

Enum VValueTrait<Enum>::Clone(Enum const& value) {
    return Enum(cloned(value.names()));
}

bool VValueTrait<Enum>::Equal(Enum const& left, Enum const& right) {
    return sameTexts(left.names(), right.names()) && selectedNumber(left) == selectedNumber(right);
}

std::string VValueTrait<VStringList>::Text(VStringList const& value) {
    return value ? value->selected() : std::string();
}

bool VValueTrait<VStringList>::setValueFromText(VStringList& value, std::string const& text) {
    return value && value->select(text);
}

VStringList VValueTrait<VStringList>::Clone(VStringList const& value) {
    return cloned(value);
}

bool VValueTrait<VStringList>::Equal(VStringList const& left, VStringList const& right) {
    return sameTexts(left, right) && (!left || left->selected() == right->selected());
}

std::string VValueTrait<VMultipleStringList>::Text(VMultipleStringList const& value) {
    std::string text;
    if (!value)
        return text;
    bool first = true;
    for (auto const& line : *value) {
        if (!value->isInSelection(line))
            continue;
        text += (first ? "" : "\n") + line;
        first = false;
    }
    return text;
}

bool VValueTrait<VMultipleStringList>::setValueFromText(VMultipleStringList& value, std::string const& text) {
    if (!value)
        return false;
    std::vector<std::string> lines;
    std::istringstream stream(text);
    for (std::string line; std::getline(stream, line);) {
        if (!value->contains(line))
            return false;
        lines.push_back(line);
    }
    value->removeAll();
    for (auto const& line : lines)
        value->add(line);
    return true;
}

VMultipleStringList VValueTrait<VMultipleStringList>::Clone(VMultipleStringList const& value) {
    return cloned(value);
}

bool VValueTrait<VMultipleStringList>::Equal(VMultipleStringList const& left, VMultipleStringList const& right) {
    return sameTexts(left, right) && (!left || std::all_of(left->begin(), left->end(), [&](auto const& text) {
               return left->isInSelection(text) == right->isInSelection(text);
           }));
}

template class VTypedValueBase<Enum>;
template class VTypedValueBase<VStringList>;
template class VTypedValueBase<VMultipleStringList>;
template class VValue<Enum>;
template class VValue<VStringList>;
template class VValue<VMultipleStringList>;

} // namespace Kolt

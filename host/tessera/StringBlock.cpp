#include <tessera/StringBlock.hpp>

#include <algorithm>

namespace Tessera {

StringBlock::StringBlock(std::vector<std::string> strings) : strings_(std::move(strings)) {}

StringBlock::~StringBlock() = default;

StringBlock::Index const& StringBlock::index() const {
    std::call_once(indexed_, [this] {
        index_.places.reserve(strings_.size());
        std::vector<std::size_t> firstPlaces;
        firstPlaces.reserve(strings_.size());
        for (auto const& text : strings_)
            firstPlaces.push_back(index_.places.emplace(text, firstPlaces.size()).first->second);
        if (index_.places.size() < strings_.size())
            index_.firstPlaces = std::move(firstPlaces);
    });
    return index_;
}

std::size_t StringBlock::find(std::string_view text) const {
    auto const& places = index().places;
    auto const found = places.find(text);
    return found == places.end() ? strings_.size() : found->second;
}

std::size_t StringBlock::findLast(std::string_view text) const {
    auto const first = find(text);
    if (first == strings_.size() || index().firstPlaces.empty())
        return first;
    auto const last = std::find(strings_.rbegin(), strings_.rend(), text);
    return static_cast<std::size_t>(strings_.rend() - last) - 1;
}

std::size_t StringBlock::firstPlace(std::size_t place) const {
    auto const& firstPlaces = index().firstPlaces;
    return firstPlaces.empty() ? place : firstPlaces[place];
}

} // namespace Tessera

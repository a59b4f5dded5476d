#include <tessera/StringList.hpp>

#include <algorithm>

namespace Tessera {

StringList::~StringList() = default;

bool StringList::contains(std::string const& text) const {
    return std::find(strings_.begin(), strings_.end(), text) != strings_.end();
}

StrongPtr<StringList> StringList::clone() const {
    return StrongPtr<StringList>(new StringList(*this));
}

bool sameTexts(StrongPtr<StringList> const& left, StrongPtr<StringList> const& right) {
    return left && right ? left->strings() == right->strings() : !left && !right;
}

} // namespace Tessera

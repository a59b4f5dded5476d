#include <tessera/StringList.hpp>

namespace Tessera {

StringList::StringList() : StringList(std::vector<std::string>()) {}

StringList::StringList(std::vector<std::string> strings)
    : block_(std::make_shared<StringBlock const>(std::move(strings))) {}

StringList::~StringList() = default;

bool StringList::hasSameTexts(StringList const& other) const {
    return block_ == other.block_ || strings() == other.strings();
}

StrongPtr<StringList> StringList::clone() const {
    return StrongPtr<StringList>(new StringList(*this));
}

bool sameTexts(StringList const* left, StringList const* right) {
    return left && right ? left->hasSameTexts(*right) : left == right;
}

} // namespace Tessera

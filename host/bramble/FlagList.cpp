#include <bramble/FlagList.hpp>

#include <bramble/TextLines.hpp>
#include <lattice/ValueCreator.hpp>

namespace Kolt {

FlagList::FlagList() = default;

FlagList::FlagList(std::initializer_list<Map::value_type> flags) : flags_(flags) {}

FlagList::FlagList(FlagList const&) = default;

FlagList& FlagList::operator=(FlagList const&) = default;

FlagList::~FlagList() = default;

bool FlagList::isSet(std::string const& name) const {
    auto const found = flags_.find(name);
    return found != flags_.end() && found->second;
}

std::string VValueTrait<FlagList>::Text(FlagList const& value) {
    std::string text;
    for (auto const& [name, on] : value)
        text += (text.empty() ? "" : "\n") + lineOfText(name) + "=" + VValueTrait<bool>::Text(on);
    return text;
}

bool VValueTrait<FlagList>::setValueFromText(FlagList& value, std::string const& text) {
    auto read = value;
    auto lines = textsOfLines(text);
    if (!lines.empty() && lines.back().empty())
        lines.pop_back();
    for (auto const& line : lines) {
        auto const sign = line.rfind('=');
        if (sign == std::string::npos ||
            !VValueTrait<bool>::setValueFromText(read[line.substr(0, sign)], line.substr(sign + 1)))
            return false;
    }
    value = read;
    return true;
}

template class VTypedValueBase<FlagList>;
template class VValue<FlagList>;

namespace {

// Makes the type known while the library loads.
[[maybe_unused]] bool const flagListIsRegistered = (registerValueCreatorOnce<FlagList>(), true);

} // namespace

} // namespace Kolt

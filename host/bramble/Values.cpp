#include <algorithm>
#include <bramble/Action.hpp>
#include <bramble/Selection.hpp>
#include <bramble/Values.hpp>
#include <charconv>
#include <cmath>
#include <sstream>

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

VObjectStatus::VObjectStatus() = default;

VObjectStatus::VObjectStatus(std::string text) : text_(std::move(text)) {}

VObjectStatus::VObjectStatus(VObjectStatus const&) = default;

VObjectStatus& VObjectStatus::operator=(VObjectStatus const&) = default;

VObjectStatus::~VObjectStatus() = default;

VAction::VAction(std::string name, Handler handler) : name_(std::move(name)), handler_(std::move(handler)) {}

VAction::~VAction() = default;

void VAction::emitAction(PoolPtr const& pool, ParameterPtr const& parameter) {
    // Copies, as the handler may replace itself and delete what the references belong to.
    auto const handler = handler_;
    auto const heldPool = pool;
    auto const heldParameter = parameter;
    if (handler)
        handler(heldPool, heldParameter);
}

std::string VValueTrait<Tessera::StrongPtr<VAction>>::Text(Tessera::StrongPtr<VAction> value) {
    return value ? value->Name() : std::string();
}

bool VValueTrait<Tessera::StrongPtr<VAction>>::setValueFromText(Tessera::StrongPtr<VAction>&, std::string const&) {
    return false;
}

namespace {

bool equalChannel(float left, float right) {
    return left == right || (std::isnan(left) && std::isnan(right));
}

} // namespace

std::string VValueTrait<Ferro::rgba_float_t>::Text(Ferro::rgba_float_t const& value) {
    std::string text;
    for (float const channel : {value.red, value.green, value.blue, value.alpha}) {
        char digits[32];
        text += (text.empty() ? "" : " ") +
                (std::isnan(channel) ? "nan"
                                     : std::string(digits, std::to_chars(digits, digits + sizeof digits, channel).ptr));
    }
    return text;
}

bool VValueTrait<Ferro::rgba_float_t>::setValueFromText(Ferro::rgba_float_t& value, std::string const& text) {
    auto const* next = text.data();
    auto const* const end = next + text.size();
    float channels[4];
    for (auto& channel : channels) {
        auto const* const last = next;
        while (next != end && *next == ' ')
            ++next;
        // "0.5.5" would read as two numbers.
        if (next == last && &channel != channels)
            return false;
        auto const result = std::from_chars(next, end, channel);
        if (result.ec != std::errc())
            return false;
        next = result.ptr;
    }
    if (next != end)
        return false;
    value = {channels[0], channels[1], channels[2], channels[3]};
    return true;
}

bool VValueTrait<Ferro::rgba_float_t>::Equal(Ferro::rgba_float_t const& left, Ferro::rgba_float_t const& right) {
    return equalChannel(left.red, right.red) && equalChannel(left.green, right.green) &&
           equalChannel(left.blue, right.blue) && equalChannel(left.alpha, right.alpha);
}

std::string VValueTrait<FlagList>::Text(FlagList const& value) {
    std::string text;
    for (auto const& [name, on] : value)
        text += (text.empty() ? "" : "\n") + name + "=" + VValueTrait<bool>::Text(on);
    return text;
}

bool VValueTrait<FlagList>::setValueFromText(FlagList& value, std::string const& text) {
    auto read = value;
    std::istringstream stream(text);
    for (std::string line; std::getline(stream, line);) {
        auto const sign = line.rfind('=');
        if (sign == std::string::npos ||
            !VValueTrait<bool>::setValueFromText(read[line.substr(0, sign)], line.substr(sign + 1)))
            return false;
    }
    value = read;
    return true;
}

bool VValueTrait<info>::setValueFromText(info& value, std::string const& text) {
    value.text = text;
    return true;
}

bool VValueTrait<VObjectStatus>::setValueFromText(VObjectStatus& value, std::string const& text) {
    value = VObjectStatus(text);
    return true;
}

template class VTypedValueBase<Ferro::rgba_float_t>;
template class VTypedValueBase<FlagList>;
template class VTypedValueBase<info>;
template class VTypedValueBase<VObjectStatus>;
template class VTypedValueBase<Tessera::StrongPtr<VAction>>;
template class VValue<Ferro::rgba_float_t>;
template class VValue<FlagList>;
template class VValue<info>;
template class VValue<VObjectStatus>;
template class VValue<Tessera::StrongPtr<VAction>>;

namespace {

/// Makes the value types of this library known while it loads.
[[maybe_unused]] bool const known = [] {
    registerValueCreatorOnce<Ferro::rgba_float_t>();
    registerValueCreatorOnce<FlagList>();
    registerValueCreatorOnce<info>();
    registerValueCreatorOnce<VObjectStatus>();
    registerValueCreatorOnce<Tessera::StrongPtr<VAction>>();
    registerValueCreatorOnce<Enum>();
    registerValueCreatorOnce<VStringList>();
    registerValueCreatorOnce<VMultipleStringList>();
    return true;
}();

} // namespace

} // namespace Kolt

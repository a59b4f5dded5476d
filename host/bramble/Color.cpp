#include <bramble/Color.hpp>

#include <charconv>
#include <cmath>
#include <lattice/ValueCreator.hpp>

namespace Kolt {

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

template class VTypedValueBase<Ferro::rgba_float_t>;
template class VValue<Ferro::rgba_float_t>;

namespace {

// Makes the type known while the library loads.
[[maybe_unused]] bool const colorIsRegistered = (registerValueCreatorOnce<Ferro::rgba_float_t>(), true);

} // namespace

} // namespace Kolt

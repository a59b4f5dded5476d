#include <lattice/ValueTrait.hpp>

#include <charconv>
#include <cmath>

namespace Kolt {

namespace {

template <typename Number>
bool readWhole(Number& value, std::string const& text) {
    Number read{};
    auto const* const end = text.data() + text.size();
    auto const result = std::from_chars(text.data(), end, read);
    if (result.ec != std::errc() || result.ptr != end)
        return false;
    value = read;
    return true;
}

} // namespace

std::string VValueTrait<bool>::Text(bool value) {
    return value ? "true" : "false";
}

bool VValueTrait<bool>::setValueFromText(bool& value, std::string const& text) {
    if (text != "true" && text != "false")
        return false;
    value = text == "true";
    return true;
}

std::string VValueTrait<int>::Text(int value) {
    return std::to_string(value);
}

bool VValueTrait<int>::setValueFromText(int& value, std::string const& text) {
    return readWhole(value, text);
}

std::string VValueTrait<double>::Text(double value) {
    // Its sign says nothing, and differs with the way in which it was computed.
    if (std::isnan(value))
        return "nan";
    char text[32];
    return {text, std::to_chars(text, text + sizeof text, value).ptr};
}

bool VValueTrait<double>::setValueFromText(double& value, std::string const& text) {
    return readWhole(value, text);
}

bool VValueTrait<double>::Equal(double left, double right) {
    if (left == right)
        return std::signbit(left) == std::signbit(right);
    return std::isnan(left) && std::isnan(right);
}

bool VValueTrait<std::string>::setValueFromText(std::string& value, std::string const& text) {
    value = text;
    return true;
}

std::string VValueTrait<std::string>::OneLine() {
    return "OneLine";
}

std::string VValueTrait<std::string>::MultiLine() {
    return "MultiLine";
}

bool VValueTrait<std::array<std::string, 1>>::setValueFromText(std::array<std::string, 1>& value,
                                                               std::string const& text) {
    value[0] = text;
    return true;
}

} // namespace Kolt

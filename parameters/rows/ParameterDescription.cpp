#include <parameters/rows/ParameterDescription.hpp>

namespace Talo {

namespace {

template <typename T>
T property(Kolt::VParameter const& parameter, std::string_view name) {
    return Kolt::valueIn<T>(findProperty(parameter, name)).value_or(T());
}

QString textOf(std::string_view text) {
    return QString::fromUtf8(text.data(), static_cast<int>(text.size()));
}

} // namespace

Kolt::VValueBase const* findProperty(Kolt::VParameter const& parameter, std::string_view name) {
    if (auto const* const properties = parameter.properties())
        for (auto const& [each, value] : *properties)
            if (each == name)
                return value.get();
    return nullptr;
}

QString textProperty(Kolt::VParameter const& parameter, char const* name) {
    return QString::fromStdString(property<std::string>(parameter, name));
}

ParameterHeading::ParameterHeading(Kolt::VParameter const& parameter)
    : name_(parameter.Name()),
      lastDot_(name_.rfind('.')),
      label_(property<std::string>(parameter, "label")),
      group_(property<std::string>(parameter, "group")) {}

std::string_view ParameterHeading::label() const {
    if (!label_.empty())
        return label_;
    return lastDot_ == std::string::npos ? name_ : std::string_view(name_).substr(lastDot_ + 1);
}

std::string_view ParameterHeading::section() const {
    if (!group_.empty())
        return group_;
    return lastDot_ == std::string::npos ? std::string_view() : std::string_view(name_).substr(0, lastDot_);
}

ParameterDescription::ParameterDescription(Kolt::VParameter const& parameter, ParameterHeading const& heading)
    : name(QString::fromStdString(parameter.Name())),
      label(textOf(heading.label())),
      help(textProperty(parameter, "help")),
      unit(textProperty(parameter, "unit")),
      section(textOf(heading.section())),
      isAdvanced(Talo::isAdvanced(parameter)),
      isReadOnly(property<bool>(parameter, "readOnly")) {}

bool isAdvanced(Kolt::VParameter const& parameter) {
    return property<bool>(parameter, "advanced");
}

bool isChangeable(Kolt::VParameter const& parameter) {
    return parameter.isEdited() && !property<bool>(parameter, "readOnly");
}

} // namespace Talo

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

std::size_t behindLastDot(std::string_view name) {
    // Most names have none, and find() looks at many characters at once.
    return name.find('.') == std::string_view::npos ? 0 : name.rfind('.') + 1;
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
    : name_(parameter.nameView()), shortName_(behindLastDot(name_)) {
    // Most have none.
    if (!parameter.properties())
        return;
    label_ = Kolt::sharedValueIn<std::string>(findProperty(parameter, "label"));
    group_ = Kolt::sharedValueIn<std::string>(findProperty(parameter, "group"));
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
    return parameter.properties() && property<bool>(parameter, "advanced");
}

bool isChangeable(Kolt::VParameter const& parameter) {
    return parameter.isEdited() && !property<bool>(parameter, "readOnly");
}

} // namespace Talo

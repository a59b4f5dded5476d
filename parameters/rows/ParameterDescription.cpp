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
    // Forwards, as find() looks at many characters at once, and most names have one dot at most.
    std::size_t behind = 0;
    for (auto dot = name.find('.'); dot != std::string_view::npos; dot = name.find('.', behind))
        behind = dot + 1;
    return behind;
}

} // namespace

QString textProperty(Kolt::VParameter const& parameter, char const* name) {
    return QString::fromStdString(property<std::string>(parameter, name));
}

ParameterHeading::ParameterHeading(Kolt::VParameter const& parameter)
    : name_(parameter.nameView()), shortName_(behindLastDot(name_)) {
    if (auto const* const label = findProperty(parameter, "label"))
        label_ = Kolt::sharedValueIn<std::string>(label);
    if (auto const* const group = findProperty(parameter, "group"))
        group_ = Kolt::sharedValueIn<std::string>(group);
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
    auto const* const advanced = findProperty(parameter, "advanced");
    return advanced && Kolt::valueIn<bool>(advanced).value_or(false);
}

bool isChangeable(Kolt::VParameter const& parameter) {
    return parameter.isEdited() && !property<bool>(parameter, "readOnly");
}

} // namespace Talo

#include <parameters/rows/ParameterDescription.hpp>

namespace Talo {

namespace {

template <typename T>
T property(Kolt::VParameter const& parameter, char const* name) {
    auto const* const properties = parameter.properties();
    return properties ? Kolt::valueOr(properties->getValue(name), T()) : T();
}

} // namespace

QString textProperty(Kolt::VParameter const& parameter, char const* name) {
    return QString::fromStdString(property<std::string>(parameter, name));
}

ParameterDescription::ParameterDescription(Kolt::VParameter const& parameter)
    : name(QString::fromStdString(parameter.Name())),
      label(textProperty(parameter, "label")),
      help(textProperty(parameter, "help")),
      unit(textProperty(parameter, "unit")),
      section(textProperty(parameter, "group")),
      isAdvanced(Talo::isAdvanced(parameter)),
      isReadOnly(property<bool>(parameter, "readOnly")) {
    auto const dot = name.lastIndexOf(QLatin1Char('.'));
    if (label.isEmpty())
        label = name.mid(dot + 1);
    if (section.isEmpty())
        section = name.left(qMax(0, dot));
}

bool isAdvanced(Kolt::VParameter const& parameter) {
    return property<bool>(parameter, "advanced");
}

bool isChangeable(Kolt::VParameter const& parameter) {
    return parameter.isEdited() && !property<bool>(parameter, "readOnly");
}

} // namespace Talo

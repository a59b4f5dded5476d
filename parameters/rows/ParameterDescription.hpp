#pragma once

#include <lattice/Parameter.hpp>
#include <memory>
#include <QString>
#include <string>
#include <string_view>
#include <tessera/Export.hpp>

namespace Talo {

/// What a form reads of each of its parameters, of which there may be ten thousand: UTF-8, as it is kept, because most
/// of it is never shown. What it says is valid as long as the heading and the parameter. User-interface thread.
class TALO_EXPORT ParameterHeading {
public:
    /// Reads the properties of the parameter.
    explicit ParameterHeading(Kolt::VParameter const& parameter);

    /// What the row is called: the text "label", else the part of the name after its last dot.
    std::string_view label() const { return label_ && !label_->empty() ? *label_ : name_.substr(shortName_); }
    /// The title of the section: the text "group", else the part of the name before its last dot. Empty for none.
    std::string_view section() const {
        return group_ && !group_->empty() ? *group_ : name_.substr(0, shortName_ == 0 ? 0 : shortName_ - 1);
    }

private:
    std::string_view const name_;
    // Where the part of the name begins that is behind its last dot; 0 for a name without dots.
    std::size_t const shortName_;
    // Null for a parameter without the property.
    std::shared_ptr<std::string const> label_;
    std::shared_ptr<std::string const> group_;
};

/// What a parameter's properties say about it to people. The properties are optional; one of another type than is named
/// here says nothing. User-interface thread.
struct TALO_EXPORT ParameterDescription {
    /// Reads the properties of the parameter.
    explicit ParameterDescription(Kolt::VParameter const& parameter)
        : ParameterDescription(parameter, ParameterHeading(parameter)) {}

    /// The parameter's whole name.
    QString name;
    /// What the row is called (ParameterHeading).
    QString label;
    /// What the parameter does, in sentences: the text "help", plain or rich. Empty for none.
    QString help;
    /// What is shown behind the editor: the text "unit". Empty for none.
    QString unit;
    /// The title of the section (ParameterHeading). Empty for none.
    QString section;
    /// Whether the parameter is shown on demand only: "advanced" is true.
    bool isAdvanced = false;
    /// Whether people may not change it: "readOnly" is true. The host still may.
    bool isReadOnly = false;

private:
    ParameterDescription(Kolt::VParameter const& parameter, ParameterHeading const& heading);
};

/// The property of this name; null if there is none. Valid until the properties change.
inline Kolt::VValueBase const* findProperty(Kolt::VParameter const& parameter, std::string_view name) {
    auto const* const properties = parameter.properties();
    return properties ? properties->find(name) : nullptr;
}

/// A property that is a text; empty for none.
QString textProperty(Kolt::VParameter const& parameter, char const* name);

/// ParameterDescription::isAdvanced, without the rest.
TALO_EXPORT bool isAdvanced(Kolt::VParameter const& parameter);

/// Whether people may change the parameter: they edit its type, and it is not "readOnly".
TALO_EXPORT bool isChangeable(Kolt::VParameter const& parameter);

} // namespace Talo

#pragma once

#include <lattice/Parameter.hpp>
#include <QString>
#include <tessera/Export.hpp>

namespace Talo {

/// What a parameter's properties say about it to people. The properties are optional; one of another type than is named
/// here says nothing. User-interface thread.
struct TALO_EXPORT ParameterDescription {
    /// Reads the properties of the parameter.
    explicit ParameterDescription(Kolt::VParameter const& parameter);

    /// The parameter's whole name.
    QString name;
    /// What the row is called: the text "label", else the part of the name after its last dot.
    QString label;
    /// What the parameter does, in sentences: the text "help", plain or rich. Empty for none.
    QString help;
    /// What is shown behind the editor: the text "unit". Empty for none.
    QString unit;
    /// The title of the section: the text "group", else the part of the name before its last dot. Empty for none.
    QString section;
    /// Whether the parameter is shown on demand only: "advanced" is true.
    bool isAdvanced = false;
    /// Whether people may not change it: "readOnly" is true. The host still may.
    bool isReadOnly = false;
};

/// A property that is a text; empty for none.
QString textProperty(Kolt::VParameter const& parameter, char const* name);

/// ParameterDescription::isAdvanced, without the rest.
TALO_EXPORT bool isAdvanced(Kolt::VParameter const& parameter);

/// Whether people may change the parameter: they edit its type, and it is not "readOnly".
TALO_EXPORT bool isChangeable(Kolt::VParameter const& parameter);

} // namespace Talo

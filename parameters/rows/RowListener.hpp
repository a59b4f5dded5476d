#pragma once

#include <lattice/Parameter.hpp>
#include <QString>
#include <tessera/Export.hpp>

namespace Talo {

class ParameterRow;

/// Hears what the rows of a form tell, which is the form. Not by signals: four connections of each row took as much
/// memory as its name. User-interface thread.
class TALO_EXPORT RowListener {
public:
    virtual ~RowListener();

    /// A command did nothing, or a typed number was not taken over, for this reason: a sentence.
    virtual void onRefused(QString const& reason) = 0;
    /// A parameter has another default.
    virtual void onDefaultChanged() = 0;
    /// The user wants to read a parameter's help.
    virtual void onHelpRequested(Kolt::ParameterPtr const& parameter) = 0;
    /// A row has another editor, as the one before could not show the value.
    virtual void onEditorReplaced(ParameterRow const& row) = 0;
};

} // namespace Talo

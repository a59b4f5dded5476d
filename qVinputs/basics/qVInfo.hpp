#pragma once

#include <bramble/Info.hpp>
#include <lattice/CreationPreferences.hpp>
#include <plugin/VInputValue.hpp>
#include <QLabel>

namespace Kolt {

/// Shows an informational text in a label and never writes. The text is UTF-8, of any length, in as many lines as it
/// has. Texts that look like rich text are shown as such. If the parameter was deleted, the label is empty.
/// User-interface thread: the host must report changes there.
class qVInfo : public QLabel, public VInputValue<info> {
public:
    /// Makes an editor of `parameter` on `parent`, which owns it and may be null. The editor refers to the parameter
    /// weakly. It asks `poolSource` for the pool at each use; the source must outlive it, and null means that there is
    /// no pool. `preferences` is not read.
    qVInfo(ParameterRef const& parameter, QWidget* parent, ValuePoolSource* poolSource,
           PreferencesPtr const& preferences);
    ~qVInfo() override;

    /// Shows an info of the editor's pool; any other value is ignored.
    void onValueChange(ValuePtr const& newValue, VContext const& context, ValueMap const* properties) override;
};

} // namespace Kolt

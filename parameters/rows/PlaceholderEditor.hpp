#pragma once

#include <lattice/InputCreator.hpp>
#include <parameters/rows/MutedLabel.hpp>
#include <tessera/Export.hpp>

namespace Talo {

/// Takes the place of a parameter's editor when none can be made: names the type and the preferences of the
/// parameter and says that no editor is registered for it, or what its value must be for its editor.
class TALO_EXPORT PlaceholderEditor : public MutedLabel {
    Q_OBJECT

public:
    /// Reads what it shows from the parameter once and keeps no reference to it. `neededType` is the type that the
    /// value must have so that it can be edited; empty if there is no editor.
    explicit PlaceholderEditor(Kolt::VParameter const& parameter, QWidget* parent = nullptr,
                               std::string const& neededType = {});
    /// Shows this sentence instead: why the editor cannot be used.
    explicit PlaceholderEditor(QString const& sentence, QWidget* parent = nullptr);
    ~PlaceholderEditor() override;
};

} // namespace Talo

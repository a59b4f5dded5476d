#pragma once

#include <lattice/InputCreator.hpp>
#include <parameters/rows/MutedLabel.hpp>
#include <tessera/Export.hpp>

namespace Talo {

/// Stands where a parameter's editor would be when none can be made: names the type and the preferences of the
/// parameter and says that no editor is registered for it.
class TALO_EXPORT PlaceholderEditor : public MutedLabel {
    Q_OBJECT

public:
    /// Reads what it shows from the parameter once and keeps no reference to it.
    explicit PlaceholderEditor(Kolt::VParameter const& parameter, QWidget* parent = nullptr);
    ~PlaceholderEditor() override;
};

} // namespace Talo

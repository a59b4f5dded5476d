#pragma once

#include "Vector3.hpp"

#include <array>
#include <lattice/CreationPreferences.hpp>
#include <plugin/VInputValue.hpp>
#include <QLineEdit>

namespace VectorInputs {

/// Edits a Vector3 with three fields in a row. A field writes its number when Return is pressed in it and when it is
/// left; the other two numbers stay as they are. A text that is no number gives way to the number that holds. A
/// parameter that was deleted is shown as it was, and an edit prints the owner-fault line. User-interface thread.
class VectorInput : public QWidget, public Kolt::VInputValue<Vector3> {
    Q_OBJECT

public:
    /// Makes an editor of `parameter` on `parent`, which owns it and may be null. The editor refers to the parameter
    /// weakly. It asks `poolSource` for the pool at each use; the source must outlive it, and null means that there is
    /// no pool. `preferences` is not read.
    VectorInput(Kolt::ParameterRef const& parameter, QWidget* parent, Kolt::ValuePoolSource* poolSource,
                Kolt::PreferencesPtr const& preferences);
    ~VectorInput() override;

    /// Shows a vector of the editor's pool; any other value is ignored.
    void onValueChange(Kolt::ValuePtr const& newValue, Kolt::VContext const& context,
                       Kolt::ValueMap const* properties) override;

private:
    /// Shows a vector without writing it; nothing for any other value.
    void showStored(Kolt::ValuePtr const& value);
    /// Shows one number of the vector that was last read or written.
    void showNumber(std::size_t index);
    /// Writes what was typed into a field. The editor may be deleted meanwhile.
    void write(std::size_t index);

    std::array<QLineEdit*, 3> fields_{};
};

} // namespace VectorInputs

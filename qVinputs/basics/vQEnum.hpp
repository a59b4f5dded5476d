#pragma once

#include <plugin/VInputValue.hpp>

#include <bramble/Enum.hpp>
#include <bramble/EnumSelection.hpp>
#include <lattice/CreationPreferences.hpp>
#include <QGroupBox>
#include <QPointer>
#include <QRadioButton>
#include <vector>

namespace Kolt {

/// Edits the choice of one name out of a list with radio buttons, one for each name, in the order of the names. They
/// form a grid whose number of columns is the parameter's property "wrap" (an int; 3 if it is missing or below 1).
/// Choosing a button selects its place in the list of names in place, and commits the value.
///
/// The buttons are those of the first value; a later one only moves the mark. A selected place beyond the buttons
/// prints "Qt ENUM: INVALID SELECTION" and leaves the mark; at the start it prints nothing. A mark that a change from
/// elsewhere moves is committed again, so that with several editors of one parameter each of them commits once for a
/// click. If the parameter was deleted, the box is empty. User-interface thread.
class vQEnum : public QGroupBox, public VInputValue<Enum> {
    Q_OBJECT

public:
    /// Makes an editor of `parameter` on `parent`, which owns it and may be null. The editor refers to the parameter
    /// weakly. It asks `poolSource` for the pool at each use; the source must outlive it, and null means that there is
    /// no pool. `preferences` is not read.
    vQEnum(ParameterRef const& parameter, QWidget* parent, ValuePoolSource* poolSource,
           PreferencesPtr const& preferences);
    ~vQEnum() override;

    /// Marks the button of the selected name. Any other value is ignored. The editor may be deleted meanwhile.
    void onValueChange(ValuePtr const& newValue, VContext const& context, ValueMap const* properties) override;

public slots:
    /// A button was marked (`on`) or lost its mark, by the user or by a change from elsewhere.
    void changeState(bool on);

private:
    /// The list that the cached value refers to; null if there is none, or it has no selected place.
    VEnumSelection* selection() const;
    /// The number of columns that the parameter asks for.
    int columnCount() const;

    // In the order of the names; null for a button that was deleted.
    std::vector<QPointer<QRadioButton>> buttons_;
};

} // namespace Kolt

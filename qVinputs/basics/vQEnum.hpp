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

/// Edits the choice of one name out of a list with radio buttons, one a name, in the order of the names. They stand in
/// a grid whose number of columns is the parameter's property "wrap" (an int; 3 without one or below 1). Choosing a
/// button selects its place in the list of names in place, and commits the value.
///
/// The buttons are those of the first value; a later one only moves the mark. A selected place beyond the buttons
/// prints "Qt ENUM: INVALID SELECTION" and leaves the mark; at the start it prints nothing. A mark that a change from
/// elsewhere moves is committed again, so a click with several editors on one parameter gives a commit by each of them.
/// The preferences are not looked at. Where the parameter is gone the box is empty.
class vQEnum : public QGroupBox, public VInputValue<Enum> {
    Q_OBJECT

public:
    vQEnum(ParameterRef const& parameter, QWidget* parent, ValuePoolSource* poolSource,
           PreferencesPtr const& preferences);
    ~vQEnum() override;

    void onValueChange(ValuePtr const& newValue, VContext const& context, ValueMap const* properties) override;

public slots:
    /// A button was marked (`on`) or lost its mark, by the user or by a change from elsewhere.
    void changeState(bool on);

private:
    /// The list that the cached value refers to; null for none, or for one that has no selected place.
    VEnumSelection* selection() const;
    int columnCount() const;

    std::vector<QPointer<QRadioButton>> buttons_;
};

} // namespace Kolt

#pragma once

#include <plugin/VInputValue.hpp>

#include <bramble/FlagList.hpp>
#include <lattice/CreationPreferences.hpp>
#include <QCheckBox>
#include <QFrame>
#include <QPointer>
#include <QVBoxLayout>

namespace Kolt {

/// Edits a list of named switches with check boxes, one a switch, one below the other in the order of the names. A
/// toggle writes the state of all boxes.
///
/// A switch that first comes with a later value gets its box then, at the place of its name. A box is never taken away:
/// a switch that a later value does not have keeps it as it stood, and the next toggle puts the switch back. The
/// preferences are not looked at. Where the parameter is gone there are no boxes.
class qVFlagList : public QFrame, public VInputValue<Options> {
    Q_OBJECT

public:
    qVFlagList(ParameterRef const& parameter, QWidget* parent, ValuePoolSource* poolSource,
               PreferencesPtr const& preferences);
    ~qVFlagList() override;

    void onValueChange(ValuePtr const& newValue, VContext const& context, ValueMap const* properties) override;

public slots:
    /// The user toggled a box; which one, and how, does not matter.
    void GotABoxChanged(int state);

private:
    void showValue(ValuePtr const& value);
    void makeMissingBoxes();

    QPointer<QVBoxLayout> layout_;
    std::map<std::string, QPointer<QCheckBox>> boxes_;
};

} // namespace Kolt

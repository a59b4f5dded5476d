#pragma once

#include <plugin/VInputValue.hpp>

#include <bramble/Action.hpp>
#include <lattice/CreationPreferences.hpp>
#include <QPushButton>

namespace Kolt {

/// Fires an action with a push button. The button is labelled with the last part of the parameter's name, "[doit]" if
/// the parameter was deleted, and takes its icon and tool tip from the parameter's properties "icon" (the path of a
/// picture file) and "tooltip", both UTF-8. A picture that cannot be loaded is not reported; the button keeps the icon
/// that it has.
///
/// The action is the one that the parameter's own value refers to when the button is made. A click writes nothing.
/// User-interface thread.
class qVAction : public QPushButton, public VInputValue<Tessera::StrongPtr<VAction>> {
    Q_OBJECT

public:
    /// Makes an editor of `parameter` on `parent`, which owns it and may be null. The editor refers to the parameter
    /// weakly. It asks `poolSource` for the pool at each use; the source must outlive it, and null means that there is
    /// no pool. `preferences` is not read.
    qVAction(ParameterRef const& parameter, QWidget* parent, ValuePoolSource* poolSource,
             PreferencesPtr const& preferences);
    ~qVAction() override;

    /// Shows the icon and tool tip that the parameter has now; the value itself is not shown.
    void onValueChange(ValuePtr const& newValue, VContext const& context, ValueMap const* properties) override;

public slots:
    /// The user's click: fires the action in the pool of this moment. Without a pool nothing happens. If the
    /// parameter was deleted, or is while the action runs, the owner-fault line is printed once. The action may delete
    /// the button.
    void activated(bool checked);

private:
    /// Takes icon and tool tip from the properties; what is missing there stays as it is.
    void showDecoration();

    PoolPtr pool_;
    Tessera::StrongPtr<VAction> const action_;
};

} // namespace Kolt

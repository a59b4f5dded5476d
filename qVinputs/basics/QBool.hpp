#pragma once

#include <plugin/VInputValue.hpp>

#include <lattice/CreationPreferences.hpp>
#include <QCheckBox>
#include <QFrame>
#include <QPointer>

namespace Kolt {

/// Edits a bool with a check box. Every click writes the value, also an equal one. If the parameter was deleted, the
/// box starts unchecked, and a click prints the owner-fault line. User-interface thread.
class QBool : public QFrame, public VInputValue<bool> {
    Q_OBJECT

public:
    /// Makes an editor of `parameter` on `parent`, which owns it and may be null. The editor refers to the parameter
    /// weakly. It asks `poolSource` for the pool at each use; the source must outlive it, and null means that there is
    /// no pool. `preferences` is not read.
    QBool(ParameterRef const& parameter, QWidget* parent, ValuePoolSource* poolSource,
          PreferencesPtr const& preferences);
    ~QBool() override;

    /// Checks or clears the box for a bool of the editor's pool; this is no click and writes nothing. Any other value
    /// is ignored.
    void onValueChange(ValuePtr const& newValue, VContext const& context, ValueMap const* properties) override;

public slots:
    /// The user clicked the box: writes its new state. The editor may be deleted meanwhile.
    void clicked(bool checked);

private:
    /// Shows a bool without writing it; nothing for any other value.
    void showValue(ValuePtr const& value);

    // A child; null if it was deleted.
    QPointer<QCheckBox> checkBox_;
};

} // namespace Kolt

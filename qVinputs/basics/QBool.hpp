#pragma once

#include <plugin/VInputValue.hpp>

#include <lattice/CreationPreferences.hpp>
#include <QCheckBox>
#include <QFrame>
#include <QPointer>

namespace Kolt {

/// Edits a bool with a check box. A click writes the value, also where it does not change. The preferences are not
/// looked at. Where the parameter is gone the box starts unchecked, and a click prints the owner-fault line.
class QBool : public QFrame, public VInputValue<bool> {
    Q_OBJECT

public:
    QBool(ParameterRef const& parameter, QWidget* parent, ValuePoolSource* poolSource,
          PreferencesPtr const& preferences);
    ~QBool() override;

    void onValueChange(ValuePtr const& newValue, VContext const& context, ValueMap const* properties) override;

public slots:
    /// The user's edit.
    void clicked(bool checked);

private:
    void showValue(ValuePtr const& value);

    QPointer<QCheckBox> checkBox_;
};

} // namespace Kolt

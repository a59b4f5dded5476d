#pragma once

#include <lattice/Input.hpp>
#include <QLCDNumber>
#include <sorrel/QIconizer.hpp>

namespace Kolt {

/// Shows an int parameter's value in a pool by seven-segment digits, as an icon of the object that the parameter
/// belongs to. It never writes. A value of another type leaves it as it is. User-interface thread.
class IntegerIcon : public VIcon, public QLCDNumber {
public:
    /// Shows the value that the parameter has in the provider's pool, 0 where it has none there or is gone.
    IntegerIcon(QWidget* parent, ParameterRef const& parameter,
                Tessera::WeakPtr<VObject, VManagedObjectBase> const& object,
                Tessera::StrongPtr<ValuePoolProvider> const& provider);
    ~IntegerIcon() override;

    QWidget* widget() override { return this; }

private:
    class LCDNotifier;

    void showValue(ValuePtr const& value);

    Tessera::StrongPtr<LCDNotifier, ValueNotifier> notifier_;
    ParameterRef parameter_;
};

/// Makes the icons of an integer input's parameter. Every integer input carries one. It refers to the parameter weakly
/// and so does each icon.
class QIntegerIconizer : public QIconizer {
public:
    explicit QIntegerIconizer(VInputBase const& input);
    ~QIntegerIconizer() override;

    VIcon* createIcon(QWidget* parent, Tessera::WeakPtr<VObject, VManagedObjectBase> const& object,
                      Tessera::StrongPtr<ValuePoolProvider> const& provider) override;

private:
    ParameterRef parameter_;
};

} // namespace Kolt

#pragma once

#include <lattice/Input.hpp>
#include <QLCDNumber>
#include <sorrel/QIconizer.hpp>

namespace Kolt {

/// Shows the value of an int parameter in a pool with seven-segment digits, as an icon of the object that the parameter
/// belongs to. It never writes. A value of another type leaves it unchanged. User-interface thread.
class IntegerIcon : public VIcon, public QLCDNumber {
public:
    /// Shows the value that the parameter has in the provider's pool; 0 if it has none there or was deleted. `parent`
    /// owns the icon. It refers to the parameter weakly and keeps `provider`.
    IntegerIcon(QWidget* parent, ParameterRef const& parameter,
                Tessera::WeakPtr<VObject, VManagedObjectBase> const& object,
                Tessera::StrongPtr<ValuePoolProvider> const& provider);
    ~IntegerIcon() override;

    /// The icon itself.
    QWidget* widget() override { return this; }

private:
    /// Shows the changes of the parameter; the icon owns it.
    class LCDNotifier;

    /// Shows an int; nothing for any other value.
    void showValue(ValuePtr const& value);

    Tessera::StrongPtr<LCDNotifier, ValueNotifier> notifier_;
    ParameterRef parameter_;
};

/// Makes the icons of an integer input's parameter. Every integer input carries one as an interface, by which the host
/// finds it. It refers to the parameter weakly, so it may outlive the input. User-interface thread.
class QIntegerIconizer : public QIconizer {
public:
    /// Takes the parameter from the input, which is not kept.
    explicit QIntegerIconizer(VInputBase const& input);
    ~QIntegerIconizer() override;

    /// A new icon of `object` on `parent`; the caller owns it.
    VIcon* createIcon(QWidget* parent, Tessera::WeakPtr<VObject, VManagedObjectBase> const& object,
                      Tessera::StrongPtr<ValuePoolProvider> const& provider) override;

private:
    ParameterRef parameter_;
};

} // namespace Kolt

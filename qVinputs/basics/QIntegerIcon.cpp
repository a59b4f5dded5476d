#include <qVinputs/basics/QIntegerIcon.hpp>

#include <plugin/VInputValue.hpp>

namespace Kolt {

/// Keeps an icon current. The icon owns it; others may keep it longer, to no effect.
class IntegerIcon::LCDNotifier : public ValueNotifier {
public:
    explicit LCDNotifier(IntegerIcon* icon) : icon_(icon) {}

    void leaveIcon() { icon_ = nullptr; }
    void onValueChange(ValuePtr const& newValue, VContext const& context, ValueMap const*) override {
        if (!icon_)
            return;
        auto const parameter = icon_->parameter_.strong();
        if (!parameter || !isForOtherPool(*parameter, currentPool(icon_->provider()), newValue, context))
            icon_->showValue(newValue);
    }

private:
    IntegerIcon* icon_;
};

IntegerIcon::IntegerIcon(QWidget* parent, ParameterRef const& parameter,
                         Tessera::WeakPtr<VObject, VManagedObjectBase> const& object,
                         Tessera::StrongPtr<ValuePoolProvider> const& provider)
    : VIcon(object, provider), QLCDNumber(parent), notifier_(new LCDNotifier(this)), parameter_(parameter) {
    auto const living = parameter_.strong();
    auto const value = living ? living->getLocalValue(currentPool(provider), std::string(), false) : nullptr;
    if (living)
        living->addNotifier(notifier_);
    display(0);
    showValue(value);
}

IntegerIcon::~IntegerIcon() {
    notifier_->leaveIcon();
}

void IntegerIcon::showValue(ValuePtr const& value) {
    if (auto const number = storedValueIn<int>(value))
        display(*number);
}

QIntegerIconizer::QIntegerIconizer(VInputBase const& input) : parameter_(input.owner()) {}

QIntegerIconizer::~QIntegerIconizer() = default;

VIcon* QIntegerIconizer::createIcon(QWidget* parent, Tessera::WeakPtr<VObject, VManagedObjectBase> const& object,
                                    Tessera::StrongPtr<ValuePoolProvider> const& provider) {
    return new IntegerIcon(parent, parameter_, object, provider);
}

} // namespace Kolt

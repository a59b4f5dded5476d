#include <sorrel/AccessibleNumber.hpp>

#include <QAbstractSlider>
#include <QAccessibleWidget>
#include <QDial>

namespace Kolt {

namespace {

/// What Qt's own interface of a slider gives, with the number in place of the position.
class AccessibleNumberControl : public QAccessibleWidget, public QAccessibleValueInterface {
public:
    AccessibleNumberControl(QAbstractSlider* slider, AccessibleNumber const& number)
        : QAccessibleWidget(slider, qobject_cast<QDial*>(slider) ? QAccessible::Dial : QAccessible::Slider),
          slider_(*slider),
          number_(number) {}

    void* interface_cast(QAccessible::InterfaceType type) override {
        if (type == QAccessible::ValueInterface)
            return static_cast<QAccessibleValueInterface*>(this);
        return QAccessibleWidget::interface_cast(type);
    }
    QString text(QAccessible::Text which) const override {
        return which == QAccessible::Value ? currentValue().toString() : QAccessibleWidget::text(which);
    }
    QVariant currentValue() const override { return number_.numberState().value; }
    void setCurrentValue(QVariant const& value) override { slider_.setValue(number_.positionOf(value.toDouble())); }
    QVariant maximumValue() const override { return number_.numberState().maximum; }
    QVariant minimumValue() const override { return number_.numberState().minimum; }
    QVariant minimumStepSize() const override { return number_.numberState().step; }

private:
    // Qt deletes this with the control.
    QAbstractSlider& slider_;
    AccessibleNumber const& number_;
};

QAccessibleInterface* makeInterface(QString const&, QObject* object) {
    auto* const slider = qobject_cast<QAbstractSlider*>(object);
    auto const* const number = slider ? dynamic_cast<AccessibleNumber const*>(slider) : nullptr;
    return number ? new AccessibleNumberControl(slider, *number) : nullptr;
}

} // namespace

AccessibleNumber::AccessibleNumber() {
    // Does nothing if it is installed already.
    QAccessible::installFactory(makeInterface);
}

AccessibleNumber::~AccessibleNumber() = default;

} // namespace Kolt

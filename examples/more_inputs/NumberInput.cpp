#include "NumberInput.hpp"

#include <limits>
#include <plugin/QInputWidgetCreator.hpp>
#include <QPointer>
#include <type_traits>

namespace MoreInputs {

namespace {

constexpr int mostDecimals = 1000;

/// The properties of a parameter by their names; each may be missing or have another type, and then counts as missing.
class Properties {
public:
    explicit Properties(Kolt::ParameterRef const& owner) : parameter_(owner.strong()) {}

    template <typename T>
    T get(char const* name, T otherwise) const {
        auto const* const map = parameter_ ? parameter_->properties() : nullptr;
        return map ? Kolt::valueOr(map->getValue(name), otherwise) : otherwise;
    }
    template <typename T>
    void readNumber(char const* name, double& into) const {
        // What another editor filled in says nothing about the parameter.
        bool const counts = parameter_ && !parameter_->isFilledIn(name);
        auto const* const map = counts ? parameter_->properties() : nullptr;
        auto const property = map ? map->getValue(name) : nullptr;
        if (auto const found = Kolt::storedValueIn<T>(property))
            into = static_cast<double>(*found);
        else if (auto const whole = Kolt::storedValueIn<int>(property))
            into = *whole;
    }

private:
    Kolt::ParameterPtr const parameter_;
};

} // namespace

template <typename T>
NumberInput<T>::NumberInput(Kolt::ParameterRef const& parameter, QWidget* parent, Kolt::ValuePoolSource* poolSource,
                            Kolt::PreferencesPtr const& preferences)
    : NumberField(parent), Kolt::VInputValue<T>(parameter, poolSource) {
    if (!preferences || !preferences->contains("spin"))
        setButtonSymbols(NoButtons);
    // A row of a panel then leaves the unit to the editor.
    setProperty("showsUnit", true);
    applyProperties();
    showStored(this->firstValue());
    connect(this, &NumberField::edited, this, &NumberInput::write);
    this->activateNotification();
}

template <typename T>
NumberInput<T>::~NumberInput() = default;

template <typename T>
void NumberInput<T>::onValueChange(Kolt::ValuePtr const& newValue, Kolt::VContext const& context,
                                   Kolt::ValueMap const* properties) {
    if (properties)
        applyProperties();
    if (this->arrivalOf(newValue, context) != Kolt::VInputValue<T>::Arrival::OtherPool)
        showStored(newValue);
}

template <typename T>
void NumberInput<T>::applyProperties() {
    Properties const properties(this->owner());
    NumberScale scale;
    scale.isWhole = std::is_same_v<T, int>;
    if (scale.isWhole) {
        scale.minimum = std::numeric_limits<int>::lowest();
        scale.maximum = std::numeric_limits<int>::max();
    }
    properties.readNumber<T>("min", scale.minimum);
    properties.readNumber<T>("max", scale.maximum);
    properties.readNumber<T>("softMinimum", scale.softMinimum);
    properties.readNumber<T>("softMaximum", scale.softMaximum);
    properties.readNumber<T>("step", scale.step);
    scale.isLogarithmic = properties.get("logarithmic", false);
    scale.decimals = std::min(properties.get("precision", -1), mostDecimals);
    setScale(scale);
    setUnit(QString::fromStdString(properties.get("unit", std::string())));
}

template <typename T>
void NumberInput<T>::showStored(Kolt::ValuePtr const& value) {
    if (this->cacheStored(value))
        showNumber(static_cast<double>(this->cached_));
}

template <typename T>
void NumberInput<T>::write(double number) {
    QPointer<NumberInput> const self(this);
    if (this->commit(static_cast<T>(number)) || !self)
        return;
    // It was not stored, so what holds is shown.
    showStored(this->firstValue());
}

template class NumberInput<int>;
template class NumberInput<double>;

namespace {

TALO_STATIC_CREATOR Kolt::QInputWidgetCreator<int, NumberInput<int>> const
    intSpin("spin", Kolt::PreferencesPtr(new Kolt::VCreationPreferences(std::string("spin"))));
TALO_STATIC_CREATOR Kolt::QInputWidgetCreator<int, NumberInput<int>> const
    intField("field", Kolt::PreferencesPtr(new Kolt::VCreationPreferences(std::string("field"))));
TALO_STATIC_CREATOR Kolt::QInputWidgetCreator<double, NumberInput<double>> const
    doubleSpin("spin", Kolt::PreferencesPtr(new Kolt::VCreationPreferences(std::string("spin"))));
TALO_STATIC_CREATOR Kolt::QInputWidgetCreator<double, NumberInput<double>> const
    doubleField("field", Kolt::PreferencesPtr(new Kolt::VCreationPreferences(std::string("field"))));

} // namespace

} // namespace MoreInputs

#include "VectorInput.hpp"

#include <cmath>
#include <plugin/Plugin.hpp>
#include <plugin/QInputWidgetCreator.hpp>
#include <QHBoxLayout>
#include <QLabel>
#include <QPointer>

namespace VectorInputs {

namespace {

constexpr char const* names[] = {"X", "Y", "Z"};

QString textOf(double number) {
    return QString::fromStdString(Kolt::VValueTrait<double>::Text(number));
}

} // namespace

VectorInput::VectorInput(Kolt::ParameterRef const& parameter, QWidget* parent, Kolt::ValuePoolSource* poolSource,
                         Kolt::PreferencesPtr const&)
    : QWidget(parent), Kolt::VInputValue<Vector3>(parameter, poolSource) {
    auto* const layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    for (std::size_t index = 0; index < fields_.size(); ++index) {
        auto* const field = fields_[index] = new QLineEdit(this);
        field->setMinimumWidth(8 * field->fontMetrics().averageCharWidth());
        // A panel names the field for a screen reader by its label.
        auto* const label = new QLabel(QLatin1String(names[index]), this);
        label->setBuddy(field);
        layout->addWidget(label);
        layout->addWidget(field, 1);
        connect(field, &QLineEdit::editingFinished, this, [this, index] { write(index); });
        showNumber(index);
    }
    setFocusProxy(fields_.front());
    showStored(firstValue());
    activateNotification();
}

VectorInput::~VectorInput() = default;

void VectorInput::onValueChange(Kolt::ValuePtr const& newValue, Kolt::VContext const& context, Kolt::ValueMap const*) {
    if (arrivalOf(newValue, context) != Arrival::OtherPool)
        showStored(newValue);
}

void VectorInput::showStored(Kolt::ValuePtr const& value) {
    auto const before = cached_;
    if (!cacheStored(value))
        return;
    for (std::size_t index = 0; index < fields_.size(); ++index)
        // What is being typed stays while another number changes.
        if (before.numbers[index] != cached_.numbers[index])
            showNumber(index);
}

void VectorInput::showNumber(std::size_t index) {
    fields_[index]->setText(textOf(cached_.numbers[index]));
    fields_[index]->setCursorPosition(0);
}

void VectorInput::write(std::size_t index) {
    auto vector = cached_;
    auto const text = fields_[index]->text().toStdString();
    auto& number = vector.numbers[index];
    bool const isNumber = Kolt::VValueTrait<double>::setValueFromText(number, text) && std::isfinite(number);
    QPointer<VectorInput> const self(this);
    // What was not stored is not shown.
    if (isNumber && !(vector == cached_) && !commit(vector) && self)
        showStored(firstValue());
    if (self)
        showNumber(index);
}

namespace {

TALO_STATIC_CREATOR Kolt::QInputWidgetCreator<Vector3, VectorInput> const vectorCreator("vector", nullptr);

} // namespace

} // namespace VectorInputs

TALO_PLUGIN(vector_inputs);

#include <sorrel/CommitOnDrop.hpp>

#include <QCoreApplication>
#include <QFocusEvent>
#include <QPointer>
#include <sorrel/QLeaveLineEdit.hpp>

namespace Kolt {

void CommitOnDrop::addTo(QWidget& editor, InputRef const& input, ValuePoolSource const* poolSource) {
    auto* const line = qobject_cast<QLineEdit*>(&editor);
    if (line && !qobject_cast<QLeaveLineEdit*>(line))
        new CommitOnDrop(line, nullptr, input, poolSource);
    auto const comboBoxes = editor.findChildren<QComboBox*>();
    for (auto* const comboBox : comboBoxes)
        if (comboBox->lineEdit())
            new CommitOnDrop(comboBox->lineEdit(), comboBox, input, poolSource);
}

CommitOnDrop::CommitOnDrop(QLineEdit* field, QComboBox* comboBox, InputRef input, ValuePoolSource const* poolSource)
    : QObject(field), field_(field), comboBox_(comboBox), input_(std::move(input)), poolSource_(poolSource) {
    field->installEventFilter(this);
}

bool CommitOnDrop::eventFilter(QObject* watched, QEvent* event) {
    if (watched != field_ || event->type() != QEvent::Drop)
        return QObject::eventFilter(watched, event);
    // A receiver of the value may delete the field, and this with it.
    QPointer<CommitOnDrop> const self(this);
    watched->event(event);
    // Fields commit when they lose the focus.
    for (auto const type : {QEvent::FocusOut, QEvent::FocusIn}) {
        QFocusEvent focus(type, Qt::OtherFocusReason);
        if (self && (type == QEvent::FocusOut || field_->hasFocus()))
            QCoreApplication::sendEvent(field_, &focus);
    }
    if (self && comboBox_)
        showCurrentValue();
    return true;
}

void CommitOnDrop::showCurrentValue() const {
    auto const input = input_.strong();
    auto const parameter = input ? input->owner().strong() : nullptr;
    if (!parameter)
        return;
    auto const pool = currentPool(poolSource_);
    // Else an editor with the focus takes the dropped text for one that is being typed.
    comboBox_->setEditText(comboBox_->itemText(comboBox_->currentIndex()));
    input->notify(parameter->effectiveValue(pool), VContext(pool, nullptr));
}

} // namespace Kolt

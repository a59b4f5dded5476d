// The commands of a row for its value.

#include <parameters/commands/RowCommands.hpp>
#include <parameters/rows/ParameterDescription.hpp>
#include <parameters/rows/ParameterRow.hpp>
#include <QPointer>

namespace Talo {

QString ParameterRow::removedText() const {
    return tr("%1 was removed.").arg(parameterName_);
}

void ParameterRow::resetToDefault() {
    auto const parameter = parameter_.strong();
    if (!parameter)
        refuse(removedText());
    else if (!isChangeable(*parameter))
        refuse(unchangeableText(parameterName_));
    else if (!Talo::resetToDefault(parameter, pool()))
        refuse(tr("%1 has no default to go back to.").arg(parameterName_));
}

std::vector<Kolt::ParameterPtr> ParameterRow::livingVector() const {
    std::vector<Kolt::ParameterPtr> living;
    for (auto const& each : vector_)
        if (auto const parameter = each.strong())
            living.push_back(parameter);
    return living;
}

void ParameterRow::copyValue() {
    auto const vector = livingVector();
    auto const parameter = parameter_.strong();
    if (!parameter)
        refuse(removedText());
    else if (vector.empty())
        Talo::copyValue(*parameter, pool());
    else
        copyValues(vector, pool());
}

void ParameterRow::pasteValue() {
    auto const vector = livingVector();
    auto const parameter = parameter_.strong();
    // The row may be deleted by a notifier of the new value; then nobody hears the reason.
    QPointer<ParameterRow> const self(this);
    QString reason = removedText();
    if (parameter)
        reason = !vector.empty() && canPasteValues(vector) ? pasteValues(vector, pool())
                                                           : Talo::pasteValue(parameter, pool());
    if (self && !reason.isEmpty())
        refuse(reason);
}

void ParameterRow::setAsDefault() {
    auto const parameter = parameter_.strong();
    if (!parameter) {
        refuse(removedText());
        return;
    }
    parameter->rememberDefaults();
    showDefault();
    listener_.onDefaultChanged();
}

} // namespace Talo

// What a row says beside its editor.

#include <parameters/commands/UndoText.hpp>
#include <parameters/rows/ParameterDescription.hpp>
#include <parameters/rows/ParameterRow.hpp>
#include <parameters/rows/RowTexts.hpp>
#include <QEvent>

namespace Talo {

void ParameterRow::showDefault() {
    auto const parameter = parameter_.strong();
    auto const* const defaults = parameter ? parameter->defaults() : nullptr;
    if (!defaults || defaults->isEffectiveIn(*parameter, pool())) {
        names_->hideModified();
        return;
    }
    // A default may be long, and while it is the same one so is its text.
    auto const value = defaults->in(pool()).value;
    if (shownDefault_ != Tessera::WeakPtr<Kolt::VValueBase>(value)) {
        shownDefault_ = value;
        bool const hadIndicator = names_->indicator();
        names_->setDefault(spokenName(), valueText(*value));
        if (!hadIndicator)
            connect(names_->indicator(), &ModifiedIndicator::clicked, this, &ParameterRow::resetToDefault);
    }
    names_->showModified();
}

QString ParameterRow::spokenName() const {
    if (!vectorName_.isEmpty())
        return componentName_.isEmpty() ? vectorName_
                                        : tr("%1 %2", "vector, component").arg(vectorName_, componentName_);
    auto const parameter = parameter_.strong();
    return parameter ? ParameterDescription(*parameter).label : QString();
}

void ParameterRow::updateAccessibility() {
    auto const parameter = parameter_.strong();
    if (cell_.widget() && parameter)
        cell_.describeControls(controlDescription(objectName_, *parameter, pool()));
}

QString ParameterRow::toolTipText() const {
    auto const parameter = parameter_.strong();
    return parameter ? rowToolTip(parameter) : QString();
}

void ParameterRow::changeEvent(QEvent* event) {
    QWidget::changeEvent(event);
    if (event->type() == QEvent::LanguageChange)
        retranslate();
}

void ParameterRow::retranslate() {
    shownDefault_ = nullptr;
    showDefault();
    showNote();
    // A sentence.
    if (cell_.isPlaceholder())
        reopenEditor();
    if (!cell_.widget())
        return;
    cell_.renameControls(spokenName());
    if (extension_)
        extension_->refresh();
    updateAccessibility();
    if (auto const parameter = parameter_.strong(); parameter && rawValue_)
        rawValue_->setExplanation(creatorExplanation(*parameter, cell_));
}

void ParameterRow::showNote() {
    names_->setNote(rowNote(parameter_.strong(), pool()));
}

} // namespace Talo

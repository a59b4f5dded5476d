#include <parameters/rows/SharedRow.hpp>

#include <algorithm>
#include <lattice/ValueSnapshot.hpp>
#include <parameters/commands/RowCommands.hpp>
#include <parameters/commands/UndoText.hpp>
#include <parameters/input/InputFilter.hpp>
#include <parameters/rows/ParameterDescription.hpp>
#include <QEvent>
#include <utility>

namespace Talo {

SharedRow::SharedRow(QString objectName, std::vector<SharedParameter> others, ParameterRow& row)
    : QObject(&row), objectName_(std::move(objectName)), others_(std::move(others)), row_(row) {
    auto const listen = [this](Kolt::ParameterPtr const& parameter) {
        if (parameter)
            listeners_.push_back(std::make_unique<ChangeListener>(parameter, [this] { refreshLater(); }));
    };
    listen(row.parameter());
    for (auto const& [name, other] : others_)
        listen(other.strong());
    connect(&row, &ParameterRow::poolShown, this, &SharedRow::refresh);
    refresh();
}

SharedRow::~SharedRow() = default;

void SharedRow::refreshLater() {
    // Later, as an editor must not go while it is notified. Any number of changes until then is one.
    if (!std::exchange(refreshWaits_, true))
        QMetaObject::invokeMethod(this, &SharedRow::refresh, Qt::QueuedConnection);
}

bool SharedRow::event(QEvent* event) {
    if (event->type() == QEvent::LanguageChange)
        refresh();
    return QObject::event(event);
}

std::vector<SharedRow::Choice> SharedRow::choices() const {
    std::vector<Choice> choices;
    auto const add = [&](QString const& objectName, Kolt::ParameterPtr const& parameter) {
        if (!parameter)
            return;
        auto const value = Kolt::copyEffectiveValue(*parameter, row_.pool());
        auto const equal = std::find_if(choices.begin(), choices.end(),
                                        [&](auto const& choice) { return choice.value.equals(value); });
        if (equal == choices.end())
            choices.push_back({value, {objectName}});
        else
            equal->objects << objectName;
    };
    add(objectName_, row_.parameter());
    for (auto const& [objectName, other] : others_)
        add(objectName, other.strong());
    return choices;
}

void SharedRow::refresh() {
    refreshWaits_ = false;
    auto const values = choices();
    if (values.size() < 2) {
        isOpened_ = false;
        row_.setCover(nullptr);
    } else if (!isOpened_) {
        cover(values);
    }
}

void SharedRow::cover(std::vector<Choice> const& choices) {
    auto* button = qobject_cast<MixedButton*>(row_.cover());
    if (!button) {
        button = new MixedButton;
        connect(button, &MixedButton::editRequested, this, &SharedRow::edit);
        connect(button, &MixedButton::chosen, this, &SharedRow::setAll);
    }
    std::vector<MixedButton::Choice> texts;
    texts.reserve(choices.size());
    for (auto const& [value, objects] : choices)
        texts.push_back({valueText(*value.value), objects});
    button->setChoices(row_.spokenName(), texts);
    row_.setCover(button);
}

void SharedRow::edit() {
    isOpened_ = true;
    row_.setCover(nullptr);
    if (row_.editor())
        row_.editor()->setFocus();
}

void SharedRow::setAll(int number) {
    auto const values = choices();
    auto const parameter = row_.parameter();
    if (!parameter || number >= static_cast<int>(values.size()))
        return;
    if (!isChangeable(*parameter)) {
        row_.refuse(unchangeableText(row_.parameterName()));
        return;
    }
    InputFilter::shared()->gestures().end();
    auto const others = others_;
    auto const pool = row_.pool();
    Kolt::EffectiveValue const value{values[static_cast<std::size_t>(number)].value.value, false};
    Kolt::UndoHistory::Macro const macro(parameter->history());
    (void)parameter->history().store(parameter, pool, value);
    for (auto const& [objectName, reference] : others)
        if (auto const other = reference.strong(); other && isChangeable(*other))
            (void)other->history().store(other, pool, value);
}

} // namespace Talo

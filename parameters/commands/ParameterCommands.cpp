#include <parameters/commands/ParameterCommands.hpp>

#include <parameters/commands/RowCommands.hpp>
#include <QApplication>
#include <QMenu>
#include <QMenuBar>

namespace Talo {

ParameterCommands::ParameterCommands(QWidget* scope, QObject* parent)
    : QObject(parent), filter_(InputFilter::shared()), scope_(scope) {
    for (auto const& command : rowCommands()) {
        auto* const action = new QAction(this);
        action->setObjectName(QLatin1String(command.name));
        connect(action, &QAction::triggered, this, [this, run = command.run] {
            if (row_)
                (row_->*run)();
        });
        actions_ << action;
    }
    connect(qApp, &QApplication::focusChanged, this, [this](QWidget*, QWidget* now) { focusChanged(now); });
    connect(filter_.get(), &InputFilter::languageChanged, this, &ParameterCommands::nameActions);
    nameActions();
    focusChanged(QApplication::focusWidget());
    updateActions();
}

ParameterCommands::~ParameterCommands() = default;

void ParameterCommands::nameActions() {
    auto const commands = rowCommands();
    for (int index = 0; index < actions_.size(); ++index) {
        auto const& command = commands[static_cast<std::size_t>(index)];
        actions_[index]->setText(command.text);
        actions_[index]->setShortcut(command.shortcut);
    }
}

QAction* ParameterCommands::action(char const* objectName) const {
    for (auto* const each : actions_)
        if (each->objectName() == QLatin1String(objectName))
            return each;
    return nullptr;
}

void ParameterCommands::focusChanged(QWidget* widget) {
    // A menu, or a window that loses the focus for a moment, does not change which row the commands are about.
    if (!widget || qobject_cast<QMenuBar*>(widget) || qobject_cast<QMenu*>(widget))
        return;
    auto* const row = ParameterRow::rowOf(widget);
    row_ = row && (!scope_ || scope_ == row || scope_->isAncestorOf(row)) ? row : nullptr;
    updateActions();
}

void ParameterCommands::updateActions() {
    auto const parameter = row_ ? row_->parameter() : nullptr;
    auto const commands = rowCommands();
    for (int index = 0; index < actions_.size(); ++index)
        actions_[index]->setEnabled(commands[static_cast<std::size_t>(index)].isEnabledFor(parameter));
}

} // namespace Talo

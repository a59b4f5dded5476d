#include <parameters/commands/RowCommands.hpp>

#include <lattice/UndoHistory.hpp>
#include <parameters/commands/EditorMenu.hpp>
#include <parameters/commands/ValueClipboard.hpp>
#include <parameters/EditorChoice.hpp>
#include <parameters/input/InputFilter.hpp>
#include <parameters/rows/ParameterDescription.hpp>
#include <parameters/rows/ParameterRow.hpp>
#include <QClipboard>
#include <QCoreApplication>
#include <QGuiApplication>
#include <QMenu>

namespace Talo {

namespace {

struct CommandTexts {
    Q_DECLARE_TR_FUNCTIONS(RowCommands)
};

bool canBeReset(Kolt::VParameter const& parameter) {
    return parameter.defaults() && isChangeable(parameter);
}

bool isEdited(Kolt::VParameter const& parameter) {
    return parameter.isEdited();
}

bool hasHelp(Kolt::VParameter const& parameter) {
    return !ParameterDescription(parameter).help.isEmpty();
}

/// Stores a value as an undo step. Returns the reason if it cannot be done.
QString storePasted(Kolt::ParameterPtr const& parameter, Kolt::PoolPtr const& pool, Kolt::ValuePtr const& value) {
    auto const name = QString::fromStdString(parameter->Name());
    if (!isChangeable(*parameter))
        return unchangeableText(name);
    if (!parameter->history().store(parameter, pool, {value, false}))
        return CommandTexts::tr("%1 does not take a value in this pool.").arg(name);
    return {};
}

} // namespace

bool RowCommand::isEnabledFor(Kolt::ParameterPtr const& parameter) const {
    return parameter && isPossible(*parameter);
}

std::vector<RowCommand> rowCommands() {
    // Text fields keep the keys that they use themselves.
    return {{"resetValue", CommandTexts::tr("Reset to &default"), QKeySequence(CommandTexts::tr("Ctrl+D")),
             &ParameterRow::resetToDefault, canBeReset},
            {"copyValue", CommandTexts::tr("&Copy value"), QKeySequence(CommandTexts::tr("Ctrl+Shift+C")),
             &ParameterRow::copyValue, isEdited},
            {"pasteValue", CommandTexts::tr("&Paste value"), QKeySequence(CommandTexts::tr("Ctrl+Shift+V")),
             &ParameterRow::pasteValue, isChangeable},
            {"setAsDefault", CommandTexts::tr("&Set as default"), {}, &ParameterRow::setAsDefault, isEdited},
            {"showHelp", CommandTexts::tr("S&how help"), QKeySequence(CommandTexts::tr("F1")), &ParameterRow::showHelp,
             hasHelp}};
}

QMenu* makeRowMenu(ParameterRow& row) {
    auto* const menu = new QMenu(&row);
    auto const parameter = row.parameter();
    for (auto const& command : rowCommands()) {
        // The key is only shown: the menu must not take it from the actions of a window.
        auto const key = command.shortcut.toString(QKeySequence::NativeText);
        auto* const action = menu->addAction(key.isEmpty() ? command.text : command.text + QLatin1Char('\t') + key);
        action->setObjectName(QLatin1String(command.name));
        action->setEnabled(command.isEnabledFor(parameter));
        QObject::connect(action, &QAction::triggered, &row, command.run);
    }
    if (auto* const choice = EditorChoice::around(&row)) {
        menu->addSeparator();
        fillEditorMenu(*menu->addMenu(CommandTexts::tr("&Editors")), parameter, *choice);
    }
    return menu;
}

bool resetToDefault(Kolt::ParameterPtr const& parameter, Kolt::PoolPtr const& pool) {
    InputFilter::shared()->gestures().end();
    auto const* const defaults = parameter ? parameter->defaults() : nullptr;
    return defaults && parameter->history().store(parameter, pool, defaults->in(pool));
}

void copyValue(Kolt::VParameter const& parameter, Kolt::PoolPtr const& pool) {
    QGuiApplication::clipboard()->setMimeData(ValueClipboard::copy(parameter, pool).release());
}

QString unchangeableText(QString const& parameterName) {
    return CommandTexts::tr("%1 cannot be changed here.").arg(parameterName);
}

QString pasteValue(Kolt::ParameterPtr const& parameter, Kolt::PoolPtr const& pool) {
    InputFilter::shared()->gestures().end();
    auto const* const data = QGuiApplication::clipboard()->mimeData();
    // Platforms differ in how they report an empty clipboard.
    if (!data || data->formats().isEmpty())
        return CommandTexts::tr("The clipboard is empty.");
    auto const pasted = ValueClipboard::paste(*data, *parameter, pool);
    if (!pasted.value)
        return pasted.error;
    return storePasted(parameter, pool, pasted.value);
}

void copyValues(std::vector<Kolt::ParameterPtr> const& parameters, Kolt::PoolPtr const& pool) {
    QGuiApplication::clipboard()->setMimeData(ValueClipboard::copyAll(parameters, pool).release());
}

bool canPasteValues(std::vector<Kolt::ParameterPtr> const& parameters) {
    auto const* const data = QGuiApplication::clipboard()->mimeData();
    return data && ValueClipboard::hasValues(*data, parameters.size());
}

QString pasteValues(std::vector<Kolt::ParameterPtr> const& parameters, Kolt::PoolPtr const& pool) {
    InputFilter::shared()->gestures().end();
    auto const* const data = QGuiApplication::clipboard()->mimeData();
    if (!data || parameters.empty())
        return CommandTexts::tr("The clipboard is empty.");
    auto const pasted = ValueClipboard::pasteAll(*data, parameters, pool);
    if (!pasted.error.isEmpty())
        return pasted.error;
    for (auto const& parameter : parameters)
        if (!isChangeable(*parameter))
            return unchangeableText(QString::fromStdString(parameter->Name()));
    Kolt::UndoHistory::Macro const macro(parameters.front()->history());
    QString reason;
    for (std::size_t index = 0; index < parameters.size() && reason.isEmpty(); ++index)
        reason = storePasted(parameters[index], pool, pasted.values[index]);
    return reason;
}

} // namespace Talo

#include <lattice/UndoHistory.hpp>
#include <network/ValueFormat.hpp>
#include <parameters/commands/ParameterCommands.hpp>
#include <parameters/commands/ValueClipboard.hpp>
#include <QApplication>
#include <QClipboard>
#include <QContextMenuEvent>
#include <QMenu>
#include <QMenuBar>

namespace Talo {

ParameterCommands::ParameterCommands(GestureWatcher& gestures, QObject* parent)
    : QObject(parent),
      gestures_(gestures),
      // Text fields keep the keys that they know themselves.
      resetAction_(
          makeAction("resetValue", tr("Reset to &default"), QKeySequence(tr("Ctrl+D")), &ParameterCommands::reset)),
      copyAction_(
          makeAction("copyValue", tr("&Copy value"), QKeySequence(tr("Ctrl+Shift+C")), &ParameterCommands::copy)),
      pasteAction_(
          makeAction("pasteValue", tr("&Paste value"), QKeySequence(tr("Ctrl+Shift+V")), &ParameterCommands::paste)) {
    connect(qApp, &QApplication::focusChanged, this, [this](QWidget*, QWidget* now) { focusChanged(now); });
    QCoreApplication::instance()->installEventFilter(this);
    updateActions();
}

ParameterCommands::~ParameterCommands() = default;

QAction* ParameterCommands::makeAction(char const* objectName, QString const& text, QKeySequence const& shortcut,
                                       void (ParameterCommands::*command)(ParameterRow&)) {
    auto* const action = new QAction(text, this);
    action->setObjectName(QLatin1String(objectName));
    action->setShortcut(shortcut);
    connect(action, &QAction::triggered, this, [this, command] {
        if (row_)
            (this->*command)(*row_);
    });
    return action;
}

void ParameterCommands::focusChanged(QWidget* widget) {
    // The commands of a menu, or of a window that is left for a moment, go on being about the same row.
    if (!widget || qobject_cast<QMenuBar*>(widget) || qobject_cast<QMenu*>(widget))
        return;
    row_ = ParameterRow::rowOf(widget);
    updateActions();
}

void ParameterCommands::updateActions() {
    auto const parameter = row_ ? row_->parameter() : nullptr;
    bool const edited = parameter && parameter->isEdited();
    resetAction_->setEnabled(edited && parameter->defaults());
    copyAction_->setEnabled(edited);
    pasteAction_->setEnabled(edited);
}

bool ParameterCommands::eventFilter(QObject* watched, QEvent* event) {
    // What a part of the row has a menu of its own for does not reach the row.
    auto* const row = event->type() == QEvent::ContextMenu ? qobject_cast<ParameterRow*>(watched) : nullptr;
    if (!row)
        return QObject::eventFilter(watched, event);
    row_ = row;
    updateActions();
    auto* const menu = new QMenu(row);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    menu->addActions(actions());
    menu->popup(static_cast<QContextMenuEvent*>(event)->globalPos());
    event->accept();
    return true;
}

void ParameterCommands::reset(ParameterRow& row) {
    gestures_.end();
    if (!row.resetToDefault())
        emit refused(tr("%1 has no default to go back to.").arg(row.parameterName()));
}

void ParameterCommands::copy(ParameterRow& row) {
    auto const parameter = row.parameter();
    if (parameter)
        QApplication::clipboard()->setMimeData(ValueClipboard::copy(*parameter, row.pool()).release());
    else
        emit refused(tr("%1 was removed.").arg(row.parameterName()));
}

void ParameterCommands::paste(ParameterRow& row) {
    gestures_.end();
    auto const parameter = row.parameter();
    if (!parameter) {
        emit refused(tr("%1 was removed.").arg(row.parameterName()));
        return;
    }
    // A copy: the row may be gone once others were told of the value.
    auto const name = QString(row.parameterName());
    auto const* const data = QApplication::clipboard()->mimeData();
    // Platforms differ in how they say that there is nothing.
    bool const isEmpty = !data || data->formats().isEmpty();
    auto const pasted = isEmpty ? ValueClipboard::Pasted{nullptr, tr("The clipboard is empty.")}
                                : ValueClipboard::paste(*data, *parameter, row.pool());
    if (!pasted.value)
        emit refused(pasted.error);
    else if (!Kolt::UndoHistory::theHistory().store(parameter, row.pool(), {pasted.value, false}))
        emit refused(tr("%1 does not take a value in this pool.").arg(name));
}

} // namespace Talo

#include "WindowCheck.hpp"

#include <network/Network.hpp>
#include <parameters/commands/HistoryView.hpp>
#include <parameters/commands/UndoText.hpp>
#include <QApplication>
#include <QFileInfo>

namespace {

using Faults = std::vector<std::string>;

void expect(Faults& all, char const* what, QString const& text, QString const& part) {
    if (!text.contains(part))
        all.push_back(std::string(what) + " \"" + text.toStdString() + "\" without \"" + part.toStdString() + "\"");
}

void expectEqual(Faults& all, char const* what, int is, int shouldBe) {
    if (is != shouldBe)
        all.push_back(std::string(what) + " " + std::to_string(is) + ", not " + std::to_string(shouldBe));
}

QString stepText(Panel::MainWindow const& window, Kolt::UndoStep const& step) {
    auto const* const network = window.network();
    return Talo::undoText(step, [network](Kolt::ParameterPtr const& parameter) { return network->nameOf(parameter); });
}

void checkTitle(Panel::MainWindow const& window, Faults& all) {
    auto const title = window.windowTitle();
    expect(all, "title", title, window.network()->title());
    expect(all, "title", title, QFileInfo(window.network()->file()).fileName());
    if (window.isWindowModified() != window.network()->isModified())
        all.push_back(window.isWindowModified() ? "title says that values are unsaved"
                                                : "title does not say that values are unsaved");
}

void checkUndo(Panel::MainWindow const& window, char const* name, Kolt::UndoHistory::Step const& step, Faults& all) {
    auto const* const action = window.findChild<QAction*>(QLatin1String(name));
    if (action->isEnabled() != (step != nullptr))
        all.push_back(std::string(name) + (step ? " is disabled" : " is enabled without a step"));
    else if (step)
        expect(all, name, action->text(), stepText(window, *step).replace(QLatin1Char('&'), QLatin1String("&&")));
}

void checkHistory(Panel::MainWindow& window, Faults& all) {
    auto const* const view = window.findChild<Talo::HistoryView*>();
    if (!view->isVisible())
        return;
    auto steps = window.history().steps();
    auto const done = static_cast<int>(steps.size());
    auto const undone = window.history().undoneSteps();
    steps.insert(steps.end(), undone.begin(), undone.end());
    expectEqual(all, "history has rows", view->count(), static_cast<int>(steps.size()) + 1);
    for (int row = 1; row < view->count() && row <= static_cast<int>(steps.size()); ++row) {
        auto const text = stepText(window, *steps[static_cast<std::size_t>(row - 1)]);
        if (view->item(row)->text() != text)
            all.push_back("history row " + std::to_string(row) + " \"" + view->item(row)->text().toStdString() +
                          "\", not \"" + text.toStdString() + "\"");
        // The current row is no sign: the arrow keys move it.
        if (view->item(row)->font().italic() != (row > done))
            all.push_back("history row " + std::to_string(row) + " looks as if it was " +
                          (row > done ? "done" : "undone"));
    }
}

void checkObjects(Panel::MainWindow const& window, Faults& all) {
    auto* const list = window.objectList();
    for (auto const& object : window.network()->objects()) {
        auto const index = list->objects()->find(QString::fromStdString(object->Name()));
        if (!index.isValid() || index.data().toString().toStdString() != object->Name())
            all.push_back("object list without " + object->Name());
        else if (list->isRowHidden(index.row(), index.parent()) == list->objects()->isShown(index))
            all.push_back("object list shows or hides " + object->Name() + " against the filter");
    }
    auto const chosen = list->chosenObjects();
    auto const* const view = window.currentView();
    if (!chosen.empty() && view && view->object() != chosen.front())
        all.push_back("object list is at " + chosen.front()->Name() + ", the form shows " + view->object()->Name());
}

void checkMessages(Panel::MainWindow const& window, Faults& all) {
    auto const* const messages = window.messages();
    expectEqual(all, "messages that were printed", messages->outputCount(),
                messages->texts(Panel::MessageList::Source::Output).size());
    if (messages->texts().size() > Panel::MessageList::Capacity)
        all.push_back("more messages than are kept");
    for (int row = 0; row < messages->topLevelItemCount(); ++row) {
        if (messages->topLevelItem(row)->text(messages->columnCount() - 1).isEmpty())
            all.push_back("message " + std::to_string(row) + " is empty");
    }
}

} // namespace

std::vector<std::string> windowFaults(Panel::MainWindow& window) {
    Faults all;
    checkTitle(window, all);
    checkUndo(window, "undo", window.history().nextUndo(), all);
    checkUndo(window, "redo", window.history().nextRedo(), all);
    checkHistory(window, all);
    checkObjects(window, all);
    checkMessages(window, all);
    return all;
}

std::vector<std::string> focusFaults(Panel::MainWindow& window) {
    Faults all;
    auto* const focus = QApplication::focusWidget();
    // Of a window that was just closed Qt knows the focus until the window system answers.
    if (!focus || QApplication::activePopupWidget() || !focus->window()->isVisible())
        return all;
    if (!focus->isVisible() || !focus->isEnabled())
        all.push_back(std::string("the focus is in a ") + focus->metaObject()->className() + " that cannot be used");
    auto const* const commands =
        qobject_cast<Talo::ParameterCommands*>(window.findChild<QAction*>(QStringLiteral("copyValue"))->parent());
    auto const* const row = Talo::ParameterRow::rowOf(focus);
    if (row && commands->row() != row)
        all.push_back("the focus is in " + row->parameterName().toStdString() + ", the commands are about " +
                      (commands->row() ? commands->row()->parameterName().toStdString() : "nothing"));
    return all;
}

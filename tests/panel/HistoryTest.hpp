#pragma once

#include "EditingTest.hpp"

#include <parameters/commands/HistoryView.hpp>

/// A window with its list of undo steps.
class HistoryTest : public EditingTest {
protected:
    Talo::HistoryView* list() const { return window->findChild<Talo::HistoryView*>(QStringLiteral("history")); }
    std::vector<std::string> rows() const {
        std::vector<std::string> rows;
        for (int index = 0; index < list()->count(); ++index)
            rows.push_back(list()->item(index)->text().toStdString());
        return rows;
    }
    bool noGesture() const { return !window->history().isMacroOpen(); }
    void undo() const { action("undo")->trigger(); }
    void redo() const { action("redo")->trigger(); }
};

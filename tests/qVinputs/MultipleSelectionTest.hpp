#pragma once

#include "SelectionTest.hpp"
#include <bramble/MultipleStringSelection.hpp>

#include <QCheckBox>
#include <QLabel>
#include <QLayout>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>

/// Shared by the tests of multiple selections: editors, their controls by name, and what they show.
class MultipleSelectionTest : public SelectionTest {
protected:
    using Selection = Kolt::VMultipleStringList;

    static Selection makeSelection(std::vector<std::string> strings, std::vector<std::string> const& chosen = {}) {
        Selection const selection(new Kolt::MultipleStringSelection(std::move(strings)));
        for (auto const& text : chosen)
            selection->add(text);
        return selection;
    }
    /// "row 0", "row 1" and so on.
    static std::vector<std::string> rowNames(int count) {
        std::vector<std::string> names;
        for (int row = 0; row < count; ++row)
            names.push_back("row " + std::to_string(row));
        return names;
    }
    /// The chosen texts in the order of the list.
    static std::string chosen(Selection const& selection) { return Kolt::VValueTrait<Selection>::Text(selection); }

    static QListWidget* list(QWidget const& editor) { return editor.findChild<QListWidget*>(); }
    static QPushButton* button(QWidget const& editor, char const* label) {
        for (auto* const button : editor.findChildren<QPushButton*>()) {
            if (button->text() == QLatin1String(label))
                return button;
        }
        return nullptr;
    }
    static QCheckBox* removeBox(QWidget const& editor) { return editor.findChild<QCheckBox*>(); }
    /// The line edits in the order of the column: for the wildcard, for the numbers.
    static QLineEdit* wildcardEdit(QWidget const& editor) { return editBelow(editor, "Wildcard:"); }
    static QLineEdit* numberEdit(QWidget const& editor) { return editBelow(editor, "By Number:"); }
    static QLabel* label(QWidget const& editor, char const* text) {
        for (auto* const label : editor.findChildren<QLabel*>()) {
            if (label->text() == QLatin1String(text))
                return label;
        }
        return nullptr;
    }

    static void press(QWidget const& editor, char const* label) {
        QTest::mouseClick(button(editor, label), Qt::LeftButton);
    }
    static void click(QWidget const& editor, int row) {
        auto* const rows = list(editor);
        rows->scrollToItem(rows->item(row));
        QTest::mouseClick(rows->viewport(), Qt::LeftButton, {}, rows->visualItemRect(rows->item(row)).center());
    }
    /// Moves the mouse over a list while its left button is held.
    static void move(QListWidget const& list, QPoint const& place) {
        QMouseEvent event(QEvent::MouseMove, place, list.viewport()->mapToGlobal(place), Qt::NoButton, Qt::LeftButton,
                          Qt::NoModifier);
        QApplication::sendEvent(list.viewport(), &event);
    }
    static void enter(QLineEdit* edit, QString const& text) {
        edit->setText(text);
        QTest::keyClick(edit, Qt::Key_Return);
    }
    static void enterWildcard(QWidget const& editor, QString const& text) { enter(wildcardEdit(editor), text); }
    static void enterNumbers(QWidget const& editor, QString const& text) { enter(numberEdit(editor), text); }

    static std::vector<int> selectedRows(QListWidget const& list) {
        std::vector<int> rows;
        for (int row = 0; row < list.count(); ++row) {
            if (list.item(row)->isSelected())
                rows.push_back(row);
        }
        return rows;
    }
    static std::vector<int> selectedRows(QWidget const& editor) { return selectedRows(*list(editor)); }

    /// Opens an editor in the shown window, so that the mouse can reach it.
    Kolt::Editor openShown(Kolt::ParameterPtr const& parameter) {
        auto const editor = open(parameter);
        parent->show();
        return editor;
    }

    /// What was printed, without the line about filling the list.
    Lines printed() {
        auto lines = takeOutput();
        lines.erase(std::remove(lines.begin(), lines.end(), trace), lines.end());
        return lines;
    }
    void TearDown() override {
        EXPECT_EQ(printed(), Lines());
        SelectionTest::TearDown();
    }

    static constexpr char const* trace = "calling getSeletion from valueChanged";

private:
    /// The line edit below a label in the column.
    static QLineEdit* editBelow(QWidget const& editor, char const* text) {
        auto const* const column = editor.layout()->itemAt(0)->layout();
        return qobject_cast<QLineEdit*>(column->itemAt(column->indexOf(label(editor, text)) + 1)->widget());
    }
};

#pragma once

#include "FractalPanelTest.hpp"
#include "support/Desktop.hpp"
#include "support/FileDialogs.hpp"

#include <lattice/InputRegistry.hpp>
#include <QAbstractSlider>
#include <QColorDialog>
#include <QMessageBox>
#include <QTreeWidget>
#include <set>

/// The panel with the example network on a display, for real mouse and keyboard input.
class DesktopTest : public FractalPanelTest {
protected:
    void TearDown() override {
        FractalPanelTest::TearDown();
        // The list of multiple selections prints this each time it shows a value.
        EXPECT_THAT(takeOutput(), testing::Each("calling getSeletion from valueChanged"));
    }

    /// Clicks on an object's name.
    void choose(QString const& object) {
        auto* const list = window->objectList();
        desktop.click(*list->viewport(), QPoint(20, list->visualRect(list->objects()->find(object)).center().y()));
        ASSERT_TRUE(waitUntil([&] {
            return window->currentView() && window->currentView()->object() == window->network()->findObject(object);
        })) << qPrintable(object);
    }
    Talo::ParameterRow* row(char const* parameterName) const {
        auto const name = QString::fromUtf8(parameterName);
        auto* const found = window->currentView()->row(name.mid(name.indexOf(QLatin1Char('.')) + 1));
        if (found) {
            window->currentView()->panel()->rowArea()->ensureWidgetVisible(found);
            QCoreApplication::processEvents();
        }
        return found;
    }
    template <typename Control>
    Control* control(char const* parameterName) const {
        auto* const editor = row(parameterName)->editor();
        auto* const itself = qobject_cast<Control*>(editor);
        return itself ? itself : editor->template findChild<Control*>();
    }
    /// Finds a parameter and moves the focus to its first control, by keys only.
    void goTo(char const* parameterName) {
        auto const name = QString::fromUtf8(parameterName);
        desktop.key("ctrl+f");
        auto const* const field = window->findChild<QLineEdit*>(QStringLiteral("filter"));
        ASSERT_TRUE(waitUntil([&] { return QApplication::focusWidget() == field; }));
        desktop.type(name);
        ASSERT_TRUE(waitUntil([&] { return field->text() == name; }));
        desktop.key("Return");
        ASSERT_TRUE(waitUntil([&] {
            auto* const found = row(parameterName);
            return found && found->editor() && isIn(found->editor(), QApplication::focusWidget());
        })) << parameterName;
    }

    /// Makes a change, waits for it, and undoes and redoes it by keys.
    void edit(char const* name, char const* means, std::function<void()> const& change) {
        SCOPED_TRACE(std::string(name) + " by " + means);
        auto const before = valueOf(name);
        change();
        EXPECT_TRUE(waitUntil([&] { return valueOf(name) != before; })) << "is " << before;
        EXPECT_TRUE(waitUntil([] { return QApplication::mouseButtons() == Qt::NoButton; }));
        ASSERT_TRUE(waitUntil([&] { return window->isActiveWindow(); }));
        auto const after = valueOf(name);
        desktop.key("ctrl+z");
        EXPECT_TRUE(waitUntil([&] { return valueOf(name) == before; })) << valueOf(name) << " for " << before;
        desktop.key("ctrl+shift+z");
        EXPECT_TRUE(waitUntil([&] { return valueOf(name) == after; })) << valueOf(name) << " for " << after;
        noteCreator(name);
    }
    /// Waits for a value: while a text is typed, the parameter has other values first.
    void expectValue(char const* name, std::string const& value) const {
        EXPECT_TRUE(waitUntil([&] { return valueOf(name) == value; })) << name << " is " << valueOf(name);
    }
    void drag(QWidget const& widget, QPoint const& from, QPoint const& to) {
        desktop.move(widget, from);
        desktop.press();
        desktop.move(widget, (from + to) / 2);
        desktop.move(widget, to);
        desktop.release();
        EXPECT_TRUE(waitUntil([] { return QApplication::mouseButtons() == Qt::NoButton; }));
    }
    /// Types a file's name into the dialog that `open` opens, and presses Return.
    void enterFile(QString const& name, std::function<void()> const& open) {
        bool entered = false;
        auto const openAndWait = [&] {
            open();
            EXPECT_TRUE(waitUntil([&] { return entered; }, 15000));
        };
        EXPECT_TRUE(withFileDialog(openAndWait, [&](QFileDialog& dialog) {
            auto const* const field = dialog.findChild<QLineEdit*>(QStringLiteral("fileNameEdit"));
            desktop.key("alt+n");
            EXPECT_TRUE(waitUntil([&] { return field->hasFocus(); }));
            // The dialog searches files while it is open: it may put one that it finds into the field, and its list of
            // completions may open at any moment, even over the Return. So do what a user does: type again, close the
            // list, and press Return again.
            for (int attempt = 0; attempt < 6 && dialog.isVisible(); ++attempt) {
                if (QApplication::activePopupWidget()) {
                    desktop.key("Escape");
                    EXPECT_TRUE(waitUntil([] { return QApplication::activePopupWidget() == nullptr; }));
                }
                if (field->text() != name) {
                    desktop.key("ctrl+a");
                    desktop.type(name);
                    waitUntil([&] { return field->text() == name; }, 2000);
                    continue;
                }
                desktop.key("Return");
                waitUntil([&] { return !dialog.isVisible(); }, 2000);
            }
            close(dialog);
            entered = true;
        }));
        EXPECT_TRUE(waitUntil([&] { return window->isActiveWindow(); }));
    }
    /// Presses a key in the message box that `open` opens.
    void answer(char const* key, std::function<void()> const& open) {
        bool answered = false;
        auto const openAndWait = [&] {
            open();
            EXPECT_TRUE(waitUntil([&] { return answered; }, 15000));
        };
        EXPECT_TRUE(withModalDialog<QMessageBox>(openAndWait, [&](QMessageBox& box) {
            desktop.key(key);
            close(box);
            answered = true;
        }));
    }
    /// Types a colour into the dialog of a swatch and closes the dialog.
    void enterColour(char const* colour) {
        QColorDialog* dialog = nullptr;
        ASSERT_TRUE(waitUntil([&] {
            dialog = qobject_cast<QColorDialog*>(QApplication::activeWindow());
            return dialog != nullptr;
        }));
        desktop.key("alt+h");
        ASSERT_TRUE(waitUntil([&] { return qobject_cast<QLineEdit*>(QApplication::focusWidget()) != nullptr; }));
        desktop.key("ctrl+a");
        desktop.type(QString::fromUtf8(colour));
        EXPECT_TRUE(waitUntil([&] { return dialog->currentColor() == QColor(QLatin1String(colour)); }));
        desktop.key("Return");
        EXPECT_TRUE(waitUntil([&] { return window->isActiveWindow(); }));
    }
    /// Uses a menu by keys: `menu` opens it, the others choose the entry.
    void chooseFromMenu(char const* menu, std::initializer_list<char const*> entry) {
        desktop.key(menu);
        ASSERT_TRUE(waitUntil([] { return QApplication::activePopupWidget() != nullptr; }));
        for (auto const* const key : entry)
            desktop.key(key);
        ASSERT_TRUE(waitUntil([] { return QApplication::activePopupWidget() == nullptr; }));
    }
    QByteArray savedBytes() const {
        QFile saved(file);
        EXPECT_TRUE(saved.open(QIODevice::ReadOnly));
        return saved.readAll();
    }
    bool saidByPanel(QString const& text) const {
        return window->messages()->texts(Panel::MessageList::Source::Panel).join(QLatin1Char('\n')).contains(text);
    }

    /// Records that the editor of the parameter was used.
    void noteCreator(char const* name) {
        used.insert(Kolt::InputRegistry::theRegistry().choose(*parameter(name), {"QT"}).creator.strong().get());
    }
    /// The creators of which no editor was used.
    std::vector<std::string> unusedCreators() const {
        std::vector<std::string> unused;
        for (auto const& entry : Kolt::InputRegistry::theRegistry().entries()) {
            if (used.count(entry.creator.strong().get()) == 0)
                unused.push_back(entry.valueType + ": " + entry.creator.strong()->describe());
        }
        return unused;
    }

    Desktop desktop;
    std::set<Kolt::VInputCreatorBase const*> used;

private:
    static bool isIn(QWidget const* editor, QWidget const* widget) {
        return editor == widget || editor->isAncestorOf(widget);
    }
    // A dialog that stays open would block the test.
    static void close(QDialog& dialog) {
        bool const closed = waitUntil([&] { return !dialog.isVisible(); });
        EXPECT_TRUE(closed) << "a dialog stays open";
        if (!closed)
            dialog.reject();
    }
};

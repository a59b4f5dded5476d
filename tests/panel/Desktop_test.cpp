// The panel as a person uses it, by the mouse and the keyboard of a display with a window manager.

#include "PanelTest.hpp"
#include "support/Desktop.hpp"

#include <QAbstractSlider>
#include <QColorDialog>
#include <QComboBox>
#include <QDial>
#include <QDockWidget>
#include <QFileDialog>
#include <QLineEdit>
#include <QListWidget>
#include <QMenuBar>
#include <QPushButton>
#include <QRadioButton>
#include <QScrollBar>
#include <QTextEdit>

using testing::HasSubstr;

namespace {

class DesktopTest : public PanelTest {
protected:
    void SetUp() override {
        PanelTest::SetUp();
        QFile::copy(QStringLiteral(TALO_EXAMPLES "/fractal.json"), file);
        QString error;
        ASSERT_TRUE(window->openNetwork(file, &error)) << qPrintable(error);
        window->resize(1150, 900);
        window->show();
        window->activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(window.get()));
    }

    void TearDown() override {
        PanelTest::TearDown();
        // The lists trace what they show.
        takeOutput();
    }

    /// Clicks on an object's name.
    void choose(QString const& object) {
        auto* const list = window->objectList();
        auto* const item = list->findItems(object, Qt::MatchExactly).constFirst();
        auto const row = list->visualItemRect(item);
        desktop.click(*list->viewport(), QPoint(20, row.center().y()));
        ASSERT_TRUE(waitUntil([&] {
            return window->currentView() && window->currentView()->object() == window->network()->findObject(object);
        }));
    }
    Panel::ParameterRow* row(char const* parameterName) const {
        auto const name = QString::fromUtf8(parameterName);
        int const dot = name.indexOf(QLatin1Char('.'));
        auto* const found = window->currentView()->row(name.mid(dot + 1));
        window->currentView()->rowArea()->ensureWidgetVisible(found);
        QCoreApplication::processEvents();
        return found;
    }
    template <typename Control>
    Control* control(char const* parameterName) const {
        auto* const editor = row(parameterName)->editor();
        auto* const itself = qobject_cast<Control*>(editor);
        return itself ? itself : editor->findChild<Control*>();
    }
    /// By the keys alone: finds a parameter and goes to its first control.
    void goTo(char const* parameterName) {
        desktop.key("ctrl+f");
        auto const* const field = window->findChild<QLineEdit*>(QStringLiteral("filter"));
        ASSERT_TRUE(waitUntil([&] { return QApplication::focusWidget() == field; }));
        desktop.type(QString::fromUtf8(parameterName));
        ASSERT_TRUE(waitUntil([&] { return field->text() == QString::fromUtf8(parameterName); }));
        desktop.key("Return");
        ASSERT_TRUE(waitUntil([&] { return row(parameterName)->isAncestorOf(QApplication::focusWidget()); }))
            << parameterName;
    }
    void expectChange(char const* name, std::string const& before, char const* means) {
        EXPECT_TRUE(waitUntil([&] { return valueOf(name) != before; })) << name << " by " << means;
    }
    /// Takes the change back by the keys and makes it again.
    void expectUndo(char const* name, std::string const& before) {
        auto const after = valueOf(name);
        desktop.key("ctrl+z");
        EXPECT_TRUE(waitUntil([&] { return valueOf(name) == before; })) << name << " is " << valueOf(name);
        desktop.key("ctrl+shift+z");
        EXPECT_TRUE(waitUntil([&] { return valueOf(name) == after; })) << name << " is " << valueOf(name);
    }
    template <typename Change>
    void edit(char const* name, char const* means, Change const& change) {
        SCOPED_TRACE(std::string(name) + " by " + means);
        auto const before = valueOf(name);
        change();
        expectChange(name, before, means);
        // What comes a moment later belongs to the change, too.
        QTest::qWait(30);
        expectUndo(name, before);
    }
    static QPoint handle(QAbstractSlider const& slider) {
        double const share = static_cast<double>(slider.value() - slider.minimum()) /
                             (static_cast<double>(slider.maximum()) - slider.minimum());
        return {7 + static_cast<int>(share * (slider.width() - 14)), slider.height() / 2};
    }
    void drag(QWidget const& widget, QPoint const& from, QPoint const& to) {
        desktop.move(widget, from);
        desktop.press();
        desktop.move(widget, (from + to) / 2);
        desktop.move(widget, to);
        desktop.release();
    }
    void enterFile(QString const& name) {
        ASSERT_TRUE(waitUntil([] { return qobject_cast<QFileDialog*>(QApplication::activeModalWidget()) != nullptr; }));
        auto const* const dialog = QApplication::activeModalWidget();
        ASSERT_TRUE(waitUntil([&] { return dialog->isActiveWindow(); }));
        desktop.key("ctrl+a");
        desktop.type(name);
        desktop.key("Return");
        EXPECT_TRUE(waitUntil([] { return QApplication::activeModalWidget() == nullptr; }));
    }
    /// Types a colour into the open dialog of a swatch and closes it.
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
        desktop.key("Escape");
        EXPECT_TRUE(waitUntil([&] { return window->isActiveWindow(); }));
    }

    QString const file = folder.filePath(QStringLiteral("fractal.json"));
    Desktop desktop;
};

} // namespace

TEST_F(DesktopTest, EveryKindOfEditorIsUsedByTheMouse) {
    window->choosePool(QStringLiteral("final"));
    auto const names = {"formula.iterations", "formula.zoom"};
    for (auto const* const name : names) {
        edit(name, "a drag of the handle", [&] {
            auto* const slider = control<QSlider>(name);
            drag(*slider, handle(*slider), QPoint(slider->width() / 2 + 33, slider->height() / 2));
        });
        edit(name, "a typed number", [&] {
            desktop.click(*control<QLineEdit>(name));
            desktop.key("ctrl+a");
            desktop.type(QStringLiteral("17"));
            desktop.key("Return");
        });
    }
    for (auto const* const name : {"formula.quality", "formula.symmetry", "formula.contrast", "formula.rotation"}) {
        edit(name, "a turn of the dial", [&] {
            auto* const dial = control<QDial>(name);
            drag(*dial, QPoint(dial->width() / 2, dial->height() - 8), QPoint(dial->width() - 9, dial->height() / 3));
        });
    }
    edit("formula.smooth", "a click", [&] { desktop.click(*control<QCheckBox>("formula.smooth"), QPoint(8, 12)); });
    edit("formula.kind", "a click", [&] {
        auto const buttons = row("formula.kind")->editor()->findChildren<QRadioButton*>();
        desktop.click(*buttons.at(1), QPoint(8, buttons.at(1)->height() / 2));
    });

    choose(QStringLiteral("colouring"));
    edit("colouring.inside", "the dialog", [&] {
        desktop.click(*row("colouring.inside")->editor());
        enterColour("#336699");
    });
    for (auto const* const name : {"colouring.palette", "colouring.blend"}) {
        edit(name, "the list that folds out", [&] {
            auto* const box = control<QComboBox>(name);
            desktop.click(*box, QPoint(box->width() - 8, box->height() / 2));
            ASSERT_TRUE(waitUntil([&] { return box->view()->isVisible(); }));
            // The list does not take a release that belongs to the press that opened it.
            QTest::qWait(300);
            auto* const list = box->view();
            auto const last = list->model()->index(box->count() - 1, 0);
            desktop.click(*list->viewport(), list->visualRect(last).center());
            EXPECT_TRUE(waitUntil([&] { return !list->isVisible(); }));
        });
    }
    edit("colouring.channels", "a click",
         [&] { desktop.click(*control<QCheckBox>("colouring.channels"), QPoint(8, 10)); });

    choose(QStringLiteral("layers"));
    for (auto const* const name : {"layers.overlays", "layers.contours"}) {
        edit(name, "a click", [&] {
            auto* const list = control<QListWidget>(name);
            desktop.click(*list->viewport(), list->visualItemRect(list->item(1)).center());
        });
    }

    choose(QStringLiteral("titles"));
    for (auto const* const name : {"titles.heading", "titles.author", "titles.caption"}) {
        edit(name, "typing", [&] {
            desktop.click(*control<QLineEdit>(name));
            desktop.key("End");
            desktop.type(QStringLiteral(" and more"));
            desktop.key("Return");
            EXPECT_TRUE(
                waitUntil([&] { return QString::fromStdString(valueOf(name)).endsWith(QLatin1String("more")); }));
        });
    }
    edit("titles.date", "typing", [&] {
        desktop.click(*control<QLineEdit>("titles.date"));
        desktop.key("Home");
        desktop.type(QStringLiteral("19991231"));
        desktop.key("Return");
        EXPECT_TRUE(waitUntil([&] { return valueOf("titles.date") == "1999-12-31"; }));
    });
    edit("titles.legend", "typing and leaving", [&] {
        auto* const text = control<QTextEdit>("titles.legend");
        desktop.click(*text);
        desktop.key("ctrl+End");
        desktop.type(QStringLiteral("One line more."));
        desktop.move(*window, QPoint(5, window->height() - 5));
        EXPECT_TRUE(waitUntil(
            [&] { return QString::fromStdString(valueOf("titles.legend")).endsWith(QLatin1String("more.")); }));
    });

    choose(QStringLiteral("exporter"));
    for (auto const* const name : {"exporter.picture", "exporter.document", "exporter.palette"}) {
        edit(name, "its dialog", [&] {
            auto const target = folder.filePath(QString::fromUtf8(name).section(QLatin1Char('.'), 1));
            // Only a file that exists can be opened.
            if (name == std::string("exporter.palette")) {
                QFile palette(target);
                ASSERT_TRUE(palette.open(QIODevice::WriteOnly));
                palette.write("GIMP Palette\nName: two\n#\n0 0 0 black\n255 255 255 white\n");
            }
            desktop.click(*control<QPushButton>(name));
            enterFile(target);
        });
    }

    choose(QStringLiteral("render"));
    auto const messages = window->messages()->texts(Panel::MessageList::Source::Panel).size();
    desktop.click(*control<QPushButton>("render.start"));
    EXPECT_TRUE(
        waitUntil([&] { return window->messages()->texts(Panel::MessageList::Source::Panel).size() > messages; }));
}

TEST_F(DesktopTest, EveryKindOfEditorIsUsedByTheKeyboard) {
    struct Keys {
        char const* parameter;
        // Pressed one after the other at the parameter's first control; a text in brackets is typed.
        std::vector<char const*> keys;
    };
    std::vector<Keys> const all = {
        {"formula.kind", {"Down"}},
        {"formula.iterations", {"ctrl+a", "[123]", "Return"}},
        {"formula.quality", {"ctrl+a", "[7]", "Return"}},
        {"formula.symmetry", {"Tab", "Up"}},
        {"formula.zoom", {"ctrl+a", "[1.5]", "Return"}},
        {"formula.contrast", {"Tab", "Up"}},
        {"formula.rotation", {"ctrl+a", "[90]", "Return"}},
        {"formula.smooth", {"space"}},
        {"colouring.palette", {"Down"}},
        {"colouring.blend", {"Up"}},
        {"colouring.channels", {"Tab", "space"}},
        {"layers.overlays", {"Down", "space"}},
        {"titles.heading", {"End", "[!]", "Return"}},
        {"titles.author", {"End", "[!]", "Return"}},
        {"titles.caption", {"End", "[!]", "Return"}},
        {"titles.date", {"Home", "[2001]", "Return"}},
        {"titles.legend", {"ctrl+End", "[ And more.]", "ctrl+f"}},
    };
    for (auto const& each : all) {
        edit(each.parameter, "keys", [&] {
            goTo(each.parameter);
            for (auto const* const key : each.keys) {
                auto const text = QString::fromUtf8(key);
                if (text.startsWith(QLatin1Char('[')))
                    desktop.type(text.mid(1, text.size() - 2));
                else
                    desktop.key(key);
            }
        });
    }
    edit("colouring.inside", "keys", [&] {
        goTo("colouring.inside");
        desktop.key("space");
        enterColour("#114477");
    });
    edit("exporter.picture", "keys", [&] {
        goTo("exporter.picture");
        desktop.key("space");
        enterFile(folder.filePath(QStringLiteral("by keys.png")));
    });
    auto const messages = window->messages()->texts(Panel::MessageList::Source::Panel).size();
    goTo("render.start");
    desktop.key("space");
    EXPECT_TRUE(
        waitUntil([&] { return window->messages()->texts(Panel::MessageList::Source::Panel).size() > messages; }));
}

TEST_F(DesktopTest, TwoViewsOfAnObjectStayEqualWhileBothAreUsed) {
    desktop.key("ctrl+n");
    auto const views = [this] { return window->findChildren<Panel::ObjectView*>(); };
    ASSERT_TRUE(waitUntil([&] { return views().size() == 2; }));
    auto* const other = views().constFirst() == window->currentView() ? views().constLast() : views().constFirst();
    auto* const mine = control<QCheckBox>("formula.smooth");
    auto* const its = other->row(QStringLiteral("smooth"))->editor()->findChild<QCheckBox*>();
    other->rowArea()->ensureWidgetVisible(its);
    QCoreApplication::processEvents();
    for (auto* const box : {mine, its, mine}) {
        bool const before = box->isChecked();
        desktop.click(*box, QPoint(8, box->height() / 2));
        EXPECT_TRUE(waitUntil([&] { return mine->isChecked() != before; }));
        EXPECT_EQ(mine->isChecked(), its->isChecked());
        EXPECT_EQ(valueOf("formula.smooth"), before ? "false" : "true");
    }
}

TEST_F(DesktopTest, APoolIsChosenByTheKeyboard) {
    ASSERT_EQ(window->pools().pool()->Name(), "draft");
    desktop.key("alt+o");
    ASSERT_TRUE(waitUntil([] { return qobject_cast<QComboBox*>(QApplication::focusWidget()) != nullptr; }));
    desktop.key("Down");
    EXPECT_TRUE(waitUntil([&] { return window->pools().pool()->Name() == "final"; }));
    EXPECT_EQ(row("formula.iterations")->note(), QStringLiteral("in pool final"));
    EXPECT_EQ(control<QLineEdit>("formula.iterations")->text(), QStringLiteral("2000"));
}

TEST_F(DesktopTest, TheWheelScrollsThePanelAndChangesNothing) {
    window->resize(1000, 560);
    auto* const area = window->currentView()->rowArea();
    area->verticalScrollBar()->setValue(0);
    auto const values = window->network()->values();
    for (auto const* const name : {"formula.iterations", "formula.quality", "formula.zoom"}) {
        SCOPED_TRACE(name);
        auto* const slider = row(name)->editor()->findChild<QAbstractSlider*>();
        area->verticalScrollBar()->setValue(0);
        QCoreApplication::processEvents();
        desktop.move(*slider, slider->rect().center());
        desktop.turnWheel(false);
        EXPECT_TRUE(waitUntil([&] { return area->verticalScrollBar()->value() > 0; }));
    }
    EXPECT_EQ(window->network()->values(), values);
    // With the focus the wheel is the editor's.
    goTo("formula.quality");
    desktop.key("Tab");
    auto const before = valueOf("formula.quality");
    auto* const dial = row("formula.quality")->editor()->findChild<QDial*>();
    desktop.move(*dial, dial->rect().center());
    desktop.turnWheel(true);
    expectChange("formula.quality", before, "the wheel");
}

TEST_F(DesktopTest, SavesLoadsUnloadsAndLoadsAgain) {
    auto const values = window->network()->values();
    QFile saved(file);
    ASSERT_TRUE(saved.open(QIODevice::ReadOnly));
    auto const bytes = saved.readAll();
    desktop.key("ctrl+s");
    EXPECT_TRUE(waitUntil(
        [&] { return window->messages()->texts(Panel::MessageList::Source::Panel).join(QString()).contains(file); }));
    saved.seek(0);
    QFile again(file);
    ASSERT_TRUE(again.open(QIODevice::ReadOnly));
    EXPECT_EQ(again.readAll(), bytes);

    auto const menu = [&](char const* mnemonic, char const* entry) {
        desktop.key(mnemonic);
        ASSERT_TRUE(waitUntil([] { return QApplication::activePopupWidget() != nullptr; }));
        desktop.key(entry);
        ASSERT_TRUE(waitUntil([] { return QApplication::activePopupWidget() == nullptr; }));
    };
    menu("alt+p", "u");
    EXPECT_TRUE(waitUntil([&] { return plugins.loadedFiles().isEmpty(); }));
    EXPECT_EQ(row("formula.smooth")->editor()->findChild<QCheckBox*>(), nullptr);
    menu("alt+p", "r");
    EXPECT_TRUE(waitUntil([&] { return !plugins.loadedFiles().isEmpty(); }));
    edit("formula.smooth", "a click", [&] { desktop.click(*control<QCheckBox>("formula.smooth"), QPoint(8, 12)); });

    desktop.key("ctrl+z");
    EXPECT_TRUE(waitUntil([&] { return window->network()->values() == values; }));
    desktop.key("ctrl+o");
    enterFile(file);
    EXPECT_EQ(window->network()->values(), values);
}

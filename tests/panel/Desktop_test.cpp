// The panel as a user uses it, by the mouse and keyboard of a display with a window manager.

#include "DesktopTest.hpp"

#include <QClipboard>
#include <QComboBox>
#include <QDial>
#include <QDockWidget>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QRadioButton>
#include <QScrollBar>
#include <QTextEdit>

using testing::IsEmpty;
using testing::SizeIs;

namespace {

QPoint handle(QAbstractSlider const& slider) {
    double const share = static_cast<double>(slider.value() - slider.minimum()) /
                         (static_cast<double>(slider.maximum()) - slider.minimum());
    return {7 + static_cast<int>(share * (slider.width() - 14)), slider.height() / 2};
}

/// The place of the indicator of a check box or radio button.
QPoint mark(QWidget const& button) {
    return {8, button.height() / 2};
}

QByteArray twoColours() {
    return "GIMP Palette\nName: two\n#\n0 0 0 black\n255 255 255 white\n";
}

class EveryEditor : public DesktopTest {
protected:
    void SetUp() override {
        DesktopTest::SetUp();
        // Small pictures are computed quickly.
        set("exporter.width", "64");
    }

    /// The file to choose in the editor's dialog; it exists if the dialog can only open files.
    QString target(char const* name) const {
        // With a suffix, because a dialog adds one otherwise.
        auto const path = folder.filePath(QString::fromUtf8(name).section(QLatin1Char('.'), 1) + ".out");
        if (name == std::string("exporter.palette")) {
            QFile palette(path);
            EXPECT_TRUE(palette.open(QIODevice::WriteOnly) && palette.write(twoColours()) > 0);
        }
        return path;
    }
    /// Fires the render action and checks that the displays show what it did.
    void render(std::function<void()> const& press) {
        auto const text = [this](char const* name) { return control<QLabel>(name)->text(); };
        set("render.progress", "Waiting.");
        EXPECT_EQ(text("render.progress"), QStringLiteral("Waiting."));
        press();
        EXPECT_TRUE(waitUntil([&] { return text("render.progress") != QLatin1String("Waiting."); }, 30000));
        EXPECT_EQ(text("render.progress").toStdString(), valueOf("render.progress"));
        EXPECT_TRUE(waitUntil([&] { return text("render.status").toStdString() == valueOf("render.status"); }));
        for (auto const* const name : {"render.start", "render.progress", "render.status"})
            noteCreator(name);
    }
};

} // namespace

TEST_F(EveryEditor, IsUsedByTheMouse) {
    for (auto const* const name : {"formula.iterations", "formula.zoom"}) {
        edit(name, "a drag of the handle", [&] {
            auto* const slider = control<QSlider>(name);
            drag(*slider, handle(*slider), QPoint(slider->width() / 2 + 33, slider->height() / 2));
        });
        edit(name, "a click into the field and a number", [&] {
            desktop.click(*control<QLineEdit>(name));
            desktop.key("ctrl+a");
            desktop.type(QStringLiteral("17"));
            desktop.key("Return");
            EXPECT_TRUE(waitUntil([&] { return std::stod(valueOf(name)) == 17; })) << valueOf(name);
        });
    }
    for (auto const* const name : {"formula.quality", "formula.symmetry", "formula.contrast", "formula.rotation"}) {
        edit(name, "a turn of the dial", [&] {
            auto* const dial = control<QDial>(name);
            drag(*dial, QPoint(dial->width() / 2, dial->height() - 8), QPoint(dial->width() - 9, dial->height() / 3));
        });
    }
    edit("formula.smooth", "a click", [&] {
        auto const* const box = control<QCheckBox>("formula.smooth");
        desktop.click(*box, mark(*box));
    });
    edit("formula.kind", "a click", [&] {
        auto const buttons = row("formula.kind")->editor()->findChildren<QRadioButton*>();
        desktop.click(*buttons.at(1), mark(*buttons.at(1)));
    });

    choose(QStringLiteral("colouring"));
    for (auto const* const name : {"colouring.inside", "colouring.outside"}) {
        edit(name, "its dialog", [&] {
            desktop.click(*row(name)->editor());
            enterColour("#336699");
        });
    }
    for (auto const* const name : {"colouring.palette", "colouring.blend"}) {
        edit(name, "the list that folds out", [&] {
            auto* const box = control<QComboBox>(name);
            desktop.click(*box, QPoint(box->width() - 8, box->height() / 2));
            auto* const list = box->view();
            ASSERT_TRUE(waitUntil([&] { return list->isVisible(); }));
            // The list ignores the mouse for a moment after it opens, so that the release of the opening press chooses
            // nothing. A user's hand is slower; the test clicks again.
            auto const other = list->model()->index((box->currentIndex() + 1) % box->count(), 0);
            bool closed = false;
            for (int clicks = 0; clicks < 10 && !closed; ++clicks) {
                desktop.click(*list->viewport(), list->visualRect(other).center());
                closed = waitUntil([&] { return !list->isVisible(); }, 500);
            }
            EXPECT_TRUE(closed);
        });
    }
    edit("colouring.channels", "a click", [&] {
        auto const* const box = control<QCheckBox>("colouring.channels");
        desktop.click(*box, mark(*box));
    });

    choose(QStringLiteral("layers"));
    for (auto const* const name : {"layers.overlays", "layers.contours"}) {
        edit(name, "a click", [&] {
            auto* const list = control<QListWidget>(name);
            desktop.click(*list->viewport(), list->visualItemRect(list->item(1)).center());
        });
    }

    choose(QStringLiteral("titles"));
    for (auto const* const name : {"titles.heading", "titles.author", "titles.caption"}) {
        edit(name, "a click and a text", [&] {
            auto const text = valueOf(name);
            desktop.click(*control<QLineEdit>(name));
            desktop.key("End");
            desktop.type(QStringLiteral(" and more"));
            desktop.key("Return");
            expectValue(name, text + " and more");
        });
    }
    edit("titles.date", "a click and a date", [&] {
        desktop.click(*control<QLineEdit>("titles.date"));
        desktop.key("Home");
        desktop.type(QStringLiteral("19991231"));
        desktop.key("Return");
        expectValue("titles.date", "1999-12-31");
    });
    edit("titles.legend", "a click, a text and leaving", [&] {
        auto const text = valueOf("titles.legend");
        desktop.click(*control<QTextEdit>("titles.legend"));
        desktop.key("ctrl+End");
        desktop.type(QStringLiteral(" And more."));
        desktop.move(*window, QPoint(5, window->height() - 5));
        expectValue("titles.legend", text + " And more.");
    });

    choose(QStringLiteral("exporter"));
    for (auto const* const name : {"exporter.picture", "exporter.document", "exporter.palette"}) {
        edit(name, "its dialog", [&] {
            enterFile(target(name), [&] { desktop.click(*control<QPushButton>(name)); });
            expectValue(name, target(name).toStdString());
        });
    }

    choose(QStringLiteral("render"));
    render([&] { desktop.click(*control<QPushButton>("render.start")); });
    EXPECT_THAT(unusedCreators(), IsEmpty());
}

TEST_F(EveryEditor, IsUsedByTheKeyboard) {
    struct Keys {
        char const* parameter;
        // The keys to press at the parameter's first control; a text in brackets is typed.
        std::vector<char const*> keys;
        // The resulting value; null if it only has to differ from the previous one.
        char const* value;
    };
    std::vector<Keys> const all = {
        {"formula.kind", {"Down"}, nullptr},
        {"formula.iterations", {"ctrl+a", "[123]", "Return"}, "123"},
        {"formula.quality", {"ctrl+a", "[7]", "Return"}, "7"},
        {"formula.symmetry", {"Tab", "Up"}, nullptr},
        {"formula.zoom", {"ctrl+a", "[1.5]", "Return"}, nullptr},
        {"formula.contrast", {"ctrl+a", "[2.5]", "Return"}, nullptr},
        {"formula.rotation", {"ctrl+a", "[90]", "Return"}, nullptr},
        {"formula.smooth", {"space"}, nullptr},
        {"colouring.palette", {"Down"}, nullptr},
        {"colouring.blend", {"Up"}, nullptr},
        {"colouring.channels", {"Tab", "space"}, nullptr},
        {"layers.overlays", {"Tab", "Tab", "Tab", "Tab", "[*g*]", "Return"}, nullptr},
        {"layers.contours", {"Tab", "Tab", "Tab", "Tab", "[*2*]", "Return"}, nullptr},
        {"titles.heading", {"End", "[!]", "Return"}, "The edge of the set!"},
        {"titles.author", {"End", "[!]", "Return"}, "A. N. Engineer!"},
        {"titles.caption", {"End", "[!]", "Return"}, "Escape time, smoothed!"},
        {"titles.date", {"Home", "[2001]", "Return"}, "2001-03-29"},
        // The text is committed when the field loses the focus, here to the filter and back.
        {"titles.legend", {"ctrl+Home", "[More: ]", "ctrl+f", "Return"}, nullptr},
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
            if (each.value)
                expectValue(each.parameter, each.value);
        });
    }
    EXPECT_EQ(valueOf("titles.legend").substr(0, 6), "More: ");
    edit("colouring.inside", "keys", [&] {
        goTo("colouring.inside");
        desktop.key("space");
        enterColour("#114477");
    });
    for (auto const* const name : {"exporter.picture", "exporter.document", "exporter.palette"}) {
        edit(name, "keys", [&] {
            goTo(name);
            enterFile(target(name), [&] { desktop.key("space"); });
            expectValue(name, target(name).toStdString());
        });
    }
    goTo("render.start");
    // Now the displays beside the button.
    desktop.key("ctrl+f");
    desktop.key("Escape");
    desktop.key("Return");
    ASSERT_TRUE(waitUntil([&] { return control<QPushButton>("render.start")->hasFocus(); }));
    render([&] { desktop.key("space"); });
    EXPECT_THAT(unusedCreators(), IsEmpty());
}

TEST_F(DesktopTest, TwoViewsOfAnObjectStayEqualWhileBothAreUsed) {
    desktop.key("ctrl+n");
    auto const views = [this] { return window->findChildren<Panel::ObjectView*>(); };
    ASSERT_TRUE(waitUntil([&] { return views().size() == 2; }));
    auto* const other = views().constFirst() == window->currentView() ? views().constLast() : views().constFirst();
    auto* const mine = control<QCheckBox>("formula.smooth");
    auto* const its = other->row(QStringLiteral("smooth"))->editor()->findChild<QCheckBox*>();
    for (auto* const clicked : {mine, its, mine}) {
        auto* const area = (clicked == its ? other : window->currentView())->panel()->rowArea();
        // The new view is animated into place.
        ASSERT_TRUE(waitUntil([&] {
            area->ensureWidgetVisible(clicked);
            return Desktop::isAt(*clicked, clicked->mapToGlobal(mark(*clicked)));
        }));
        bool const before = clicked->isChecked();
        desktop.click(*clicked, mark(*clicked));
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
    EXPECT_EQ(control<QSlider>("formula.iterations")->value(), 2000);
    EXPECT_FALSE(window->network()->isModified()) << "to look at a pool changes nothing";
}

TEST_F(DesktopTest, TheWheelScrollsThePanelAndChangesNothing) {
    window->resize(1000, 560);
    auto* const area = window->currentView()->panel()->rowArea();
    ASSERT_TRUE(waitUntil([&] { return window->height() == 560 && area->verticalScrollBar()->maximum() > 0; }));
    auto const values = window->network()->values();
    for (auto const* const name : {"formula.iterations", "formula.quality", "formula.zoom"}) {
        SCOPED_TRACE(name);
        area->verticalScrollBar()->setValue(0);
        auto* const slider = control<QAbstractSlider>(name);
        area->ensureWidgetVisible(slider);
        QCoreApplication::processEvents();
        int const scrolled = area->verticalScrollBar()->value();
        desktop.move(*slider, slider->rect().center());
        desktop.turnWheel(false);
        EXPECT_TRUE(waitUntil([&] { return area->verticalScrollBar()->value() > scrolled; }));
    }
    EXPECT_EQ(window->network()->values(), values);
    // An editor with the focus gets the wheel.
    goTo("formula.quality");
    desktop.key("Tab");
    edit("formula.quality", "the wheel", [&] {
        auto* const dial = control<QDial>("formula.quality");
        ASSERT_TRUE(waitUntil([&] { return row("formula.quality")->isAncestorOf(QApplication::focusWidget()); }));
        desktop.move(*dial, dial->rect().center());
        desktop.turnWheel(true);
    });
}

TEST_F(DesktopTest, SavesLoadsUnloadsAndLoadsAgain) {
    auto const values = window->network()->values();
    auto const bytes = savedBytes();
    desktop.key("ctrl+s");
    EXPECT_TRUE(waitUntil([&] { return saidByPanel(QStringLiteral("Saved the values to ") + file); }));
    EXPECT_EQ(savedBytes(), bytes);

    chooseFromMenu("alt+p", {"u"});
    EXPECT_TRUE(waitUntil([&] { return plugins.loadedFiles().isEmpty(); }));
    EXPECT_EQ(row("formula.smooth")->editor()->findChild<QCheckBox*>(), nullptr);
    chooseFromMenu("alt+p", {"r"});
    EXPECT_TRUE(waitUntil([&] { return !plugins.loadedFiles().isEmpty(); }));
    edit("formula.smooth", "a click", [&] {
        auto const* const box = control<QCheckBox>("formula.smooth");
        desktop.click(*box, mark(*box));
    });
    EXPECT_TRUE(waitUntil([&] { return window->isWindowModified(); }));
    desktop.key("ctrl+s");
    EXPECT_TRUE(waitUntil([&] { return !window->isWindowModified(); }));
    EXPECT_NE(savedBytes(), bytes);
    auto const saved = window->network()->values();

    desktop.key("ctrl+z");
    EXPECT_TRUE(waitUntil([&] { return window->network()->values() == values; }));
    auto const objects = window->network()->objects();
    answer("Escape", [&] { desktop.key("ctrl+o"); });
    EXPECT_EQ(window->network()->objects(), objects);
    desktop.key("ctrl+s");
    EXPECT_TRUE(waitUntil([&] { return savedBytes() == bytes; }));
    desktop.key("ctrl+shift+z");
    EXPECT_TRUE(waitUntil([&] { return window->network()->values() == saved; }));
    desktop.key("ctrl+s");
    EXPECT_TRUE(waitUntil([&] { return savedBytes() != bytes; }));
    enterFile(file, [&] { desktop.key("ctrl+o"); });
    EXPECT_TRUE(waitUntil([&] { return saidByPanel(QStringLiteral("Opened ") + file); }));
    EXPECT_EQ(window->network()->values(), saved);
}

TEST_F(DesktopTest, ClosingAsksForUnsavedChanges) {
    auto const bytes = savedBytes();
    edit("formula.iterations", "keys", [&] {
        goTo("formula.iterations");
        desktop.key("ctrl+a");
        desktop.type(QStringLiteral("321"));
        desktop.key("Return");
        expectValue("formula.iterations", "321");
    });
    answer("Escape", [&] { desktop.key("ctrl+q"); });
    EXPECT_TRUE(window->isVisible());
    EXPECT_EQ(savedBytes(), bytes);
    EXPECT_TRUE(waitUntil([&] { return window->isActiveWindow(); }));
    answer("Return", [&] { desktop.key("ctrl+q"); });
    EXPECT_TRUE(waitUntil([&] { return !window->isVisible(); }));
    EXPECT_TRUE(savedBytes().contains("\"draft\": 321"));
}

TEST_F(DesktopTest, StepsAreChosenInTheListByMouseAndKeyboard) {
    auto const& history = window->history();
    auto const start = window->network()->values();
    for (auto const* const number : {"111", "222", "333"}) {
        goTo("formula.iterations");
        desktop.key("ctrl+a");
        desktop.type(QString::fromUtf8(number));
        desktop.key("Return");
        expectValue("formula.iterations", number);
    }
    ASSERT_THAT(history.steps(), SizeIs(3));
    action("showHistory")->trigger();
    auto* const list = window->findChild<QListWidget*>(QStringLiteral("history"));
    ASSERT_TRUE(waitUntil([&] { return list->isVisible() && list->count() == 4; }));
    desktop.click(*list->viewport(), list->visualItemRect(list->item(1)).center());
    expectValue("formula.iterations", "111");
    EXPECT_THAT(history.undoneSteps(), SizeIs(2));
    ASSERT_TRUE(waitUntil([&] { return list->currentRow() == 1; }));
    desktop.key("Up");
    desktop.key("Return");
    EXPECT_TRUE(waitUntil([&] { return window->network()->values() == start; }));
    ASSERT_TRUE(waitUntil([&] { return list->currentRow() == 0; }));
    desktop.key("End");
    desktop.key("Return");
    expectValue("formula.iterations", "333");
}

TEST_F(DesktopTest, ValuesAreCopiedPastedAndResetByTheKeyboard) {
    goTo("formula.iterations");
    desktop.key("ctrl+shift+c");
    EXPECT_TRUE(waitUntil([] { return !QApplication::clipboard()->text().isEmpty(); }));
    edit("formula.symmetry", "pasting", [&] {
        goTo("formula.symmetry");
        desktop.key("ctrl+shift+v");
        expectValue("formula.symmetry", "100");
    });
    ASSERT_TRUE(waitUntil([&] { return row("formula.symmetry")->modifiedIndicator()->isVisible(); }));
    edit("formula.symmetry", "resetting", [&] {
        desktop.key("ctrl+d");
        expectValue("formula.symmetry", "0");
    });
}

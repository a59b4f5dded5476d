#include "PanelTest.hpp"

#include <QAbstractItemView>
#include <QAbstractScrollArea>
#include <QAccessible>
#include <QDockWidget>
#include <QMenuBar>
#include <QPushButton>
#include <set>

using testing::HasSubstr;

namespace {

/// Queries the panel with the example network through the accessibility interface, as a screen reader does.
class AccessibilityTest : public PanelTest {
protected:
    void SetUp() override {
        PanelTest::SetUp();
        QString error;
        ASSERT_TRUE(window->openNetwork(QStringLiteral(TALO_EXAMPLES "/networks/fractal.json"), &error))
            << qPrintable(error);
        window->resize(1000, 700);
        window->show();
        window->activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(window.get()));
    }
    void TearDown() override {
        // The editor of multiple selections prints a trace.
        takeOutput();
        PanelTest::TearDown();
    }

    static std::string accessibleText(QObject* object, QAccessible::Text text) {
        auto* const interface = QAccessible::queryAccessibleInterface(object);
        return interface ? interface->text(text).toStdString() : std::string();
    }
    static std::string name(QObject* object) { return accessibleText(object, QAccessible::Name); }
    static std::string description(QObject* object) { return accessibleText(object, QAccessible::Description); }

    static bool takesFocus(QWidget const& widget) { return widget.focusPolicy() != Qt::NoFocus; }
    /// The controls of an editor that take the focus.
    static std::vector<QWidget*> controls(QWidget* editor) {
        std::vector<QWidget*> controls;
        if (takesFocus(*editor))
            controls.push_back(editor);
        for (auto* const child : editor->findChildren<QWidget*>())
            if (takesFocus(*child) && child->window() == editor->window())
                controls.push_back(child);
        return controls;
    }

    /// Shows one object after another and calls `look` for each of its rows.
    void forEachRow(std::function<void(Kolt::VObject const&, Talo::ParameterRow*)> const& look) {
        int rows = 0;
        for (auto const& object : window->network()->objects()) {
            SCOPED_TRACE(object->Name());
            ASSERT_TRUE(window->showObject(QString::fromStdString(object->Name())));
            for (auto const& parameter : object->parameters()) {
                SCOPED_TRACE(parameter->Name());
                auto* const row = window->currentView()->row(QString::fromStdString(parameter->Name()));
                ASSERT_NE(row, nullptr);
                look(*object, row);
                ++rows;
            }
        }
        EXPECT_EQ(rows, 29);
    }
};

} // namespace

TEST_F(AccessibilityTest, EachControlIsNamedAfterItsParameter) {
    int count = 0;
    forEachRow([&](Kolt::VObject const&, Talo::ParameterRow* row) {
        for (auto* const control : controls(row->editor())) {
            // With this version of Qt a drop-down list returns its current entry as its accessible name.
            auto const* const list = qobject_cast<QComboBox*>(control);
            EXPECT_THAT(list ? list->accessibleName().toStdString() : name(control),
                        HasSubstr(row->spokenName().toStdString()))
                << control->metaObject()->className();
            ++count;
        }
    });
    EXPECT_GT(count, 29);
}

TEST_F(AccessibilityTest, EachControlIsDescribedByObjectTypeAndPool) {
    forEachRow([&](Kolt::VObject const& object, Talo::ParameterRow* row) {
        for (auto* const control : controls(row->editor()))
            EXPECT_THAT(description(control), HasSubstr(object.Name() + '.' + row->parameterName().toStdString()))
                << control->metaObject()->className();
    });
    window->showObject(QStringLiteral("formula"));
    auto const lineEdit = [this](char const* parameter) {
        return window->currentView()->row(QString::fromUtf8(parameter))->editor()->findChild<QLineEdit*>();
    };
    EXPECT_EQ(description(lineEdit("symmetry")), "formula.symmetry, type int");
    EXPECT_EQ(description(lineEdit("iterations")), "formula.iterations, type int, in pool draft");
    window->choosePool(QStringLiteral("final"));
    EXPECT_EQ(description(lineEdit("iterations")), "formula.iterations, type int, in pool final");
    window->pools().setPool(nullptr);
    window->currentView()->panel()->showPool();
    EXPECT_EQ(description(lineEdit("iterations")), "formula.iterations, type int, no pool");
}

TEST_F(AccessibilityTest, AControlWithACaptionIsNamedByBoth) {
    window->showObject(QStringLiteral("colouring"));
    std::set<std::string> names;
    for (auto* const box : window->currentView()->row(QStringLiteral("channels"))->editor()->findChildren<QCheckBox*>())
        names.insert(name(box));
    EXPECT_THAT(names, testing::ElementsAre("channels: alpha", "channels: blue", "channels: green", "channels: red"));
    window->showObject(QStringLiteral("exporter"));
    EXPECT_EQ(name(window->currentView()->row(QStringLiteral("picture"))->editor()), "picture: Save as");
}

TEST_F(AccessibilityTest, AnExplanationIsPartOfTheDescription) {
    window->showObject(QStringLiteral("render"));
    EXPECT_EQ(description(window->currentView()->row(QStringLiteral("start"))->editor()),
              "render.start, type action\nCompute the picture anew in the chosen pool");
}

TEST_F(AccessibilityTest, TheNameOfARowIsTheLabelOfItsEditor) {
    forEachRow([&](Kolt::VObject const&, Talo::ParameterRow* row) {
        auto* const label = QAccessible::queryAccessibleInterface(row->nameLabel());
        ASSERT_NE(label, nullptr);
        auto const relations = label->relations(QAccessible::Labelled);
        ASSERT_EQ(relations.size(), 1);
        EXPECT_EQ(relations.first().first->object(), row->editor());
        // Setting the focus to the editor must focus one of its controls.
        auto const all = controls(row->editor());
        auto* const proxy = row->editor()->focusProxy();
        if (!all.empty()) {
            EXPECT_THAT(all, testing::Contains(proxy ? proxy : row->editor()));
        }
    });
}

TEST_F(AccessibilityTest, TabReachesEveryControl) {
    // The constant is shown for this kind alone.
    set("formula.kind", "Julia");
    QCoreApplication::processEvents();
    for (auto const& object : window->network()->objects()) {
        SCOPED_TRACE(object->Name());
        ASSERT_TRUE(window->showObject(QString::fromStdString(object->Name())));
        window->objectList()->setFocus();
        std::set<QWidget*> reached;
        // Tab through the whole window once.
        for (auto* focus = QApplication::focusWidget(); focus && reached.insert(focus).second;
             focus = QApplication::focusWidget()) {
            // A multi-line text field takes the Tab key as text.
            bool const takesTab = qobject_cast<QTextEdit*>(focus) != nullptr;
            QTest::keyClick(focus, Qt::Key_Tab, takesTab ? Qt::ControlModifier : Qt::NoModifier);
        }
        for (auto const& parameter : object->parameters()) {
            auto* const row = window->currentView()->row(QString::fromStdString(parameter->Name()));
            for (auto* const control : controls(row->editor())) {
                if ((control->focusPolicy() & Qt::TabFocus) == Qt::TabFocus && !control->focusProxy()) {
                    EXPECT_EQ(reached.count(control), 1U) << parameter->Name() << ' ' << name(control);
                }
            }
        }
        EXPECT_EQ(reached.count(window->findChild<QLineEdit*>(QStringLiteral("filter"))), 1U);
    }
}

TEST_F(AccessibilityTest, EveryActionOfTheMenusHasAText) {
    int count = 0;
    for (auto const* const menuAction : window->menuBar()->actions()) {
        EXPECT_FALSE(menuAction->text().isEmpty());
        ASSERT_NE(menuAction->menu(), nullptr);
        for (auto const* const each : menuAction->menu()->actions()) {
            if (each->isSeparator())
                continue;
            EXPECT_FALSE(each->text().isEmpty()) << qPrintable(menuAction->text());
            ++count;
        }
    }
    EXPECT_GT(count, 15);
}

TEST_F(AccessibilityTest, EverythingBesidesTheEditorsIsNamed) {
    window->addView();
    action("showHistory")->trigger();
    std::vector<QWidget*> parts;
    for (auto* const dock : window->findChildren<QDockWidget*>())
        parts.push_back(dock);
    for (auto* const bar : window->findChildren<QToolBar*>())
        parts.push_back(bar);
    for (auto* const area : window->findChildren<QAbstractScrollArea*>())
        if (!Talo::ParameterRow::rowOf(area) && area->window() == window.get() && takesFocus(*area))
            parts.push_back(area);
    for (auto* const field : window->findChildren<QLineEdit*>())
        if (!Talo::ParameterRow::rowOf(field) && !field->focusProxy())
            parts.push_back(field);
    for (auto* const box : window->findChildren<QComboBox*>())
        if (!Talo::ParameterRow::rowOf(box))
            parts.push_back(box);
    for (auto* const button : window->findChildren<QAbstractButton*>())
        if (!Talo::ParameterRow::rowOf(button) && takesFocus(*button))
            parts.push_back(button);
    for (auto* const part : parts)
        EXPECT_NE(name(part), "") << part->metaObject()->className() << ' ' << qPrintable(part->objectName());
    EXPECT_GE(parts.size(), 12U);
}

// Reset of many values as one step, for hosts that embed a panel.

#include "support/TestHost.hpp"

#include <lattice/TypedParameter.hpp>
#include <parameters/commands/ResetCommands.hpp>
#include <parameters/ParameterPanel.hpp>
#include <parameters/rows/RowArea.hpp>
#include <parameters/rows/SectionBox.hpp>
#include <QCheckBox>
#include <QContextMenuEvent>
#include <QMenu>
#include <QSignalSpy>

using Command = Talo::ParameterPanel::Command;
using Kolt::Parameter;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

namespace {

/// A pump with two sections and a row without one; all switches are off by default and on now.
class ResetTest : public PluginTest {
protected:
    void SetUp() override {
        PluginTest::SetUp();
        object = Kolt::ObjectPtr(new Kolt::VObject("pump"));
        for (auto const* const name : {"on", "Motor.fast", "Motor.loud", "Housing.red"})
            object->addParameter(Parameter<bool>(name, false));
        for (auto const& parameter : object->parameters()) {
            parameter->setHistory(&history);
            parameter->rememberDefaults();
            write(*parameter, true);
        }
        panel = new Talo::ParameterPanel(object, pools, parent);
        panel->resize(600, 400);
        parent->show();
        parent->activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(parent));
    }

    void write(Kolt::VParameter& parameter, bool value) const {
        ASSERT_TRUE(Kolt::applyValue(parameter, firstPool, {Kolt::makeValue(value), false}));
    }
    /// The names of the parameters that are on.
    std::vector<std::string> on() const {
        std::vector<std::string> names;
        for (auto const& parameter : object->parameters())
            if (parameter->ownValue()->Text() == Kolt::makeValue(true)->Text())
                names.push_back(parameter->Name());
        return names;
    }
    Talo::SectionBox* box(char const* title) const {
        for (auto* const each : panel->findChildren<Talo::SectionBox*>())
            if (each->title() == QLatin1String(title))
                return each;
        return nullptr;
    }
    QMenu* menuAt(QWidget* widget, QPoint const& place) const {
        QContextMenuEvent event(QContextMenuEvent::Mouse, place, widget->mapToGlobal(place));
        QApplication::sendEvent(widget, &event);
        return panel->findChild<QMenu*>(QString(), Qt::FindDirectChildrenOnly);
    }

    Kolt::UndoHistory history;
    Kolt::ObjectPtr object;
    QPointer<Talo::ParameterPanel> panel;
};

} // namespace

TEST_F(ResetTest, AllIsOneStepAndUndoBringsAllBack) {
    panel->resetAll();
    EXPECT_THAT(on(), IsEmpty());
    ASSERT_THAT(history.steps(), SizeIs(1));
    EXPECT_TRUE(history.undo());
    EXPECT_THAT(on(), SizeIs(4));
}

TEST_F(ResetTest, ASectionIsOneStepAndLeavesTheOthers) {
    panel->resetSection(QStringLiteral("Motor"));
    EXPECT_THAT(on(), ElementsAre("on", "Housing.red"));
    panel->resetSection(QString());
    EXPECT_THAT(on(), ElementsAre("Housing.red"));
    EXPECT_THAT(history.steps(), SizeIs(2));
    EXPECT_TRUE(history.undo());
    EXPECT_TRUE(history.undo());
    EXPECT_THAT(on(), SizeIs(4));
}

TEST_F(ResetTest, ReadOnlyOnesAndThoseWithoutADefaultStay) {
    object->findParameter("Motor.fast")->setProperty("readOnly", Kolt::makeValue(true), nullptr, nullptr, nullptr);
    Parameter<bool> const late("Motor.late", true);
    object->addParameter(late);
    Talo::resetToDefaults(Talo::parametersInSection(*object, QStringLiteral("Motor")), firstPool);
    EXPECT_THAT(on(), ElementsAre("on", "Motor.fast", "Housing.red", "Motor.late"));
    Talo::resetToDefaults({object->findParameter("Motor.fast"), late, nullptr}, firstPool);
    EXPECT_THAT(history.steps(), SizeIs(1)) << "what changes nothing is no step";
}

TEST_F(ResetTest, EachHistoryHasAStepOfItsOwn) {
    Kolt::UndoHistory other;
    object->findParameter("on")->setHistory(&other);
    panel->resetAll();
    EXPECT_THAT(history.steps(), SizeIs(1));
    EXPECT_THAT(other.steps(), SizeIs(1));
    EXPECT_TRUE(other.undo());
    EXPECT_THAT(on(), ElementsAre("on"));
    object->findParameter("on")->setHistory(&history);
}

TEST_F(ResetTest, TheTitleOfASectionHasAMenu) {
    qRegisterMetaType<QMenu*>();
    QSignalSpy const asked(panel, &Talo::ParameterPanel::sectionMenuRequested);
    QPointer<QMenu> const menu = menuAt(box("Motor"), {10, 6});
    ASSERT_TRUE(menu);
    ASSERT_EQ(asked.count(), 1);
    EXPECT_EQ(asked[0][1].toString(), QStringLiteral("Motor"));
    auto* const reset = menu->findChild<QAction*>(QStringLiteral("resetSection"));
    ASSERT_TRUE(reset);
    EXPECT_TRUE(menu->isVisible());
    reset->trigger();
    EXPECT_THAT(on(), ElementsAre("on", "Housing.red"));
    menu->close();
    EXPECT_TRUE(waitUntil([&] { return menu.isNull(); }));
}

TEST_F(ResetTest, BelowTheTitleThereIsNoMenuOfTheSection) {
    EXPECT_EQ(menuAt(box("Motor"), {3, box("Motor")->height() - 3}), nullptr);
    EXPECT_EQ(menuAt(box(""), {10, 3}), nullptr);
}

TEST_F(ResetTest, TheActionIsAboutTheSectionWithTheFocus) {
    auto* const action = panel->action(Command::ResetSection);
    action->trigger();
    EXPECT_THAT(on(), SizeIs(4)) << "no row has the focus";
    panel->rowArea()->row(QStringLiteral("Housing.red"))->editor()->findChild<QCheckBox*>()->setFocus();
    action->trigger();
    EXPECT_THAT(on(), ElementsAre("on", "Motor.fast", "Motor.loud"));
}

TEST_F(ResetTest, SeveralObjectsGetTheirOwnDefaultsAsOneStep) {
    Kolt::ObjectPtr const other(new Kolt::VObject("other"));
    for (auto const* const name : {"on", "Motor.fast", "only here"}) {
        Parameter<bool> const parameter(name, std::string(name) == "on");
        Kolt::ParameterPtr const pointer = parameter;
        other->addParameter(pointer);
        pointer->setHistory(&history);
        pointer->rememberDefaults();
        write(*pointer, std::string(name) != "on");
    }
    Talo::ParameterPanel both({object, other}, pools);
    both.resetAll();
    EXPECT_THAT(on(), ElementsAre("Motor.loud", "Housing.red")) << "only what both have";
    auto const isOn = [&](char const* name) {
        return other->findParameter(name)->ownValue()->equals(*Kolt::makeValue(true));
    };
    EXPECT_TRUE(isOn("on"));
    EXPECT_FALSE(isOn("Motor.fast"));
    EXPECT_TRUE(isOn("only here"));
    ASSERT_THAT(history.steps(), SizeIs(1));
    EXPECT_TRUE(history.undo());
    EXPECT_THAT(on(), SizeIs(4));
    EXPECT_FALSE(isOn("on"));
    EXPECT_TRUE(isOn("Motor.fast"));
    for (auto const& parameter : other->parameters())
        parameter->setHistory(nullptr);
}

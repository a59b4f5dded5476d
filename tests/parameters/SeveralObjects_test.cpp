// Several objects in one form.

#include "parameters/FormTest.hpp"
#include "support/SliderDrag.hpp"

#include <parameters/commands/ResetCommands.hpp>
#include <parameters/rows/MixedButton.hpp>
#include <QCheckBox>
#include <QLabel>
#include <QMenu>
#include <QSignalSpy>
#include <QSlider>

using Command = Talo::ParameterPanel::Command;
using Kolt::Parameter;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::SizeIs;

namespace {

/// Three lamps with an equal "on", a "level" that differs, and a "speed" for each pool.
class SeveralObjectsTest : public FormTest {
protected:
    SeveralObjectsTest() : FormTest("desk") {}

    void SetUp() override {
        FormTest::SetUp();
        lamps = {object, Kolt::ObjectPtr(new Kolt::VObject("floor")), Kolt::ObjectPtr(new Kolt::VObject("wall"))};
        int level = 10;
        for (auto const& lamp : lamps) {
            addTo(lamp, Parameter<bool>("on", false));
            addTo(lamp, Parameter<int>("level", level).min(0).max(100));
            addTo(lamp, Parameter<int>::perPool("speed", 5).min(0).max(100));
            level += 10;
        }
    }
    void TearDown() override {
        delete panel;
        FormTest::TearDown();
    }

    void addTo(Kolt::ObjectPtr const& lamp, Kolt::ParameterPtr const& parameter) {
        parameter->setHistory(&history);
        parameter->rememberDefaults();
        lamp->addParameter(parameter);
    }
    void showLamps() {
        panel = new Talo::ParameterPanel(lamps, pools, parent);
        panel->resize(600, 400);
        parent->show();
        parent->activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(parent));
    }

    Talo::MixedButton* mixed(char const* name) const { return qobject_cast<Talo::MixedButton*>(row(name)->cover()); }
    void clickOn() const {
        QTest::mouseClick(control<QCheckBox>("on"), Qt::LeftButton, {}, {8, control<QCheckBox>("on")->height() / 2});
    }
    std::vector<int> values(char const* name, Kolt::PoolPtr const& pool = nullptr) const {
        std::vector<int> all;
        for (auto const& lamp : lamps)
            all.push_back(Kolt::valueOr(lamp->findParameter(name)->effectiveValue(pool), -1));
        return all;
    }
    std::vector<bool> on() const {
        std::vector<bool> all;
        for (auto const& lamp : lamps)
            all.push_back(Kolt::valueOr(lamp->findParameter("on")->ownValue(), false));
        return all;
    }
    void write(Kolt::ObjectPtr const& lamp, char const* name, int value) const {
        ASSERT_TRUE(Kolt::setParameterValue(*lamp->findParameter(name), value,
                                            pools.getValuePoolProvider()->getValuePool(), std::string(), true, nullptr,
                                            nullptr));
    }

    std::vector<Kolt::ObjectPtr> lamps;
};

} // namespace

TEST_F(SeveralObjectsTest, EqualValuesAreShownAndDifferingOnesAreMixed) {
    showLamps();
    EXPECT_TRUE(control<QCheckBox>("on"));
    EXPECT_EQ(mixed("on"), nullptr);
    ASSERT_TRUE(mixed("level"));
    EXPECT_TRUE(mixed("level")->isVisible());
    EXPECT_EQ(row("level")->editor(), nullptr);
    EXPECT_EQ(mixed("level")->text(), QStringLiteral("mixed"));
    EXPECT_EQ(mixed("level")->accessibleName(), QStringLiteral("level: mixed values"));
    EXPECT_THAT(mixed("level")->toolTip().toStdString(), HasSubstr("20 (floor)"));
    EXPECT_THAT(values("level"), ElementsAre(10, 20, 30));
}

TEST_F(SeveralObjectsTest, AnEditGoesToAllAsOneStep) {
    showLamps();
    clickOn();
    EXPECT_THAT(on(), ElementsAre(true, true, true));
    ASSERT_THAT(history.steps(), SizeIs(1));
    history.undo();
    EXPECT_THAT(on(), ElementsAre(false, false, false));
    history.redo();
    EXPECT_THAT(on(), ElementsAre(true, true, true));
    EXPECT_THAT(history.steps(), SizeIs(1));
}

TEST_F(SeveralObjectsTest, UndoAndRedoShareNoOlderStep) {
    auto const level = object->findParameter("level");
    ASSERT_TRUE(history.store(level, firstPool, {Kolt::makeValue(50), false}));
    showLamps();
    clickOn();
    history.undo();
    EXPECT_THAT(values("level"), ElementsAre(50, 20, 30)) << "it was edited in one object alone";
    history.undo();
    history.redo();
    history.redo();
    EXPECT_THAT(values("level"), ElementsAre(50, 20, 30));
    EXPECT_THAT(on(), ElementsAre(true, true, true));
    EXPECT_THAT(history.steps(), SizeIs(2));
}

TEST_F(SeveralObjectsTest, AReadOnlyParameterOfAnotherObjectStays) {
    lamps[1]->findParameter("on")->setProperty("readOnly", Kolt::makeValue(true), nullptr, nullptr, nullptr);
    lamps[1]->findParameter("level")->setProperty("readOnly", Kolt::makeValue(true), nullptr, nullptr, nullptr);
    showLamps();
    clickOn();
    EXPECT_THAT(on(), ElementsAre(true, false, true));
    mixed("level")->menu()->actions().last()->trigger();
    EXPECT_THAT(values("level"), ElementsAre(30, 20, 30));
}

TEST_F(SeveralObjectsTest, CommandsForWholeObjectsAreNotShared) {
    showLamps();
    write(object, "level", 60);
    write(lamps[1], "level", 70);
    Talo::resetToDefaults({lamps[1]->findParameter("level"), object->findParameter("level")}, firstPool);
    EXPECT_THAT(values("level"), ElementsAre(10, 20, 30)) << "each has a default of its own";
}

TEST_F(SeveralObjectsTest, AMixedValueIsWrittenOnlyWhenItIsEdited) {
    showLamps();
    QTest::mouseClick(mixed("level"), Qt::LeftButton, {}, {8, 8});
    ASSERT_TRUE(row("level")->editor());
    EXPECT_EQ(mixed("level"), nullptr);
    EXPECT_EQ(control<QSlider>("level")->value(), 10);
    EXPECT_THAT(values("level"), ElementsAre(10, 20, 30));
    EXPECT_THAT(history.steps(), IsEmpty());
    control<QSlider>("level")->setFocus();
    QTest::keyClick(control<QSlider>("level"), Qt::Key_Right);
    EXPECT_THAT(values("level"), ElementsAre(11, 11, 11));
    // As time passes between the two.
    QCoreApplication::processEvents();
    ASSERT_THAT(history.steps(), SizeIs(1));
    history.undo();
    EXPECT_THAT(values("level"), ElementsAre(10, 20, 30));
    EXPECT_TRUE(waitUntil([&] { return mixed("level"); })) << "they differ again";
}

TEST_F(SeveralObjectsTest, ADragIsOneStepAndMovesAllMeanwhile) {
    for (auto const& lamp : lamps)
        write(lamp, "level", 50);
    showLamps();
    std::vector<std::vector<int>> during;
    dragHandle(control<QSlider>("level"), {20, 20}, [&] { during.push_back(values("level")); });
    ASSERT_THAT(during, SizeIs(2));
    EXPECT_GT(during[0][0], 50);
    EXPECT_THAT(during[0], testing::Each(during[0][0]));
    EXPECT_GT(values("level")[0], during[0][0]);
    EXPECT_THAT(values("level"), testing::Each(values("level")[0]));
    ASSERT_THAT(history.steps(), SizeIs(1));
    history.undo();
    EXPECT_THAT(values("level"), ElementsAre(50, 50, 50));
}

TEST_F(SeveralObjectsTest, TheMenuSetsAllToOneOfTheValues) {
    showLamps();
    QTest::keyClick(mixed("level"), Qt::Key_Down);
    auto const actions = mixed("level")->menu()->actions();
    EXPECT_TRUE(mixed("level")->menu()->isVisible());
    ASSERT_EQ(actions.size(), 5) << "Edit, a title and the values";
    EXPECT_EQ(actions[3]->text(), QStringLiteral("20 (floor)"));
    mixed("level")->menu()->close();
    actions[3]->trigger();
    EXPECT_THAT(values("level"), ElementsAre(20, 20, 20));
    ASSERT_THAT(history.steps(), SizeIs(1));
    EXPECT_TRUE(waitUntil([&] { return row("level")->editor(); })) << "they are equal now";
    history.undo();
    EXPECT_THAT(values("level"), ElementsAre(10, 20, 30));
}

TEST_F(SeveralObjectsTest, WhatTheHostWritesIsNotShared) {
    showLamps();
    write(object, "speed", 70);
    EXPECT_THAT(values("speed", firstPool), ElementsAre(70, 5, 5));
    EXPECT_TRUE(waitUntil([&] { return mixed("speed"); }));
    write(lamps[1], "speed", 70);
    write(lamps[2], "speed", 70);
    EXPECT_TRUE(waitUntil([&] { return !mixed("speed"); }));
    EXPECT_EQ(control<QSlider>("speed")->value(), 70);
    EXPECT_THAT(history.steps(), IsEmpty());
}

TEST_F(SeveralObjectsTest, TheValuesAreThoseOfTheChosenPool) {
    write(object, "speed", 70);
    showLamps();
    ASSERT_TRUE(mixed("speed"));
    pools.use(secondPool);
    panel->showPool();
    ASSERT_EQ(mixed("speed"), nullptr);
    control<QSlider>("speed")->setFocus();
    QTest::keyClick(control<QSlider>("speed"), Qt::Key_Right);
    EXPECT_THAT(values("speed", secondPool), ElementsAre(6, 6, 6));
    EXPECT_THAT(values("speed", firstPool), ElementsAre(70, 5, 5));
}

TEST_F(SeveralObjectsTest, OnlyWhatAllHaveIsShown) {
    addTo(object, Parameter<int>("angle", 3));
    addTo(lamps[1], Parameter<int>("angle", 3));
    addTo(lamps[2], Parameter<double>("angle", 3.0));
    showLamps();
    EXPECT_THAT(shownRows(), ElementsAre("on", "level", "speed"));
    panel->setFilter("angle");
    EXPECT_THAT(shownRows(), IsEmpty());
}

TEST_F(SeveralObjectsTest, ObjectsWithoutACommonParameterSaySo) {
    auto const other = Kolt::ObjectPtr(new Kolt::VObject("chair"));
    addTo(other, Parameter<int>("legs", 4));
    lamps = {object, other};
    showLamps();
    auto const* const note = panel->findChild<QLabel*>("emptyNote");
    EXPECT_TRUE(note->isVisible());
    EXPECT_THAT(note->text().toStdString(), HasSubstr("in common"));
}

TEST_F(SeveralObjectsTest, ResetAndPasteGoToAll) {
    showLamps();
    row("level")->resetToDefault();
    EXPECT_THAT(history.steps(), IsEmpty()) << "the shown one has its default";
    write(object, "level", 15);
    row("level")->resetToDefault();
    EXPECT_THAT(values("level"), ElementsAre(10, 10, 10));
    ASSERT_THAT(history.steps(), SizeIs(1));
    history.undo();
    EXPECT_THAT(values("level"), ElementsAre(15, 20, 30));
    clickOn();
    panel->action(Command::ResetAll)->trigger();
    EXPECT_THAT(on(), ElementsAre(false, false, false));
}

TEST_F(SeveralObjectsTest, DeletedObjectsAreLeftAlone) {
    showLamps();
    for (auto const* const name : {"on", "level", "speed"})
        lamps[2]->removeParameter(lamps[2]->findParameter(name));
    lamps.pop_back();
    clickOn();
    EXPECT_THAT(on(), ElementsAre(true, true));
}

TEST_F(SeveralObjectsTest, ClosedEditorsStayClosedWhenTheValuesBecomeEqual) {
    showLamps();
    panel->closeEditors();
    write(lamps[1], "level", 10);
    write(lamps[2], "level", 10);
    EXPECT_TRUE(waitUntil([&] { return !mixed("level"); }));
    EXPECT_EQ(row("level")->editor(), nullptr) << "the plug-in may be gone";
    panel->openEditors();
    EXPECT_EQ(control<QSlider>("level")->value(), 10);
}

// Commands for many values at once: of a section, of an object, of all objects.

#include "PanelTest.hpp"

#include <QContextMenuEvent>
#include <QMenu>

using testing::ElementsAre;
using testing::SizeIs;

namespace {

/// A shown panel with two pumps, whose values are not their defaults in the pool "day".
class ObjectCommandsTest : public PanelTest {
protected:
    void SetUp() override {
        PanelTest::SetUp();
        QString error;
        ASSERT_TRUE(window->openNetwork(networkFile("pumps.json", pumps), &error)) << qPrintable(error);
        window->show();
        window->activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(window.get()));
        opened = window->network()->values();
        for (auto const* const name : {"first.on", "first.Motor.fast", "first.Motor.locked", "second.on"})
            set(name, "true");
        set("first.level", "7");
        edited = window->network()->values();
    }

    static constexpr char const* pumps = R"({
        "title": "Pumps",
        "pools": ["day", "night"],
        "objects": [
            { "name": "first", "kind": "pump", "parameters": [
                { "name": "on", "type": "bool", "value": false },
                { "name": "level", "type": "int", "value": 5, "values": { "day": 5, "night": 2 },
                  "properties": { "min": 0, "max": 100 } },
                { "name": "Motor.fast", "type": "bool", "value": false },
                { "name": "Motor.locked", "type": "bool", "value": false, "properties": { "readOnly": true } }
            ] },
            { "name": "second", "kind": "pump", "parameters": [
                { "name": "on", "type": "bool", "value": false },
                { "name": "name", "type": "string", "preferences": ["OneLine"], "value": "pump" }
            ] }
        ]
    })";

    std::vector<std::string> values() const {
        return {valueOf("first.on"), valueOf("first.level"), valueOf("first.Motor.fast"), valueOf("first.Motor.locked"),
                valueOf("second.on")};
    }

    QByteArray opened;
    QByteArray edited;
};

} // namespace

TEST_F(ObjectCommandsTest, AnObjectIsResetAsOneStep) {
    action("resetObject")->trigger();
    EXPECT_THAT(values(), ElementsAre("false", "5", "false", "true", "true")) << "what is read-only stays";
    ASSERT_THAT(window->history().steps(), SizeIs(1));
    window->undo();
    EXPECT_EQ(window->network()->values(), edited);
    EXPECT_TRUE(box("on")->isChecked());
}

TEST_F(ObjectCommandsTest, AllObjectsAreResetAsOneStepInTheChosenPool) {
    window->choosePool(QStringLiteral("night"));
    action("resetAllObjects")->trigger();
    EXPECT_THAT(values(), ElementsAre("false", "2", "false", "true", "false"));
    window->choosePool(QStringLiteral("day"));
    EXPECT_EQ(valueOf("first.level"), "7") << "the other pool keeps its value";
    ASSERT_THAT(window->history().steps(), SizeIs(1));
    window->undo();
    EXPECT_EQ(window->network()->values(), edited);
}

TEST_F(ObjectCommandsTest, TheSectionOfTheFocusIsReset) {
    emit menuWith("resetObject")->aboutToShow();
    EXPECT_FALSE(action("resetSection")->isEnabled());
    box("Motor.fast")->setFocus();
    emit menuWith("resetObject")->aboutToShow();
    EXPECT_TRUE(action("resetSection")->isEnabled());
    action("resetSection")->trigger();
    EXPECT_THAT(values(), ElementsAre("true", "7", "false", "true", "true"));
    EXPECT_THAT(window->history().steps(), SizeIs(1));
}

TEST_F(ObjectCommandsTest, AViewWithTheFocusIsTheOneThatIsReset) {
    ASSERT_TRUE(window->showObject(QStringLiteral("second")));
    auto* const second = window->addView();
    ASSERT_TRUE(window->showObject(QStringLiteral("first")));
    box(second, "on")->setFocus();
    action("resetObject")->trigger();
    EXPECT_THAT(values(), ElementsAre("true", "7", "true", "true", "false"));
}

TEST_F(ObjectCommandsTest, ATypedTextDoesNotComeBackAfterTheReset) {
    ASSERT_TRUE(window->showObject(QStringLiteral("second")));
    auto* const line = qobject_cast<QLineEdit*>(window->currentView()->row(QStringLiteral("name"))->editor());
    ASSERT_TRUE(line);
    line->setFocus();
    QTest::keyClicks(line, "er");
    action("resetObject")->trigger();
    window->objectList()->setFocus();
    EXPECT_EQ(valueOf("second.name"), "pump");
    EXPECT_EQ(line->text(), QStringLiteral("pump"));
}

TEST_F(ObjectCommandsTest, TheListHasAMenuForTheChosenObject) {
    auto* const list = window->objectList();
    ASSERT_TRUE(window->showObject(QStringLiteral("second")));
    QContextMenuEvent event(QContextMenuEvent::Keyboard, {10, 10}, list->viewport()->mapToGlobal(QPoint(10, 10)));
    QApplication::sendEvent(list->viewport(), &event);
    QPointer<QMenu> const menu = list->findChild<QMenu*>();
    ASSERT_TRUE(menu);
    EXPECT_TRUE(menu->isVisible());
    EXPECT_TRUE(menu->actions().contains(action("resetObject")));
    EXPECT_TRUE(action("resetObject")->isEnabled());
    action("resetObject")->trigger();
    EXPECT_THAT(values(), ElementsAre("true", "7", "true", "true", "false"));
    menu->close();
    EXPECT_TRUE(waitUntil([&] { return menu.isNull(); }));
}

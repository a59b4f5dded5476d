// Several objects chosen in the list: one form, and the clipboard for whole objects.

#include "PanelTest.hpp"

#include <panel/window/ObjectCommands.hpp>
#include <parameters/rows/MixedButton.hpp>
#include <QClipboard>

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::SizeIs;

namespace {

/// Three pumps and a valve.
class SeveralChosenTest : public PanelTest {
protected:
    void SetUp() override {
        PanelTest::SetUp();
        QByteArray const pump = R"("kind": "Pump", "parameters": [
            { "name": "on", "type": "bool", "value": false },
            { "name": "Motor.speed", "type": "int", "value": %1, "properties": { "min": 0, "max": 100 } },
            { "name": "Motor.fixed", "type": "int", "value": %1, "properties": { "readOnly": true } } ])";
        auto const makePump = [&](char const* name, int speed) {
            return "{ \"name\": \"" + QByteArray(name) + "\", " +
                   QByteArray(pump).replace("%1", QByteArray::number(speed)) + " }";
        };
        QByteArray const text = R"({ "pools": ["draft"], "objects": [)" + makePump("a", 1) + ", " + makePump("b", 2) +
                                ", " + makePump("c", 3) + R"(, { "name": "valve", "kind": "Valve", "parameters": [
                    { "name": "on", "type": "bool", "value": true } ] } ] })";
        ASSERT_NO_FATAL_FAILURE(open(text.constData()));
        window->show();
        ASSERT_TRUE(QTest::qWaitForWindowExposed(window.get()));
    }

    void choose(std::initializer_list<char const*> names) const {
        auto* const list = window->objectList();
        bool isFirst = true;
        for (auto const* const name : names) {
            auto const index = list->model()
                                   ->match(list->model()->index(0, 0), Qt::DisplayRole, QLatin1String(name), 1,
                                           Qt::MatchExactly | Qt::MatchRecursive)
                                   .value(0);
            ASSERT_TRUE(index.isValid()) << name;
            QTest::mouseClick(list->viewport(), Qt::LeftButton, isFirst ? Qt::NoModifier : Qt::ControlModifier,
                              list->visualRect(index).center());
            isFirst = false;
        }
    }
    std::string value(char const* name) const { return parameter(name)->ownValue()->Text(); }
    void clickOn() const { QTest::mouseClick(box("on"), Qt::LeftButton, {}, {8, box("on")->height() / 2}); }
    Talo::MixedButton* mixed(char const* parameter) const {
        return qobject_cast<Talo::MixedButton*>(window->currentView()->row(QLatin1String(parameter))->cover());
    }
};

} // namespace

TEST_F(SeveralChosenTest, SeveralObjectsHaveOneForm) {
    choose({"b", "a", "c"});
    auto* const view = window->currentView();
    EXPECT_TRUE(view->showsSeveral());
    EXPECT_EQ(view->object()->Name(), "b") << "the first that was chosen";
    EXPECT_TRUE(mixed("Motor.speed"));
    EXPECT_FALSE(mixed("on"));
    clickOn();
    EXPECT_EQ(value("a.on"), "true");
    EXPECT_EQ(value("b.on"), "true");
    EXPECT_EQ(value("c.on"), "true");
    EXPECT_THAT(window->history().steps(), SizeIs(1));
    choose({"a"});
    EXPECT_FALSE(window->currentView()->showsSeveral());
    EXPECT_EQ(window->currentView()->object()->Name(), "a");
}

TEST_F(SeveralChosenTest, UndoKeepsTheFormOfSeveral) {
    choose({"a", "b"});
    clickOn();
    action("undo")->trigger();
    EXPECT_EQ(value("b.on"), "false");
    EXPECT_TRUE(window->currentView()->showsSeveral());
}

TEST_F(SeveralChosenTest, TheKeysCopyAndPasteBeforeAnyMenuWasOpened) {
    window->activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(window.get()));
    choose({"c"});
    QTest::keyClick(window.get(), Qt::Key_C, Qt::ControlModifier | Qt::AltModifier);
    EXPECT_THAT(QApplication::clipboard()->text().toStdString(), HasSubstr("c.Motor.speed = 3"));
    choose({"a"});
    QTest::keyClick(window.get(), Qt::Key_V, Qt::ControlModifier | Qt::AltModifier);
    EXPECT_EQ(value("a.Motor.speed"), "3");
}

TEST_F(SeveralChosenTest, CopyAndPasteOfAnObjectIsOneStep) {
    choose({"c"});
    action("copyObjects")->trigger();
    EXPECT_THAT(QApplication::clipboard()->text().toStdString(), HasSubstr("c.Motor.speed = 3"));
    choose({"a", "b"});
    action("pasteObjects")->trigger();
    EXPECT_EQ(value("a.Motor.speed"), "3");
    EXPECT_EQ(value("b.Motor.speed"), "3");
    EXPECT_EQ(value("a.Motor.fixed"), "1") << "it cannot be changed";
    ASSERT_THAT(window->history().steps(), SizeIs(1));
    window->history().undo();
    EXPECT_EQ(value("a.Motor.speed"), "1");
    EXPECT_EQ(value("b.Motor.speed"), "2");
}

TEST_F(SeveralChosenTest, SeveralCopiedObjectsGoToAsManyInTheirOrder) {
    choose({"a", "b"});
    action("copyObjects")->trigger();
    choose({"b", "c"});
    action("pasteObjects")->trigger();
    EXPECT_EQ(value("a.Motor.speed"), "1");
    EXPECT_EQ(value("b.Motor.speed"), "1");
    EXPECT_EQ(value("c.Motor.speed"), "2");
    choose({"c", "valve", "a"});
    action("pasteObjects")->trigger();
    EXPECT_EQ(value("a.Motor.speed"), "1") << "by name, as there are more objects";
    EXPECT_EQ(value("c.Motor.speed"), "2");
}

TEST_F(SeveralChosenTest, ASectionIsCopiedAlone) {
    choose({"c"});
    window->currentView()->row("Motor.speed")->editor()->setFocus();
    emit menuWith("copySection")->aboutToShow();
    action("copySection")->trigger();
    EXPECT_EQ(QApplication::clipboard()->text(), QStringLiteral("c.Motor.speed = 3"));
    choose({"a"});
    action("pasteObjects")->trigger();
    EXPECT_EQ(value("a.Motor.speed"), "3");
    EXPECT_EQ(value("a.on"), "false");
}

TEST_F(SeveralChosenTest, WhatDoesNotFitIsSaid) {
    choose({"a"});
    action("copyObjects")->trigger();
    choose({"valve"});
    action("pasteObjects")->trigger();
    EXPECT_EQ(value("valve.on"), "false");
    auto const messages = window->messages()->texts();
    EXPECT_THAT(messages.join('\n').toStdString(),
                HasSubstr("valve keeps a value: Motor.speed: there is no such parameter."));
    QApplication::clipboard()->setText("nothing");
    action("pasteObjects")->trigger();
    EXPECT_THAT(window->messages()->texts().join('\n').toStdString(),
                HasSubstr("no values of objects on the clipboard"));
}

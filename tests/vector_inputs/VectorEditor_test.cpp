// The editor of the example vector_inputs in the panel: its fields, keys, names, and changes from elsewhere.

#include "VectorPanelTest.hpp"

#include <parameters/rows/ModifiedIndicator.hpp>

using testing::HasSubstr;

using VectorEditorTest = VectorPanelTest;

TEST_F(VectorEditorTest, ShowsThePoolsVectorAndFollowsIt) {
    EXPECT_EQ(shown("position"), "0 1.5 -4");
    window->choosePool(QStringLiteral("final"));
    EXPECT_EQ(shown("position"), "0.25 1.5 -3");
    set("camera.position", "7 8 9.125");
    EXPECT_EQ(shown("position"), "7 8 9.125");
    window->choosePool(QStringLiteral("draft"));
    EXPECT_EQ(shown("position"), "0 1.5 -4");
}

TEST_F(VectorEditorTest, ReturnWritesOneNumberAsOneStep) {
    type("target", 2, "-2.5");
    EXPECT_EQ(held("target"), "0 1 0") << "not while it is typed";
    QTest::keyClick(field("target", 2), Qt::Key_Return);
    EXPECT_EQ(held("target"), "0 1 -2.5");
    focus("position");
    ASSERT_EQ(window->history().steps().size(), 1U);
    EXPECT_THAT(action("undo")->text().toStdString(), HasSubstr("target: 0 1 0 → 0 1 -2.5"));
    action("undo")->trigger();
    EXPECT_EQ(held("target"), "0 1 0");
    EXPECT_EQ(shown("target"), "0 1 0");
    action("redo")->trigger();
    EXPECT_EQ(shown("target"), "0 1 -2.5");
}

TEST_F(VectorEditorTest, TabGoesThroughTheFieldsAndWritesWhatWasTyped) {
    type("target", 0, "3");
    QTest::keyClick(field("target", 0), Qt::Key_Tab);
    EXPECT_EQ(held("target"), "3 1 0");
    EXPECT_EQ(QApplication::focusWidget(), field("target", 1));
    QTest::keyClick(field("target", 1), Qt::Key_Tab);
    EXPECT_EQ(QApplication::focusWidget(), field("target", 2));
    QTest::keyClick(field("target", 2), Qt::Key_Backtab);
    EXPECT_EQ(QApplication::focusWidget(), field("target", 1));
    EXPECT_EQ(window->history().steps().size(), 1U) << "fields that were only visited wrote nothing";
}

TEST_F(VectorEditorTest, ATextThatIsNoNumberGivesWay) {
    for (auto const* const text : {"", "-", "two", "1 2", "inf", "1e999"}) {
        type("target", 0, text);
        if (*text == '\0')
            field("target", 0)->clear();
        focus("position");
        EXPECT_EQ(shown("target"), "0 1 0") << text;
    }
    EXPECT_EQ(held("target"), "0 1 0");
    EXPECT_TRUE(window->history().steps().empty());
}

TEST_F(VectorEditorTest, WhatIsTypedStaysWhileAnotherNumberChanges) {
    type("target", 0, "12");
    set("camera.target", "0 5 6");
    EXPECT_EQ(shown("target"), "12 5 6");
    QTest::keyClick(field("target", 0), Qt::Key_Return);
    EXPECT_EQ(held("target"), "12 5 6");
}

TEST_F(VectorEditorTest, APoolGetsItsVectorWithTheFirstEdit) {
    window->choosePool(QStringLiteral("final"));
    type("position", 1, "2");
    QTest::keyClick(field("position", 1), Qt::Key_Return);
    EXPECT_EQ(held("position"), "0.25 2 -3");
    window->choosePool(QStringLiteral("draft"));
    EXPECT_EQ(held("position"), "0 1.5 -4");
    EXPECT_EQ(parameter("camera.position")->ownValue()->Text(), "0 1.5 -4");
}

TEST_F(VectorEditorTest, IsMarkedAndResetByTheDot) {
    auto const isMarked = [&] {
        return row("target")->modifiedIndicator() && row("target")->modifiedIndicator()->isVisible();
    };
    EXPECT_FALSE(isMarked());
    type("target", 0, "4");
    QTest::keyClick(field("target", 0), Qt::Key_Return);
    ASSERT_TRUE(isMarked());
    EXPECT_THAT(row("target")->modifiedIndicator()->toolTip().toStdString(), HasSubstr("Default: 0 1 0"));
    QTest::mouseClick(row("target")->modifiedIndicator(), Qt::LeftButton);
    EXPECT_EQ(held("target"), "0 1 0");
    EXPECT_EQ(shown("target"), "0 1 0");
    EXPECT_FALSE(isMarked());
}

TEST_F(VectorEditorTest, AFieldIsNamedAfterTheParameterAndItsLabel) {
    EXPECT_EQ(field("target", 0)->accessibleName().toStdString(), "target: X");
    EXPECT_EQ(field("target", 2)->accessibleName().toStdString(), "target: Z");
    EXPECT_EQ(field("up", 1)->accessibleName().toStdString(), "Upwards: Y");
    EXPECT_THAT(field("target", 1)->accessibleDescription().toStdString(), HasSubstr("camera.target, type vector3"));
}

TEST_F(VectorEditorTest, CannotBeEditedWhileItsConditionDoesNotHold) {
    EXPECT_FALSE(field("up", 0)->isEnabled());
    set("camera.upright", "false");
    EXPECT_TRUE(waitUntil([&] { return field("up", 0)->isEnabled(); }));
}

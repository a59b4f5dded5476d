#include "MoreInputsTest.hpp"

#include <QLineEdit>

namespace {

/// What is typed.
class TypedNumber : public MoreInputsTest {
protected:
    QLineEdit* line() const { return editor()->findChild<QLineEdit*>(); }
    void type(char const* typed) {
        editor()->setFocus();
        line()->selectAll();
        QTest::keyClicks(editor(), QString::fromUtf8(typed));
    }
    void enter(char const* typed) {
        type(typed);
        QTest::keyClick(editor(), Qt::Key_Return);
        endGesture();
    }
    /// Types a text that is refused, for this reason.
    void expectRefused(char const* typed, std::string const& reason) {
        auto const before = text();
        enter(typed);
        EXPECT_EQ(text(), before);
        EXPECT_EQ(line()->text(), QString::fromUtf8(typed)) << "the text stays";
        EXPECT_EQ(editor()->toolTip().toStdString(), reason);
        EXPECT_FALSE(line()->actions().isEmpty()) << "it is marked";
    }
};

} // namespace

TEST_F(TypedNumber, AFormulaIsComputedByReturn) {
    show(Kolt::makeValue(10), "field");
    enter("2*3");
    EXPECT_EQ(text(), "6");
    EXPECT_EQ(line()->text(), QStringLiteral("6"));
    EXPECT_EQ(recorder.values.size(), 1U);
    EXPECT_EQ(steps(), 1U);
    enter("(1+2)*7");
    EXPECT_EQ(text(), "21");
    EXPECT_EQ(steps(), 2U);
    undo();
    EXPECT_EQ(text(), "6");
}

TEST_F(TypedNumber, LeavingTheFieldEntersTheText) {
    show(Kolt::makeValue(1.0), "spin");
    type("pi/2");
    EXPECT_EQ(text(), "1") << "not yet";
    editor()->clearFocus();
    EXPECT_DOUBLE_EQ(std::stod(text()), 1.5707963267948966);
    panel->commitPendingEdit();
    EXPECT_EQ(recorder.values.size(), 1U);
}

TEST_F(TypedNumber, EscapeTakesTheTextBack) {
    show(Kolt::makeValue(10), "field");
    type("2*3");
    QTest::keyClick(editor(), Qt::Key_Escape);
    EXPECT_EQ(line()->text(), QStringLiteral("10"));
    editor()->clearFocus();
    EXPECT_EQ(text(), "10");
    EXPECT_TRUE(recorder.values.empty());
    EXPECT_EQ(steps(), 0U);
}

TEST_F(TypedNumber, WhatIsWrongStaysAndIsExplained) {
    show(Kolt::makeValue(10), "field", {{"min", Kolt::makeValue(0)}, {"max", Kolt::makeValue(100)}});
    expectRefused("2*", "A number is missing at the end.");
    expectRefused("1/0", "A division by zero has no result.");
    expectRefused("7/2", "3.5 is no whole number.");
    expectRefused("101", "101 does not lie between 0 and 100.");
    editor()->clearFocus();
    EXPECT_EQ(line()->text(), QStringLiteral("101")) << "also when the field is left";
    editor()->setFocus();
    QTest::keyClick(editor(), Qt::Key_Escape);
    EXPECT_EQ(line()->text(), QStringLiteral("10"));
    EXPECT_TRUE(line()->actions().isEmpty()) << "the mark is gone";
    EXPECT_NE(editor()->toolTip(), QStringLiteral("101 does not lie between 0 and 100."));
    EXPECT_TRUE(recorder.values.empty());
}

TEST_F(TypedNumber, AnIntNeverLeavesItsType) {
    show(Kolt::makeValue(10), "field");
    expectRefused("1e10", "10000000000 does not lie between -2147483648 and 2147483647.");
}

TEST_F(TypedNumber, TheSoftRangeBindsNoText) {
    show(Kolt::makeValue(5.0), "field", {{"softMinimum", Kolt::makeValue(0.0)}, {"softMaximum", Kolt::makeValue(8.0)}});
    enter("20");
    EXPECT_EQ(std::stod(text()), 20);
}

TEST_F(TypedNumber, TheUnitMayBeTyped) {
    show(Kolt::makeValue(5.0), "field", {{"unit", Kolt::makeValue(std::string("mm"))}});
    enter("2*4 mm");
    EXPECT_EQ(std::stod(text()), 8);
}

TEST_F(TypedNumber, AChangeFromElsewhereLeavesTheTextAndEscapeShowsIt) {
    show(Kolt::makeValue(10), "field");
    type("2*");
    value->ownValue()->setValueFromText("77");
    value->notifyValueChange(value->ownValue(), firstPool, std::string(), nullptr, nullptr, nullptr);
    EXPECT_EQ(line()->text(), QStringLiteral("2*"));
    QTest::keyClick(editor(), Qt::Key_Escape);
    EXPECT_EQ(line()->text(), QStringLiteral("77"));
}

TEST_F(TypedNumber, DuringATextADragSelectsInsteadOfChangingTheNumber) {
    show(Kolt::makeValue(10), "field");
    type("2*3");
    QTest::mousePress(line(), Qt::LeftButton, {}, line()->rect().center());
    QTest::mouseMove(line(), {2, line()->height() / 2});
    QTest::mouseRelease(line(), Qt::LeftButton, {}, {2, line()->height() / 2});
    EXPECT_EQ(line()->text(), QStringLiteral("2*3"));
    EXPECT_EQ(text(), "10");
}

TEST_F(TypedNumber, WithoutAPoolTheNumberComesBack) {
    show(Kolt::makeValue(10), "field");
    pools.use(nullptr);
    enter("2*3");
    EXPECT_EQ(line()->text(), QStringLiteral("10"));
}

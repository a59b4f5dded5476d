#include "MoreInputsTest.hpp"

#include <QAbstractSpinBox>
#include <QAccessible>
#include <QLabel>
#include <QLineEdit>

namespace {

/// Drags, steps and what is shown.
class NumberFieldTest : public MoreInputsTest {
protected:
    QLineEdit* line() const { return editor()->findChild<QLineEdit*>(); }
    double number() const { return std::stod(text()); }

    static void mouse(QWidget* target, QEvent::Type type, QPoint place, Qt::KeyboardModifiers keys) {
        auto const button = type == QEvent::MouseMove ? Qt::NoButton : Qt::LeftButton;
        auto const buttons = type == QEvent::MouseButtonRelease ? Qt::NoButton : Qt::LeftButton;
        QMouseEvent event(type, place, target->mapToGlobal(place), button, buttons, keys);
        QApplication::sendEvent(target, &event);
    }
    void press() { mouse(line(), QEvent::MouseButtonPress, line()->rect().center(), Qt::NoModifier); }
    /// Moves to this distance from the press.
    void move(int distance, Qt::KeyboardModifiers keys = Qt::NoModifier) {
        mouse(line(), QEvent::MouseMove, line()->rect().center() + QPoint(distance, 0), keys);
    }
    void release() {
        mouse(line(), QEvent::MouseButtonRelease, line()->rect().center(), Qt::NoModifier);
        endGesture();
    }
    void drag(int distance, Qt::KeyboardModifiers keys = Qt::NoModifier) {
        mouse(line(), QEvent::MouseButtonPress, line()->rect().center(), keys);
        move(distance / 2, keys);
        move(distance, keys);
        release();
    }
};

} // namespace

TEST_F(NumberFieldTest, ADragChangesTheNumberInOneUndoStep) {
    show(Kolt::makeValue(10), "field");
    drag(60);
    EXPECT_EQ(text(), "30");
    EXPECT_EQ(recorder.values, (std::vector<std::string>{"20", "30"})) << "others follow while it goes on";
    EXPECT_EQ(steps(), 1U);
    drag(-30);
    EXPECT_EQ(text(), "20");
    EXPECT_EQ(steps(), 2U);
    undo();
    EXPECT_EQ(text(), "30");
    EXPECT_EQ(line()->text(), QStringLiteral("30"));
    undo();
    EXPECT_EQ(text(), "10");
}

TEST_F(NumberFieldTest, ShiftIsFineAndControlCoarse) {
    show(Kolt::makeValue(1.0), "spin", {{"step", Kolt::makeValue(0.5)}});
    drag(30);
    EXPECT_EQ(number(), 6);
    drag(30, Qt::ShiftModifier);
    EXPECT_EQ(number(), 6.5);
    drag(-30, Qt::ControlModifier);
    EXPECT_EQ(number(), -43.5);
}

TEST_F(NumberFieldTest, AKeyThatIsPressedDuringADragDoesNotJump) {
    show(Kolt::makeValue(1.0), "field", {{"step", Kolt::makeValue(1.0)}});
    press();
    move(30);
    EXPECT_EQ(number(), 11);
    move(30, Qt::ShiftModifier);
    EXPECT_EQ(number(), 11);
    move(60, Qt::ShiftModifier);
    EXPECT_EQ(number(), 12);
    release();
    EXPECT_EQ(steps(), 1U);
}

TEST_F(NumberFieldTest, ADragToTheRightRaisesInEveryLayout) {
    show(Kolt::makeValue(10), "field");
    parent->setLayoutDirection(Qt::RightToLeft);
    drag(30);
    EXPECT_EQ(text(), "20");
}

TEST_F(NumberFieldTest, ADragStaysInTheSoftRangeAndTurnsAtOnce) {
    show(Kolt::makeValue(5), "field",
         {{"min", Kolt::makeValue(0)}, {"max", Kolt::makeValue(100)}, {"softMaximum", Kolt::makeValue(8)}});
    press();
    move(300);
    EXPECT_EQ(text(), "8");
    move(294);
    EXPECT_EQ(text(), "6") << "two steps back from where the bound was reached";
    move(-300);
    EXPECT_EQ(text(), "0") << "the hard bound";
    release();
}

TEST_F(NumberFieldTest, ANumberBeyondTheSoftRangeComesBackAndDoesNotJump) {
    show(Kolt::makeValue(50), "field", {{"softMaximum", Kolt::makeValue(8)}});
    drag(30);
    EXPECT_EQ(text(), "50");
    drag(-30);
    EXPECT_EQ(text(), "40");
}

TEST_F(NumberFieldTest, ALogarithmicNumberIsMultiplied) {
    show(Kolt::makeValue(1.0), "field", {{"logarithmic", Kolt::makeValue(true)}});
    drag(150);
    EXPECT_EQ(number(), 10);
    drag(-450);
    EXPECT_EQ(number(), 0.01);
    value->setProperty("logarithmic", Kolt::makeValue(false), nullptr, nullptr, nullptr);
    drag(-150);
    EXPECT_LT(number(), 0) << "a changed property counts at once";
}

TEST_F(NumberFieldTest, AClickIsNoDrag) {
    show(Kolt::makeValue(10), "field");
    press();
    move(2);
    release();
    QTest::mouseClick(line(), Qt::LeftButton);
    EXPECT_EQ(line()->selectedText(), QStringLiteral("10")) << "to type over it";
    QTest::mouseClick(line(), Qt::LeftButton);
    EXPECT_FALSE(line()->hasSelectedText()) << "the next click places the cursor";
    EXPECT_EQ(text(), "10");
    EXPECT_TRUE(recorder.values.empty());
    EXPECT_EQ(steps(), 0U);
}

TEST_F(NumberFieldTest, ArrowKeysStepWithShiftAndControl) {
    show(Kolt::makeValue(10), "spin");
    editor()->setFocus();
    QTest::keyClick(editor(), Qt::Key_Up);
    EXPECT_EQ(text(), "11");
    QTest::keyClick(editor(), Qt::Key_Down, Qt::ControlModifier);
    EXPECT_EQ(text(), "1");
    endGesture();
    EXPECT_EQ(steps(), 2U);
    QTest::keyClick(editor(), Qt::Key_PageUp);
    EXPECT_EQ(text(), "11");
}

TEST_F(NumberFieldTest, TheArrowButtonsBelongToTheSpin) {
    show(Kolt::makeValue(10), "spin");
    auto* const spin = qobject_cast<QAbstractSpinBox*>(editor());
    ASSERT_NE(spin, nullptr);
    EXPECT_EQ(spin->buttonSymbols(), QAbstractSpinBox::UpDownArrows);
    QTest::mouseClick(spin, Qt::LeftButton, {}, {spin->width() - 8, spin->height() / 4});
    EXPECT_EQ(text(), "11");
    value->setCreationPreferences(Kolt::PreferencesPtr(new Kolt::VCreationPreferences(std::string("field"))));
    panel->closeEditors();
    panel->openEditors();
    EXPECT_EQ(qobject_cast<QAbstractSpinBox*>(editor())->buttonSymbols(), QAbstractSpinBox::NoButtons);
}

TEST_F(NumberFieldTest, TheUnitStandsBehindTheNumberOnce) {
    show(Kolt::makeValue(10), "field", {{"unit", Kolt::makeValue(std::string("mm"))}});
    auto const* const unit = line()->findChild<QLabel*>();
    ASSERT_NE(unit, nullptr);
    EXPECT_EQ(unit->text(), QStringLiteral("mm"));
    EXPECT_TRUE(unit->isVisible());
    EXPECT_GT(unit->x(), line()->width() / 2);
    EXPECT_EQ(row()->unitLabel(), nullptr) << "the row leaves it to the editor";
    parent->setLayoutDirection(Qt::RightToLeft);
    EXPECT_LT(unit->geometry().right(), line()->width() / 2);
}

TEST_F(NumberFieldTest, ScreenReadersGetNumberAndRange) {
    show(Kolt::makeValue(10), "spin", {{"min", Kolt::makeValue(0)}, {"max", Kolt::makeValue(100)}});
    auto* const accessible = QAccessible::queryAccessibleInterface(editor());
    EXPECT_EQ(accessible->role(), QAccessible::SpinBox);
    EXPECT_EQ(accessible->text(QAccessible::Name), QStringLiteral("value"));
    auto* const range = accessible->valueInterface();
    ASSERT_NE(range, nullptr);
    EXPECT_EQ(range->currentValue().toDouble(), 10);
    EXPECT_EQ(range->minimumValue().toDouble(), 0);
    EXPECT_EQ(range->maximumValue().toDouble(), 100);
    range->setCurrentValue(42.0);
    EXPECT_EQ(text(), "42");
}

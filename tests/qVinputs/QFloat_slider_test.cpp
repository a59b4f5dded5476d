#include "QFloatTest.hpp"
#include "support/WheelTurn.hpp"

using Kolt::ParameterPtr;

namespace {

/// A parameter of 0.25 on 0 to 1 with the positions 0 to 200, and its editor with a slider.
class QFloatKeyTest : public QFloatTest {
protected:
    void SetUp() override {
        QFloatTest::SetUp();
        parameter = bounded(0.25, 0.0, 1.0, 200);
        editor = open(parameter);
        control = slider(editor);
        ASSERT_EQ(control->maximum(), 200);
        ASSERT_EQ(control->value(), 50);
        record(parameter);
    }
    void key(Qt::Key pressed) { QTest::keyClick(control, pressed); }

    ParameterPtr parameter;
    Kolt::Editor editor;
    QSlider* control = nullptr;
};

} // namespace

TEST_F(QFloatTest, AClickPutsTheHandleUnderThePointer) {
    auto const parameter = bounded(0.0, 0.0, 1.0, 1000);
    auto const editor = open(parameter);
    auto* const control = slider(editor);
    record(parameter);
    std::size_t count = 0;
    for (double const x : {20.4, 20.6, control->width() - 3.0, 1.0, control->width() / 2.0}) {
        press(control, Qt::LeftButton, {x, 5.0});
        int const expected =
            static_cast<int>(std::trunc(control->maximum() * (std::floor(x + 0.5) / control->width()) + 0.5));
        EXPECT_EQ(control->value(), expected);
        EXPECT_EQ(held(parameter), expected / 1000.0);
        EXPECT_EQ(recorder.values.size(), ++count) << "one notification for a click";
        press(control, Qt::LeftButton, {x, 5.0});
        EXPECT_EQ(recorder.values.size(), count) << "none where the handle stays";
    }
}

TEST_F(QFloatTest, AHeldButtonDoesNotGoOnStepping) {
    struct Repeat : QAbstractSlider {
        static SliderAction of(QAbstractSlider const& control) { return (control.*&Repeat::repeatAction)(); }
    };
    auto const parameter = bounded(0.0, 0.0, 1.0, 1000);
    auto const editor = open(parameter);
    auto* const control = slider(editor);
    QTest::mousePress(control, Qt::LeftButton, {}, QPoint(control->width() - 10, control->height() / 2));
    EXPECT_EQ(Repeat::of(*control), QAbstractSlider::SliderNoAction);
    QTest::mouseRelease(control, Qt::LeftButton, {}, QPoint(control->width() - 10, control->height() / 2));
}

TEST_F(QFloatTest, TheHandleCanBeDraggedAfterAPressOnIt) {
    auto const parameter = bounded(0.5, 0.0, 1.0, 1000);
    auto const editor = open(parameter);
    auto* const control = slider(editor);
    auto const middle = control->rect().center();
    QTest::mousePress(control, Qt::LeftButton, {}, middle);
    QMouseEvent move(QEvent::MouseMove, QPointF(middle.x() + 40, middle.y()), Qt::NoButton, Qt::LeftButton,
                     Qt::NoModifier);
    QApplication::sendEvent(control, &move);
    QTest::mouseRelease(control, Qt::LeftButton, {}, middle + QPoint(40, 0));
    EXPECT_GT(held(parameter), 0.5);
    EXPECT_EQ(held(parameter), control->value() / 1000.0);
}

TEST_F(QFloatTest, OtherButtonsDoWhatTheyDoWithEverySlider) {
    auto const parameter = bounded(0.0, 0.0, 1.0, 1000);
    auto const editor = open(parameter);
    auto* const control = slider(editor);
    QSlider plain(Qt::Horizontal);
    plain.setRange(0, 1000);
    plain.resize(control->size());
    plain.setAttribute(Qt::WA_DontShowOnScreen);
    plain.show();
    for (auto const button : {Qt::RightButton, Qt::MiddleButton}) {
        QPointF const place(control->width() * 0.75, control->height() / 2.0);
        press(control, button, place);
        press(&plain, button, place);
        EXPECT_EQ(control->value(), plain.value());
    }
    EXPECT_EQ(held(parameter), plain.value() / 1000.0);
}

TEST_F(QFloatTest, TheSliderRunsFromLeftToRightInEveryWindow) {
    parent->setLayoutDirection(Qt::RightToLeft);
    auto const parameter = bounded(0.0, 0.0, 1.0, 1000);
    auto const editor = open(parameter);
    auto* const control = slider(editor);
    EXPECT_EQ(control->layoutDirection(), Qt::LeftToRight);
    press(control, Qt::LeftButton, {control->width() * 0.75, 5.0});
    EXPECT_NEAR(held(parameter), 0.75, 1.0 / control->width());
}

TEST_F(QFloatTest, AClickOnASliderWithoutWidthDoesNothing) {
    auto const parameter = bounded(0.5, 0.0, 1.0, 1000);
    auto const editor = open(parameter);
    auto* const control = slider(editor);
    control->resize(0, 20);
    ASSERT_EQ(control->width(), 0);
    press(control, Qt::LeftButton, {0.0, 5.0});
    press(control, Qt::LeftButton, {50.0, 5.0});
    EXPECT_EQ(control->value(), 500);
    EXPECT_EQ(held(parameter), 0.5);
}

TEST_F(QFloatKeyTest, RightGoesUpByOneAndStopsAtTheMaximum) {
    key(Qt::Key_Right);
    EXPECT_EQ(control->value(), 51);
    EXPECT_EQ(held(parameter), 0.255);
    control->setValue(200);
    recorder.values.clear();
    key(Qt::Key_Right);
    EXPECT_EQ(control->value(), 200);
    EXPECT_TRUE(recorder.values.empty());
}

TEST_F(QFloatKeyTest, LeftHomeAndEndGoDownByOneAndStopAtTheMinimum) {
    int expected = 50;
    for (auto const pressed : {Qt::Key_Left, Qt::Key_Home, Qt::Key_End}) {
        key(pressed);
        EXPECT_EQ(control->value(), --expected);
    }
    EXPECT_EQ(recorder.values.size(), 3U);
    control->setValue(0);
    recorder.values.clear();
    key(Qt::Key_Left);
    EXPECT_EQ(control->value(), 0);
    EXPECT_TRUE(recorder.values.empty());
}

TEST_F(QFloatKeyTest, TheDigitsGoToTheirSharesOfTheInterval) {
    for (auto const& [pressed, value] : std::vector<std::pair<Qt::Key, double>>{
             {Qt::Key_1, 0.1}, {Qt::Key_2, 0.33}, {Qt::Key_3, 0.66}, {Qt::Key_4, 0.9}}) {
        recorder.values.clear();
        key(pressed);
        EXPECT_EQ(held(parameter), value);
        EXPECT_EQ(recorder.values.size(), 1U);
        key(pressed);
        EXPECT_EQ(recorder.values.size(), 1U);
    }
}

TEST_F(QFloatKeyTest, UpMakesTheStepsCoarser) {
    key(Qt::Key_Up);
    EXPECT_EQ(control->maximum(), 100) << "199 steps become 99 and a half";
    EXPECT_EQ(control->value(), 25);
    EXPECT_EQ(held(parameter), 0.25);
    EXPECT_EQ(recorder.values.size(), 1U);
    for (int n = 0; n < 20; ++n)
        key(Qt::Key_Up);
    EXPECT_EQ(control->maximum(), 2);
}

TEST_F(QFloatKeyTest, DownMakesTheStepsFiner) {
    key(Qt::Key_Down);
    EXPECT_EQ(control->maximum(), 399);
    EXPECT_EQ(control->value(), 100);
    EXPECT_EQ(held(parameter), 100 / 399.0);
    EXPECT_EQ(recorder.values.size(), 1U);
    for (int n = 0; n < 60; ++n)
        key(Qt::Key_Down);
    EXPECT_EQ(control->maximum(), 100000001) << "a hundred-millionth of the width is the finest step";
    auto const maximum = control->maximum();
    key(Qt::Key_Down);
    EXPECT_EQ(control->maximum(), maximum);
}

TEST_F(QFloatKeyTest, AChangeOfScaleAtTheUpperEndWritesNothingWhereTheHandleFollowsTheRange) {
    type(editor, "500");
    recorder.values.clear();
    key(Qt::Key_Up);
    EXPECT_EQ(control->value(), control->maximum());
    EXPECT_EQ(held(parameter), 500.0);
    EXPECT_TRUE(recorder.values.empty());
}

TEST_F(QFloatKeyTest, PlusWidensTheIntervalAndKeepsTheRangeOfTheControl) {
    for (auto const pressed : {Qt::Key_Plus, Qt::Key_Equal}) {
        auto const other = bounded(0.25, 0.0, 1.0, 200);
        auto const otherEditor = open(other);
        auto* const otherControl = slider(otherEditor);
        QTest::keyClick(otherControl, pressed);
        EXPECT_EQ(otherControl->maximum(), 200);
        EXPECT_EQ(otherControl->value(), 200) << "the middle of a thousand million positions, clamped";
        EXPECT_DOUBLE_EQ(held(other), 200 * 2.0 / 1000000000 - 0.75);
        // If the handle is at the end already, it does not move.
        auto const before = held(other);
        QTest::keyClick(otherControl, pressed);
        EXPECT_EQ(held(other), before);
    }
}

TEST_F(QFloatKeyTest, MinusNarrowsTheIntervalAndKeepsTheRangeOfTheControl) {
    for (auto const pressed : {Qt::Key_Minus, Qt::Key_Underscore}) {
        auto const other = bounded(0.25, 0.0, 1.0, 200);
        auto const otherEditor = open(other);
        auto* const otherControl = slider(otherEditor);
        QTest::keyClick(otherControl, pressed);
        EXPECT_EQ(otherControl->maximum(), 200);
        EXPECT_EQ(otherControl->value(), 200);
        EXPECT_DOUBLE_EQ(held(other), 200 * 0.5 / 1000000000);
        // Down gives the control the range of the new interval.
        QTest::keyClick(otherControl, Qt::Key_Down);
        EXPECT_EQ(otherControl->maximum(), 100000001);
    }
}

TEST_F(QFloatKeyTest, OtherKeysAreTakenAndDoNothing) {
    for (auto const pressed :
         {Qt::Key_PageUp, Qt::Key_PageDown, Qt::Key_Space, Qt::Key_A, Qt::Key_5, Qt::Key_0, Qt::Key_Escape}) {
        QKeyEvent event(QEvent::KeyPress, pressed, Qt::NoModifier);
        event.ignore();
        QApplication::sendEvent(control, &event);
        EXPECT_TRUE(event.isAccepted()) << "not passed on";
    }
    EXPECT_EQ(control->value(), 50);
    EXPECT_TRUE(recorder.values.empty());
}

TEST_F(QFloatKeyTest, TabMovesTheFocus) {
    parent->show();
    parent->activateWindow();
    ASSERT_TRUE(waitUntil([&] { return parent->isActiveWindow(); }));
    lineEdit(editor)->setFocus();
    ASSERT_TRUE(waitUntil([&] { return lineEdit(editor)->hasFocus(); }));
    QTest::keyClick(lineEdit(editor), Qt::Key_Tab);
    EXPECT_TRUE(control->hasFocus());
    key(Qt::Key_Tab);
    EXPECT_FALSE(control->hasFocus());
}

TEST_F(QFloatKeyTest, TheWheelMovesTheHandle) {
    turnWheel(*control, 1);
    EXPECT_EQ(control->value(), 53);
    EXPECT_EQ(held(parameter), 0.265);
    EXPECT_EQ(recorder.values.size(), 1U);
}

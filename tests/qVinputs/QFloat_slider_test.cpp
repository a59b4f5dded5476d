#include "QFloatTest.hpp"
#include "support/WheelTurn.hpp"

using Kolt::ParameterPtr;

namespace {

/// A parameter with the value 0.25, the bounds 0 and 1 and the positions 0 to 200, and its editor with a slider.
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

TEST_F(QFloatTest, AClickOnePageFromTheHandleWritesItsPlace) {
    auto const parameter = bounded(0.0, 0.0, 1.0, 1000);
    auto const editor = open(parameter);
    auto* const control = slider(editor);
    control->resize(200, control->height());
    ASSERT_EQ(control->pageStep(), 100);
    record(parameter);
    // A tenth of the width: the handle must come from where it was, not from the page that the base class went.
    press(control, Qt::LeftButton, {20.0, control->height() / 2.0});
    EXPECT_EQ(control->value(), 100);
    EXPECT_EQ(held(parameter), 0.1);
    EXPECT_EQ(recorder.values, std::vector<std::string>{"0.1"});
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

TEST_F(QFloatTest, APressBesideTheHandleAndADragMovesItOnFromThere) {
    for (int const from : {10, 70, 200}) {
        auto const parameter = bounded(0.5, 0.0, 1.0, 100000000);
        auto const editor = open(parameter);
        auto* const control = slider(editor);
        control->resize(260, control->height());
        record(parameter);
        QTest::mousePress(control, Qt::LeftButton, {}, {from, control->height() / 2});
        EXPECT_EQ(recorder.values.size(), 1U) << "one notification for the press";
        auto const pressed = held(parameter);
        EXPECT_NEAR(pressed, static_cast<double>(from) / control->width(), 1e-6);
        drag(control, from);
        EXPECT_EQ(held(parameter), pressed) << "a move to the place of the press changes nothing";
        drag(control, from + 1);
        EXPECT_NEAR(held(parameter), (from + 1.0) / control->width(), 1e-6);
        drag(control, from + 20);
        EXPECT_NEAR(held(parameter), (from + 20.0) / control->width(), 1e-6);
        drag(control, 5000);
        EXPECT_EQ(held(parameter), 1.0);
        drag(control, -5000);
        EXPECT_EQ(held(parameter), 0.0);
        QTest::mouseRelease(control, Qt::LeftButton, {}, {from, control->height() / 2});
        recorder.values.clear();
        QMouseEvent hover(QEvent::MouseMove, QPointF(from, 5), Qt::NoButton, Qt::NoButton, Qt::NoModifier);
        QApplication::sendEvent(control, &hover);
        EXPECT_TRUE(recorder.values.empty());
        delete editor.widget;
    }
}

TEST_F(QFloatTest, APressOnTheHandleDoesNotThrowTheValueBackAtTheFirstMove) {
    auto const parameter = bounded(0.5, 0.0, 1.0, 100000000);
    auto const editor = open(parameter);
    auto* const control = slider(editor);
    control->resize(260, control->height());
    for (int const beside : {-4, 0, 4}) {
        changeElsewhere(parameter, 0.5, firstPool);
        int const place = control->width() / 2 + beside;
        QTest::mousePress(control, Qt::LeftButton, {}, {place, control->height() / 2});
        auto const pressed = held(parameter);
        drag(control, place + 1);
        EXPECT_NEAR(held(parameter) - pressed, 1.0 / control->width(), 1e-6);
        QTest::mouseRelease(control, Qt::LeftButton, {}, {place + 1, control->height() / 2});
    }
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
        // A handle that is at the end does not move.
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

TEST_F(QFloatTest, TheWheelMovesTheHandleVisiblyAndByWholePositions) {
    for (double const positions : {2.0, 50.0, 200.0, 1000.0, 1e8, 1e9}) {
        auto const parameter = bounded(0.5, 0.0, 1.0, positions);
        auto const editor = open(parameter);
        auto* const control = slider(editor);
        int const before = control->value();
        turnWheel(*control, 1);
        int const moved = control->value() - before;
        EXPECT_GE(moved, 1) << positions;
        EXPECT_GE(moved, control->maximum() / 110) << "a hundredth of the positions";
        EXPECT_LE(moved, std::max(3, control->maximum() / 90));
        EXPECT_EQ(held(parameter), control->value() / static_cast<double>(control->maximum()));
        QTest::keyClick(control, Qt::Key_Left);
        EXPECT_EQ(control->value(), before + moved - 1) << "the keys stay as they are";
        delete editor.widget;
    }
}

TEST_F(QFloatKeyTest, TheWheelFollowsTheScale) {
    for (int n = 0; n < 20; ++n)
        key(Qt::Key_Down);
    int const before = control->value();
    turnWheel(*control, 1);
    EXPECT_NEAR(control->value() - before, control->maximum() / 100.0, 3.0);
}

TEST_F(QFloatTest, FiniteBoundsNeverGiveNaN) {
    for (auto const& [minimum, maximum] : std::vector<std::pair<double, double>>{
             {-1e308, 1e308}, {0.0, 1.7e308}, {-1.7e308, -1.6e308}, {0.0, 1e305}, {-1.7976e308, 1.7976e308}}) {
        for (double const start : {minimum, 0.0, 0.5 * minimum + 0.5 * maximum, maximum}) {
            auto const parameter = bounded(start, minimum, maximum, 1e8);
            auto const editor = open(parameter);
            auto* const control = slider(editor);
            for (auto const pressed :
                 {Qt::Key_Right, Qt::Key_Left, Qt::Key_Plus, Qt::Key_Right, Qt::Key_Up, Qt::Key_1, Qt::Key_Down,
                  Qt::Key_4, Qt::Key_Minus, Qt::Key_Down, Qt::Key_2, Qt::Key_Plus, Qt::Key_Plus, Qt::Key_Left}) {
                QTest::keyClick(control, pressed);
                EXPECT_TRUE(std::isfinite(held(parameter))) << minimum << ' ' << maximum << ' ' << pressed;
            }
            delete editor.widget;
        }
    }
}

TEST_F(QFloatKeyTest, TheWheelMovesTheHandle) {
    turnWheel(*control, 1);
    EXPECT_EQ(control->value(), 53);
    EXPECT_EQ(held(parameter), 0.265);
    EXPECT_EQ(recorder.values.size(), 1U);
}

// Escape during a drag of a control.

#include "EditingTest.hpp"
#include "support/SliderDrag.hpp"

#include <QShortcut>

using testing::ElementsAre;
using testing::IsEmpty;

namespace {

class DragCancelTest : public EditingTest {
protected:
    static void move(QWidget* widget, QPoint const& place) {
        QMouseEvent event(QEvent::MouseMove, place, widget->mapToGlobal(place), Qt::NoButton, Qt::LeftButton,
                          Qt::NoModifier);
        QApplication::sendEvent(widget, &event);
    }
    static void press(QWidget* widget, QPoint const& place) {
        QTest::mousePress(widget, Qt::LeftButton, Qt::NoModifier, place);
    }
    static void release(QWidget* widget, QPoint const& place) {
        QTest::mouseRelease(widget, Qt::LeftButton, Qt::NoModifier, place);
        QApplication::processEvents();
    }
    static void escape() { QTest::keyClick(QApplication::focusWidget(), Qt::Key_Escape); }
};

} // namespace

TEST_F(DragCancelTest, EscapeBringsBackWhatHeldBeforeAndMakesNoStep) {
    for (auto const* const name : {"int", "double"}) {
        auto* const dragged = slider(name);
        int const before = dragged->value();
        auto place = handleOf(dragged);
        press(dragged, place);
        place.rx() += 40;
        move(dragged, place);
        ASSERT_NE(valuesNow(), text) << name;
        escape();
        EXPECT_EQ(valuesNow(), text) << name << " a pool without a value of its own has none again";
        EXPECT_EQ(dragged->value(), before) << name;
        EXPECT_FALSE(dragged->isSliderDown());
        EXPECT_THAT(steps(), IsEmpty()) << name;
        place.rx() += 40;
        move(dragged, place);
        EXPECT_EQ(valuesNow(), text) << name << " the rest of the drag does nothing";
        release(dragged, place);
        EXPECT_EQ(valuesNow(), text) << name;
        EXPECT_THAT(steps(), IsEmpty()) << name;
    }
}

TEST_F(DragCancelTest, TheNextDragIsAStepAgain) {
    auto* const dragged = slider("int");
    auto place = handleOf(dragged);
    press(dragged, place);
    move(dragged, place + QPoint(40, 0));
    escape();
    release(dragged, place);
    dragHandle(dragged, {10, 20});
    QApplication::processEvents();
    EXPECT_EQ(steps().size(), 1U);
    EXPECT_NE(valuesNow(), text);
    window->undo();
    EXPECT_EQ(valuesNow(), text);
}

TEST_F(DragCancelTest, WhatWasUndoneCanStillBeRedone) {
    dragHandle(slider("int"), {30});
    QApplication::processEvents();
    auto const after = valuesNow();
    window->undo();
    auto* const dragged = slider("double");
    auto const place = handleOf(dragged);
    press(dragged, place);
    move(dragged, place + QPoint(40, 0));
    escape();
    release(dragged, place);
    EXPECT_EQ(valuesNow(), text);
    window->redo();
    EXPECT_EQ(valuesNow(), after);
}

TEST_F(DragCancelTest, EscapeCancelsNothingElseDuringADrag) {
    QShortcut shortcut(QKeySequence(Qt::Key_Escape), window.get());
    int cancelled = 0;
    QObject::connect(&shortcut, &QShortcut::activated, [&] { ++cancelled; });
    auto* const dragged = slider("int");
    auto const place = handleOf(dragged);
    press(dragged, place);
    move(dragged, place + QPoint(40, 0));
    escape();
    EXPECT_EQ(cancelled, 0);
    EXPECT_EQ(valuesNow(), text);
    release(dragged, place);
    dragged->setFocus();
    escape();
    EXPECT_EQ(cancelled, 1) << "and afterwards as always";
}

TEST_F(DragCancelTest, AReleaseThatNeverCameDoesNotLockTheMouse) {
    auto* const dragged = slider("int");
    auto const place = handleOf(dragged);
    press(dragged, place);
    move(dragged, place + QPoint(40, 0));
    escape();
    click(choice("Blue"));
    QApplication::processEvents();
    EXPECT_THAT(steps(), ElementsAre("enum: Red → Blue"));
}

TEST_F(DragCancelTest, AButtonThatIsHeldIsNoDrag) {
    auto* const button = choice("Blue");
    press(button, {8, button->height() / 2});
    EXPECT_TRUE(button->isDown());
    // Qt lets the button go by itself.
    QTest::keyClick(button, Qt::Key_Escape);
    EXPECT_FALSE(button->isDown());
    release(button, {8, button->height() / 2});
    EXPECT_THAT(steps(), IsEmpty());
    click(button);
    EXPECT_THAT(steps(), ElementsAre("enum: Red → Blue")) << "the mouse works on";
}

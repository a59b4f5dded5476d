// What counts as one gesture of the user, and so becomes one undo step.

#include "support/TaloTest.hpp"
#include "support/WheelTurn.hpp"

#include <lattice/TypedParameter.hpp>
#include <lattice/UndoHistory.hpp>
#include <parameters/input/GestureTarget.hpp>
#include <parameters/input/InputFilter.hpp>
#include <QDialog>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QSpinBox>
#include <QVBoxLayout>

namespace {

class Target : public QWidget, public Talo::GestureTarget {
public:
    Kolt::UndoHistory& history() const override { return Kolt::UndoHistory::theHistory(); }
};

/// A target that contains a line edit, a spin box, a multi-line text and a button-like area, and a line edit outside
/// the target.
class GestureWatcherTest : public TaloTest {
protected:
    void SetUp() override {
        TaloTest::SetUp();
        auto* const rows = new QVBoxLayout(&window);
        rows->addWidget(target = new Target);
        rows->addWidget(outside = new QLineEdit);
        auto* const layout = new QVBoxLayout(target);
        layout->addWidget(text = new QLineEdit);
        layout->addWidget(spinBox = new QSpinBox);
        layout->addWidget(lines = new QPlainTextEdit);
        layout->addWidget(area = new QWidget);
        area->setFocusPolicy(Qt::StrongFocus);
        area->setMinimumSize(50, 50);
        window.show();
        window.activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
    }

    void TearDown() override {
        filter.reset();
        EXPECT_FALSE(isMacroOpen());
        TaloTest::TearDown();
    }

    static bool isMacroOpen() { return Kolt::UndoHistory::theHistory().isMacroOpen(); }
    static bool closes() {
        return waitUntil([] { return !isMacroOpen(); });
    }

    std::shared_ptr<Talo::InputFilter> filter = Talo::InputFilter::shared();
    QWidget window;
    Target* target = nullptr;
    QLineEdit* text = nullptr;
    QSpinBox* spinBox = nullptr;
    QPlainTextEdit* lines = nullptr;
    QWidget* area = nullptr;
    QLineEdit* outside = nullptr;
};

} // namespace

TEST_F(GestureWatcherTest, APressToItsReleaseIsOneGesture) {
    QTest::mousePress(area, Qt::LeftButton);
    EXPECT_TRUE(isMacroOpen());
    QTest::mousePress(area, Qt::RightButton);
    QTest::mouseRelease(area, Qt::LeftButton);
    QTest::mouseRelease(area, Qt::RightButton);
    EXPECT_TRUE(closes());
}

TEST_F(GestureWatcherTest, ATargetMayLeaveItsRowAsTheLastGestureEnds) {
    QTest::keyClick(text, Qt::Key_A);
    // A step without a change in the end is dropped when the gesture ends, which listeners hear of.
    auto& history = Kolt::UndoHistory::theHistory();
    auto const number = Kolt::Parameter<int>("number", 1);
    ASSERT_TRUE(history.store(number, nullptr, {Kolt::makeValue(2), false}));
    ASSERT_TRUE(history.store(number, nullptr, {Kolt::makeValue(1), false}));
    int calls = 0;
    auto const connection = history.addListener([&] {
        ++calls;
        area->setParent(&window);
    });
    QTest::mousePress(area, Qt::LeftButton);
    EXPECT_EQ(calls, 1);
    EXPECT_FALSE(isMacroOpen()) << "it is in no row any more";
    QTest::mouseRelease(area, Qt::LeftButton);
}

TEST_F(GestureWatcherTest, APressBesideTheTargetsIsNone) {
    QTest::mousePress(outside, Qt::LeftButton);
    EXPECT_FALSE(isMacroOpen());
    QTest::mouseRelease(outside, Qt::LeftButton);
    outside->setFocus();
    QTest::keyPress(outside, Qt::Key_A);
    EXPECT_FALSE(isMacroOpen());
    QTest::keyRelease(outside, Qt::Key_A);
}

TEST_F(GestureWatcherTest, AKeyWithItsRepetitionsIsOneGesture) {
    area->setFocus();
    QTest::keyPress(area, Qt::Key_Right);
    EXPECT_TRUE(isMacroOpen());
    QKeyEvent repeat(QEvent::KeyRelease, Qt::Key_Right, Qt::NoModifier, QString(), true);
    QApplication::sendEvent(area, &repeat);
    QCoreApplication::processEvents();
    EXPECT_TRUE(isMacroOpen()) << "the release of a repetition ends nothing";
    QTest::keyRelease(area, Qt::Key_Right);
    EXPECT_TRUE(closes());
}

TEST_F(GestureWatcherTest, AModifierIsNoGesture) {
    area->setFocus();
    QTest::keyPress(area, Qt::Key_Shift);
    EXPECT_FALSE(isMacroOpen());
    QTest::keyRelease(area, Qt::Key_Shift);
}

TEST_F(GestureWatcherTest, ATypedTextIsOneGestureUntilReturn) {
    text->setFocus();
    QTest::keyClicks(text, QStringLiteral("ab"));
    QCoreApplication::processEvents();
    EXPECT_TRUE(isMacroOpen());
    QTest::keyClick(text, Qt::Key_Return);
    EXPECT_TRUE(closes());
}

TEST_F(GestureWatcherTest, ATypedTextEndsWhenTheFieldIsLeft) {
    text->setFocus();
    QTest::keyClicks(text, QStringLiteral("ab"));
    outside->setFocus();
    EXPECT_TRUE(closes());
}

TEST_F(GestureWatcherTest, ArrowKeysInASpinBoxAreGesturesOfTheirOwn) {
    spinBox->setFocus();
    QTest::keyPress(spinBox, Qt::Key_Up);
    EXPECT_TRUE(isMacroOpen());
    QTest::keyRelease(spinBox, Qt::Key_Up);
    EXPECT_TRUE(closes());
}

TEST_F(GestureWatcherTest, TheWheelIsOneGestureUntilItRests) {
    spinBox->setFocus();
    QPointF const place = spinBox->rect().center();
    QWheelEvent event(place, spinBox->mapToGlobal(place.toPoint()), QPoint(), QPoint(0, 120), Qt::NoButton,
                      Qt::NoModifier, Qt::NoScrollPhase, false);
    QApplication::sendEvent(spinBox, &event);
    EXPECT_TRUE(isMacroOpen());
    EXPECT_TRUE(closes());
}

TEST_F(GestureWatcherTest, ADeletedTargetEndsItsGesture) {
    QTest::mousePress(area, Qt::LeftButton);
    EXPECT_TRUE(isMacroOpen());
    delete area;
    EXPECT_FALSE(isMacroOpen());
}

TEST_F(GestureWatcherTest, ACommandEndsTheGesture) {
    QTest::mousePress(area, Qt::LeftButton);
    filter->gestures().end();
    EXPECT_FALSE(isMacroOpen());
    QTest::mouseRelease(area, Qt::LeftButton);
}

TEST_F(GestureWatcherTest, AComposedLetterIsTyped) {
    text->setFocus();
    QInputMethodEvent composing(QStringLiteral("^"), {});
    QApplication::sendEvent(text, &composing);
    EXPECT_TRUE(isMacroOpen());
    QInputMethodEvent composed;
    composed.setCommitString(QStringLiteral("a"));
    QApplication::sendEvent(text, &composed);
    QCoreApplication::processEvents();
    EXPECT_TRUE(isMacroOpen());
    outside->setFocus();
    EXPECT_TRUE(closes());
}

TEST_F(GestureWatcherTest, ReturnIsALineOfALongerText) {
    lines->setFocus();
    QTest::keyClicks(lines, QStringLiteral("a"));
    QTest::keyClick(lines, Qt::Key_Return);
    QCoreApplication::processEvents();
    EXPECT_TRUE(isMacroOpen());
    outside->setFocus();
    EXPECT_TRUE(closes());
}

TEST_F(GestureWatcherTest, APressInATypedTextGoesOnAndOneElsewhereDoesNot) {
    auto& history = Kolt::UndoHistory::theHistory();
    auto const number = Kolt::Parameter<int>("number", 1);
    text->setFocus();
    QTest::keyClick(text, Qt::Key_A);
    ASSERT_TRUE(history.store(number, nullptr, {Kolt::makeValue(2), false}));
    QTest::mouseClick(text, Qt::LeftButton);
    QCoreApplication::processEvents();
    EXPECT_TRUE(history.isStepOpen());
    QTest::mousePress(area, Qt::LeftButton);
    EXPECT_TRUE(isMacroOpen());
    EXPECT_FALSE(history.isStepOpen()) << "the press is a step of its own";
    QTest::mouseRelease(area, Qt::LeftButton);
    EXPECT_TRUE(closes());
    history.clear();
}

TEST_F(GestureWatcherTest, ADialogOfATargetBelongsToIt) {
    QDialog dialog(area);
    auto* const field = new QLineEdit(&dialog);
    dialog.show();
    QTest::mousePress(field, Qt::LeftButton);
    EXPECT_TRUE(isMacroOpen());
    QTest::mouseRelease(field, Qt::LeftButton);
    EXPECT_TRUE(closes());
}

TEST_F(GestureWatcherTest, TheWheelEndsNoTyping) {
    auto& history = Kolt::UndoHistory::theHistory();
    auto const number = Kolt::Parameter<int>("number", 1);
    text->setFocus();
    QTest::keyClick(text, Qt::Key_A);
    ASSERT_TRUE(history.store(number, nullptr, {Kolt::makeValue(2), false}));
    turnWheel(*spinBox, 120);
    EXPECT_TRUE(history.isStepOpen());
    outside->setFocus();
    EXPECT_TRUE(closes());
    history.clear();
}

TEST_F(GestureWatcherTest, KnowsWhichWidgetThePressHolds) {
    EXPECT_EQ(filter->gestures().pressed(), nullptr);
    QTest::mousePress(area, Qt::LeftButton);
    EXPECT_EQ(filter->gestures().pressed(), area);
    QTest::mouseRelease(area, Qt::LeftButton);
    EXPECT_TRUE(closes());
    EXPECT_EQ(filter->gestures().pressed(), nullptr);
}

TEST_F(GestureWatcherTest, UndoOfATypedTextIsThatOfTheFieldUntilItIsWritten) {
    auto& history = Kolt::UndoHistory::theHistory();
    text->setFocus();
    QTest::keyClicks(text, QStringLiteral("ab"));
    QTest::keyClick(text, Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(text->text(), QString());
    QTest::keyClicks(text, QStringLiteral("ab"));
    auto const number = Kolt::Parameter<int>("number", 1);
    ASSERT_TRUE(history.store(number, nullptr, {Kolt::makeValue(2), false}));
    QKeyEvent undo(QEvent::ShortcutOverride, Qt::Key_Z, Qt::ControlModifier);
    QApplication::sendEvent(text, &undo);
    EXPECT_FALSE(undo.isAccepted()) << "it belongs to the history";
    outside->setFocus();
    EXPECT_TRUE(closes());
    history.clear();
}

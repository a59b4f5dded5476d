#include "support/TaloTest.hpp"

#include <QFocusEvent>
#include <QHBoxLayout>
#include <sorrel/QLeaveLineEdit.hpp>

namespace {

using Kolt::QLeaveLineEdit;

class LeaveLineEdit : public TaloTest {
protected:
    void SetUp() override {
        auto* const layout = new QHBoxLayout(&window_);
        layout->addWidget(&edit_);
        layout->addWidget(&other_);
        window_.show();
        window_.activateWindow();
        edit_.setFocus();
        ASSERT_TRUE(waitUntil([&] { return edit_.hasFocus(); }));
        edit_.showText("12");
        edit_.selectAll();
    }
    QWidget window_;
    QLeaveLineEdit edit_{&window_};
    QLineEdit other_{&window_};
};

TEST_F(LeaveLineEdit, ShowsAndRemembersAText) {
    EXPECT_EQ(edit_.text(), "12");
    EXPECT_EQ(edit_.rememberedText(), "12");
}

TEST_F(LeaveLineEdit, ShowsTheRememberedTextAgainToWhoeverLeavesItByTabulator) {
    QTest::keyClicks(&edit_, "345");
    EXPECT_EQ(edit_.text(), "345");
    EXPECT_EQ(edit_.rememberedText(), "12") << "what is typed does not count until it is shown";
    QTest::keyClick(&edit_, Qt::Key_Tab);
    ASSERT_TRUE(waitUntil([&] { return other_.hasFocus(); }));
    EXPECT_EQ(edit_.text(), "12");
}

TEST_F(LeaveLineEdit, ShowsTheRememberedTextAgainToWhoeverLeavesItByMouse) {
    QTest::keyClicks(&edit_, "345");
    other_.setFocus(Qt::MouseFocusReason);
    EXPECT_EQ(edit_.text(), "12");
}

TEST_F(LeaveLineEdit, KeepsATextThatReturnHadShown) {
    QObject::connect(&edit_, &QLineEdit::returnPressed, &edit_, [&] { edit_.showText(edit_.text()); });
    QTest::keyClicks(&edit_, "345");
    QTest::keyClick(&edit_, Qt::Key_Return);
    QTest::keyClick(&edit_, Qt::Key_Tab);
    ASSERT_TRUE(waitUntil([&] { return other_.hasFocus(); }));
    EXPECT_EQ(edit_.text(), "345");
}

TEST_F(LeaveLineEdit, LeavesTheTypedTextAloneWhenTheWindowLosesTheFocusOrAMenuOpens) {
    QTest::keyClicks(&edit_, "345");
    for (auto const reason : {Qt::ActiveWindowFocusReason, Qt::PopupFocusReason}) {
        QFocusEvent leaving(QEvent::FocusOut, reason);
        QCoreApplication::sendEvent(&edit_, &leaving);
        EXPECT_EQ(edit_.text(), "345");
    }
}

TEST_F(LeaveLineEdit, ShowsTheRememberedTextAgainWhenTheFocusComesBackElsewhere) {
    QWidget elsewhere;
    elsewhere.show();
    for (auto* const next : {static_cast<QWidget*>(&edit_), static_cast<QWidget*>(&other_)}) {
        edit_.setFocus();
        ASSERT_TRUE(waitUntil([&] { return edit_.hasFocus(); }));
        edit_.selectAll();
        QTest::keyClicks(&edit_, "345");
        elsewhere.activateWindow();
        ASSERT_TRUE(waitUntil([&] { return elsewhere.isActiveWindow(); }));
        EXPECT_EQ(edit_.text(), "345");
        next->setFocus();
        window_.activateWindow();
        ASSERT_TRUE(waitUntil([&] { return next->hasFocus(); }));
        EXPECT_EQ(edit_.text(), next == &edit_ ? "345" : "12");
    }
}

TEST_F(LeaveLineEdit, SaysNothingOfEditsWhenTheProgramShowsAText) {
    QSignalSpy const edited(&edit_, &QLineEdit::textEdited);
    edit_.showText("7");
    EXPECT_EQ(edited.count(), 0);
    EXPECT_EQ(edit_.text(), "7");
    EXPECT_EQ(edit_.rememberedText(), "7");
}

TEST_F(LeaveLineEdit, RemembersNothingAtFirst) {
    QLeaveLineEdit fresh;
    fresh.setText("set past it");
    EXPECT_EQ(fresh.rememberedText(), "");
}

} // namespace

#include "support/TaloTest.hpp"

#include <QFocusEvent>
#include <QHBoxLayout>
#include <QIntValidator>
#include <QSignalSpy>
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

TEST_F(LeaveLineEdit, LeavingByTabRestoresTheRememberedText) {
    QTest::keyClicks(&edit_, "345");
    EXPECT_EQ(edit_.text(), "345");
    EXPECT_EQ(edit_.rememberedText(), "12") << "what is typed does not count until it is shown";
    QTest::keyClick(&edit_, Qt::Key_Tab);
    ASSERT_TRUE(waitUntil([&] { return other_.hasFocus(); }));
    EXPECT_EQ(edit_.text(), "12");
}

TEST_F(LeaveLineEdit, LeavingByMouseRestoresTheRememberedText) {
    QTest::keyClicks(&edit_, "345");
    other_.setFocus(Qt::MouseFocusReason);
    EXPECT_EQ(edit_.text(), "12");
}

TEST_F(LeaveLineEdit, CommitsAnAcceptableTextOnceWhenItIsLeft) {
    QSignalSpy const commits(&edit_, &QLineEdit::returnPressed);
    QObject::connect(&edit_, &QLineEdit::returnPressed, &edit_, [this] { edit_.showText(edit_.text()); });
    QTest::keyClicks(&edit_, "345");
    QTest::keyClick(&edit_, Qt::Key_Tab);
    ASSERT_TRUE(waitUntil([&] { return other_.hasFocus(); }));
    EXPECT_EQ(edit_.text(), "345");
    EXPECT_EQ(commits.count(), 1);
    edit_.setFocus();
    other_.setFocus();
    EXPECT_EQ(commits.count(), 1) << "an untouched field commits nothing";
}

TEST_F(LeaveLineEdit, RestoresATextThatIsNotAcceptable) {
    edit_.setValidator(new QIntValidator(0, 99, &edit_));
    QSignalSpy const commits(&edit_, &QLineEdit::returnPressed);
    for (auto const* const text : {"", "-"}) {
        edit_.setFocus();
        edit_.setText(QLatin1String(text));
        other_.setFocus(Qt::MouseFocusReason);
        EXPECT_EQ(edit_.text(), "12") << text;
    }
    EXPECT_EQ(commits.count(), 0);
}

TEST_F(LeaveLineEdit, RestoresATextThatTheReceiverDoesNotShow) {
    QObject::connect(&edit_, &QLineEdit::returnPressed, &edit_, [] {});
    QTest::keyClicks(&edit_, "345");
    other_.setFocus();
    EXPECT_EQ(edit_.text(), "12");
}

TEST_F(LeaveLineEdit, EscapeRestoresTheTextAndKeepsTheFocus) {
    QSignalSpy const commits(&edit_, &QLineEdit::returnPressed);
    QTest::keyClicks(&edit_, "345");
    QTest::keyClick(&edit_, Qt::Key_Escape);
    EXPECT_EQ(edit_.text(), "12");
    EXPECT_TRUE(edit_.hasFocus());
    other_.setFocus();
    EXPECT_EQ(commits.count(), 0);
}

TEST_F(LeaveLineEdit, LeavesEscapeInAnUntouchedFieldToOthers) {
    QKeyEvent escape(QEvent::KeyPress, Qt::Key_Escape, Qt::NoModifier);
    QApplication::sendEvent(&edit_, &escape);
    EXPECT_FALSE(escape.isAccepted());
}

TEST_F(LeaveLineEdit, MayBeDeletedByItsOwnCommit) {
    QPointer<QLeaveLineEdit> const brief = new QLeaveLineEdit(&window_);
    window_.layout()->addWidget(brief);
    brief->showText("1");
    brief->setFocus();
    ASSERT_TRUE(waitUntil([&] { return brief->hasFocus(); }));
    QObject::connect(brief, &QLineEdit::returnPressed, &window_, [&] { delete brief; });
    QTest::keyClicks(brief, "2");
    other_.setFocus();
    EXPECT_FALSE(brief);
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

TEST_F(LeaveLineEdit, IsLeftOnceAndThenAloneHoweverItsWindowLostTheFocus) {
    QLineEdit third(&window_);
    window_.layout()->addWidget(&third);
    third.show();
    for (auto const& losses :
         {std::vector{Qt::ActiveWindowFocusReason}, std::vector{Qt::PopupFocusReason, Qt::PopupFocusReason},
          std::vector{Qt::PopupFocusReason, Qt::ActiveWindowFocusReason, Qt::PopupFocusReason}}) {
        edit_.setFocus();
        ASSERT_TRUE(waitUntil([&] { return edit_.hasFocus(); }));
        for (auto const reason : losses) {
            QFocusEvent leaving(QEvent::FocusOut, reason);
            QCoreApplication::sendEvent(&edit_, &leaving);
        }
        other_.setFocus();
        // A text that the program sets meanwhile is not the field's to restore.
        edit_.setText("7");
        third.setFocus();
        other_.setFocus();
        EXPECT_EQ(edit_.text(), "7") << losses.size();
        edit_.showText("12");
    }
}

TEST_F(LeaveLineEdit, IsLeftOnceByWhoeverComesBackElsewhere) {
    QSignalSpy const commits(&edit_, &QLineEdit::returnPressed);
    QWidget elsewhere;
    elsewhere.show();
    QTest::keyClicks(&edit_, "345");
    elsewhere.activateWindow();
    ASSERT_TRUE(waitUntil([&] { return elsewhere.isActiveWindow(); }));
    other_.setFocus();
    window_.activateWindow();
    ASSERT_TRUE(waitUntil([&] { return other_.hasFocus(); }));
    EXPECT_EQ(commits.count(), 1);
    edit_.setText("7");
    elsewhere.activateWindow();
    ASSERT_TRUE(waitUntil([&] { return elsewhere.isActiveWindow(); }));
    window_.activateWindow();
    ASSERT_TRUE(waitUntil([&] { return other_.hasFocus(); }));
    EXPECT_EQ(commits.count(), 1);
    EXPECT_EQ(edit_.text(), "7");
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

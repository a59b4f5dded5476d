#include "support/TaloTest.hpp"
#include "support/TextDrop.hpp"

#include <QDoubleValidator>
#include <QIntValidator>
#include <QSignalSpy>
#include <sorrel/QLeaveLineEdit.hpp>

namespace {

using Kolt::QLeaveLineEdit;

/// A field that shows "12". On Return the test records the text and accepts it, except "13".
class NumberLineEdit : public TaloTest {
protected:
    NumberLineEdit() {
        edit_.showText("12");
        edit_.selectAll();
        QObject::connect(&edit_, &QLineEdit::returnPressed, &edit_, [this] {
            entered_ << edit_.text();
            if (edit_.text() != QLatin1String("13"))
                edit_.showText(edit_.text());
        });
    }
    void type(char const* text) { QTest::keyClicks(&edit_, QString::fromUtf8(text)); }
    void pressReturn() { QTest::keyClick(&edit_, Qt::Key_Return); }

    QLeaveLineEdit edit_;
    QStringList entered_;
    QSignalSpy refusals_{&edit_, &QLeaveLineEdit::refused};
};

TEST_F(NumberLineEdit, UpdatesItsTextUnlessAnotherOneIsBeingTyped) {
    EXPECT_TRUE(edit_.updateText("7"));
    EXPECT_EQ(edit_.text(), "7");
    type("5");
    EXPECT_FALSE(edit_.updateText("8"));
    EXPECT_EQ(edit_.text(), "75");
    EXPECT_EQ(edit_.rememberedText(), "8");
    QTest::keyClick(&edit_, Qt::Key_Escape);
    EXPECT_EQ(edit_.text(), "8");
    EXPECT_TRUE(edit_.updateText("9"));
    edit_.setText("set by the program");
    EXPECT_TRUE(edit_.updateText("10")) << "not typed";
    type("x");
    edit_.showText("11");
    EXPECT_EQ(edit_.text(), "11");
}

TEST_F(NumberLineEdit, LeavesReturnInAnUntouchedFieldToItsWriter) {
    int calls = 0;
    bool writes = true;
    edit_.setValueWriter([&] {
        ++calls;
        return writes;
    });
    pressReturn();
    EXPECT_EQ(calls, 1);
    EXPECT_TRUE(entered_.isEmpty());
    writes = false;
    pressReturn();
    EXPECT_EQ(calls, 2);
    EXPECT_EQ(entered_, QStringList{"12"}) << "the writer cannot";
    type("34");
    pressReturn();
    EXPECT_EQ(calls, 2) << "the field was touched";
    EXPECT_EQ(entered_.back(), "1234");
}

TEST_F(NumberLineEdit, LeavesReturnToTheDialogAroundIt) {
    QKeyEvent press(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier);
    QSignalSpy const finished(&edit_, &QLineEdit::editingFinished);
    QApplication::sendEvent(&edit_, &press);
    EXPECT_FALSE(press.isAccepted());
    EXPECT_EQ(finished.count(), 1);
}

TEST_F(NumberLineEdit, SaysThatATextWasRefused) {
    edit_.setValidator(new QIntValidator(0, 50, &edit_));
    for (char const* const text : {"13", "-"}) {
        refusals_.clear();
        edit_.selectAll();
        edit_.setText(text);
        pressReturn();
        EXPECT_EQ(edit_.text(), text) << "to be corrected";
        ASSERT_EQ(refusals_.count(), 1);
        EXPECT_EQ(refusals_.at(0).at(0).toString(), text);
    }
    edit_.setText("14");
    pressReturn();
    EXPECT_EQ(refusals_.count(), 1);
}

TEST_F(NumberLineEdit, TypesAPointForADecimalComma) {
    edit_.setValidator(new QDoubleValidator(&edit_));
    edit_.setLocale(QLocale(QLocale::German));
    type("1,5");
    EXPECT_EQ(edit_.text(), "1.5");
    edit_.clear();
    edit_.setLocale(QLocale(QLocale::English));
    type("1,5");
    EXPECT_EQ(edit_.text(), "1,5");
    pressReturn();
    EXPECT_EQ(refusals_.count(), 1);
    EXPECT_TRUE(entered_.isEmpty());
}

TEST_F(NumberLineEdit, TakesTheLocaleOfTheWidgetAroundItElseThatOfTheProgram) {
    QWidget around;
    around.setLocale(QLocale(QLocale::English));
    QLeaveLineEdit inner(&around);
    QLocale const before;
    QLocale::setDefault(QLocale(QLocale::German));
    for (auto* const field : {&inner, &edit_}) {
        field->setValidator(new QDoubleValidator(field));
        field->clear();
        QTest::keyClicks(field, "1,5");
    }
    QLocale::setDefault(before);
    EXPECT_EQ(inner.text(), "1,5");
    EXPECT_EQ(edit_.text(), "1.5");
}

TEST_F(NumberLineEdit, DropsNoSeparatorOfANumber) {
    edit_.setValidator(new QDoubleValidator(&edit_));
    type("1.2.3");
    EXPECT_EQ(edit_.text(), "1.2.3");
    edit_.setSelection(1, 2);
    type(".");
    EXPECT_EQ(edit_.text(), "1..3") << "in place of the selection";
    EXPECT_EQ(edit_.cursorPosition(), 2);
    edit_.setReadOnly(true);
    type(".");
    EXPECT_EQ(edit_.text(), "1..3");
}

TEST_F(NumberLineEdit, TypesSeparatorsAsTheyAreWhereNoNumberIsWanted) {
    edit_.setLocale(QLocale(QLocale::German));
    type("1,000.5");
    EXPECT_EQ(edit_.text(), "1,000.5");
    pressReturn();
    EXPECT_EQ(entered_, QStringList{"1,000.5"});
}

TEST_F(NumberLineEdit, CommitsADroppedTextOrDoesNotShowIt) {
    edit_.deselect();
    dropText(edit_, "7");
    EXPECT_EQ(entered_, QStringList{"712"});
    EXPECT_EQ(edit_.text(), "712");
    edit_.setValidator(new QIntValidator(0, 1000, &edit_));
    dropText(edit_, "9");
    EXPECT_EQ(edit_.text(), "712");
    EXPECT_EQ(entered_.size(), 1);
}

TEST_F(NumberLineEdit, ItsMarkIsInTheCornerWhereReadingBegins) {
    edit_.resize(80, 24);
    auto const plain = edit_.grab().toImage();
    edit_.setMarked(true);
    EXPECT_TRUE(edit_.isMarked());
    auto const marked = edit_.grab().toImage();
    EXPECT_NE(marked.pixelColor(1, 1), plain.pixelColor(1, 1));
    EXPECT_EQ(marked.pixelColor(78, 1), plain.pixelColor(78, 1));
    edit_.setLayoutDirection(Qt::RightToLeft);
    EXPECT_EQ(edit_.grab().toImage().pixelColor(78, 1), marked.pixelColor(1, 1));
    edit_.setLayoutDirection(Qt::LeftToRight);
    edit_.setMarked(false);
    EXPECT_EQ(edit_.grab().toImage(), plain);
}

} // namespace

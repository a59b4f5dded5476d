#include "QFloatTest.hpp"
#include "support/TextDrop.hpp"

using Kolt::ParameterPtr;
using Values = Kolt::VParameter::Values;

namespace {

/// Typing in the field of a parameter with the bounds 0 and 1 and 200 positions, in an active window.
class QFloatTypedTest : public QFloatTest {
protected:
    void openEditor(double value) {
        parameter = bounded(value, 0.0, 1.0, 200);
        editor = open(parameter);
        parent->show();
        parent->activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(parent));
        field = lineEdit(editor);
        field->setFocus();
        ASSERT_TRUE(waitUntil([&] { return field->hasFocus(); }));
        field->selectAll();
        record(parameter);
    }
    void leave() {
        QTest::keyClick(field, Qt::Key_Tab);
        ASSERT_FALSE(field->hasFocus());
    }
    void TearDown() override {
        QLocale::setDefault(localeBefore);
        QFloatTest::TearDown();
    }

    QLocale const localeBefore;
    ParameterPtr parameter;
    Kolt::Editor editor;
    QPointer<Kolt::QLeaveLineEdit> field;
};

} // namespace

TEST_F(QFloatTypedTest, ReturnInAnUntouchedFieldWritesTheNumberAndNotItsRoundedText) {
    for (double const number : {1e-12, 1 / 3.0, 0.1, 1e300, 0.5}) {
        openEditor(number);
        auto const before = Tessera::Ageable::GlobalTime.load();
        QTest::keyClick(field, Qt::Key_Return);
        EXPECT_EQ(held(parameter), number);
        EXPECT_EQ(recorder.values.size(), 1U) << "once";
        EXPECT_TRUE(isStampedAfter(before, *parameter->ownValue()));
        leave();
        EXPECT_EQ(recorder.values.size(), 1U);
        EXPECT_EQ(held(parameter), number);
        recorder.values.clear();
        delete editor.widget;
    }
}

TEST_F(QFloatTypedTest, ReturnInAnUntouchedFieldGivesThePoolTheNumber) {
    parameter = real(1 / 3.0, {}, Values::PerPool);
    editor = open(parameter);
    QTest::keyClick(lineEdit(editor), Qt::Key_Return);
    auto const local = parameter->getLocalValue(firstPool, std::string(), false);
    ASSERT_TRUE(local);
    EXPECT_EQ(Kolt::valueOr(local, 0.0), 1 / 3.0);
    pools.use(nullptr);
    QTest::keyClick(lineEdit(editor), Qt::Key_Return);
    EXPECT_EQ(Kolt::valueOr(parameter->ownValue(), 0.0), 1 / 3.0);
}

TEST_F(QFloatTypedTest, ReturnForAParameterThatIsGonePrintsOneLine) {
    openEditor(0.5);
    parameter.reset();
    QTest::keyClick(field, Qt::Key_Return);
    EXPECT_EQ(takeOutput(), std::vector<std::string>{missingOwnerLine});
}

TEST_F(QFloatTypedTest, AListenerMayDeleteTheEditorWhenReturnIsPressed) {
    for (bool const isTyped : {false, true}) {
        openEditor(0.5);
        if (isTyped)
            QTest::keyClicks(field, "0.2");
        recorder.reaction = [&] { delete editor.widget; };
        QKeyEvent press(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier);
        QApplication::sendEvent(field, &press);
        EXPECT_FALSE(editor.widget);
        recorder.reaction = nullptr;
    }
}

TEST_F(QFloatTypedTest, APropertyDoesNotReplaceATextThatIsBeingTyped) {
    openEditor(0.5);
    for (char const character : std::string("0.2")) {
        QTest::keyClick(field, character);
        setProperty(parameter, "comment", Kolt::makeValue(std::string(1, character)));
    }
    EXPECT_EQ(text(editor), "0.2");
    EXPECT_EQ(field->cursorPosition(), 3);
    leave();
    EXPECT_EQ(held(parameter), static_cast<double>(0.2F));
}

TEST_F(QFloatTypedTest, AValueFromElsewhereIsRememberedWhileATextIsBeingTyped) {
    openEditor(0.5);
    QTest::keyClicks(field, "0.2");
    changeElsewhere(parameter, 0.75, firstPool);
    setProperty(parameter, "precision", Kolt::makeValue(2));
    EXPECT_EQ(text(editor), "0.2");
    EXPECT_EQ(slider(editor)->value(), 150);
    QTest::keyClick(field, Qt::Key_Escape);
    EXPECT_EQ(text(editor), "0.75");
    changeElsewhere(parameter, 0.25, firstPool);
    EXPECT_EQ(text(editor), "0.25") << "nothing is being typed any more";
}

TEST_F(QFloatTypedTest, AMoveOfTheHandleReplacesATextThatIsBeingTyped) {
    openEditor(0.5);
    QTest::keyClicks(field, "0.2");
    slider(editor)->setValue(150);
    EXPECT_EQ(text(editor), "0.750000");
}

TEST_F(QFloatTypedTest, ACommaIsAPointWhereTheLocaleHasADecimalComma) {
    QLocale::setDefault(QLocale(QLocale::German, QLocale::Germany));
    openEditor(0.5);
    QTest::keyClicks(field, "0,25");
    EXPECT_EQ(text(editor), "0.25");
    leave();
    EXPECT_EQ(held(parameter), 0.25);
    field->setFocus();
    field->setSelection(1, 3);
    QTest::keyClick(field, ',');
    QTest::keyClick(field, '7');
    EXPECT_EQ(text(editor), "0.70000") << "the selected point gives way";
}

TEST_F(QFloatTypedTest, GroupSeparatorsAreRefusedAndNeverReadAsAnotherNumber) {
    for (auto const& locale : {QLocale(QLocale::German, QLocale::Germany), QLocale(QLocale::English), QLocale::c()}) {
        for (char const* const typed : {"1.000,5", "1,000.5", "1,000", "1.000.5", "1,000,5"}) {
            // In a locale with a decimal comma, "1,000" is a decimal number.
            bool const isDecimal = locale.decimalPoint() == QLatin1Char(',') && std::string(typed) == "1,000";
            QLocale::setDefault(locale);
            openEditor(0.5);
            QSignalSpy const refusals(field, SIGNAL(refused(QString)));
            QTest::keyClicks(field, typed);
            QTest::keyClick(field, Qt::Key_Return);
            EXPECT_EQ(held(parameter), isDecimal ? 1.0 : 0.5) << typed;
            leave();
            EXPECT_EQ(held(parameter), isDecimal ? 1.0 : 0.5) << typed;
            EXPECT_EQ(text(editor), isDecimal ? "1.000000" : "0.500000") << typed;
            EXPECT_EQ(refusals.count(), isDecimal ? 0 : 2) << "at Return and when it is left: " << typed;
            recorder.values.clear();
            delete editor.widget;
        }
    }
}

TEST_F(QFloatTypedTest, ARefusedTextCanBeCorrected) {
    openEditor(0.5);
    QTest::keyClicks(field, "0.1.");
    EXPECT_EQ(text(editor), "0.1.");
    QTest::keyClick(field, Qt::Key_Return);
    EXPECT_EQ(held(parameter), 0.5);
    QTest::keyClick(field, Qt::Key_Backspace);
    QTest::keyClick(field, Qt::Key_Return);
    EXPECT_EQ(held(parameter), static_cast<double>(0.1F));
}

TEST_F(QFloatTypedTest, ADroppedTextIsTakenOverOrNotShown) {
    for (bool const hasFocus : {true, false}) {
        openEditor(0.5);
        if (!hasFocus)
            slider(editor)->setFocus();
        dropText(*field, QStringLiteral("7"));
        EXPECT_EQ(held(parameter), 70.5);
        EXPECT_EQ(text(editor), "70.500000");
        dropText(*field, QStringLiteral("-"));
        EXPECT_EQ(held(parameter), -70.5);
        dropText(*field, QStringLiteral("many"));
        EXPECT_EQ(text(editor), "-70.500000");
        dropText(*field, QStringLiteral("1,"));
        EXPECT_EQ(text(editor), "-70.500000");
        EXPECT_EQ(held(parameter), -70.5);
        recorder.values.clear();
        delete editor.widget;
    }
}

TEST_F(QFloatTypedTest, AListenerMayDeleteTheEditorThatATextWasDroppedOn) {
    openEditor(0.5);
    recorder.reaction = [&] { delete editor.widget; };
    dropText(*field, QStringLiteral("7"));
    EXPECT_FALSE(editor.widget);
    EXPECT_EQ(held(parameter), 70.5);
}

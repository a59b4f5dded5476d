#include "QIntegerTest.hpp"
#include "support/TextDrop.hpp"

using Kolt::ParameterPtr;
using Values = Kolt::VParameter::Values;
using testing::Each;
using testing::HasSubstr;
using testing::StartsWith;

TEST_F(QIntegerTest, OnlyTheTypedNumberIsNotifiedWhereTheHandleCannotFollow) {
    for (auto const& preferences : std::vector<std::vector<std::string>>{{}, {"dial"}, {"dial", "periodic"}}) {
        auto const parameter = bounded(20, 0, 360, preferences);
        auto const editor = open(parameter);
        RecordingNotifier notifier;
        std::vector<std::string> held;
        notifier.reaction = [&] { held.push_back(parameter->ownValue()->Text()); };
        parameter->addNotifier(Tessera::WeakPtr<Kolt::ValueNotifier>(&notifier));
        type(editor, "370");
        EXPECT_THAT(notifier.values, (std::vector<std::string>{"370", "370"})) << "for the handle and for the number";
        EXPECT_THAT(held, Each("370"));
        EXPECT_EQ(editor.widget->findChild<QAbstractSlider*>()->value(), preferences.size() < 2 ? 360 : 10);
        EXPECT_EQ(text(editor), "370");
        EXPECT_EQ(undoTexts(), std::vector<std::string>{"Set int value to 20"});

        EXPECT_TRUE(Kolt::UndoHistory::theHistory().undo());
        EXPECT_EQ(parameter->ownValue()->Text(), "20");
        EXPECT_TRUE(undoTexts().empty());
    }
}

TEST_F(QIntegerTest, AMoveAfterATypedNumberIsItsOwn) {
    auto const parameter = bounded(100, 0, 100);
    auto const editor = open(parameter);
    type(editor, "500"); // the handle is at its end already
    record(parameter);
    QTest::keyClick(slider(editor), Qt::Key_Left);
    EXPECT_EQ(recorder.values, std::vector<std::string>{"99"});
    type(editor, "500");
    QTest::keyClick(slider(editor), Qt::Key_Left);
    EXPECT_EQ(recorder.values.back(), "99");
}

TEST_F(QIntegerTest, AReentryWhileATypedNumberIsRecordedIsAMoveOfItsOwn) {
    auto const parameter = bounded(20, 0, 100);
    auto const editor = open(parameter);
    record(parameter);
    moveAtNextStep(editor, 44);
    type(editor, "500");
    EXPECT_EQ(recorder.values, (std::vector<std::string>{"44", "500", "500"}));
    EXPECT_EQ(parameter->ownValue()->Text(), "500");
    EXPECT_EQ(text(editor), "500");
}

TEST_F(QIntegerTest, AReentryNamesNoNumberThatWasNeverStored) {
    auto const parameter = bounded(20, 0, 100);
    auto const editor = open(parameter);
    record(parameter);
    std::vector<int> moves{20, 55};
    historyConnection = Kolt::UndoHistory::theHistory().addListener([&] {
        if (moves.empty())
            return;
        int const next = moves.back();
        moves.pop_back();
        callSlot(editor, next);
    });
    slider(editor)->setValue(33);
    // 33 was not stored when the others were recorded.
    EXPECT_EQ(undoTexts(), (std::vector<std::string>{"Set int value to 20", "Set int value to 20"}));
    EXPECT_EQ(recorder.values, (std::vector<std::string>{"55", "33"})) << "20 was held already";
    EXPECT_TRUE(Kolt::UndoHistory::theHistory().undo());
    EXPECT_EQ(parameter->ownValue()->Text(), "20");
    EXPECT_TRUE(Kolt::UndoHistory::theHistory().undo());
    EXPECT_EQ(parameter->ownValue()->Text(), "20");
}

TEST_F(QIntegerTest, AReentryInsideAnotherOneIsNoSecondMoveOfTheOuterNumber) {
    auto const parameter = bounded(20, 0, 100);
    auto const editor = open(parameter);
    record(parameter);
    // While 33 is recorded the control goes to 55 and back.
    std::vector<int> moves{33, 55};
    historyConnection = Kolt::UndoHistory::theHistory().addListener([&] {
        auto const own = std::exchange(moves, {});
        for (auto next = own.rbegin(); next != own.rend(); ++next)
            callSlot(editor, *next);
    });
    slider(editor)->setValue(33);
    EXPECT_EQ(undoTexts(), (std::vector<std::string>{"Set int value to 20", "Set int value to 20"}));
    EXPECT_EQ(recorder.values, (std::vector<std::string>{"55", "33"}));
    EXPECT_EQ(text(editor), "33");
}

TEST_F(QIntegerTest, TheRecordOfAMoveWritesAndMarksThePreviousValue) {
    auto const parameter = bounded(20, 0, 100);
    auto const editor = open(parameter);
    slider(editor)->setValue(33);
    auto const before = Tessera::Ageable::GlobalTime.load();
    record(parameter);
    std::vector<bool> stamped;
    recorder.reaction = [&] { stamped.push_back(parameter->ownValue()->age() > before); };
    EXPECT_TRUE(Kolt::UndoHistory::theHistory().undo());
    EXPECT_EQ(recorder.values, std::vector<std::string>{"20"});
    EXPECT_EQ(stamped, std::vector<bool>{false}) << "the listeners hear of it first";
    EXPECT_EQ(parameter->ownValue()->age(), before + 1);
}

TEST_F(QIntegerTest, AMoveWhosePoolIsLostWhileItIsRecordedCanBeRepeated) {
    auto const parameter = bounded(20, 0, 100);
    auto const editor = open(parameter);
    record(parameter);
    historyConnection = Kolt::UndoHistory::theHistory().addListener([&] { pools.use(nullptr); });
    slider(editor)->setValue(33);
    EXPECT_EQ(parameter->ownValue()->Text(), "20");
    historyConnection.disconnect();
    pools.use(firstPool);
    callSlot(editor, 33);
    EXPECT_EQ(parameter->ownValue()->Text(), "33");
    EXPECT_EQ(recorder.values, std::vector<std::string>{"33"});
}

TEST_F(QIntegerTest, ANotificationThatMovesTheHandleEndsInOneNumberEverywhere) {
    auto const parameter = bounded(20, 0, 100);
    auto const editor = open(parameter);
    record(parameter);
    recorder.reaction = [&] {
        recorder.reaction = nullptr;
        slider(editor)->setValue(44);
    };
    slider(editor)->setValue(33);
    EXPECT_EQ(undoTexts(), (std::vector<std::string>{"Set int value to 20", "Set int value to 33"}));
    EXPECT_EQ(recorder.values, (std::vector<std::string>{"33", "44"}));
    EXPECT_EQ(parameter->ownValue()->Text(), "44");
    EXPECT_EQ(text(editor), "44");
}

TEST_F(QIntegerTest, ReturnInAnUntouchedFieldWritesTheNumberOnce) {
    auto const parameter = bounded(500, 0, 100);
    auto const editor = open(parameter);
    record(parameter);
    QTest::keyClick(lineEdit(editor), Qt::Key_Return);
    EXPECT_EQ(recorder.values, std::vector<std::string>{"500"});
    EXPECT_TRUE(undoTexts().empty());
}

TEST_F(QIntegerTest, APropertyDoesNotReplaceATextThatIsBeingTyped) {
    auto const parameter = bounded(50, 0, 100);
    auto const editor = open(parameter);
    lineEdit(editor)->selectAll();
    QTest::keyClicks(lineEdit(editor), "12");
    setProperty(parameter, "comment", Kolt::makeValue(1));
    EXPECT_EQ(text(editor), "12");
    changeElsewhere(parameter, 70, firstPool);
    EXPECT_EQ(text(editor), "12");
    EXPECT_EQ(lineEdit(editor)->rememberedText(), QLatin1String("70"));
    EXPECT_EQ(slider(editor)->value(), 70);
    QTest::keyClick(lineEdit(editor), Qt::Key_Return);
    EXPECT_EQ(parameter->ownValue()->Text(), "12");
    EXPECT_EQ(undoTexts(), std::vector<std::string>{"Set int value to 70"});
}

TEST_F(QIntegerTest, SeparatorsAreRefusedAndNeverReadAsAnotherNumber) {
    for (char const* const typed : {"1.5", "1,5", "1,000", "1.000"}) {
        auto const parameter = bounded(50, 0, 10000);
        auto const editor = open(parameter);
        type(editor, typed);
        EXPECT_EQ(parameter->ownValue()->Text(), "50");
        EXPECT_EQ(text(editor), typed) << "to be corrected";
        for (auto const reason : {Qt::ActiveWindowFocusReason, Qt::TabFocusReason}) {
            QFocusEvent leave(QEvent::FocusOut, reason);
            QApplication::sendEvent(lineEdit(editor), &leave);
            EXPECT_EQ(text(editor), reason == Qt::TabFocusReason ? "50" : typed);
        }
        EXPECT_EQ(parameter->ownValue()->Text(), "50");
    }
}

TEST_F(QIntegerTest, ADroppedTextIsTakenOverOrNotShown) {
    auto const parameter = bounded(42, 0, 1000);
    auto const editor = open(parameter);
    dropText(*lineEdit(editor), QStringLiteral("7"));
    EXPECT_EQ(parameter->ownValue()->Text(), "742");
    EXPECT_EQ(text(editor), "742");
    dropText(*lineEdit(editor), QStringLiteral("x"));
    dropText(*lineEdit(editor), QStringLiteral("999999999"));
    EXPECT_EQ(parameter->ownValue()->Text(), "742");
    EXPECT_EQ(text(editor), "742");
}

TEST_F(QIntegerTest, TheToolTipHasTheNumberTheRangeAndTheKeys) {
    auto const parameter = bounded(42, -5, 100);
    auto const editor = open(parameter);
    EXPECT_THAT(toolTip(lineEdit(editor)), StartsWith("42\n-5 to 100\n"));
    EXPECT_THAT(toolTip(slider(editor)), HasSubstr("Arrow keys"));
    EXPECT_FALSE(lineEdit(editor)->isMarked());
    type(editor, "500");
    EXPECT_TRUE(lineEdit(editor)->isMarked());
    EXPECT_THAT(toolTip(slider(editor)), StartsWith("500\noutside -5 to 100\n"));
    setProperty(parameter, "max", Kolt::makeValue(1000));
    EXPECT_FALSE(lineEdit(editor)->isMarked());
    EXPECT_THAT(toolTip(editor.widget), StartsWith("500\n-5 to 1000\n"));
}

#include "QIntegerTest.hpp"
#include "support/PluginFile.hpp"
#include "support/WheelTurn.hpp"

#include <QLayout>

using Kolt::ParameterPtr;
using Values = Kolt::VParameter::Values;

TEST_F(QIntegerTest, OneMoveIsOneStepAndOneNotification) {
    for (auto const& preferences : std::vector<std::vector<std::string>>{{}, {"dial"}, {"dial", "periodic"}}) {
        auto const parameter = bounded(20, 0, 100, preferences);
        auto const editor = open(parameter);
        RecordingNotifier notifier;
        parameter->addNotifier(Tessera::WeakPtr<Kolt::ValueNotifier>(&notifier));
        auto const before = Tessera::Ageable::GlobalTime.load();
        editor.widget->findChild<QAbstractSlider*>()->setValue(33);
        EXPECT_EQ(parameter->ownValue()->Text(), "33");
        EXPECT_EQ(text(editor), "33");
        EXPECT_EQ(notifier.values, std::vector<std::string>{"33"});
        EXPECT_EQ(undoTexts(), std::vector<std::string>{"Set int value to 20"});
        EXPECT_TRUE(isStampedAfter(before, *parameter->ownValue()));
        Kolt::UndoHistory::theHistory().forget([](auto const&) { return true; });
    }
}

TEST_F(QIntegerTest, MouseAndWheelMoveTheControls) {
    auto const parameter = bounded(20, 0, 100, {"dial"});
    auto const editor = open(parameter);
    turnWheel(*dial(editor), 1);
    EXPECT_EQ(parameter->ownValue()->Text(), "35");
    QTest::mouseClick(dial(editor), Qt::LeftButton, {}, QPoint(32, 5));
    EXPECT_EQ(parameter->ownValue()->Text(), std::to_string(dial(editor)->value()));
    EXPECT_NE(parameter->ownValue()->Text(), "35");
}

TEST_F(QIntegerTest, TheStepIsHandedOverWhileTheParameterHoldsThePreviousValue) {
    auto const parameter = bounded(20, 0, 100);
    auto const editor = open(parameter);
    std::vector<std::string> held;
    historyConnection =
        Kolt::UndoHistory::theHistory().addListener([&] { held.push_back(parameter->ownValue()->Text()); });
    slider(editor)->setValue(33);
    EXPECT_EQ(held, std::vector<std::string>{"20"});
}

TEST_F(QIntegerTest, AReentryWithTheSameNumberIsNoSecondMove) {
    auto const parameter = bounded(20, 0, 100);
    auto const editor = open(parameter);
    record(parameter);
    historyConnection = Kolt::UndoHistory::theHistory().addListener([&] { callSlot(editor, 33); });
    recorder.reaction = [&] { callSlot(editor, 33); };
    slider(editor)->setValue(33);
    EXPECT_EQ(recorder.values, std::vector<std::string>{"33"});
    EXPECT_EQ(undoTexts(), std::vector<std::string>{"Set int value to 20"});
}

TEST_F(QIntegerTest, AReentryWithAnotherNumberEndsInOneNumberEverywhere) {
    auto const parameter = bounded(20, 0, 100);
    auto const editor = open(parameter);
    record(parameter);
    moveAtNextStep(editor, 44);
    slider(editor)->setValue(33);
    EXPECT_EQ(recorder.values, (std::vector<std::string>{"44", "33"}));
    EXPECT_EQ(undoTexts().size(), 2U);
    EXPECT_EQ(parameter->ownValue()->Text(), "33");
    EXPECT_EQ(text(editor), "33");
    EXPECT_EQ(slider(editor)->value(), 33);
}

TEST_F(QIntegerTest, AListenerThatCorrectsTheNumberHasTheLastWord) {
    auto const parameter = bounded(20, 0, 100);
    auto const editor = open(parameter);
    record(parameter);
    recorder.reaction = [&] {
        recorder.reaction = nullptr;
        EXPECT_TRUE(Kolt::setParameterValue(*parameter, 30, firstPool, std::string(), false,
                                            Tessera::WeakPtr<Kolt::ValueNotifier>(&recorder), nullptr));
    };
    type(editor, "33");
    EXPECT_EQ(parameter->ownValue()->Text(), text(editor));
    EXPECT_EQ(std::to_string(slider(editor)->value()), text(editor));
}

TEST_F(QIntegerTest, WithoutAPoolTheDisplayStaysAndNoStepIsRecorded) {
    auto const parameter = bounded(20, 0, 100);
    auto const editor = open(parameter);
    record(parameter);
    pools.use(nullptr);
    slider(editor)->setValue(33);
    EXPECT_EQ(text(editor), "33");
    EXPECT_EQ(slider(editor)->value(), 33);
    type(editor, "77");
    EXPECT_EQ(text(editor), "77");
    EXPECT_EQ(slider(editor)->value(), 77);
    EXPECT_EQ(parameter->ownValue()->Text(), "20");
    EXPECT_TRUE(recorder.values.empty());
    EXPECT_TRUE(undoTexts().empty());
}

TEST_F(QIntegerTest, AMoveForAParameterThatIsGonePrintsOneLineAndRecordsNothing) {
    auto parameter = bounded(20, 0, 100);
    auto const editor = open(parameter);
    parameter.reset();
    slider(editor)->setValue(33);
    EXPECT_EQ(takeOutput(), std::vector<std::string>{missingOwnerLine});
    EXPECT_EQ(text(editor), "20");
    EXPECT_TRUE(undoTexts().empty());
}

TEST_F(QIntegerTest, ATypedNumberForAParameterThatIsGonePrintsOneLine) {
    auto parameter = bounded(20, 0, 100);
    auto const editor = open(parameter);
    parameter.reset();
    type(editor, "33");
    EXPECT_EQ(takeOutput(), std::vector<std::string>{missingOwnerLine});
    EXPECT_EQ(slider(editor)->value(), 33);
    EXPECT_TRUE(undoTexts().empty());
}

TEST_F(QIntegerTest, AParameterThatDiesWhileATypedNumberIsNotifiedPrintsOneLine) {
    for (char const* const typed : {"33", "500"}) {
        auto parameter = bounded(20, 0, 100);
        auto const editor = open(parameter);
        RecordingNotifier killer;
        killer.reaction = [&] { parameter.reset(); };
        parameter->addNotifier(Tessera::WeakPtr<Kolt::ValueNotifier>(&killer));
        type(editor, typed);
        EXPECT_EQ(takeOutput(), std::vector<std::string>{missingOwnerLine});
    }
}

TEST_F(QIntegerTest, ATypedNumberMovesTheHandleAndIsOneStep) {
    auto const parameter = bounded(20, 0, 100);
    auto const editor = open(parameter);
    auto const before = Tessera::Ageable::GlobalTime.load();
    type(editor, "33");
    EXPECT_EQ(parameter->ownValue()->Text(), "33");
    EXPECT_EQ(slider(editor)->value(), 33);
    EXPECT_EQ(text(editor), "33");
    EXPECT_EQ(lineEdit(editor)->rememberedText(), QLatin1String("33"));
    EXPECT_EQ(undoTexts(), std::vector<std::string>{"Set int value to 20"});
    EXPECT_TRUE(isStampedAfter(before, *parameter->ownValue()));
}

TEST_F(QIntegerTest, ATypedNumberOutsideTheRangeIsWrittenAsItIs) {
    for (auto const& preferences : std::vector<std::vector<std::string>>{{}, {"dial"}, {"dial", "periodic"}}) {
        auto const parameter = bounded(20, 0, 100, preferences);
        auto const editor = open(parameter);
        auto* const control = editor.widget->findChild<QAbstractSlider*>();
        type(editor, "550");
        EXPECT_EQ(parameter->ownValue()->Text(), "550");
        EXPECT_EQ(text(editor), "550");
        EXPECT_EQ(undoTexts(), std::vector<std::string>{"Set int value to 20"});
        if (preferences.size() < 2) {
            EXPECT_EQ(control->value(), 100);
        }

        // The handle does not move, so there is no undo step, but the number is written.
        auto const age = parameter->ownValue()->age();
        type(editor, preferences.size() < 2 ? "600" : "650");
        EXPECT_EQ(undoTexts().size(), 1U);
        EXPECT_EQ(parameter->ownValue()->Text(), preferences.size() < 2 ? "600" : "650");
        EXPECT_GT(parameter->ownValue()->age(), age);

        EXPECT_TRUE(Kolt::UndoHistory::theHistory().undo());
        EXPECT_EQ(parameter->ownValue()->Text(), "20");
        EXPECT_EQ(text(editor), "20");
    }
}

TEST_F(QIntegerTest, TheNumberThatIsHeldIsWrittenAgainWhenItIsTyped) {
    auto const parameter = bounded(20, 0, 100);
    auto const editor = open(parameter);
    record(parameter);
    type(editor, "20");
    EXPECT_EQ(recorder.values, std::vector<std::string>{"20"});
    EXPECT_TRUE(undoTexts().empty());
}

TEST_F(QIntegerTest, ATypedNumberIsShownInItsPlainForm) {
    auto const parameter = bounded(20, 0, 100);
    auto const editor = open(parameter);
    type(editor, "0042");
    EXPECT_EQ(text(editor), "42");
    EXPECT_EQ(lineEdit(editor)->cursorPosition(), 0);
}

TEST_F(QIntegerTest, ATextThatIsNoNumberDoesNothing) {
    auto const parameter = bounded(20, 0, 100);
    auto const editor = open(parameter);
    record(parameter);
    for (char const* const typed : {"", "abc", "1.5", "2147483648", "0x10"}) {
        lineEdit(editor)->setText(QLatin1String(typed));
        ASSERT_TRUE(QMetaObject::invokeMethod(editor.widget, "textEnter"));
        EXPECT_EQ(text(editor), typed);
    }
    EXPECT_TRUE(recorder.values.empty());
    EXPECT_EQ(slider(editor)->value(), 20);
}

TEST_F(QIntegerTest, TheExtremeNumbersCanBeTyped) {
    auto const parameter = bounded(0, SmallestInt, LargestInt);
    auto const editor = open(parameter);
    for (char const* const typed : {"2147483647", "-2147483648", "0"}) {
        type(editor, typed);
        EXPECT_EQ(parameter->ownValue()->Text(), typed);
        EXPECT_EQ(std::to_string(slider(editor)->value()), typed);
    }
}

TEST_F(QIntegerTest, ARangeWithoutWidthHarmsNoControl) {
    for (auto const& preferences : std::vector<std::vector<std::string>>{{}, {"dial"}, {"dial", "periodic"}}) {
        for (auto const& [minimum, maximum] :
             std::vector<std::pair<int, int>>{{5, 5}, {9, 3}, {SmallestInt, LargestInt}}) {
            auto const parameter = bounded(20, minimum, maximum, preferences);
            auto const editor = open(parameter);
            auto* const control = editor.widget->findChild<QAbstractSlider*>();
            turnWheel(*control, 1);
            QTest::mouseClick(control, Qt::LeftButton);
            editor.widget->grab();
            EXPECT_EQ(text(editor), parameter->ownValue()->Text());
            type(editor, "77");
            EXPECT_EQ(parameter->ownValue()->Text(), "77");
            EXPECT_EQ(text(editor), "77");
        }
    }
}

TEST_F(QIntegerTest, APeriodicDialWrapsAgainOnceItsRangeHasAWidth) {
    auto const parameter = bounded(5, 5, 5, {"dial", "periodic"});
    auto const editor = open(parameter);
    setProperty(parameter, "max", Kolt::makeValue(15));
    EXPECT_TRUE(dial(editor)->wrapping());
    setProperty(parameter, "max", Kolt::makeValue(5));
    changeElsewhere(parameter, 7, firstPool);
    EXPECT_EQ(dial(editor)->value(), 5);
    EXPECT_EQ(text(editor), "7");
}

TEST_F(QIntegerTest, AValueThatThePoolDoesNotHoldIsTakenAsAMoveOnce) {
    auto const parameter = bounded(20, 0, 100);
    auto const editor = open(parameter);
    record(parameter);
    editor.input.strong()->onValueChange(Kolt::makeValue(33), Kolt::VContext(firstPool, nullptr), nullptr);
    EXPECT_EQ(parameter->ownValue()->Text(), "33");
    EXPECT_EQ(slider(editor)->value(), 33);
    EXPECT_EQ(recorder.values, std::vector<std::string>{"33"});
    EXPECT_EQ(undoTexts(), std::vector<std::string>{"Set int value to 20"});
}

TEST_F(QIntegerTest, UndoWritesThePreviousValueAndShowsItWithoutANewStep) {
    auto const parameter = bounded(20, 0, 100);
    auto const editor = open(parameter);
    auto const second = open(parameter);
    slider(editor)->setValue(33);
    slider(editor)->setValue(44);
    record(parameter);
    auto& history = Kolt::UndoHistory::theHistory();
    auto const before = Tessera::Ageable::GlobalTime.load();
    EXPECT_TRUE(history.undo());
    EXPECT_EQ(parameter->ownValue()->Text(), "33");
    EXPECT_EQ(text(editor), "33");
    EXPECT_EQ(text(second), "33");
    EXPECT_EQ(slider(editor)->value(), 33);
    EXPECT_TRUE(isStampedAfter(before, *parameter->ownValue()));
    EXPECT_TRUE(history.undo());
    EXPECT_EQ(text(editor), "20");
    EXPECT_EQ(recorder.values, (std::vector<std::string>{"33", "20"}));
    EXPECT_TRUE(history.steps().empty());
    EXPECT_FALSE(history.undo());
}

TEST_F(QIntegerTest, UndoFailsWhenTheInputIsGone) {
    auto const parameter = bounded(20, 0, 100);
    auto const editor = open(parameter);
    slider(editor)->setValue(33);
    delete editor.widget;
    EXPECT_FALSE(Kolt::UndoHistory::theHistory().undo());
    EXPECT_EQ(parameter->ownValue()->Text(), "33");
}

TEST_F(QIntegerTest, UndoFailsWhenTheParameterIsGone) {
    auto parameter = bounded(20, 0, 100);
    auto const editor = open(parameter);
    slider(editor)->setValue(33);
    parameter.reset();
    EXPECT_FALSE(Kolt::UndoHistory::theHistory().undo());
    EXPECT_EQ(text(editor), "33");
}

TEST_F(QIntegerTest, AListenerMayDeleteTheInputDuringUndo) {
    auto const parameter = bounded(20, 0, 100);
    auto const editor = open(parameter);
    slider(editor)->setValue(33);
    record(parameter);
    recorder.reaction = [&] { delete editor.widget; };
    EXPECT_TRUE(Kolt::UndoHistory::theHistory().undo());
    EXPECT_FALSE(editor.widget);
    EXPECT_EQ(parameter->ownValue()->Text(), "20");
}

TEST_F(QIntegerTest, UndoReachesThePoolOfTheMove) {
    auto const parameter = integer(0, {}, Values::PerPool);
    changeElsewhere(parameter, 20, firstPool);
    changeElsewhere(parameter, 50, secondPool);
    auto const editor = open(parameter);
    slider(editor)->setValue(33);
    pools.use(secondPool);
    Kolt::showPoolValue(editor, parameter, &pools);
    EXPECT_EQ(text(editor), "50");

    EXPECT_TRUE(Kolt::UndoHistory::theHistory().undo());
    EXPECT_EQ(parameter->getLocalValue(firstPool, std::string(), false)->Text(), "20");
    EXPECT_EQ(parameter->getLocalValue(secondPool, std::string(), false)->Text(), "50");
    EXPECT_EQ(text(editor), "50");

    // Undo restored 20 in the other pool; in this pool 20 is still a new number.
    slider(editor)->setValue(20);
    EXPECT_EQ(parameter->getLocalValue(secondPool, std::string(), false)->Text(), "20");
    EXPECT_EQ(undoTexts(), std::vector<std::string>{"Set int value to 50"});
}

TEST_F(QIntegerTest, AListenerMayDeleteTheInputWhenTheStepIsRecorded) {
    auto const parameter = bounded(20, 0, 100);
    auto const editor = open(parameter);
    historyConnection = Kolt::UndoHistory::theHistory().addListener([&] { delete editor.widget; });
    callSlot(editor, 33);
    EXPECT_FALSE(editor.widget);
    EXPECT_EQ(parameter->ownValue()->Text(), "20");
}

TEST_F(QIntegerTest, AListenerMayDeleteTheParameterWhenTheStepIsRecorded) {
    auto parameter = bounded(20, 0, 100);
    auto const editor = open(parameter);
    historyConnection = Kolt::UndoHistory::theHistory().addListener([&] { parameter.reset(); });
    slider(editor)->setValue(33);
    EXPECT_EQ(takeOutput(), std::vector<std::string>{missingOwnerLine});
}

TEST_F(QIntegerTest, SurvivesTheLossOfItsControls) {
    auto const parameter = bounded(20, 0, 100);
    auto const editor = open(parameter);
    delete slider(editor);
    changeElsewhere(parameter, 30, firstPool);
    EXPECT_EQ(text(editor), "30");
    type(editor, "40");
    EXPECT_EQ(parameter->ownValue()->Text(), "40");
    setProperty(parameter, "max", Kolt::makeValue(10));
    delete lineEdit(editor);
    delete editor.widget->layout();
    changeElsewhere(parameter, 50, firstPool);
    callSlot(editor, 60);
    ASSERT_TRUE(QMetaObject::invokeMethod(editor.widget, "textEnter"));
    EXPECT_EQ(parameter->ownValue()->Text(), "60");
}

TEST_F(QIntegerTest, StepsOfAnUnloadedPluginAreForgotten) {
    auto const parameter = bounded(20, 0, 100);
    auto const editor = open(parameter);
    slider(editor)->setValue(33);
    EXPECT_EQ(undoTexts().size(), 1U);
    delete editor.widget;
    EXPECT_TRUE(loader.unload(pluginFile).ok);
    EXPECT_TRUE(undoTexts().empty());
    ASSERT_TRUE(loader.load(pluginFile).ok);
}

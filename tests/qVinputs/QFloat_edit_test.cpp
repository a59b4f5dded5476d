#include "QFloatTest.hpp"
#include "support/WheelTurn.hpp"

using Kolt::ParameterPtr;
using Values = Kolt::VParameter::Values;

TEST_F(QFloatTest, AMoveWritesTheValueOfThePositionOnce) {
    for (auto const& preferences : std::vector<std::vector<std::string>>{{}, {"dial"}, {"dial", "periodic"}}) {
        auto const parameter = bounded(0.0, -1.0, 1.0, 200, preferences);
        RecordingNotifier notifier;
        parameter->addNotifier(Tessera::WeakPtr<Kolt::ValueNotifier>(&notifier));
        auto const editor = open(parameter);
        auto const before = Tessera::Ageable::GlobalTime.load();
        editor.widget->findChild<QAbstractSlider*>()->setValue(150);
        EXPECT_EQ(held(parameter), 0.5);
        EXPECT_EQ(text(editor), "0.500000");
        EXPECT_EQ(notifier.values, std::vector<std::string>{"0.5"});
        EXPECT_TRUE(isStampedAfter(before, *parameter->ownValue()));
        EXPECT_TRUE(Kolt::UndoHistory::theHistory().steps().empty());
    }
}

TEST_F(QFloatTest, TheDialIsTurnedByWheelDragAndRelease) {
    auto const parameter = bounded(0.0, 0.0, 1.0, 200, {"dial"});
    auto const editor = open(parameter);
    turnWheel(*dial(editor), 1);
    EXPECT_EQ(held(parameter), 0.075);
    QTest::mousePress(dial(editor), Qt::LeftButton, {}, QPoint(32, 4));
    EXPECT_EQ(held(parameter), 0.075) << "the press does nothing";
    QTest::mouseRelease(dial(editor), Qt::LeftButton, {}, QPoint(32, 4));
    EXPECT_NEAR(held(parameter), 0.5, 0.05);
    for (auto const key : {Qt::Key_Right, Qt::Key_Up, Qt::Key_Home, Qt::Key_Plus, Qt::Key_1}) {
        auto const before = held(parameter);
        QTest::keyClick(dial(editor), key);
        EXPECT_EQ(held(parameter), before);
    }
}

TEST_F(QFloatTest, AChangeFromElsewhereIsShownAndNotWritten) {
    auto const parameter = bounded(0.0, 0.0, 1.0, 200);
    auto const editor = open(parameter);
    record(parameter);
    lineEdit(editor)->setText(QLatin1String("12"));
    changeElsewhere(parameter, 0.754, firstPool);
    EXPECT_EQ(text(editor), "0.754000");
    EXPECT_EQ(lineEdit(editor)->rememberedText(), QLatin1String("0.754000"));
    EXPECT_EQ(lineEdit(editor)->cursorPosition(), 0);
    EXPECT_EQ(slider(editor)->value(), 151);
    EXPECT_EQ(held(parameter), 0.754);
    EXPECT_EQ(recorder.values.size(), 1U);
    EXPECT_EQ(parameter->ownValue()->age(), 0U);
}

TEST_F(QFloatTest, AValueThatThePoolDoesNotHoldIsWrittenOnce) {
    auto const parameter = bounded(0.0, 0.0, 1.0, 200);
    auto const editor = open(parameter);
    record(parameter);
    editor.input.strong()->onValueChange(Kolt::makeValue(0.754), Kolt::VContext(firstPool, nullptr), nullptr);
    EXPECT_EQ(held(parameter), 0.754);
    EXPECT_EQ(recorder.values, std::vector<std::string>{"0.754"});
    EXPECT_EQ(slider(editor)->value(), 151);
    EXPECT_EQ(text(editor), "0.754000");
    editor.input.strong()->onValueChange(Kolt::makeValue(0.754), Kolt::VContext(firstPool, nullptr), nullptr);
    EXPECT_EQ(recorder.values.size(), 1U) << "the pool holds it already";
    editor.input.strong()->onValueChange(Kolt::makeValue(NotANumber), Kolt::VContext(firstPool, nullptr), nullptr);
    editor.input.strong()->onValueChange(Kolt::makeValue(NotANumber), Kolt::VContext(firstPool, nullptr), nullptr);
    EXPECT_EQ(recorder.values.size(), 2U);
}

TEST_F(QFloatTest, ATypedNumberHasSinglePrecision) {
    auto const parameter = bounded(0.0, 0.0, 1.0, 200);
    auto const editor = open(parameter);
    record(parameter);
    auto const before = Tessera::Ageable::GlobalTime.load();
    type(editor, "0.1234567891");
    EXPECT_EQ(held(parameter), static_cast<double>(0.1234567891F));
    EXPECT_NE(held(parameter), 0.1234567891);
    EXPECT_EQ(text(editor), "0.123457");
    EXPECT_EQ(lineEdit(editor)->rememberedText(), QLatin1String("0.123457"));
    EXPECT_EQ(slider(editor)->value(), 25);
    EXPECT_EQ(recorder.values.size(), 1U);
    EXPECT_TRUE(isStampedAfter(before, *parameter->ownValue()));
}

TEST_F(QFloatTest, ATypedNumberOutsideTheIntervalIsWrittenAsItIs) {
    for (auto const& preferences : std::vector<std::vector<std::string>>{{}, {"dial"}, {"dial", "periodic"}}) {
        auto const parameter = bounded(0.0, 0.0, 1.0, 200, preferences);
        RecordingNotifier notifier;
        parameter->addNotifier(Tessera::WeakPtr<Kolt::ValueNotifier>(&notifier));
        auto const editor = open(parameter);
        type(editor, "-1.5e3");
        EXPECT_EQ(held(parameter), -1500.0);
        EXPECT_EQ(text(editor), "-1500.000000");
        EXPECT_EQ(notifier.values.size(), 1U);
    }
}

TEST_F(QFloatTest, ATextThatIsNoNumberDoesNothing) {
    auto const parameter = bounded(0.5, 0.0, 1.0, 200);
    auto const editor = open(parameter);
    record(parameter);
    for (char const* const typed : {"", "abc", "1,5", "1e99", "1.2.3"}) {
        lineEdit(editor)->setText(QLatin1String(typed));
        ASSERT_TRUE(QMetaObject::invokeMethod(editor.widget, "textEnter"));
        EXPECT_EQ(text(editor), typed);
    }
    EXPECT_TRUE(recorder.values.empty());
    EXPECT_EQ(slider(editor)->value(), 100);
}

TEST_F(QFloatTest, ThePointIsTheDecimalSeparatorInEveryLocale) {
    QLocale const before;
    QLocale::setDefault(QLocale(QLocale::German, QLocale::Germany));
    auto const parameter = bounded(0.5, 0.0, 1.0, 200);
    auto const editor = open(parameter);
    EXPECT_EQ(text(editor), "0.500000");
    type(editor, "0.25");
    QLocale::setDefault(before);
    EXPECT_EQ(held(parameter), 0.25);
    EXPECT_EQ(text(editor), "0.250000");
}

TEST_F(QFloatTest, WithoutAPoolTheDisplayStays) {
    auto const parameter = bounded(0.5, 0.0, 1.0, 200);
    auto const editor = open(parameter);
    record(parameter);
    pools.use(nullptr);
    slider(editor)->setValue(150);
    EXPECT_EQ(text(editor), "0.750000");
    type(editor, "0.25");
    EXPECT_EQ(text(editor), "0.250000");
    EXPECT_EQ(slider(editor)->value(), 50);
    setProperty(parameter, "increment", Kolt::makeValue(1000.0));
    recorder.values.clear();
    EXPECT_EQ(held(parameter), 0.5);
    EXPECT_EQ(parameter->ownValue()->age(), 0U);
}

TEST_F(QFloatTest, AnEditForAParameterThatIsGonePrintsOneLine) {
    auto parameter = bounded(0.5, 0.0, 1.0, 200);
    auto const editor = open(parameter);
    parameter.reset();
    slider(editor)->setValue(150);
    EXPECT_EQ(takeOutput(), std::vector<std::string>{missingOwnerLine});
    EXPECT_EQ(text(editor), "0.750000");
    type(editor, "0.25");
    EXPECT_EQ(takeOutput(), std::vector<std::string>{missingOwnerLine});
    EXPECT_EQ(slider(editor)->value(), 50);
}

TEST_F(QFloatTest, AListenerThatCorrectsTheNumberHasTheLastWord) {
    auto const parameter = bounded(0.0, 0.0, 1.0, 200);
    auto const editor = open(parameter);
    record(parameter);
    for (bool const isTyped : {false, true}) {
        recorder.reaction = [&] {
            recorder.reaction = nullptr;
            EXPECT_TRUE(Kolt::setParameterValue(*parameter, 0.3, firstPool, std::string(), false,
                                                Tessera::WeakPtr<Kolt::ValueNotifier>(&recorder), nullptr));
        };
        if (isTyped)
            type(editor, "0.75");
        else
            slider(editor)->setValue(120);
        EXPECT_EQ(held(parameter), 0.3);
        EXPECT_EQ(text(editor), "0.300000");
        EXPECT_EQ(slider(editor)->value(), 60);
    }
}

TEST_F(QFloatTest, AListenerMayDeleteTheEditor) {
    for (bool const isTyped : {false, true}) {
        auto const parameter = bounded(0.0, 0.0, 1.0, 200);
        auto const editor = open(parameter);
        RecordingNotifier killer;
        killer.reaction = [&] { delete editor.widget; };
        parameter->addNotifier(Tessera::WeakPtr<Kolt::ValueNotifier>(&killer));
        if (isTyped)
            lineEdit(editor)->setText(QLatin1String("0.5"));
        ASSERT_TRUE(isTyped ? QMetaObject::invokeMethod(editor.widget, "textEnter")
                            : QMetaObject::invokeMethod(editor.widget, "sliderValueChanged", Q_ARG(int, 100)));
        EXPECT_FALSE(editor.widget);
        EXPECT_EQ(held(parameter), 0.5);
    }
}

TEST_F(QFloatTest, PropertiesWithoutSenseHarmNothingAndWriteNothing) {
    std::array const numbers{0.0, 1.0, -1.0, 0.5, NotANumber, Infinity, -Infinity, 1e308, -1e308};
    for (auto const& preferences : std::vector<std::vector<std::string>>{{}, {"dial", "periodic"}}) {
        for (double const minimum : numbers) {
            for (double const maximum : numbers) {
                for (double const increment : {1.0, 0.0, -5.0, NotANumber, Infinity, 1e9}) {
                    auto const parameter = bounded(0.25, minimum, maximum, increment, preferences);
                    auto const editor = open(parameter);
                    auto* const control = editor.widget->findChild<QAbstractSlider*>();
                    EXPECT_EQ(held(parameter), 0.25);
                    EXPECT_EQ(text(editor), "0.250000");
                    EXPECT_EQ(parameter->ownValue()->age(), 0U);
                    EXPECT_EQ(control->minimum(), 0);
                    EXPECT_GE(control->maximum(), 1);
                    for (auto const key : {Qt::Key_Up, Qt::Key_Down, Qt::Key_1, Qt::Key_Right, Qt::Key_Left,
                                           Qt::Key_Plus, Qt::Key_Minus})
                        QTest::keyClick(control, key);
                    turnWheel(*control, 1);
                    changeElsewhere(parameter, 0.75, firstPool);
                    EXPECT_EQ(text(editor), "0.750000");
                    delete editor.widget;
                }
            }
        }
    }
}

TEST_F(QFloatTest, SurvivesTheLossOfItsControls) {
    auto const parameter = bounded(0.0, 0.0, 1.0, 200);
    auto const editor = open(parameter);
    delete slider(editor);
    changeElsewhere(parameter, 0.5, firstPool);
    EXPECT_EQ(text(editor), "0.500000");
    setProperty(parameter, "precision", Kolt::makeValue(1));
    EXPECT_EQ(text(editor), "0.5");
    type(editor, "0.25");
    EXPECT_EQ(held(parameter), 0.25);
    delete lineEdit(editor);
    changeElsewhere(parameter, 0.75, firstPool);
    ASSERT_TRUE(QMetaObject::invokeMethod(editor.widget, "sliderValueChanged", Q_ARG(int, 1)));
    ASSERT_TRUE(QMetaObject::invokeMethod(editor.widget, "textEnter"));
    EXPECT_EQ(held(parameter), 0.75);
}

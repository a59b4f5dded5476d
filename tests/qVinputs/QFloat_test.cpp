#include "NumberEditorTest.hpp"
#include "support/WheelTurn.hpp"

#include <cmath>
#include <limits>
#include <QDoubleValidator>
#include <QLayout>
#include <QMetaMethod>

using Kolt::ParameterPtr;
using Values = Kolt::VParameter::Values;

namespace {

constexpr double Infinity = std::numeric_limits<double>::infinity();
constexpr double NotANumber = std::numeric_limits<double>::quiet_NaN();

class QFloatTest : public NumberEditorTest<double> {
protected:
    static void press(QSlider* control, Qt::MouseButton button, QPointF const& place) {
        QMouseEvent event(QEvent::MouseButtonPress, place, button, button, Qt::NoModifier);
        QApplication::sendEvent(control, &event);
        QMouseEvent release(QEvent::MouseButtonRelease, place, button, Qt::NoButton, Qt::NoModifier);
        QApplication::sendEvent(control, &release);
    }

    static ParameterPtr real(double value, std::vector<std::string> const& preferences = {},
                             Values values = Values::Shared) {
        return makeParameter("scale", Kolt::makeValue(value), preferences, values);
    }
    /// A parameter whose control has the positions 0 to `increment`, which holds for the numbers used here.
    static ParameterPtr bounded(double value, double minimum, double maximum, double increment,
                                std::vector<std::string> const& preferences = {}) {
        auto const parameter = real(value, preferences);
        setBounds(parameter, minimum, maximum);
        setProperty(parameter, "increment", Kolt::makeValue(increment));
        return parameter;
    }
    static double held(ParameterPtr const& parameter) { return Kolt::valueOr(parameter->ownValue(), NotANumber); }
};

/// A parameter of 0.25 on 0 to 1 with the positions 0 to 200, and its editor with a slider.
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

TEST_F(QFloatTest, IsAFrameWithALineEditAndASlider) {
    auto const editor = open(real(0.5));
    auto const* const meta = editor.widget->metaObject();
    EXPECT_STREQ(meta->className(), "Kolt::QFloat");
    EXPECT_STREQ(meta->superClass()->className(), "QFrame");
    ASSERT_EQ(meta->methodCount() - meta->methodOffset(), 2);
    EXPECT_EQ(meta->method(meta->methodOffset()).methodSignature(), QByteArray("sliderValueChanged(int)"));
    EXPECT_EQ(meta->method(meta->methodOffset() + 1).methodSignature(), QByteArray("textEnter()"));
    EXPECT_NE(editor.widget->qt_metacast("VInputValue<double>"), nullptr);
    EXPECT_EQ(editor.widget->contextMenuPolicy(), Qt::ActionsContextMenu);

    auto* const layout = qobject_cast<QHBoxLayout*>(editor.widget->layout());
    ASSERT_NE(layout, nullptr);
    ASSERT_EQ(layout->count(), 2);
    EXPECT_EQ(layout->itemAt(0)->widget(), lineEdit(editor));
    EXPECT_EQ(layout->itemAt(0)->alignment(), Qt::AlignLeft | Qt::AlignVCenter);
    EXPECT_EQ(layout->itemAt(1)->widget(), slider(editor));
    EXPECT_EQ(slider(editor)->orientation(), Qt::Horizontal);
    EXPECT_EQ(slider(editor)->focusPolicy(), Qt::WheelFocus);
    EXPECT_EQ(dial(editor), nullptr);

    EXPECT_EQ(lineEdit(editor)->alignment(), Qt::AlignRight | Qt::AlignVCenter);
    auto const* const validator = qobject_cast<QDoubleValidator const*>(lineEdit(editor)->validator());
    ASSERT_NE(validator, nullptr);
    EXPECT_EQ(validator->parent(), lineEdit(editor));
    EXPECT_EQ(validator->locale().language(), QLocale::C);
}

TEST_F(QFloatTest, UnderTheDialPreferenceItHasADial) {
    for (auto const& preferences : std::vector<std::vector<std::string>>{{"dial"}, {"dial", "periodic"}}) {
        auto const editor = open(real(0.5, preferences));
        EXPECT_EQ(slider(editor), nullptr);
        ASSERT_NE(dial(editor), nullptr);
        EXPECT_EQ(dial(editor)->wrapping(), preferences.size() == 2);
        EXPECT_TRUE(dial(editor)->hasTracking());
        EXPECT_TRUE(dial(editor)->notchesVisible());
        EXPECT_EQ(dial(editor)->minimumSize(), QSize(64, 64));
        EXPECT_EQ(dial(editor)->maximumSize(), QSize(64, 64));
        EXPECT_EQ(dial(editor)->pageStep(), 15);
        EXPECT_EQ(dial(editor)->singleStep(), 5);
        EXPECT_EQ(dial(editor)->focusPolicy(), Qt::WheelFocus);
        EXPECT_EQ(dial(editor)->value(), 50000000);
        EXPECT_EQ(editor.widget->layout()->itemAt(1)->widget(), dial(editor));
    }
}

TEST_F(QFloatTest, PeriodicAloneMakesADial) {
    for (auto const& entry : Kolt::InputRegistry::theRegistry().entries()) {
        auto const creator = entry.creator.strong();
        if (creator->Name() == "double")
            *creator->preferences() += "periodic";
    }
    auto const parameter = real(0.5);
    auto const made = qtCreator("double", "double")->create(parameter, parent, &pools);
    ASSERT_NE(made.first->findChild<QDial*>(), nullptr);
    EXPECT_TRUE(made.first->findChild<QDial*>()->wrapping());
    EXPECT_EQ(made.first->findChild<QSlider*>(), nullptr);
}

TEST_F(QFloatTest, WithoutPropertiesTheIntervalIs0To1WithAHundredMillionPositions) {
    auto const parameter = real(0.5);
    auto const editor = open(parameter);
    EXPECT_EQ(slider(editor)->minimum(), 0);
    EXPECT_EQ(slider(editor)->maximum(), 100000000);
    EXPECT_EQ(slider(editor)->value(), 50000000);
    EXPECT_EQ(parameter->properties()->getValue("min")->Text(), "0");
    EXPECT_EQ(parameter->properties()->getValue("max")->Text(), "1");
    EXPECT_EQ(parameter->properties()->getValue("min")->valueType(), typeid(double));
    EXPECT_FALSE(parameter->properties()->getValue("increment"));
    EXPECT_FALSE(parameter->properties()->getValue("precision"));
    EXPECT_EQ(text(editor), "0.500000");
    EXPECT_EQ(lineEdit(editor)->rememberedText(), QLatin1String("0.500000"));
    EXPECT_EQ(lineEdit(editor)->cursorPosition(), 0);
    EXPECT_EQ(held(parameter), 0.5);
    EXPECT_EQ(parameter->ownValue()->age(), 0U);
}

TEST_F(QFloatTest, BoundsThatStandAreKeptAndThoseOfAnotherTypeAreNotUsed) {
    auto const parameter = real(0.5);
    setProperty(parameter, "min", Kolt::makeValue(std::string("low")));
    setProperty(parameter, "max", Kolt::makeValue(5.0));
    setProperty(parameter, "increment", Kolt::makeValue(10.0));
    record(parameter);
    auto const editor = open(parameter);
    EXPECT_EQ(recorder.propertyChanges, 0);
    EXPECT_EQ(parameter->properties()->getValue("min")->Text(), "low");
    EXPECT_EQ(slider(editor)->maximum(), 10);
    EXPECT_EQ(slider(editor)->value(), 1);
}

TEST_F(QFloatTest, TheLowerBoundIsSetBeforeTheUpperOne) {
    auto const parameter = real(0.5);
    std::vector<bool> hasMaximum;
    recorder.reaction = [&] { hasMaximum.push_back(bool(parameter->properties()->getValue("max"))); };
    record(parameter);
    open(parameter);
    EXPECT_EQ(hasMaximum, (std::vector<bool>{false, true}));
}

TEST_F(QFloatTest, AnUnreadableValueIsReportedWithThePathOfTheSource) {
    auto const parameter = real(0.5, {}, Values::PerPool);
    auto const made = qtCreator("double", "double")->create(parameter, parent, &pools);
    EXPECT_EQ(warnings.texts,
              std::vector<std::string>{"qVinputs/basics/QFloat.cpp -- QFloat could not initialize value."});
    EXPECT_EQ(made.first->findChild<QLineEdit*>()->text(), QLatin1String("0.000000"));
    EXPECT_FALSE(parameter->getLocalValue(firstPool, std::string(), false));
}

TEST_F(QFloatTest, AParameterThatIsGoneIsReported) {
    Kolt::ParameterRef const gone = real(0.5);
    auto const made = qtCreator("double", "double")->create(gone, parent, &pools);
    EXPECT_EQ(warnings.texts, std::vector<std::string>{"QFloat created for non-integer parameter."});
    EXPECT_EQ(made.first->findChild<QLineEdit*>()->text(), QLatin1String("0.000000"));
    EXPECT_EQ(made.first->findChild<QSlider*>()->maximum(), 100000000);
}

TEST_F(QFloatTest, ThePrecisionIsTheNumberOfDecimals) {
    for (auto const& [precision, shown] : std::vector<std::pair<int, std::string>>{
             {6, "0.125000"}, {1, "0.1"}, {3, "0.125"}, {0, "0"}, {-4, "0"}, {std::numeric_limits<int>::min(), "0"}}) {
        auto const parameter = real(0.125);
        setProperty(parameter, "precision", Kolt::makeValue(precision));
        auto const editor = open(parameter);
        EXPECT_EQ(text(editor), shown);
    }
    auto const parameter = real(0.125);
    setProperty(parameter, "precision", Kolt::makeValue(std::numeric_limits<int>::max()));
    EXPECT_EQ(text(open(parameter)).size(), 1002U);
    setProperty(parameter, "precision", Kolt::makeValue(3.0));
    EXPECT_EQ(text(open(parameter)), "0.125000") << "a precision that is no whole number is not used";
}

TEST_F(QFloatTest, TheFieldWidthPadsWhatIsNoNumber) {
    auto const parameter = real(NotANumber);
    auto const editor = open(parameter);
    EXPECT_EQ(text(editor), "   nan");
    EXPECT_EQ(slider(editor)->value(), 0);
    changeElsewhere(parameter, Infinity, firstPool);
    EXPECT_EQ(text(editor), "   inf");
    EXPECT_EQ(slider(editor)->value(), slider(editor)->maximum());
    changeElsewhere(parameter, -Infinity, firstPool);
    EXPECT_EQ(text(editor), "  -inf");
    EXPECT_EQ(slider(editor)->value(), 0);
    EXPECT_EQ(parameter->ownValue()->age(), 0U);
}

TEST_F(QFloatTest, AValueOutsideTheIntervalKeepsItsText) {
    for (auto const& preferences : std::vector<std::vector<std::string>>{{}, {"dial"}}) {
        auto const parameter = bounded(500.0, 0.0, 1.0, 200, preferences);
        RecordingNotifier notifier;
        parameter->addNotifier(Tessera::WeakPtr<Kolt::ValueNotifier>(&notifier));
        auto const editor = open(parameter);
        auto* const control = editor.widget->findChild<QAbstractSlider*>();
        EXPECT_EQ(text(editor), "500.000000");
        EXPECT_EQ(control->value(), 200);
        changeElsewhere(parameter, -500.0, firstPool);
        EXPECT_EQ(text(editor), "-500.000000");
        EXPECT_EQ(control->value(), 0);
        EXPECT_EQ(notifier.values.size(), 1U);
        setProperty(parameter, "min", Kolt::makeValue(-1000.0));
        EXPECT_EQ(text(editor), "-500.000000");
        EXPECT_GT(control->value(), 0);
        EXPECT_EQ(held(parameter), -500.0);
        EXPECT_EQ(notifier.values.size(), 1U);
    }
}

TEST_F(QFloatTest, PropertiesThatChangeReScaleTheControlAndTheText) {
    auto const parameter = bounded(0.5, 0.0, 1.0, 200);
    auto const editor = open(parameter);
    setProperty(parameter, "increment", Kolt::makeValue(10.0));
    EXPECT_EQ(slider(editor)->maximum(), 10);
    EXPECT_EQ(slider(editor)->value(), 5);
    setProperty(parameter, "max", Kolt::makeValue(5.0));
    EXPECT_EQ(slider(editor)->value(), 1);
    setProperty(parameter, "precision", Kolt::makeValue(1));
    EXPECT_EQ(text(editor), "0.5");
    setProperty(parameter, "max", nullptr);
    EXPECT_EQ(slider(editor)->value(), 1) << "a bound that is taken away leaves the interval";
    EXPECT_EQ(held(parameter), 0.5);
    EXPECT_EQ(parameter->ownValue()->age(), 0U);
}

TEST_F(QFloatTest, AChangeOfPropertiesInAnotherPoolAppliesThemAndLeavesTheNumber) {
    auto const parameter = real(0.0, {}, Values::PerPool);
    changeElsewhere(parameter, 0.5, firstPool);
    changeElsewhere(parameter, 0.75, secondPool);
    auto const editor = open(parameter);
    parameter->setProperty("increment", Kolt::makeValue(10.0), nullptr, nullptr, secondPool);
    parameter->setProperty("precision", Kolt::makeValue(2), nullptr, nullptr, secondPool);
    EXPECT_EQ(text(editor), "0.50");
    EXPECT_EQ(slider(editor)->value(), 5);
}

TEST_F(QFloatTest, AMoveWritesTheValueOfThePositionOnce) {
    for (auto const& preferences : std::vector<std::vector<std::string>>{{}, {"dial"}, {"dial", "periodic"}}) {
        auto const parameter = bounded(0.0, -1.0, 1.0, 200, preferences);
        RecordingNotifier notifier;
        parameter->addNotifier(Tessera::WeakPtr<Kolt::ValueNotifier>(&notifier));
        auto const editor = open(parameter);
        editor.widget->findChild<QAbstractSlider*>()->setValue(150);
        EXPECT_EQ(held(parameter), 0.5);
        EXPECT_EQ(text(editor), "0.500000");
        EXPECT_EQ(notifier.values, std::vector<std::string>{"0.5"});
        EXPECT_EQ(parameter->ownValue()->age(), Tessera::Ageable::GlobalTime.load());
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
    type(editor, "0.1234567891");
    EXPECT_EQ(held(parameter), static_cast<double>(0.1234567891F));
    EXPECT_NE(held(parameter), 0.1234567891);
    EXPECT_EQ(text(editor), "0.123457");
    EXPECT_EQ(lineEdit(editor)->rememberedText(), QLatin1String("0.123457"));
    EXPECT_EQ(slider(editor)->value(), 25);
    EXPECT_EQ(recorder.values.size(), 1U);
    EXPECT_EQ(parameter->ownValue()->age(), Tessera::Ageable::GlobalTime.load());
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
            Kolt::setParameterValue(*parameter, 0.3, firstPool, std::string(), false,
                                    Tessera::WeakPtr<Kolt::ValueNotifier>(&recorder), nullptr);
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
        // Where the handle stands at the end already, it does not move.
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

TEST_F(QFloatKeyTest, TheWheelMovesTheHandle) {
    turnWheel(*control, 1);
    EXPECT_EQ(control->value(), 53);
    EXPECT_EQ(held(parameter), 0.265);
    EXPECT_EQ(recorder.values.size(), 1U);
}

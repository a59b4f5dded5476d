#include "QFloatTest.hpp"

#include <cmath>
#include <QDoubleValidator>
#include <QLayout>
#include <QMetaMethod>

using Kolt::ParameterPtr;
using Values = Kolt::VParameter::Values;

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
    EXPECT_EQ(layout->stretch(0), 0);
    EXPECT_EQ(layout->stretch(1), 0);
    EXPECT_EQ(qobject_cast<QFrame*>(editor.widget)->frameStyle(), QFrame().frameStyle());
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

TEST_F(QFloatTest, ExistingBoundsAreKeptAndThoseOfAnotherTypeAreNotUsed) {
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
    EXPECT_EQ(text(open(parameter)), "0.125000") << "a precision that is no int is not used";
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

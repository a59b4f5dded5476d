#include "QIntegerTest.hpp"

#include <QIntValidator>
#include <QLayout>
#include <QMetaMethod>

using Kolt::ParameterPtr;
using Values = Kolt::VParameter::Values;

TEST_F(QIntegerTest, IsAWidgetWithASliderAndALineEdit) {
    auto const editor = open(integer(7));
    auto const* const meta = editor.widget->metaObject();
    EXPECT_STREQ(meta->className(), "Kolt::QInteger");
    EXPECT_STREQ(meta->superClass()->className(), "QWidget");
    ASSERT_EQ(meta->methodCount() - meta->methodOffset(), 2);
    EXPECT_EQ(meta->method(meta->methodOffset()).methodSignature(), QByteArray("valueChanged(int)"));
    EXPECT_EQ(meta->method(meta->methodOffset() + 1).methodSignature(), QByteArray("textEnter()"));
    EXPECT_EQ(meta->method(meta->methodOffset()).methodType(), QMetaMethod::Slot);
    EXPECT_NE(editor.widget->qt_metacast("VInputValue<int>"), nullptr);

    auto* const layout = qobject_cast<QHBoxLayout*>(editor.widget->layout());
    ASSERT_NE(layout, nullptr);
    EXPECT_EQ(layout->contentsMargins(), QMargins(0, 0, 0, 0));
    ASSERT_EQ(layout->count(), 2);
    EXPECT_EQ(layout->itemAt(0)->widget(), slider(editor));
    EXPECT_EQ(layout->itemAt(1)->widget(), lineEdit(editor));
    EXPECT_EQ(layout->stretch(0), 0);
    EXPECT_EQ(layout->stretch(1), 0);

    EXPECT_EQ(dial(editor), nullptr);
    EXPECT_EQ(slider(editor)->orientation(), Qt::Horizontal);
    EXPECT_EQ(slider(editor)->tickPosition(), QSlider::NoTicks);

    auto const* const validator = qobject_cast<QIntValidator const*>(lineEdit(editor)->validator());
    ASSERT_NE(validator, nullptr);
    EXPECT_EQ(validator->bottom(), SmallestInt);
    EXPECT_EQ(validator->top(), LargestInt);
    EXPECT_EQ(lineEdit(editor)->alignment(), Qt::AlignRight);
    EXPECT_EQ(lineEdit(editor)->maximumWidth(), 100);
}

TEST_F(QIntegerTest, ShowsItselfWhenItIsMade) {
    parent->show();
    for (auto const* const name : {"int", "intDial"}) {
        auto const parameter = integer(7);
        EXPECT_TRUE(qtCreator("int", name)->create(parameter, parent, &pools).first->isVisible());
    }
}

TEST_F(QIntegerTest, UnderTheDialPreferenceItHasADial) {
    for (auto const& preferences : std::vector<std::vector<std::string>>{{"dial"}, {"dial", "periodic"}}) {
        auto const editor = open(integer(7, preferences));
        EXPECT_EQ(slider(editor), nullptr);
        ASSERT_NE(dial(editor), nullptr);
        EXPECT_EQ(dial(editor)->wrapping(), preferences.size() == 2);
        EXPECT_TRUE(dial(editor)->hasTracking());
        EXPECT_TRUE(dial(editor)->notchesVisible());
        EXPECT_EQ(dial(editor)->minimumSize(), QSize(64, 64));
        EXPECT_EQ(dial(editor)->maximumSize(), QSize(64, 64));
        EXPECT_EQ(dial(editor)->pageStep(), 15);
        EXPECT_EQ(dial(editor)->singleStep(), 5);
        EXPECT_EQ(editor.widget->layout()->itemAt(0)->widget(), dial(editor));
        EXPECT_EQ(dial(editor)->value(), 7);
    }
}

TEST_F(QIntegerTest, PeriodicAloneMakesASlider) {
    for (auto const& entry : Kolt::InputRegistry::theRegistry().entries()) {
        auto const creator = entry.creator.strong();
        if (creator->Name() == "int")
            *creator->preferences() += "periodic";
    }
    auto const parameter = integer(7);
    auto const made = qtCreator("int", "int")->create(parameter, parent, &pools);
    EXPECT_NE(made.first->findChild<QSlider*>(), nullptr);
    EXPECT_EQ(made.first->findChild<QDial*>(), nullptr);
}

TEST_F(QIntegerTest, TheMissingUpperBoundOfASliderSuitsTheValue) {
    for (auto const& [value, bound] : std::vector<std::pair<int, int>>{{-5, 100},
                                                                       {0, 100},
                                                                       {99, 100},
                                                                       {100, 200},
                                                                       {150, 300},
                                                                       {LargestInt / 2, LargestInt - 1},
                                                                       {LargestInt / 2 + 1, LargestInt},
                                                                       {LargestInt, LargestInt},
                                                                       {SmallestInt, 100}}) {
        auto const parameter = integer(value);
        auto const editor = open(parameter);
        EXPECT_EQ(property(parameter, "min"), "0");
        EXPECT_EQ(property(parameter, "max"), std::to_string(bound)) << value;
        EXPECT_EQ(slider(editor)->minimum(), 0);
        EXPECT_EQ(slider(editor)->maximum(), bound);
        EXPECT_EQ(text(editor), std::to_string(value));
    }
}

TEST_F(QIntegerTest, TheBoundIsTakenFromTheParametersOwnValue) {
    auto const parameter = integer(150, {}, Values::PerPool);
    changeElsewhere(parameter, 7, firstPool);
    auto const editor = open(parameter);
    EXPECT_EQ(slider(editor)->maximum(), 300);
    EXPECT_EQ(text(editor), "7");
}

TEST_F(QIntegerTest, TheMissingUpperBoundForAValueOfAnotherTypeIs256) {
    auto const parameter = makeParameter("count", Kolt::makeValue(std::string("text")), {}, Values::Shared, "int");
    auto const editor = open(parameter);
    EXPECT_EQ(property(parameter, "min"), "0");
    EXPECT_EQ(property(parameter, "max"), "256");
    EXPECT_EQ(slider(editor)->maximum(), 256);
    EXPECT_EQ(text(editor), "0");
    EXPECT_EQ(warnings.texts, std::vector<std::string>{"QInteger could not initialize value."});
    EXPECT_EQ(parameter->ownValue()->Text(), "text");
}

TEST_F(QIntegerTest, TheMissingBoundsOfADialAre0And360) {
    auto const parameter = integer(1000, {"dial"});
    auto const editor = open(parameter);
    EXPECT_EQ(property(parameter, "min"), "0");
    EXPECT_EQ(property(parameter, "max"), "360");
    EXPECT_EQ(dial(editor)->minimum(), 0);
    EXPECT_EQ(dial(editor)->maximum(), 360);
    EXPECT_EQ(text(editor), "1000");
}

TEST_F(QIntegerTest, ExistingBoundsAreKept) {
    auto const parameter = bounded(7, -20, 20);
    record(parameter);
    auto const editor = open(parameter);
    EXPECT_EQ(slider(editor)->minimum(), -20);
    EXPECT_EQ(slider(editor)->maximum(), 20);
    EXPECT_EQ(recorder.propertyChanges, 0);
}

TEST_F(QIntegerTest, ABoundOfAnotherTypeIsNeverOverwritten) {
    auto const parameter = integer(7);
    setProperty(parameter, "max", Kolt::makeValue(std::string("much")));
    auto const editor = open(parameter);
    EXPECT_EQ(property(parameter, "max"), "much");
    EXPECT_EQ(property(parameter, "min"), "0");
    EXPECT_EQ(slider(editor)->maximum(), 100);
}

TEST_F(QIntegerTest, TheLowerBoundIsSetBeforeTheUpperOneInThePoolOfTheWidget) {
    class PropertyNotifier : public Kolt::ValueNotifier {
    public:
        void onValueChange(Kolt::ValuePtr const&, Kolt::VContext const& context,
                           Kolt::ValueMap const* properties) override {
            std::string names;
            for (auto const& entry : *properties)
                names += entry.first + " ";
            seen.push_back(names);
            pools.push_back(context.pool());
        }
        std::vector<std::string> seen;
        std::vector<Kolt::PoolPtr> pools;
    };
    auto const parameter = integer(7);
    PropertyNotifier notifier;
    parameter->addNotifier(Tessera::WeakPtr<Kolt::ValueNotifier>(&notifier));
    auto const editor = open(parameter);
    EXPECT_EQ(notifier.seen, (std::vector<std::string>{"min ", "max min "}));
    EXPECT_EQ(notifier.pools, (std::vector<Kolt::PoolPtr>{firstPool, firstPool}));
}

TEST_F(QIntegerTest, APoolWithoutAValueIsReportedAndGetsNone) {
    auto const parameter = integer(42, {}, Values::PerPool);
    auto const made = qtCreator("int", "int")->create(parameter, parent, &pools);
    EXPECT_EQ(warnings.texts, std::vector<std::string>{"QInteger could not initialize value."});
    EXPECT_EQ(made.first->findChild<QLineEdit*>()->text(), QLatin1String("0"));
    EXPECT_FALSE(parameter->getLocalValue(firstPool, std::string(), false));
}

TEST_F(QIntegerTest, AParameterThatIsGoneIsReported) {
    Kolt::ParameterRef const gone = integer(42);
    auto const made = qtCreator("int", "int")->create(gone, parent, &pools);
    EXPECT_EQ(warnings.texts, std::vector<std::string>{"QInteger created for non-integer parameter."});
    EXPECT_EQ(made.first->findChild<QLineEdit*>()->text(), QLatin1String("0"));
    EXPECT_EQ(made.first->findChild<QSlider*>()->maximum(), 256);
    made.second.strong()->onValueChange(Kolt::makeValue(9), Kolt::VContext(firstPool, nullptr), nullptr);
    EXPECT_EQ(made.first->findChild<QLineEdit*>()->text(), QLatin1String("0"));
}

TEST_F(QIntegerTest, AValueOutsideTheRangeKeepsItsTextAndTheHandleStandsAtTheBound) {
    auto const parameter = bounded(500, 0, 100);
    record(parameter);
    auto const editor = open(parameter);
    EXPECT_EQ(text(editor), "500");
    EXPECT_EQ(slider(editor)->value(), 100);
    changeElsewhere(parameter, -500, firstPool);
    EXPECT_EQ(text(editor), "-500");
    EXPECT_EQ(slider(editor)->value(), 0);
    EXPECT_EQ(parameter->ownValue()->Text(), "-500");
    EXPECT_EQ(recorder.values, std::vector<std::string>{"-500"});
    EXPECT_TRUE(undoTexts().empty());
}

TEST_F(QIntegerTest, TheHandleFollowsARangeThatShrinksAndGrows) {
    for (auto const& preferences : std::vector<std::vector<std::string>>{{}, {"dial"}}) {
        auto const parameter = bounded(80, 0, 100, preferences);
        auto const editor = open(parameter);
        auto* const control = editor.widget->findChild<QAbstractSlider*>();
        record(parameter);
        setProperty(parameter, "max", Kolt::makeValue(50));
        EXPECT_EQ(control->maximum(), 50);
        EXPECT_EQ(control->value(), 50);
        EXPECT_EQ(text(editor), "80");
        setProperty(parameter, "min", Kolt::makeValue(90));
        EXPECT_EQ(text(editor), "80");
        setProperty(parameter, "max", Kolt::makeValue(1000));
        setProperty(parameter, "min", Kolt::makeValue(0));
        EXPECT_EQ(control->value(), 80);
        EXPECT_EQ(parameter->ownValue()->Text(), "80");
        EXPECT_EQ(parameter->ownValue()->age(), 0U);
        EXPECT_TRUE(recorder.values.empty());
        EXPECT_TRUE(undoTexts().empty());
    }
}

TEST_F(QIntegerTest, APropertyUpdateWithoutAnIntegerBoundTakes0And100) {
    auto const parameter = bounded(7, -20, 20);
    auto const editor = open(parameter);
    setProperty(parameter, "max", nullptr);
    EXPECT_EQ(slider(editor)->minimum(), -20);
    EXPECT_EQ(slider(editor)->maximum(), 100);
    setProperty(parameter, "min", Kolt::makeValue(2.5));
    EXPECT_EQ(slider(editor)->minimum(), 0);
    EXPECT_EQ(slider(editor)->maximum(), 100);
}

TEST_F(QIntegerTest, AChangeOfPropertiesInAnotherPoolAppliesThemAndLeavesTheNumber) {
    auto const parameter = integer(1, {}, Values::PerPool);
    changeElsewhere(parameter, 80, firstPool);
    changeElsewhere(parameter, 3, secondPool);
    auto const editor = open(parameter);
    parameter->setProperty("max", Kolt::makeValue(60), nullptr, nullptr, secondPool);
    EXPECT_EQ(text(editor), "80");
    EXPECT_EQ(slider(editor)->maximum(), 60);
    EXPECT_EQ(slider(editor)->value(), 60);
    parameter->setProperty("max", Kolt::makeValue(90), nullptr, nullptr, secondPool);
    EXPECT_EQ(slider(editor)->value(), 80);
}

TEST_F(QIntegerTest, AChangeFromElsewhereMovesTextAndHandleAndTheRememberedText) {
    auto const parameter = bounded(7, 0, 100);
    auto const editor = open(parameter);
    lineEdit(editor)->setText(QLatin1String("123"));
    changeElsewhere(parameter, 31, firstPool);
    EXPECT_EQ(text(editor), "31");
    EXPECT_EQ(lineEdit(editor)->rememberedText(), QLatin1String("31"));
    EXPECT_EQ(lineEdit(editor)->cursorPosition(), 0);
    EXPECT_FALSE(lineEdit(editor)->hasSelectedText());
    EXPECT_EQ(slider(editor)->value(), 31);
    EXPECT_EQ(parameter->ownValue()->age(), 0U);
    EXPECT_TRUE(undoTexts().empty());

    // The cache follows, too: the next undo step restores the value from elsewhere.
    QTest::keyClick(slider(editor), Qt::Key_Right);
    EXPECT_EQ(undoTexts(), std::vector<std::string>{"Set int value to 31"});
}

TEST_F(QIntegerTest, AnEqualValueIsShownAgainAndNotWritten) {
    auto const parameter = bounded(7, 0, 100);
    auto const editor = open(parameter);
    record(parameter);
    lineEdit(editor)->setText(QLatin1String("123"));
    slider(editor)->blockSignals(true);
    slider(editor)->setValue(50);
    slider(editor)->blockSignals(false);
    callSlot(editor, 7);
    EXPECT_EQ(text(editor), "7");
    EXPECT_EQ(slider(editor)->value(), 7);
    EXPECT_TRUE(recorder.values.empty());
    EXPECT_TRUE(undoTexts().empty());
}

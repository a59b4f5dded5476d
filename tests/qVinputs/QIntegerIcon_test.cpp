#include "support/PluginFile.hpp"
#include "support/TestHost.hpp"

#include <lattice/Object.hpp>
#include <QLCDNumber>
#include <QSlider>
#include <sorrel/QIconizer.hpp>

using Values = Kolt::VParameter::Values;

namespace {

class QIntegerIconTest : public PluginTest {
protected:
    Kolt::ParameterPtr parameterWith(int value, Values values = Values::Shared) {
        return makeParameter("count", Kolt::makeValue(value), {}, values);
    }
    static Kolt::VIcon* iconOf(Kolt::Editor const& editor, QWidget* parent, Kolt::ObjectPtr const& object,
                               Tessera::StrongPtr<Kolt::ValuePoolProvider> const& provider) {
        auto const iconizer = editor.input.strong()->getInterface<Kolt::QIconizer>();
        return iconizer ? iconizer->createIcon(parent, object, provider) : nullptr;
    }
    Kolt::VIcon* makeIcon(Kolt::Editor const& editor) {
        return iconOf(editor, parent, object, pools.getValuePoolProvider());
    }
    static double shown(Kolt::VIcon* icon) { return dynamic_cast<QLCDNumber*>(icon->widget())->value(); }
    static void changeElsewhere(Kolt::ParameterPtr const& parameter, int value, Kolt::PoolPtr const& pool) {
        EXPECT_TRUE(Kolt::setParameterValue(*parameter, value, pool, std::string(), true, nullptr, nullptr));
    }

    Kolt::ObjectPtr object{new Kolt::VObject("object")};
};

} // namespace

TEST_F(QIntegerIconTest, EveryIntegerInputCarriesAnIconizer) {
    for (auto const& preferences : std::vector<std::vector<std::string>>{{}, {"dial"}, {"dial", "periodic"}}) {
        auto const parameter = makeParameter("count", Kolt::makeValue(7), preferences);
        EXPECT_TRUE(open(parameter).input.strong()->getInterface<Kolt::QIconizer>());
    }
}

TEST_F(QIntegerIconTest, ShowsTheValueByQtsDefaultDigits) {
    auto const parameter = parameterWith(42);
    auto* const icon = makeIcon(open(parameter));
    ASSERT_NE(icon, nullptr);
    EXPECT_EQ(shown(icon), 42);
    EXPECT_EQ(icon->widget()->parentWidget(), parent);
    EXPECT_EQ(icon->object().strong(), object);
    EXPECT_EQ(icon->provider(), pools.getValuePoolProvider());
    QLCDNumber const untouched;
    auto const* const digits = dynamic_cast<QLCDNumber*>(icon->widget());
    EXPECT_EQ(digits->digitCount(), untouched.digitCount());
    EXPECT_EQ(digits->mode(), untouched.mode());
    EXPECT_EQ(digits->segmentStyle(), untouched.segmentStyle());
    EXPECT_EQ(digits->frameStyle(), untouched.frameStyle());
    EXPECT_EQ(digits->lineWidth(), untouched.lineWidth());
}

TEST_F(QIntegerIconTest, FollowsEveryChangeOfTheParameter) {
    auto const parameter = parameterWith(42);
    auto const editor = open(parameter);
    auto* const icon = makeIcon(editor);
    changeElsewhere(parameter, -7, firstPool);
    EXPECT_EQ(shown(icon), -7);
    QTest::keyClick(editor.widget->findChild<QSlider*>(), Qt::Key_Right);
    EXPECT_EQ(std::to_string(static_cast<int>(shown(icon))), parameter->ownValue()->Text());
    EXPECT_EQ(parameter->ownValue()->Text(), "1");
}

TEST_F(QIntegerIconTest, AValueOfAnotherTypeLeavesTheDigits) {
    auto const parameter = parameterWith(42);
    auto* const icon = makeIcon(open(parameter));
    parameter->notifyValueChange(Kolt::makeValue(7.0), firstPool, std::string(), nullptr, nullptr, nullptr);
    parameter->notifyValueChange(nullptr, firstPool, std::string(), nullptr, nullptr, nullptr);
    EXPECT_EQ(shown(icon), 42);
}

TEST_F(QIntegerIconTest, AParameterWithoutAValueInThePoolShows0) {
    auto const parameter = parameterWith(42, Values::PerPool);
    auto* const icon = makeIcon(open(parameter));
    EXPECT_EQ(shown(icon), 0);
    EXPECT_FALSE(parameter->getLocalValue(firstPool, std::string(), false));
}

TEST_F(QIntegerIconTest, AParameterThatIsGoneShows0) {
    auto parameter = parameterWith(42);
    auto const editor = open(parameter);
    parameter.reset();
    EXPECT_EQ(shown(makeIcon(editor)), 0);
}

TEST_F(QIntegerIconTest, WithoutAProviderTheSharedValueIsShown) {
    auto const parameter = parameterWith(42);
    auto const editor = open(parameter);
    auto* const icon = iconOf(editor, parent, object, nullptr);
    EXPECT_EQ(shown(icon), 42);
    changeElsewhere(parameter, 43, firstPool);
    EXPECT_EQ(shown(icon), 43);
}

TEST_F(QIntegerIconTest, IgnoresAChangeOfAnotherPool) {
    auto const parameter = parameterWith(1, Values::PerPool);
    changeElsewhere(parameter, 42, firstPool);
    auto* const icon = makeIcon(open(parameter));
    EXPECT_EQ(shown(icon), 42);
    changeElsewhere(parameter, 50, secondPool);
    EXPECT_EQ(shown(icon), 42);
    parameter->notifyValueChange(parameter->ownValue(), nullptr, std::string(), nullptr, nullptr, nullptr);
    EXPECT_EQ(shown(icon), 42);
    changeElsewhere(parameter, 43, firstPool);
    EXPECT_EQ(shown(icon), 43);
}

TEST_F(QIntegerIconTest, ASharedValueIsShownWhicheverPoolItWasChangedIn) {
    auto const parameter = parameterWith(1);
    auto* const icon = makeIcon(open(parameter));
    changeElsewhere(parameter, 50, secondPool);
    EXPECT_EQ(shown(icon), 50);
}

TEST_F(QIntegerIconTest, ADestroyedIconIsNeverReached) {
    auto const parameter = parameterWith(1);
    auto const editor = open(parameter);
    auto const before = Kolt::ValueNotifier::living();
    auto* const icon = makeIcon(editor);
    // The host keeps a reference to the icon's notifier after the icon is destroyed.
    Tessera::StrongPtr<Kolt::ValueNotifier> kept;
    for (auto* const notifier : Kolt::ValueNotifier::living()) {
        if (std::find(before.begin(), before.end(), notifier) == before.end())
            kept = Tessera::WeakPtr<Kolt::ValueNotifier>(notifier).strong();
    }
    ASSERT_TRUE(kept);
    EXPECT_EQ(parameter->size(), 2U);
    delete icon;
    changeElsewhere(parameter, 50, firstPool);
    kept->onValueChange(Kolt::makeValue(7), Kolt::VContext(nullptr), nullptr);
    kept.reset();
    EXPECT_EQ(parameter->size(), 1U);
    changeElsewhere(parameter, 51, firstPool);
}

TEST_F(QIntegerIconTest, OutlivesTheInputAndKeepsThePluginLoaded) {
    auto const parameter = parameterWith(1);
    auto const editor = open(parameter);
    auto* const icon = makeIcon(editor);
    delete editor.widget;
    changeElsewhere(parameter, 50, firstPool);
    EXPECT_EQ(shown(icon), 50);
    EXPECT_FALSE(loader.unload(pluginFile).ok);
    delete icon;
}

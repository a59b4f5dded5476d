// A plug-in is not unloaded while objects live whose code it has; the message says which.

#include "host/lattice/PluginLoaderTest.hpp"

#include <bramble/Action.hpp>
#include <lattice/Object.hpp>
#include <lattice/UndoHistory.hpp>
#include <plugins_bad/own_value.hpp>
#include <tessera/MakeStrong.hpp>

namespace {

using testing::ElementsAre;

class PluginUse : public PluginLoaderTest {
protected:
    void SetUp() override {
        PluginLoaderTest::SetUp();
        auto const loaded = loader_.load(file_);
        ASSERT_TRUE(loaded.ok) << loaded.message;
    }
    void TearDown() override {
        auto const unloaded = loader_.unload(file_);
        EXPECT_TRUE(unloaded.ok) << unloaded.message;
        EXPECT_FALSE(isMapped(file_));
        EXPECT_THAT(warnings_.texts, testing::IsEmpty());
        PluginLoaderTest::TearDown();
    }
    static Tessera::StrongPtr<OwnValueWorkshop, Tessera::InterfaceBase> workshop() {
        return interfaceOfCreator<OwnValueWorkshop>();
    }
    void expectInUse(std::string const& what) {
        auto const outcome = loader_.unload(file_);
        EXPECT_FALSE(outcome.ok);
        EXPECT_EQ(outcome.message,
                  "The plug-in " + file_ + " cannot be unloaded while these are in use: " + what + ".");
        EXPECT_THAT(loader_.files(), ElementsAre(file_));
    }
    std::string const file_ = badPlugin("own_value");
};

TEST_F(PluginUse, WithNothingOfItInUseItIsUnloaded) {
    EXPECT_TRUE(loader_.unload(file_).ok) << "its own static value is its own affair";
    ASSERT_TRUE(loader_.load(file_).ok);
}

TEST_F(PluginUse, AValueOfItsTypeIsNamedByItsParameter) {
    Kolt::ObjectPtr const box(new Kolt::VObject("box"));
    box->addParameter(Kolt::ParameterPtr(new Kolt::VParameter("size", workshop()->makeOwnType())));
    expectInUse("1 value of type Kolt::VValue<OwnValue::Vector> (box.size)");
    auto kept = workshop()->makeOwnType();
    expectInUse("2 values of type Kolt::VValue<OwnValue::Vector> (box.size)");
}

TEST_F(PluginUse, ValuesOfPoolsPropertiesAndDefaultsCount) {
    Kolt::PoolPtr const pool(new Kolt::ValuePool);
    Kolt::ObjectPtr const box(new Kolt::VObject("box"));
    Kolt::ParameterPtr const parameter(
        new Kolt::VParameter("size", Kolt::makeValue(1), Kolt::VParameter::Values::PerPool));
    box->addParameter(parameter);
    parameter->setLocalValue(pool, workshop()->makeOwnType());
    expectInUse("1 value of type Kolt::VValue<OwnValue::Vector> (box.size)");
    parameter->rememberDefaults();
    parameter->setLocalValue(pool, Kolt::makeValue(2));
    expectInUse("1 value of type Kolt::VValue<OwnValue::Vector> (box.size, default)");
    parameter->rememberDefaults();
    parameter->setProperty("origin", workshop()->makeOwnType(), {}, nullptr, {});
    expectInUse("1 value of type Kolt::VValue<OwnValue::Vector> (box.size, property origin)");
}

TEST_F(PluginUse, ValuesInUndoStepsCount) {
    Kolt::UndoHistory history;
    {
        Kolt::ParameterPtr const parameter(new Kolt::VParameter("size", workshop()->makeOwnType()));
        parameter->setHistory(&history);
        auto const before = parameter->ownValue()->clone();
        history.record({parameter, nullptr, {before, false}, {workshop()->makeOwnType(), false}});
    }
    expectInUse("2 values of type Kolt::VValue<OwnValue::Vector> (size, undo history)");
    history.clear();
}

TEST_F(PluginUse, AValueOfAClassOfItsOwnCounts) {
    auto const kept = workshop()->makeOwnClass();
    expectInUse("1 value of type OwnValue::Number");
}

TEST_F(PluginUse, AValueThatItMadeOfATypeOfTheHostDoesNot) {
    auto const number = workshop()->makeNumber();
    auto const copy = workshop()->makeOwnClass()->clone();
    ASSERT_TRUE(loader_.unload(file_).ok);
    EXPECT_EQ(number->Text(), "42");
    EXPECT_TRUE(number->setValueFromText("43"));
    EXPECT_EQ(copy->Text(), "7");
    ASSERT_TRUE(loader_.load(file_).ok);
}

TEST_F(PluginUse, ARecordThatAHistoryHasIsForgottenAndOneThatOthersKeepCounts) {
    Kolt::UndoHistory history;
    history.add(workshop()->makeRecord());
    auto const kept = workshop()->makeRecord();
    history.add(kept);
    EXPECT_THAT(history.steps(), testing::SizeIs(2));
    expectInUse("1 undo record of type OwnValue::Record");
    EXPECT_THAT(history.steps(), testing::IsEmpty());
}

TEST_F(PluginUse, AnInterfaceThatTheHostKeepsCounts) {
    auto const kept = workshop();
    expectInUse("1 interface of type OwnValue::Workshop");
}

TEST_F(PluginUse, AnActionThatCallsItsCodeCounts) {
    Kolt::ObjectPtr const box(new Kolt::VObject("box"));
    box->addParameter(Kolt::ParameterPtr(new Kolt::VParameter("open", workshop()->makeAction())));
    box->addParameter(Kolt::ParameterPtr(
        new Kolt::VParameter("close", Kolt::makeValue(Tessera::makeStrong<Kolt::VAction>("close")))));
    expectInUse("1 action");
}

TEST_F(PluginUse, ItsRunningCodeIsSeen) {
    std::string message;
    {
        // The interface itself is in use, too; the code is what is named.
        auto const kept = workshop();
        kept->call([&] { message = loader_.unload(file_).message; });
    }
    EXPECT_EQ(message, "The plug-in " + file_ + " cannot be unloaded while its own code is running.");
    EXPECT_THAT(loader_.files(), ElementsAre(file_));
}

} // namespace

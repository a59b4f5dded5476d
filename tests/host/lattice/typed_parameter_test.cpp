#include "support/TestWarnings.hpp"
#include <lattice/Object.hpp>
#include <lattice/TypedParameter.hpp>

namespace {

using Kolt::IsStorable;
using Kolt::IsWritableTo;
using Kolt::Parameter;
using Kolt::ParameterPtr;
using Kolt::PoolPtr;
using Kolt::UndoHistory;
using Kolt::ValuePool;
using testing::ElementsAre;
using testing::IsEmpty;

// Only these compile: writes that lose no information and do not mix bools, numbers and texts; and parameters of the
// types bool, int, double and std::string.
static_assert(IsWritableTo<double, int> && IsWritableTo<double, float> && IsWritableTo<double, unsigned>);
static_assert(!IsWritableTo<double, long> && !IsWritableTo<double, bool> && !IsWritableTo<double, long double>);
static_assert(IsWritableTo<int, int> && IsWritableTo<int, short>);
static_assert(!IsWritableTo<int, double> && !IsWritableTo<int, unsigned> && !IsWritableTo<int, long>);
static_assert(!IsWritableTo<int, bool> && !IsWritableTo<bool, int> && IsWritableTo<bool, bool>);
static_assert(IsWritableTo<std::string, char[5]> && !IsWritableTo<std::string, int> && !IsWritableTo<int, char[5]>);
static_assert(IsStorable<bool> && IsStorable<int> && IsStorable<double> && IsStorable<std::string>);
static_assert(!IsStorable<float> && !IsStorable<unsigned> && !IsStorable<long> && !IsStorable<char[5]> &&
              !IsStorable<char const*>);

class TypedParameters : public TaloTest {
protected:
    RecordedWarnings warnings_;
    PoolPtr const draft_{new ValuePool("draft")};
};

TEST_F(TypedParameters, AreMadeInOneExpression) {
    UndoHistory document;
    auto const speed = Parameter<int>("speed", 40)
                           .min(0)
                           .max(100)
                           .increment(5)
                           .toolTip("Rounds per minute")
                           .property("wrap", 1)
                           .preferences("dial", "periodic")
                           .history(document);
    ParameterPtr const parameter = speed;
    EXPECT_EQ(parameter->Name(), "speed");
    EXPECT_EQ(parameter->declaredType(), "int");
    EXPECT_FALSE(parameter->keepsValuesPerPool());
    EXPECT_EQ(&parameter->history(), &document);
    EXPECT_EQ(parameter->creationPreferences()->names(), (std::set<std::string>{"dial", "periodic"}));
    auto const property = [&](char const* name) { return parameter->properties()->getValue(name); };
    EXPECT_EQ(Kolt::valueOr(property("min"), -1), 0);
    EXPECT_EQ(Kolt::valueOr(property("max"), -1), 100);
    EXPECT_EQ(Kolt::valueOr(property("increment"), -1), 5);
    EXPECT_EQ(Kolt::valueOr(property("wrap"), -1), 1);
    EXPECT_EQ(property("tooltip")->Text(), "Rounds per minute");
    EXPECT_THAT(warnings_.texts, IsEmpty());
}

TEST_F(TypedParameters, StartWithTheDefaultOfTheirType) {
    EXPECT_EQ(Parameter<double>("x").read(), 0.0);
    EXPECT_EQ(Parameter<std::string>("s").read(), "");
    EXPECT_EQ(Parameter<std::string>("s", "text").read(), "text");
    EXPECT_EQ(Parameter<double>("x", 3).max(7).pointer()->properties()->getValue("max")->valueType(), typeid(double));
}

TEST_F(TypedParameters, BelongToAnObjectLikeAnyOther) {
    Kolt::VObject object("lamp");
    auto const level = Parameter<double>("level", 0.5);
    object.addParameter(level);
    ASSERT_EQ(object.findParameter("level"), level.pointer());
    EXPECT_EQ(&*level, level.pointer().get());
    EXPECT_EQ(level->Name(), "level");
}

TEST_F(TypedParameters, WriteMarksAndNotifies) {
    auto const speed = Parameter<int>("speed", 40);
    auto const age = speed->ownValue()->age();
    std::vector<int> heard;
    {
        auto const connection = speed.onChange([&](int value) { heard.push_back(value); });
        EXPECT_TRUE(speed.write(50));
        EXPECT_TRUE(speed.write(50, draft_));
        static_cast<void>(speed.max(60));
    }
    EXPECT_TRUE(speed.write(70));
    EXPECT_EQ(speed.read(), 70);
    EXPECT_EQ(speed.read(draft_), 70) << "one value for all pools";
    EXPECT_THAT(heard, ElementsAre(50, 50));
    EXPECT_GT(speed->ownValue()->age(), age);
    EXPECT_THAT(UndoHistory::theHistory().steps(), IsEmpty());
}

TEST_F(TypedParameters, KeepValuesPerPool) {
    auto const speed = Parameter<int>::perPool("speed", 40);
    std::vector<std::pair<int, std::string>> heard;
    auto const connection = speed.onChange(
        [&](int value, PoolPtr const& pool) { heard.emplace_back(value, pool ? pool->Name() : "none"); });
    EXPECT_TRUE(speed.write(50, draft_));
    EXPECT_EQ(speed.read(draft_), 50);
    EXPECT_EQ(speed.read(), 40);
    EXPECT_EQ(speed.read(PoolPtr(new ValuePool("final"))), 40);
    EXPECT_THAT(heard, ElementsAre(std::pair(50, std::string("draft"))));
    EXPECT_FALSE(speed.write(60));
    EXPECT_THAT(warnings_.texts,
                ElementsAre("A value cannot be stored without a pool in the parameter \"speed\", which "
                            "has a value for each pool"));
}

TEST_F(TypedParameters, AFunctionMayEndItsOwnSubscription) {
    auto const speed = Parameter<int>("speed", 40);
    int calls = 0;
    Kolt::Connection connection;
    connection = speed.onChange([&, count = std::make_shared<int>(0)](int) {
        connection.disconnect();
        calls = ++*count;
    });
    speed.write(1);
    speed.write(2);
    EXPECT_EQ(calls, 1);
}

TEST_F(TypedParameters, ASubscriptionMayOutliveItsParameter) {
    auto connection = Parameter<int>("brief").onChange([](int) {});
    EXPECT_TRUE(connection.isConnected());
    connection.disconnect();
}

TEST_F(TypedParameters, AWrongValueIsRefusedWithASentence) {
    auto const level = Parameter<double>("level", 0.5);
    EXPECT_FALSE(Kolt::setParameterValue(*level, 1, nullptr, "", false, nullptr, nullptr));
    EXPECT_EQ(level.read(), 0.5);
    EXPECT_THAT(warnings_.texts, ElementsAre("A value of type int cannot be stored in the parameter \"level\", whose "
                                             "value is of type double"));
    auto const perPool = Parameter<int>::perPool("p");
    EXPECT_FALSE(Kolt::setParameterValue(*perPool, 1, draft_, "", false, nullptr, nullptr));
    EXPECT_THAT(warnings_.texts, testing::SizeIs(1)) << "a value that is not to be created is no misuse";
}

TEST_F(TypedParameters, APropertyOfTheWrongKindIsStoredWithASentence) {
    auto const speed = Parameter<int>("speed", 40);
    speed->setProperty("max", Kolt::makeValue(1.5), nullptr, nullptr, nullptr);
    static_cast<void>(speed.property("tooltip", 3).property("anything", true).property("precision", "2"));
    EXPECT_EQ(speed->properties()->getValue("max")->Text(), "1.5");
    EXPECT_THAT(
        warnings_.texts,
        ElementsAre("The property \"max\" of the parameter \"speed\" should be of type int, not double",
                    "The property \"tooltip\" of the parameter \"speed\" should be of type std::string, not int",
                    "The property \"precision\" of the parameter \"speed\" should be of type int, not "
                    "std::string"));
    speed->setProperty("max", nullptr, nullptr, nullptr, nullptr);
    EXPECT_THAT(warnings_.texts, testing::SizeIs(3));
}

} // namespace

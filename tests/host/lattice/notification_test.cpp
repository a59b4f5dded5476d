#include "host/lattice/Recorder.hpp"
#include "support/TaloTest.hpp"
#include <lattice/Parameter.hpp>
#include <memory>

namespace {

using Kolt::makeValue;
using Kolt::ParameterPtr;
using Kolt::ValueNotifier;
using Kolt::ValueNotifierList;
using Kolt::ValuePool;
using Kolt::VContext;
using Kolt::VParameter;
using Tessera::StrongPtr;
using Tessera::WeakPtr;
using testing::ElementsAre;
using testing::IsEmpty;

class Notification : public TaloTest {
protected:
    void listen(std::initializer_list<Recorder*> notifiers) {
        for (auto* const notifier : notifiers)
            parameter_->addNotifier(notifier->ref());
    }
    void notify(WeakPtr<ValueNotifier> const& source = {}, ValueNotifierList const* alsoNotify = nullptr) {
        parameter_->notifyValueChange(parameter_->ownValue(), pool_, "", source, alsoNotify, nullptr);
    }

    std::vector<std::string> log_;
    ParameterPtr parameter_{new VParameter("p", makeValue(1))};
    StrongPtr<ValuePool> const pool_{new ValuePool("pool")};
    Recorder a_{"a", &log_};
    Recorder b_{"b", &log_};
    Recorder c_{"c", &log_};
};

TEST_F(Notification, ReachesEverybodyInOrderOfRegistration) {
    listen({&b_, &a_, &c_});
    notify();
    EXPECT_THAT(log_, ElementsAre("b", "a", "c"));
}

TEST_F(Notification, PassesTheLiveValueThePoolAndNoPropertyMap) {
    listen({&a_});
    notify();
    EXPECT_EQ(a_.value, parameter_->ownValue());
    EXPECT_EQ(a_.pool, pool_);
    EXPECT_EQ(a_.properties, nullptr);

    parameter_->notifyValueChange(nullptr, nullptr, "", {}, nullptr, nullptr);
    EXPECT_FALSE(a_.value);
    EXPECT_FALSE(a_.pool);
}

TEST_F(Notification, LeavesTheSourceOut) {
    listen({&a_, &b_, &c_});
    notify(b_.ref());
    EXPECT_THAT(log_, ElementsAre("a", "c"));
}

TEST_F(Notification, ANotifierAddedTwiceIsNotifiedOnce) {
    listen({&a_, &b_, &a_});
    EXPECT_EQ(parameter_->size(), 2U);
    notify();
    EXPECT_THAT(log_, ElementsAre("a", "b"));
}

TEST_F(Notification, EmptyAndDeadNotifiersAreNotAdded) {
    parameter_->addNotifier({});
    WeakPtr<ValueNotifier> dead;
    {
        Recorder passing;
        dead = passing.ref();
    }
    parameter_->addNotifier(dead);
    EXPECT_EQ(parameter_->size(), 0U);
    notify();
    EXPECT_THAT(log_, IsEmpty());
}

TEST_F(Notification, ANotifierThatDiesIsRemoved) {
    auto passing = std::make_unique<Recorder>("passing", &log_);
    listen({&a_, passing.get(), &b_});
    EXPECT_EQ(parameter_->size(), 3U);
    passing.reset();
    EXPECT_EQ(parameter_->size(), 2U);
    notify();
    EXPECT_THAT(log_, ElementsAre("a", "b"));
}

TEST_F(Notification, TheSecondListFollowsWithThoseNotNotifiedYet) {
    listen({&a_, &b_});
    ValueNotifierList further;
    for (auto* const notifier : {&c_, &b_})
        further.addNotifier(notifier->ref());
    notify({}, &further);
    EXPECT_THAT(log_, ElementsAre("a", "b", "c"));
}

TEST_F(Notification, TheSourceIsNotifiedIfItIsInTheSecondList) {
    listen({&a_, &b_});
    ValueNotifierList further;
    further.addNotifier(a_.ref());
    further.addNotifier(b_.ref());
    notify(a_.ref(), &further);
    EXPECT_THAT(log_, ElementsAre("b", "a"));
}

TEST_F(Notification, WalksACopyOfTheList) {
    listen({&a_, &b_});
    a_.onNotified = [&] { listen({&c_}); };
    notify();
    EXPECT_THAT(log_, ElementsAre("a", "b")) << "who came meanwhile is notified the next time";
    log_.clear();
    notify();
    EXPECT_THAT(log_, ElementsAre("a", "b", "c"));
}

TEST_F(Notification, LeavesOutNotifiersThatDieMeanwhile) {
    auto victim = std::make_unique<Recorder>("victim", &log_);
    auto furtherVictim = std::make_unique<Recorder>("further victim", &log_);
    listen({&a_, victim.get(), &b_});
    ValueNotifierList further;
    further.addNotifier(furtherVictim->ref());
    further.addNotifier(c_.ref());
    a_.onNotified = [&] {
        victim.reset();
        furtherVictim.reset();
    };
    notify({}, &further);
    EXPECT_THAT(log_, ElementsAre("a", "b", "c"));
}

TEST_F(Notification, ANotifierMayDestroyItselfAndTheSource) {
    auto suicide = std::make_unique<Recorder>("suicide", &log_);
    auto source = std::make_unique<Recorder>("source", &log_);
    listen({source.get(), suicide.get(), &a_});
    suicide->onNotified = [&] {
        source.reset();
        suicide.reset();
    };
    notify(source->ref());
    EXPECT_THAT(log_, ElementsAre("suicide", "a"));
}

TEST_F(Notification, GoesOnWhenTheParameterDiesInItsMiddle) {
    listen({&a_, &b_});
    auto further = std::make_unique<ValueNotifierList>();
    further->addNotifier(c_.ref());
    WeakPtr<VParameter, ValueNotifierList> const watched(parameter_);
    a_.onNotified = [&] {
        parameter_.reset();
        further.reset();
    };
    auto* const raw = parameter_.get();
    raw->notifyValueChange(raw->ownValue(), pool_, "", {}, further.get(), nullptr);
    EXPECT_FALSE(watched.alive());
    EXPECT_THAT(log_, ElementsAre("a", "b", "c"));
    EXPECT_EQ(Kolt::valueOr<int>(b_.value, 0), 1) << "the value is held during its notification";
    EXPECT_EQ(b_.pool, pool_);
}

TEST_F(Notification, CanBeNested) {
    listen({&a_, &b_});
    bool nested = false;
    a_.onNotified = [&] {
        if (!std::exchange(nested, true))
            notify();
    };
    notify();
    EXPECT_THAT(log_, ElementsAre("a", "a", "b", "b"));
}

TEST_F(Notification, OfAPropertyStoresFirstAndPassesTheMap) {
    listen({&a_, &b_});
    a_.onNotified = [&] { EXPECT_EQ(Kolt::valueOr<int>(parameter_->properties()->getValue("max"), 0), 9); };
    EXPECT_EQ(parameter_->properties(), nullptr);
    parameter_->setProperty("max", makeValue(9), b_.ref(), nullptr, pool_);
    EXPECT_THAT(log_, ElementsAre("a"));
    EXPECT_EQ(a_.value, parameter_->ownValue());
    EXPECT_EQ(a_.pool, pool_);
    EXPECT_NE(a_.properties, nullptr);
    EXPECT_EQ(a_.properties, parameter_->properties());

    ValueNotifierList further;
    further.addNotifier(b_.ref());
    further.addNotifier(c_.ref());
    parameter_->setProperty("max", makeValue(9), b_.ref(), &further, {});
    EXPECT_THAT(log_, ElementsAre("a", "a", "b", "c"));
    EXPECT_FALSE(a_.pool);
}

TEST_F(Notification, OfAPropertyPassesTheValueThatHoldsInThePool) {
    parameter_ = ParameterPtr(new VParameter("p", makeValue(1), VParameter::Values::PerPool));
    listen({&a_});
    parameter_->setProperty("max", makeValue(9), {}, nullptr, pool_);
    EXPECT_EQ(a_.value, parameter_->ownValue());
    auto const local = parameter_->getLocalValue(pool_, "", true);
    parameter_->setProperty("max", makeValue(9), {}, nullptr, pool_);
    EXPECT_EQ(a_.value, local);
    parameter_->setProperty("max", makeValue(9), {}, nullptr, {});
    EXPECT_EQ(a_.value, parameter_->ownValue());
}

TEST_F(Notification, OfAPropertyGoesOnWhenTheParameterDies) {
    listen({&a_, &b_});
    a_.onNotified = [&] { parameter_.reset(); };
    b_.onNotified = [&] { EXPECT_EQ(Kolt::valueOr<int>(b_.properties->getValue("max"), 0), 9); };
    auto* const raw = parameter_.get();
    raw->setProperty("max", makeValue(9), {}, nullptr, {});
    EXPECT_THAT(log_, ElementsAre("a", "b"));
}

TEST_F(Notification, ANullPropertyTakesTheNameAway) {
    parameter_->setProperty("b", makeValue(1), {}, nullptr, {});
    parameter_->setProperty("a", makeValue(2), {}, nullptr, {});
    auto const& map = *parameter_->properties();
    std::vector<std::string> names;
    for (auto const& [name, value] : map)
        names.push_back(name);
    EXPECT_THAT(names, ElementsAre("a", "b"));
    parameter_->setProperty("a", nullptr, {}, nullptr, {});
    EXPECT_FALSE(map.getValue("a"));
    EXPECT_TRUE(map.getValue("b"));
    EXPECT_FALSE(map.getValue("never set"));
}

TEST_F(Notification, APropertyIsFoundWithoutAReference) {
    // Their marks in the map are the same, or may be.
    std::vector<std::string> const names{"abc", "adc", "", "a", "max", "min", "increment", "readOnly"};
    Kolt::ValueMap map;
    for (std::size_t count = 0; count <= names.size(); ++count) {
        if (count > 0)
            map.setValue(names[count - 1], makeValue(static_cast<int>(count)));
        auto const copy = map;
        for (std::size_t place = 0; place < names.size(); ++place) {
            EXPECT_EQ(map.find(names[place]), map.getValue(names[place]).get()) << names[place];
            EXPECT_EQ(copy.find(names[place]) != nullptr, place < count) << names[place];
        }
    }
    map.setValue("abc", nullptr);
    EXPECT_EQ(map.find("abc"), nullptr);
    EXPECT_NE(map.find("adc"), nullptr);
}

TEST_F(Notification, TheListOfLivingNotifiersHoldsThemUntilTheyGo) {
    auto const lives = [](ValueNotifier const* notifier) {
        auto const all = ValueNotifier::living();
        return std::find(all.begin(), all.end(), notifier) != all.end();
    };
    auto const before = ValueNotifier::living().size();
    {
        Recorder const passing;
        EXPECT_TRUE(lives(&passing));
        EXPECT_THAT(ValueNotifier::living(), testing::SizeIs(before + 1));
    }
    EXPECT_THAT(ValueNotifier::living(), testing::SizeIs(before));
}

class Contexts : public TaloTest {
protected:
    StrongPtr<ValuePool> const pool_{new ValuePool("pool")};
    StrongPtr<ValuePool> const other_{new ValuePool("other")};
};

TEST_F(Contexts, WithoutAnAddendumMakeOneThatHoldsThePool) {
    StrongPtr<VContext::Addendum> kept;
    {
        VContext const context(pool_, nullptr);
        EXPECT_EQ(context.pool(), pool_);
        kept = context.addendum();
    }
    ASSERT_TRUE(kept);
    EXPECT_EQ(kept->pool(), pool_);
}

TEST_F(Contexts, KeepAGivenAddendum) {
    StrongPtr<VContext::Addendum> const addendum(new VContext::Addendum(other_));
    VContext const context(pool_, addendum);
    EXPECT_EQ(context.pool(), pool_);
    EXPECT_EQ(context.addendum(), addendum);
    EXPECT_EQ(addendum->pool(), other_);
}

TEST_F(Contexts, TakeThePoolFromTheAddendum) {
    VContext const context(StrongPtr<VContext::Addendum>(new VContext::Addendum(pool_)));
    EXPECT_EQ(context.pool(), pool_);
    VContext const empty((StrongPtr<VContext::Addendum>()));
    EXPECT_FALSE(empty.pool());
    EXPECT_FALSE(empty.addendum());
}

TEST_F(Contexts, MayBelongToNoPool) {
    VContext const context(nullptr, nullptr);
    EXPECT_FALSE(context.pool());
    ASSERT_TRUE(context.addendum());
    EXPECT_FALSE(context.addendum()->pool());
}

TEST_F(Notification, ListsForgetTheDeadWithTheNextNewcomer) {
    struct List : ValueNotifierList {
        using ValueNotifierList::remembered;
    };
    List const list;
    for (int count = 0; count < 100; ++count)
        list.addNotifier(Recorder().ref());
    Recorder brief;
    list.addNotifier(brief.ref());
    list.addNotifier(a_.ref());
    EXPECT_EQ(list.remembered(), 2u);
    EXPECT_EQ(list.size(), 2u);
}

} // namespace

#include "support/TaloTest.hpp"
#include <lattice/ActionNotifier.hpp>
#include <lattice/Object.hpp>
#include <lattice/Scheduler.hpp>
#include <limits>
#include <memory>

namespace {

using Kolt::makeValue;
using Kolt::ObjectPtr;
using Kolt::ParameterPtr;
using Kolt::ValuePool;
using Kolt::VManagedDomainObject;
using Kolt::VManagedObject;
using Kolt::VManagedObjectBase;
using Kolt::VManagedObjectIterator;
using Kolt::VObject;
using Kolt::VParameter;
using Kolt::VScheduler;
using Kolt::VSlot;
using Tessera::StrongPtr;
using testing::ElementsAre;
using testing::IsEmpty;

struct Domain : VManagedDomainObject<Domain> {
    using VManagedDomainObject::VManagedDomainObject;
};
struct OtherDomain : VManagedDomainObject<OtherDomain> {
    using VManagedDomainObject::VManagedDomainObject;
};

struct Walk : VManagedObjectIterator {
    bool visit(VManagedObject& object) override {
        names.push_back(object.Name());
        if (action)
            action();
        return names.size() < limit;
    }
    std::vector<std::string> names;
    std::size_t limit = 100;
    std::function<void()> action;
};

class ManagedObjects : public TaloTest {
protected:
    std::vector<std::string> walk(int lowest = -100, int highest = 100) {
        walk_.names.clear();
        VManagedObject::traverse(typeid(Domain), walk_, lowest, highest);
        return walk_.names;
    }
    Walk walk_;
};

TEST_F(ManagedObjects, AreShownInOrderOfTheirLifeAndByDomain) {
    Domain const first("first");
    OtherDomain const other("other");
    Domain const second("second");
    EXPECT_THAT(walk(), ElementsAre("first", "second"));
    VManagedObject::traverse(typeid(OtherDomain), walk_, 0, 0);
    EXPECT_THAT(walk_.names, ElementsAre("first", "second", "other"));
    VManagedObject::traverse(typeid(int), walk_, -100, 100);
    EXPECT_THAT(walk_.names, testing::SizeIs(3));
}

TEST_F(ManagedObjects, AreShownWhenTheirPriorityLiesBetweenTheBoundsInclusive) {
    Domain const low("low", -1);
    Domain const middle("middle");
    Domain const high("high", 1);
    EXPECT_THAT(walk(-1, 1), ElementsAre("low", "middle", "high"));
    EXPECT_THAT(walk(0, 0), ElementsAre("middle"));
    EXPECT_THAT(walk(1, 50), ElementsAre("high"));
    EXPECT_THAT(walk(1, -1), IsEmpty());
}

TEST_F(ManagedObjects, AWalkEndsAtTheFirstNo) {
    Domain const first("first");
    Domain const second("second");
    walk_.limit = 1;
    EXPECT_THAT(walk(), ElementsAre("first"));
}

TEST_F(ManagedObjects, AWalkShowsASnapshotWithoutWhatDies) {
    Domain const first("first");
    auto second = std::make_unique<Domain>("second");
    Domain const third("third");
    std::unique_ptr<Domain> made;
    walk_.action = [&] {
        second.reset();
        if (!made)
            made = std::make_unique<Domain>("made");
    };
    EXPECT_THAT(walk(), ElementsAre("first", "third"));
    EXPECT_THAT(walk(), ElementsAre("first", "third", "made"));
}

TEST_F(ManagedObjects, TheOneShownMayDie) {
    auto first = std::make_unique<Domain>("first");
    Domain const second("second");
    walk_.action = [&] { first.reset(); };
    EXPECT_THAT(walk(), ElementsAre("first", "second"));
}

TEST_F(ManagedObjects, AnAdoptedOneLivesUntilItsVisitEnds) {
    StrongPtr<Domain, VManagedObjectBase> only(new Domain("only"));
    Tessera::WeakPtr<Domain, VManagedObjectBase> const watched(only);
    walk_.action = [&] {
        only.reset();
        EXPECT_TRUE(watched.alive());
    };
    EXPECT_THAT(walk(), ElementsAre("only"));
    EXPECT_FALSE(watched.alive());
}

struct Working : VObject {
    Working(std::string const& name, std::vector<std::string>& log) : VObject(name), log_(log) {}
    void run(StrongPtr<ValuePool> const& pool) override {
        log_.push_back(Name() + "/" + (pool ? pool->Name() : "none"));
        if (work)
            work();
    }
    std::function<void()> work;
    std::vector<std::string>& log_;
};

class Objects : public TaloTest {
protected:
    ObjectPtr const object_{new VObject("object")};
    ParameterPtr const a_{new VParameter("a", makeValue(1))};
    ParameterPtr const b_{new VParameter("b", makeValue(2))};
};

TEST_F(Objects, OwnTheirParametersInOrder) {
    object_->addParameter(b_);
    object_->addParameter(a_);
    object_->addParameter(nullptr);
    EXPECT_THAT(object_->parameters(), ElementsAre(b_, a_));
    EXPECT_EQ(object_->findParameter("a"), a_);
    EXPECT_FALSE(object_->findParameter("c"));
}

TEST_F(Objects, OfManyParametersEachIsFoundByItsName) {
    constexpr int count = 1000;
    for (int number = 0; number < count; ++number)
        object_->addParameter(ParameterPtr(new VParameter("p" + std::to_string(number), makeValue(number))));
    EXPECT_EQ(object_->findParameter("p999"), object_->parameters().back());
    EXPECT_FALSE(object_->findParameter("a"));
    object_->addParameter(a_);
    EXPECT_EQ(object_->findParameter("a"), a_);
    // The first one of a name.
    object_->addParameter(ParameterPtr(new VParameter("a", makeValue(3))));
    EXPECT_EQ(object_->findParameter("a"), a_);
    object_->removeParameter(a_);
    EXPECT_EQ(object_->findParameter("a"), object_->parameters().back());
    object_->removeParameter(object_->parameters().front());
    EXPECT_FALSE(object_->findParameter("p0"));
    EXPECT_EQ(object_->findParameter("p1"), object_->parameters().front());
    EXPECT_EQ(a_->object(), nullptr);
    EXPECT_EQ(object_->parameters().back()->object(), object_.get());
}

TEST_F(Objects, AParameterThatIsGivenUpDies) {
    ParameterPtr passing(new VParameter("passing", makeValue(1)));
    Tessera::WeakPtr<VParameter, Kolt::ValueNotifierList> const watched(passing);
    object_->addParameter(passing);
    passing.reset();
    EXPECT_TRUE(watched.alive());
    object_->removeParameter(object_->findParameter("passing"));
    EXPECT_FALSE(watched.alive());
    EXPECT_FALSE(object_->findParameter("passing"));
    object_->removeParameter(a_);
    object_->removeParameter(nullptr);
    EXPECT_THAT(object_->parameters(), IsEmpty());
}

TEST_F(Objects, AParameterMayBeGivenUpByItsOwnReferenceInTheList) {
    object_->addParameter(ParameterPtr(new VParameter("first", makeValue(1))));
    object_->addParameter(b_);
    object_->removeParameter(object_->parameters().front());
    EXPECT_THAT(object_->parameters(), ElementsAre(b_));
}

TEST_F(Objects, NameTheirParametersInMessages) {
    EXPECT_EQ(a_->fullName(), "a");
    object_->addParameter(a_);
    EXPECT_EQ(a_->fullName(), "object.a");
    ObjectPtr other(new VObject("other"));
    other->addParameter(a_);
    EXPECT_EQ(a_->fullName(), "other.a");
    object_->removeParameter(a_);
    EXPECT_EQ(a_->fullName(), "other.a");
    other.reset();
    EXPECT_EQ(a_->fullName(), "a");
}

TEST_F(Objects, TheFirstSlotBoundToAParameterIsFound) {
    StrongPtr<VSlot> const first(new VSlot("first", a_));
    object_->addSlot(first);
    object_->addSlot(StrongPtr<VSlot>(new VSlot("second", a_)));
    object_->addSlot(nullptr);
    EXPECT_THAT(object_->slotList(), testing::SizeIs(2));
    EXPECT_EQ(object_->findSlot(a_), first);
    EXPECT_EQ(object_->findSlot(a_)->Name(), "first");
    EXPECT_FALSE(object_->findSlot(b_));
    EXPECT_FALSE(object_->findSlot(nullptr));
}

TEST_F(Objects, ASlotOfADeadParameterIsNotFoundForNull) {
    object_->addSlot(StrongPtr<VSlot>(new VSlot("dead", ParameterPtr(new VParameter("x", makeValue(1))))));
    EXPECT_FALSE(object_->slotList().front()->parameter());
    EXPECT_FALSE(object_->findSlot(nullptr));
    EXPECT_FALSE(object_->findSlot(a_));
}

class Scheduler : public TaloTest {
protected:
    void SetUp() override { ASSERT_EQ(VScheduler::waiting(), 0); }
    void TearDown() override {
        VScheduler::setWakeUp({});
        EXPECT_EQ(VScheduler::waiting(), 0);
    }
    StrongPtr<Working, VManagedObjectBase> object(std::string const& name) {
        return StrongPtr<Working, VManagedObjectBase>(new Working(name, log_));
    }
    std::vector<std::string> log_;
    StrongPtr<ValuePool> const pool_{new ValuePool("pool")};
};

TEST_F(Scheduler, RunsNothingByItself) {
    auto const a = object("a");
    VScheduler::schedule(a, 0.0, pool_);
    EXPECT_EQ(VScheduler::waiting(), 1);
    EXPECT_THAT(log_, IsEmpty());
    EXPECT_EQ(VScheduler::runDue(), 1);
    EXPECT_THAT(log_, ElementsAre("a/pool"));
    EXPECT_EQ(VScheduler::runDue(), 0);
}

TEST_F(Scheduler, RunsWhatIsDueInOrderOfTimeThenOfArrival) {
    auto const a = object("a");
    auto const b = object("b");
    auto const c = object("c");
    auto const past = VScheduler::clock() / 2;
    VScheduler::schedule(a, past, pool_);
    VScheduler::schedule(b, 0.0, nullptr);
    VScheduler::schedule(c, -5.0, pool_);
    VScheduler::schedule(b, 0.0, pool_);
    EXPECT_EQ(VScheduler::nextTime(), 0.0);
    ASSERT_TRUE(waitUntil([&] { return VScheduler::clock() >= past; }));
    EXPECT_EQ(VScheduler::runDue(), 4);
    EXPECT_THAT(log_, ElementsAre("b/none", "c/pool", "b/pool", "a/pool"));
    EXPECT_LT(VScheduler::nextTime(), 0.0) << "nothing waits";
}

TEST_F(Scheduler, WhatLiesInTheFutureWaits) {
    auto const soon = object("soon");
    auto const now = object("now");
    auto const time = VScheduler::clock() + 0.02;
    VScheduler::schedule(soon, time, nullptr);
    EXPECT_EQ(VScheduler::nextTime(), time);
    VScheduler::schedule(now, 0.0, nullptr);
    ASSERT_TRUE(waitUntil([&] {
        VScheduler::runDue();
        return log_.size() == 2;
    }));
    EXPECT_GE(VScheduler::clock(), time);
    EXPECT_THAT(log_, ElementsAre("now/none", "soon/none"));
}

TEST_F(Scheduler, WhatIsNoNumberIsDueAtOnce) {
    auto const a = object("a");
    VScheduler::schedule(a, std::numeric_limits<double>::quiet_NaN(), nullptr);
    EXPECT_EQ(VScheduler::runDue(), 1);
}

TEST_F(Scheduler, WhatIsScheduledMeanwhileWaitsForTheNextCall) {
    auto const a = object("a");
    a->work = [&] { VScheduler::schedule(a, 0.0, nullptr); };
    VScheduler::schedule(a, 0.0, nullptr);
    EXPECT_EQ(VScheduler::runDue(), 1);
    a->work = {};
    EXPECT_EQ(VScheduler::runDue(), 1);
    EXPECT_EQ(log_.size(), 2U);
}

TEST_F(Scheduler, DeadAndNullObjectsDoNotRun) {
    auto a = object("a");
    auto b = object("b");
    VScheduler::schedule(nullptr, 0.0, nullptr);
    EXPECT_EQ(VScheduler::waiting(), 0);
    VScheduler::schedule(a, 0.0, nullptr);
    VScheduler::schedule(b, 0.0, nullptr);
    a->work = [&] { b.reset(); };
    EXPECT_EQ(VScheduler::runDue(), 1);
    EXPECT_THAT(log_, ElementsAre("a/none"));
}

TEST_F(Scheduler, WakesTheEventLoopAfterEachEntry) {
    int calls = 0;
    auto const a = object("a");
    VScheduler::setWakeUp([&] { calls += VScheduler::waiting(); });
    VScheduler::schedule(a, 0.0, nullptr);
    VScheduler::schedule(nullptr, 0.0, nullptr);
    EXPECT_EQ(calls, 1);
    VScheduler::setWakeUp({});
    VScheduler::schedule(a, 0.0, nullptr);
    EXPECT_EQ(calls, 1);
    EXPECT_EQ(VScheduler::runDue(), 2);
}

struct Notifier : Kolt::VActionNotifier {
    Notifier(std::string notifierName, std::vector<std::string>& notified)
        : name(std::move(notifierName)), log(notified) {}
    void onWarning(std::string const& text) override {
        log.push_back(name + ": " + text);
        if (action)
            action();
    }
    std::string name;
    std::vector<std::string>& log;
    std::function<void()> action;
};

class ActionNotifiers : public TaloTest {
protected:
    std::vector<std::string> log_;
};

TEST_F(ActionNotifiers, AreAllWarnedInTheOrderInWhichTheyWereMade) {
    Notifier const first("first", log_);
    Notifier const second("second", log_);
    Kolt::VActionNotifier::Warning("careful");
    EXPECT_THAT(log_, ElementsAre("first: careful", "second: careful"));
}

TEST_F(ActionNotifiers, MayComeAndGoDuringAWarning) {
    Notifier first("first", log_);
    auto second = std::make_unique<Notifier>("second", log_);
    std::unique_ptr<Notifier> third;
    first.action = [&] {
        second.reset();
        third = std::make_unique<Notifier>("third", log_);
    };
    Kolt::VActionNotifier::Warning("careful");
    EXPECT_THAT(log_, ElementsAre("first: careful"));
}

TEST_F(ActionNotifiers, WithoutOneTheTextGoesToStandardError) {
    testing::internal::CaptureStderr();
    Kolt::VActionNotifier::Warning("careful");
    EXPECT_EQ(testing::internal::GetCapturedStderr(), "careful\n");
    Notifier const first("first", log_);
    testing::internal::CaptureStderr();
    Kolt::VActionNotifier::Warning("careful");
    EXPECT_EQ(testing::internal::GetCapturedStderr(), "");
}

} // namespace

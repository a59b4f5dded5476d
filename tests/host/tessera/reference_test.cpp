#include "support/TaloTest.hpp"
#include <tessera/Ageable.hpp>
#include <tessera/Reference.hpp>

namespace {

using Tessera::DynPtr;
using Tessera::PointerID;
using Tessera::ReferenceBase;
using Tessera::SpeakPtr;
using Tessera::StrongPtr;
using Tessera::WeakPtr;
using testing::ElementsAre;
using testing::IsEmpty;

struct Counted : ReferenceBase<Counted> {
    explicit Counted(int* deaths = nullptr) : deaths_(deaths) {}
    ~Counted() override {
        if (deaths_)
            ++*deaths_;
    }
    int* deaths_;
};

/// Has its reference counters in a virtual base.
struct Left : virtual ReferenceBase<Left> {};
struct Both : Left {
    int number = 3;
};

/// Collects the reports.
struct Listener : SpeakPtr {
    Listener() { setSpeaker(this); }
    ~Listener() override { setSpeaker(nullptr); }
    void SelfConstruction(std::type_info const& type, void const*, void const*) override {
        reports.push_back("self construction of " +
                          Tessera::Typename(type).substr(Tessera::Typename(type).rfind(':') + 1));
    }
    void DestructionAssertion(int strong, int weak, std::type_info const&) override { add("destroyed", strong, weak); }
    void DestructionCancelled(int strong, int weak, std::type_info const&) override { add("cancelled", strong, weak); }
    void WarningUnctionChange(int strong, int weak, std::type_info const&) override {
        add("adopted late", strong, weak);
    }
    void add(std::string const& what, int strong, int weak) {
        reports.push_back(what + " " + std::to_string(strong) + " " + std::to_string(weak));
    }
    std::vector<std::string> reports;
};

class References : public TaloTest {
protected:
    void TearDown() override { EXPECT_THAT(listener_.reports, IsEmpty()); }
    Listener listener_;
    int deaths_ = 0;
};

TEST_F(References, AnAdoptedObjectGoesWithItsLastStrongReference) {
    StrongPtr<Counted> first(new Counted(&deaths_));
    auto second = first;
    WeakPtr<Counted> const weak(first);
    first.reset();
    EXPECT_EQ(deaths_, 0);
    EXPECT_TRUE(weak.alive());
    second = nullptr;
    EXPECT_EQ(deaths_, 1);
    EXPECT_FALSE(weak.alive());
    EXPECT_FALSE(weak.strong());
}

TEST_F(References, AWatchedObjectIsNeverDeletedByThem) {
    Counted object(&deaths_);
    WeakPtr<Counted> const weak(&object);
    {
        auto const strong = weak.strong();
        ASSERT_TRUE(strong);
        EXPECT_EQ(strong.get(), &object);
    }
    EXPECT_EQ(deaths_, 0);
    EXPECT_TRUE(weak.alive());
    EXPECT_TRUE(weak.strong());
}

TEST_F(References, TheDestructorOfAWatchedObjectEmptiesWeakAndStrongOnes) {
    auto object = std::make_unique<Counted>(&deaths_);
    WeakPtr<Counted> const weak(object.get());
    WeakPtr<Counted> const copy(weak);
    auto const strong = weak.strong();
    object.reset();
    EXPECT_EQ(deaths_, 1);
    EXPECT_FALSE(weak.alive());
    EXPECT_FALSE(copy);
    EXPECT_FALSE(weak.strong());
    EXPECT_FALSE(strong);
    EXPECT_EQ(strong.get(), nullptr);
    EXPECT_TRUE(strong == nullptr);
}

TEST_F(References, NullAndEmptyOnesAreHarmless) {
    StrongPtr<Counted> const strong;
    WeakPtr<Counted> const weak;
    EXPECT_FALSE(strong);
    EXPECT_FALSE(weak);
    EXPECT_FALSE(weak.strong());
    EXPECT_FALSE(StrongPtr<Counted>(static_cast<Counted*>(nullptr)));
    EXPECT_FALSE(WeakPtr<Counted>(static_cast<Counted*>(nullptr)));
    EXPECT_FALSE(WeakPtr<Counted>(strong));
    EXPECT_TRUE(weak == WeakPtr<Counted>());
    EXPECT_FALSE((DynPtr<Counted>(strong)));
    StrongPtr<Counted> const copy(strong);
    EXPECT_EQ(copy, strong);
}

TEST_F(References, AssignmentToItselfKeepsTheObject) {
    StrongPtr<Counted> strong(new Counted(&deaths_));
    auto& same = strong;
    strong = same;
    EXPECT_TRUE(strong);
    EXPECT_EQ(deaths_, 0);
}

TEST_F(References, AMovedReferenceTakesItsCountAlong) {
    StrongPtr<Counted> first(new Counted(&deaths_));
    auto const second = std::move(first);
    EXPECT_FALSE(first); // NOLINT(bugprone-use-after-move): empty is what is promised
    EXPECT_TRUE(second);
    EXPECT_EQ(deaths_, 0);
}

TEST_F(References, EveryCopyGetsItsOwnNumber) {
    auto const start = PointerID.load();
    StrongPtr<Counted> const first(new Counted);
    EXPECT_EQ(first.id(), start + 1);
    auto const second = first;
    EXPECT_EQ(second.id(), start + 2);
    WeakPtr<Counted> const weak(second);
    EXPECT_EQ(weak.id(), start + 3);
    auto const weakCopy = weak;
    EXPECT_EQ(weakCopy.id(), start + 4);
    EXPECT_EQ(weakCopy.strong().id(), start + 5);
    EXPECT_EQ(PointerID, start + 5);
    StrongPtr<Counted> const empty;
    auto const emptyCopy = empty;
    EXPECT_EQ(emptyCopy.id(), 0U);
}

TEST_F(References, WeakOnesCompareByObjectAlsoWhenItIsGone) {
    WeakPtr<Counted> first;
    WeakPtr<Counted> second;
    WeakPtr<Counted> other;
    {
        StrongPtr<Counted> const object(new Counted);
        first = object;
        second = object;
        StrongPtr<Counted> const another(new Counted);
        other = another;
    }
    EXPECT_TRUE(first == second);
    EXPECT_TRUE(first != other);
    EXPECT_TRUE(first != WeakPtr<Counted>());
}

TEST_F(References, ConvertThroughAVirtualBase) {
    StrongPtr<Both, ReferenceBase<Left>> const both(new Both);
    StrongPtr<Left, ReferenceBase<Left>> const left(both);
    WeakPtr<Both, ReferenceBase<Left>> const weak(both);
    WeakPtr<Left, ReferenceBase<Left>> const weakLeft(weak);
    EXPECT_EQ(weakLeft.strong(), left);
    DynPtr<Both, ReferenceBase<Left>> const again(left);
    ASSERT_TRUE(again);
    EXPECT_EQ(again->number, 3);
}

TEST_F(References, ACopiedObjectHasCountersOfItsOwn) {
    StrongPtr<Counted> const first(new Counted(&deaths_));
    {
        StrongPtr<Counted> const second(new Counted(*first));
        EXPECT_NE(first->referenceControl(), second->referenceControl());
    }
    EXPECT_EQ(deaths_, 1);
}

TEST_F(References, AnObjectCanGiveOutWeakOnesInItsConstructorAndDestructor) {
    struct Self : ReferenceBase<Self> {
        explicit Self(bool* aliveInDestructor) : self_(this), alive_(aliveInDestructor) {}
        ~Self() override { *alive_ = static_cast<bool>(WeakPtr<Self>(this).strong()); }
        WeakPtr<Self> self_;
        bool* alive_;
    };
    bool aliveInDestructor = true;
    {
        StrongPtr<Self> const object(new Self(&aliveInDestructor));
        EXPECT_EQ(object->self_.strong(), object);
    }
    EXPECT_FALSE(aliveInDestructor) << "an object that is being deleted cannot be held again";
}

TEST_F(References, AStrongOneMadeInTheConstructorIsReported) {
    struct Base : ReferenceBase<Base> {
        Base() : self(this) {}
        StrongPtr<Base> self;
    };
    struct SelfMade : Base {};
    StrongPtr<SelfMade, Base> const object(new SelfMade);
    ASSERT_EQ(listener_.reports.size(), 1U);
    EXPECT_THAT(listener_.reports[0], testing::HasSubstr("SelfMade"));
    listener_.reports.clear();
    object->self.reset();
}

TEST_F(References, LateAdoptionOfAWatchedObjectIsReported) {
    auto* const object = new Counted(&deaths_);
    {
        auto const watching = WeakPtr<Counted>(object).strong();
        StrongPtr<Counted> const owner(object);
        EXPECT_THAT(listener_.reports, ElementsAre("adopted late 2 0"));
    }
    EXPECT_EQ(deaths_, 1) << "all strong references own it from the adoption on";
    listener_.reports.clear();
}

TEST_F(References, DeletionOfAnAdoptedObjectBehindItsReferencesIsReported) {
    auto* const object = new Counted(&deaths_);
    StrongPtr<Counted> const strong(object);
    WeakPtr<Counted> const weak(strong);
    delete object;
    EXPECT_THAT(listener_.reports, ElementsAre("destroyed 1 1"));
    EXPECT_FALSE(strong);
    EXPECT_FALSE(weak.strong());
    listener_.reports.clear();
}

TEST_F(References, TheReferenceHookCanCancelTheDeletion) {
    struct Clinging : Counted {
        using Counted::Counted;
        void referenceHook() override {
            if (cling)
                saved = StrongPtr<Counted>(this);
            cling = false;
        }
        bool cling = true;
        StrongPtr<Counted> saved;
    };
    auto* const object = new Clinging(&deaths_);
    StrongPtr<Counted> strong(object);
    strong.reset();
    EXPECT_EQ(deaths_, 0);
    EXPECT_THAT(listener_.reports, ElementsAre("cancelled 1 0"));
    listener_.reports.clear();

    strong = std::move(object->saved);
    strong.reset();
    EXPECT_EQ(deaths_, 1);
}

TEST_F(References, AReferenceHookThatTakesAndDropsAReferenceDeletesTheObjectOnce) {
    struct Looking : Counted {
        Looking(int* deaths, int& hooks) : Counted(deaths), hooks_(hooks) {}
        void referenceHook() override {
            // Stops the recursion if dropping a reference in the hook calls the hook again.
            if (++hooks_ > 3)
                return;
            StrongPtr<Counted>(this).reset();
            WeakPtr<Counted>(this).strong().reset();
        }
        int& hooks_;
    };
    int hooks = 0;
    StrongPtr<Counted> strong(new Looking(&deaths_, hooks));
    WeakPtr<Counted> const weak(strong);
    strong.reset();
    EXPECT_EQ(deaths_, 1);
    EXPECT_EQ(hooks, 1);
    EXPECT_FALSE(weak.alive());
}

TEST_F(References, TheFirstSpeakerWritesOneLineToStandardError) {
    SpeakPtr::setSpeaker(nullptr);
    auto& first = SpeakPtr::theSpeaker();
    testing::internal::CaptureStderr();
    first.SelfConstruction(typeid(int), nullptr, nullptr);
    first.DestructionAssertion(1, 0, typeid(int));
    first.DestructionCancelled(1, 0, typeid(int));
    first.WarningUnctionChange(1, 0, typeid(int));
    EXPECT_EQ(testing::internal::GetCapturedStderr(), "int: a strong reference was made inside the constructor\n"
                                                      "int: deleted while strong references stand\n"
                                                      "int: deletion cancelled by a new strong reference\n"
                                                      "int: adopted although it was only watched until now\n");
    SpeakPtr::setSpeaker(&listener_);
    EXPECT_EQ(&SpeakPtr::theSpeaker(), &listener_);
}

TEST_F(References, AgesAreCountedByTheGlobalTime) {
    struct Thing : Tessera::Ageable {};
    Thing thing;
    Thing other;
    EXPECT_EQ(thing.age(), 0U);
    auto const time = Tessera::Ageable::GlobalTime.load();
    thing.renewAge();
    EXPECT_EQ(thing.age(), time + 1);
    other.renewAge();
    EXPECT_EQ(other.age(), time + 2);
    EXPECT_EQ(thing.age(), time + 1);
    EXPECT_EQ(Tessera::Ageable::GlobalTime, time + 2);
}

} // namespace

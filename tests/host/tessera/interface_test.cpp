#include "support/TaloTest.hpp"
#include <tessera/Intercube.hpp>
#include <tessera/MutableName.hpp>

namespace {

using Tessera::Intercube;
using Tessera::Interface;
using Tessera::InterfaceBase;
using Tessera::InterfaceIterationParameter;
using Tessera::StrongPtr;
using Tessera::WeakPtr;

struct Colour : Interface<Colour> {
    explicit Colour(std::string text) : name(std::move(text)) {}
    std::string name;
};

struct Sound : Interface<Sound> {
    std::string name = "sound";
};

struct Walk : InterfaceIterationParameter {
    bool visit(Intercube const& carrier, InterfaceBase const& interface) override {
        carriers.push_back(&carrier);
        if (auto const* const colour = dynamic_cast<Colour const*>(&interface))
            seen.push_back(colour->name);
        else
            seen.emplace_back("sound");
        return seen.size() < limit;
    }
    std::size_t limit = 100;
    std::vector<std::string> seen;
    std::vector<Intercube const*> carriers;
};

class Interfaces : public TaloTest {
protected:
    void add(InterfaceBase* interface) { cube_.addInterface(StrongPtr<InterfaceBase>(interface)); }
    Intercube cube_;
    StrongPtr<Walk, InterfaceIterationParameter> const walk_{new Walk};
};

TEST_F(Interfaces, AreFoundByTheirType) {
    EXPECT_FALSE(cube_.getInterface<Colour>());
    add(new Colour("red"));
    add(new Sound);
    ASSERT_TRUE(cube_.getInterface<Colour>());
    EXPECT_EQ(cube_.getInterface<Colour>()->name, "red");
    EXPECT_EQ(cube_.getInterface<Sound>()->name, "sound");
    EXPECT_EQ(cube_.findInterface(typeid(Sound)), cube_.getInterface<Sound>());
    EXPECT_FALSE(cube_.findInterface(typeid(int)));
}

TEST_F(Interfaces, TheOneAttachedLaterIsFound) {
    add(new Colour("red"));
    add(new Colour("blue"));
    EXPECT_EQ(cube_.getInterface<Colour>()->name, "blue");
}

TEST_F(Interfaces, LiveAsLongAsTheirCarrier) {
    WeakPtr<InterfaceBase> attached;
    {
        Intercube const carrier;
        StrongPtr<InterfaceBase> interface(new Sound);
        attached = interface;
        carrier.addInterface(interface);
        interface.reset();
        EXPECT_TRUE(attached.alive());
    }
    EXPECT_FALSE(attached.alive());
}

TEST_F(Interfaces, NullIsNotAttached) {
    cube_.addInterface(nullptr);
    EXPECT_TRUE(cube_.applyInterfaces(walk_));
    EXPECT_TRUE(walk_->seen.empty());
}

TEST_F(Interfaces, AWalkShowsThemInTheOrderInWhichTheyWereAttached) {
    add(new Colour("red"));
    add(new Sound);
    add(new Colour("blue"));
    EXPECT_TRUE(cube_.applyInterfaces(walk_));
    EXPECT_THAT(walk_->seen, testing::ElementsAre("red", "sound", "blue"));
    EXPECT_THAT(walk_->carriers, testing::Each(&cube_));

    walk_->seen.clear();
    EXPECT_TRUE(std::as_const(cube_).applyInterfaces(walk_));
    EXPECT_THAT(walk_->seen, testing::ElementsAre("red", "sound", "blue"));
}

TEST_F(Interfaces, AWalkEndsAtTheFirstThatSaysNo) {
    add(new Colour("red"));
    add(new Sound);
    add(new Colour("blue"));
    walk_->limit = 2;
    EXPECT_FALSE(cube_.applyInterfaces(walk_));
    EXPECT_THAT(walk_->seen, testing::ElementsAre("red", "sound"));
}

TEST_F(Interfaces, AWalkWithoutAParameterAgrees) {
    add(new Sound);
    EXPECT_TRUE(cube_.applyInterfaces(nullptr));
    EXPECT_TRUE(std::as_const(cube_).applyInterfaces(nullptr));
}

TEST_F(Interfaces, OneAttachedDuringAWalkIsNotShown) {
    struct Adding : InterfaceIterationParameter {
        bool visit(Intercube const& carrier, InterfaceBase const&) override {
            carrier.addInterface(StrongPtr<InterfaceBase>(new Sound));
            return ++visits < 100;
        }
        int visits = 0;
    };
    add(new Sound);
    StrongPtr<Adding, InterfaceIterationParameter> const adding(new Adding);
    EXPECT_TRUE(cube_.applyInterfaces(adding));
    EXPECT_EQ(adding->visits, 1);
}

TEST_F(Interfaces, ANameCanBeChanged) {
    struct Thing : Tessera::MutableName {
        using MutableName::MutableName;
    };
    Thing thing("before");
    EXPECT_EQ(thing.Name(), "before");
    thing.setName("after");
    EXPECT_EQ(thing.Name(), "after");
}

} // namespace

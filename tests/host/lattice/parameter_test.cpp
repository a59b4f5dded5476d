#include "support/TaloTest.hpp"
#include <bramble/Action.hpp>
#include <bramble/Color.hpp>
#include <bramble/FlagList.hpp>
#include <bramble/Info.hpp>
#include <bramble/ObjectStatus.hpp>
#include <lattice/Parameter.hpp>
#include <lattice/ValuePoolSource.hpp>

namespace {

using Kolt::makeValue;
using Kolt::ParameterPtr;
using Kolt::valueOr;
using Kolt::ValuePool;
using Kolt::VParameter;
using Kolt::VValueBase;
using Tessera::StrongPtr;

/// A type that the libraries do not know.
struct Size {
    int width = 0;
    bool operator==(Size const& other) const { return width == other.width; }
};

int number(StrongPtr<VValueBase> const& value) {
    return valueOr<int>(value, -1);
}

class Parameters : public TaloTest {
protected:
    ParameterPtr const shared_{new VParameter("object.count", makeValue(5))};
    ParameterPtr const perPool_{new VParameter("size", makeValue(5), VParameter::Values::PerPool)};
    StrongPtr<ValuePool> const pool_{new ValuePool("one")};
    StrongPtr<ValuePool> const other_{new ValuePool("one")};
};

TEST_F(Parameters, KnowTheirNameTypeAndWayOfKeepingValues) {
    EXPECT_EQ(shared_->Name(), "object.count");
    EXPECT_EQ(shared_->declaredType(), "int");
    EXPECT_FALSE(shared_->keepsValuesPerPool());
    EXPECT_TRUE(perPool_->keepsValuesPerPool());
    EXPECT_FALSE(shared_->creationPreferences());
    EXPECT_EQ(VParameter("x", makeValue(1), VParameter::Values::Shared, "double").declaredType(), "double");
}

TEST_F(Parameters, OfOneTypeShareItsName) {
    EXPECT_EQ(&shared_->declaredType(), &perPool_->declaredType());
    VParameter const declared("declared", makeValue(0.5), VParameter::Values::Shared, "int");
    EXPECT_EQ(&declared.declaredType(), &shared_->declaredType());
    VParameter const other("other", makeValue(0.5));
    EXPECT_NE(&other.declaredType(), &shared_->declaredType());
}

TEST_F(Parameters, WithOneValueGiveItForEveryPool) {
    for (bool const create : {false, true}) {
        EXPECT_EQ(shared_->getLocalValue(pool_, "", create), shared_->ownValue());
        EXPECT_EQ(shared_->getLocalValue(nullptr, "", create), shared_->ownValue());
    }
    EXPECT_FALSE(shared_->freshLocalValue(pool_));
}

TEST_F(Parameters, WithValuesPerPoolGiveNoneThatWasNotMade) {
    EXPECT_FALSE(perPool_->getLocalValue(pool_, "", false));
    EXPECT_FALSE(perPool_->getLocalValue(nullptr, "", false));
    EXPECT_FALSE(perPool_->getLocalValue(nullptr, "", true)) << "there is nothing to make for no pool";
}

TEST_F(Parameters, MakeThePoolsValueAsACopyOfTheirOwn) {
    auto const made = perPool_->getLocalValue(pool_, "", true);
    ASSERT_TRUE(made);
    EXPECT_NE(made, perPool_->ownValue());
    EXPECT_EQ(number(made), 5);
    EXPECT_EQ(perPool_->getLocalValue(pool_, "", false), made);
    EXPECT_EQ(perPool_->getLocalValue(pool_, "", true), made) << "made once";
    EXPECT_EQ(perPool_->getLocalValue(pool_, "member", false), made) << "the member is not used";

    EXPECT_TRUE(made->setValueFromText("8"));
    EXPECT_EQ(number(perPool_->ownValue()), 5);
    EXPECT_FALSE(perPool_->getLocalValue(other_, "", false)) << "pools of one name are told apart";
    EXPECT_EQ(number(perPool_->getLocalValue(other_, "", true)), 5);
}

TEST_F(Parameters, AFreshValueReplacesThePoolsByANewOneOfTheDeclaredType) {
    auto const old = perPool_->getLocalValue(pool_, "", true);
    auto const fresh = perPool_->freshLocalValue(pool_);
    ASSERT_TRUE(fresh);
    EXPECT_NE(fresh, old);
    EXPECT_EQ(number(fresh), 0);
    EXPECT_EQ(perPool_->getLocalValue(pool_, "", false), fresh);
    EXPECT_EQ(number(perPool_->ownValue()), 5);
}

TEST_F(Parameters, AFreshValueHasTheDeclaredTypeWhereTheOwnOneHasAnother) {
    VParameter const parameter("text", makeValue(3), VParameter::Values::PerPool, "std::string");
    EXPECT_EQ(parameter.getLocalValue(pool_, "", true)->valueType(), typeid(int));
    auto const fresh = parameter.freshLocalValue(pool_);
    ASSERT_TRUE(fresh);
    EXPECT_EQ(fresh->valueType(), typeid(std::string));
    EXPECT_EQ(parameter.getLocalValue(pool_, "", false), fresh);
}

TEST_F(Parameters, AFreshValueThatCannotBeMadeLeavesThePoolsAlone) {
    VParameter const parameter("odd", makeValue(3), VParameter::Values::PerPool, "Nobody::Knows");
    auto const old = parameter.getLocalValue(pool_, "", true);
    EXPECT_FALSE(parameter.freshLocalValue(pool_));
    EXPECT_FALSE(parameter.freshLocalValue(nullptr));
    EXPECT_EQ(parameter.getLocalValue(pool_, "", false), old);
}

TEST_F(Parameters, APoolsValueCanBeTakenAway) {
    auto const kept = perPool_->getLocalValue(other_, "", true);
    perPool_->getLocalValue(pool_, "", true);
    perPool_->removeLocalValue(pool_);
    EXPECT_FALSE(perPool_->getLocalValue(pool_, "", false));
    EXPECT_EQ(perPool_->getLocalValue(other_, "", false), kept);
    perPool_->removeLocalValue(nullptr);
    shared_->removeLocalValue(pool_);
    EXPECT_EQ(number(shared_->ownValue()), 5);
}

TEST_F(Parameters, ALaterPoolDoesNotGetTheValueOfADeadOne) {
    for (int round = 0; round < 20; ++round) {
        StrongPtr<ValuePool> const passing(new ValuePool);
        EXPECT_FALSE(perPool_->getLocalValue(passing, "", false));
        perPool_->getLocalValue(passing, "", true);
    }
}

TEST_F(Parameters, MarkingStampsThePoolsValueOrElseTheirOwn) {
    auto const before = Tessera::Ageable::GlobalTime.load();
    markValueChanged(*perPool_, pool_);
    EXPECT_EQ(perPool_->ownValue()->age(), before + 1);
    EXPECT_EQ(Tessera::Ageable::GlobalTime, before + 1);

    auto const local = perPool_->getLocalValue(pool_, "", true);
    markValueChanged(*perPool_, pool_);
    EXPECT_EQ(local->age(), before + 2);
    EXPECT_EQ(perPool_->ownValue()->age(), before + 1);

    markValueChanged(*shared_, nullptr);
    EXPECT_EQ(shared_->ownValue()->age(), before + 3);
}

TEST_F(Parameters, APlainStoreDoesNotRenewTheAge) {
    auto const before = Tessera::Ageable::GlobalTime.load();
    EXPECT_TRUE(shared_->ownValue()->setValueFromText("9"));
    EXPECT_TRUE(setParameterValue(*shared_, 10, pool_, "", false, {}, nullptr));
    EXPECT_EQ(number(shared_->ownValue()), 10);
    EXPECT_EQ(shared_->ownValue()->age(), 0U);
    EXPECT_EQ(Tessera::Ageable::GlobalTime, before);
}

TEST_F(Parameters, TheSetStepRefusesAnotherTypeAndAMissingValue) {
    EXPECT_FALSE(setParameterValue(*shared_, 1.5, pool_, "", true, {}, nullptr));
    EXPECT_FALSE(setParameterValue(*perPool_, 7, pool_, "", false, {}, nullptr));
    EXPECT_FALSE(setParameterValue(*perPool_, 7, nullptr, "", true, {}, nullptr));
    EXPECT_TRUE(setParameterValue(*perPool_, 7, pool_, "", true, {}, nullptr));
    EXPECT_EQ(number(perPool_->getLocalValue(pool_, "", false)), 7);
    EXPECT_EQ(number(perPool_->ownValue()), 5);
}

TEST_F(Parameters, TheOperationForAMemberDoesNothing) {
    shared_->selectMember("anything");
    EXPECT_EQ(number(shared_->ownValue()), 5);
}

struct FixedSource : Kolt::ValuePoolSource {
    StrongPtr<Kolt::ValuePoolProvider> getValuePoolProvider() const override { return provider; }
    StrongPtr<Kolt::ValuePoolProvider> provider;
};

struct FixedProvider : Kolt::ValuePoolProvider {
    StrongPtr<ValuePool> getValuePool() const override { return pool; }
    StrongPtr<ValuePool> pool;
};

TEST_F(Parameters, TheCurrentPoolIsReadEachTimeAndNullWhereALinkIsMissing) {
    EXPECT_FALSE(currentPool(static_cast<Kolt::ValuePoolSource*>(nullptr)));
    FixedSource source;
    EXPECT_FALSE(currentPool(&source));
    auto* const provider = new FixedProvider;
    source.provider = StrongPtr<Kolt::ValuePoolProvider>(provider);
    EXPECT_FALSE(currentPool(&source));
    EXPECT_FALSE(currentPool(source.provider));
    provider->pool = pool_;
    EXPECT_EQ(currentPool(&source), pool_);
    provider->pool = other_;
    EXPECT_EQ(currentPool(&source), other_);
}

TEST_F(Parameters, ForgetTheValuesOfDeadPoolsWithTheNextNewOne) {
    StrongPtr<ValuePool> brief(new ValuePool("brief"));
    Tessera::WeakPtr<VValueBase> const value(perPool_->getLocalValue(brief, "", true));
    brief.reset();
    EXPECT_TRUE(perPool_->getLocalValue(pool_, "", true));
    EXPECT_FALSE(value.alive());
}

TEST_F(Parameters, AreEditedByPeopleUnlessTheirValuesAreTriggeredOrOnlyShown) {
    EXPECT_TRUE(shared_->isEdited());
    EXPECT_TRUE(VParameter("size", makeValue(Size{3})).isEdited()) << "a type that the libraries do not know";
    EXPECT_TRUE(VParameter("text", makeValue(std::string()), VParameter::Values::Shared, "Foreign").isEdited());
    EXPECT_FALSE(VParameter("action", makeValue(StrongPtr<Kolt::VAction>())).isEdited());
    EXPECT_FALSE(VParameter("info", makeValue(Kolt::info())).isEdited());
    EXPECT_FALSE(VParameter("status", makeValue(Kolt::VObjectStatus())).isEdited());
}

TEST_F(Parameters, MaySayThemselvesWhetherTheyAreEdited) {
    shared_->setEdited(false);
    EXPECT_FALSE(shared_->isEdited());
    shared_->setEdited(true);
    EXPECT_TRUE(shared_->isEdited());
    VParameter note("note", makeValue(Kolt::info()));
    note.setEdited(true);
    EXPECT_TRUE(note.isEdited());
}

} // namespace

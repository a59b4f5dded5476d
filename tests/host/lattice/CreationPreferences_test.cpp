#include "support/TaloTest.hpp"

#include <lattice/CreationPreferences.hpp>
#include <lattice/ValueTrait.hpp>

namespace {

using Kolt::PreferencesPtr;
using Kolt::VCreationPreferences;
using testing::ElementsAre;
using testing::IsEmpty;
using Names = VCreationPreferences::Names;

PreferencesPtr set(Names const& names) {
    return PreferencesPtr(new VCreationPreferences(names));
}

class Preferences : public TaloTest {};

TEST_F(Preferences, AreMadeFromNothingOneNameOrTwo) {
    EXPECT_THAT(VCreationPreferences().names(), IsEmpty());
    EXPECT_THAT(VCreationPreferences(std::string("dial")).names(), ElementsAre("dial"));
    EXPECT_THAT(VCreationPreferences(std::string("periodic"), std::string("dial")).names(),
                ElementsAre("dial", "periodic"));
}

TEST_F(Preferences, TheTwoSetConstructorIsAUnionAndLeavesBothAlone) {
    VCreationPreferences const left(std::string("a"), std::string("b"));
    VCreationPreferences const right(std::string("b"), std::string("c"));
    VCreationPreferences const both(left, right);
    EXPECT_THAT(both.names(), ElementsAre("a", "b", "c"));
    EXPECT_THAT(left.names(), ElementsAre("a", "b"));
    EXPECT_THAT(right.names(), ElementsAre("b", "c"));
}

TEST_F(Preferences, ACopyOfASharedSetIsApartAndOfNoneEmpty) {
    auto const shared = set({"a"});
    VCreationPreferences copy(shared);
    copy += "b";
    EXPECT_THAT(copy.names(), ElementsAre("a", "b"));
    EXPECT_THAT(shared->names(), ElementsAre("a"));
    EXPECT_THAT(VCreationPreferences(PreferencesPtr()).names(), IsEmpty());
}

TEST_F(Preferences, ANameIsAddedOnce) {
    VCreationPreferences preferences;
    preferences += "QT";
    (preferences += "QT") += "dial";
    EXPECT_THAT(preferences.names(), ElementsAre("QT", "dial"));
    EXPECT_TRUE(preferences.contains("QT"));
    EXPECT_FALSE(preferences.contains("qt"));
    EXPECT_FALSE(preferences.contains(""));
}

TEST_F(Preferences, TheEffectiveSetIsTheUnionOrTheOneThatIsGiven) {
    auto const given = set({"a"});
    auto const own = set({"b"});
    EXPECT_THAT(Kolt::mergePreferences(given, own)->names(), ElementsAre("a", "b"));
    EXPECT_EQ(Kolt::mergePreferences(given, nullptr), given);
    EXPECT_EQ(Kolt::mergePreferences(nullptr, own), own);
    EXPECT_FALSE(Kolt::mergePreferences(nullptr, nullptr));
}

TEST_F(Preferences, AreWrittenInBraces) {
    EXPECT_EQ(Kolt::preferenceText({}), "{}");
    EXPECT_EQ(Kolt::preferenceText({"periodic", "dial"}), "{dial, periodic}");
}

TEST_F(Preferences, OfTextsHaveTheirNames) {
    EXPECT_EQ(Kolt::VValueTrait<std::string>::OneLine(), "OneLine");
    EXPECT_EQ(Kolt::VValueTrait<std::string>::MultiLine(), "MultiLine");
}

} // namespace

#include "support/TaloTest.hpp"
#include <lattice/ActionNotifier.hpp>
#include <lattice/HostObserver.hpp>
#include <lattice/Initialization.hpp>
#include <lattice/Input.hpp>
#include <lattice/InputRegistry.hpp>
#include <lattice/ValueCreator.hpp>
#include <memory>

namespace Sample {

struct Shape {
    int corners = 3;
    bool operator==(Shape const& other) const { return corners == other.corners; }
};

} // namespace Sample

namespace {

using Kolt::CreatorRef;
using Kolt::InputRegistry;
using Kolt::makeValue;
using Kolt::PreferencesPtr;
using Kolt::VCreationPreferences;
using Kolt::VInputCreator;
using Kolt::VInputCreatorBase;
using Kolt::VParameter;
using Sample::Shape;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using Creator = VInputCreator<Shape, VInputCreatorBase>;
using Names = VCreationPreferences::Names;

constexpr char const* ApiKey = "TALO_API_VERSION";

PreferencesPtr set(Names const& names) {
    return PreferencesPtr(new VCreationPreferences(names));
}

/// Records the registrations that the host observes.
struct Observer : Kolt::HostObserver {
    Observer() { setObserver(this); }
    ~Observer() override { setObserver(nullptr); }
    void creatorRegistered(std::string const& type, VInputCreatorBase const& creator) override {
        events.push_back("registered " + type + " " + creator.describe());
    }
    void creatorRefused(std::string const& type) override { events.push_back("refused " + type); }
    void creatorUnregistered(std::string const& type, VInputCreatorBase const& creator) override {
        events.push_back("unregistered " + type + " " + creator.describe());
    }
    void valueCreatorRegistered(std::string const& type) override { events.push_back("value " + type); }
    void pluginCalled(Kolt::VInitialization::InitPluginReason reason, std::string const& plugin,
                      std::string const& key) override {
        events.push_back("called " + std::to_string(reason) + " " + plugin + " " + key);
    }
    std::vector<std::string> events;
};

struct Warnings : Kolt::VActionNotifier {
    void onWarning(std::string const& text) override { texts.push_back(text); }
    std::vector<std::string> texts;
};

class Registry : public TaloTest {
protected:
    void TearDown() override { EXPECT_THAT(names(), IsEmpty()) << "a creator takes itself back"; }
    static std::vector<std::string> names() {
        std::vector<std::string> names;
        for (auto const& entry : InputRegistry::theRegistry().entries())
            names.push_back(entry.valueType + " " + entry.creator.strong()->Name());
        return names;
    }
    Observer observer_;
};

TEST_F(Registry, KnowsACreatorFromItsConstructorToItsDestructor) {
    {
        Creator const creator("shape", 2, nullptr, ApiKey);
        EXPECT_EQ(creator.priority(), 2);
        EXPECT_EQ(creator.apiKey(), ApiKey);
        EXPECT_THAT(names(), ElementsAre("Sample::Shape shape"));
        EXPECT_THAT(observer_.events, ElementsAre("registered Sample::Shape \"shape\" {}"));
    }
    EXPECT_THAT(observer_.events,
                ElementsAre("registered Sample::Shape \"shape\" {}", "unregistered Sample::Shape \"shape\" {}"));
}

TEST_F(Registry, AnAdoptedCreatorReportsThatItLeaves) {
    Tessera::StrongPtr<Creator, Kolt::VManagedObjectBase> creator(new Creator("shape", 0, nullptr, ApiKey));
    creator.reset();
    EXPECT_THAT(observer_.events,
                ElementsAre("registered Sample::Shape \"shape\" {}", "unregistered Sample::Shape \"shape\" {}"));
}

TEST_F(Registry, ACreatorsSetIsTheGivenOneAndNoCopy) {
    auto const given = set({"dial"});
    Creator const creator("shape", 0, given, ApiKey);
    EXPECT_EQ(creator.preferences(), given);
    *creator.preferences() += "QT";
    EXPECT_THAT(given->names(), ElementsAre("QT", "dial"));
    *given += "late";
    EXPECT_TRUE(creator.preferences()->contains("late"));
}

TEST_F(Registry, ACreatorWithoutASetMakesOneOfItsOwn) {
    Creator const first("first", 0, nullptr, ApiKey);
    Creator const second("second", 0, nullptr, ApiKey);
    ASSERT_TRUE(first.preferences());
    *first.preferences() += "QT";
    EXPECT_THAT(second.preferences()->names(), IsEmpty());
}

TEST_F(Registry, RefusesASecondCreatorOfTheSameTypeNameAndSet) {
    Warnings warnings;
    {
        Creator const first("shape", 0, set({"dial"}), ApiKey);
        *first.preferences() += "QT";
        Creator const other("shape", 0, nullptr, ApiKey);
        Creator const otherName("figure", 0, set({"dial"}), ApiKey);
        EXPECT_THAT(takeOutput(), IsEmpty());
        Creator const refused("shape", 0, set({"dial"}), ApiKey);
        EXPECT_THAT(names(), ElementsAre("Sample::Shape shape", "Sample::Shape shape", "Sample::Shape figure"));
        EXPECT_THAT(takeOutput(), ElementsAre("WARNING: Could not register Kolt::VInputCreator<Sample::Shape, "
                                              "Kolt::VInputCreatorBase> as input creator for type Sample::Shape!"));
        EXPECT_THAT(warnings.texts, ElementsAre("Could not register Kolt::VInputCreator<Sample::Shape, "
                                                "Kolt::VInputCreatorBase> as input creator for type Sample::Shape"));
        EXPECT_EQ(observer_.events.back(), "refused Sample::Shape");
    }
    EXPECT_THAT(observer_.events, testing::SizeIs(7)) << "the refused one is not taken back";
}

TEST_F(Registry, TheNameOfARefusedCreatorIsFreeAgainWhenTheFirstHasGone) {
    auto first = std::make_unique<Creator>("shape", 0, nullptr, ApiKey);
    first.reset();
    Creator const second("shape", 0, nullptr, ApiKey);
    EXPECT_THAT(names(), ElementsAre("Sample::Shape shape"));
}

TEST_F(Registry, ARefusedCreatorThatWasRegisteredLaterIsTakenBackToo) {
    auto first = std::make_unique<Creator>("shape", 0, nullptr, ApiKey);
    auto refused = std::make_unique<Creator>("shape", 0, nullptr, ApiKey);
    EXPECT_THAT(takeOutput(), testing::SizeIs(1));
    first.reset();
    EXPECT_TRUE(registerVInput(typeid(Shape), CreatorRef(refused.get())));
    observer_.events.clear();
    refused.reset();
    EXPECT_THAT(observer_.events, ElementsAre("unregistered Sample::Shape \"shape\" {}"));
}

TEST_F(Registry, RefusesACreatorForAnotherHostInterface) {
    Warnings warnings;
    Creator const old("shape", 0, nullptr, "TALO_API_VERSION_OLD");
    Creator const none("shape", 0, nullptr, nullptr);
    EXPECT_THAT(names(), IsEmpty());
    EXPECT_THAT(takeOutput(), testing::SizeIs(2));
    EXPECT_THAT(warnings.texts, testing::SizeIs(2));
}

TEST_F(Registry, RefusesACreatorThatIsGone) {
    EXPECT_FALSE(registerVInput(typeid(Shape), CreatorRef()));
    EXPECT_THAT(observer_.events, ElementsAre("refused Sample::Shape"));
    unregisterVInput(typeid(Shape), CreatorRef());
    EXPECT_THAT(observer_.events, testing::SizeIs(1));
}

TEST_F(Registry, OneCreatorMayServeSeveralTypes) {
    VInputCreatorBase creator("any", 0, nullptr, ApiKey);
    EXPECT_TRUE(registerVInput(typeid(Shape), CreatorRef(&creator)));
    EXPECT_TRUE(registerVInput(typeid(int), CreatorRef(&creator)));
    EXPECT_FALSE(registerVInput(typeid(int), CreatorRef(&creator)));
    unregisterVInput(typeid(double), CreatorRef(&creator));
    EXPECT_THAT(names(), ElementsAre("Sample::Shape any", "int any"));
    unregisterVInput(typeid(Shape), CreatorRef(&creator));
    EXPECT_THAT(names(), ElementsAre("int any"));
    unregisterVInput(typeid(int), CreatorRef(&creator));
}

TEST_F(Registry, AnAdoptedCreatorIsUnregisteredToo) {
    {
        Tessera::StrongPtr<Creator, Kolt::VManagedObjectBase> const creator(new Creator("shape", 0, nullptr, ApiKey));
        EXPECT_THAT(names(), ElementsAre("Sample::Shape shape"));
    }
    EXPECT_THAT(names(), IsEmpty());
}

TEST_F(Registry, ACreatorThatForgotToLeaveIsNotListed) {
    {
        VInputCreatorBase careless("careless", 0, nullptr, ApiKey);
        EXPECT_TRUE(registerVInput(typeid(Shape), CreatorRef(&careless)));
    }
    EXPECT_THAT(names(), IsEmpty());
    EXPECT_FALSE(InputRegistry::theRegistry().choose("Sample::Shape", {}).creator);
}

TEST_F(Registry, CallsOfPluginsReachTheObserver) {
    Kolt::VInitialization::initPlugin(Kolt::VInitialization::Attach, "sample", ApiKey);
    Kolt::VInitialization::initPlugin(Kolt::VInitialization::ThreadDetach, nullptr, nullptr);
    EXPECT_THAT(observer_.events, ElementsAre("called 0 sample TALO_API_VERSION", "called 3  "));
}

TEST_F(Registry, WithoutAnObserverRegistrationStillWorks) {
    Kolt::HostObserver::setObserver(nullptr);
    {
        Creator const creator("shape", 0, nullptr, ApiKey);
        EXPECT_FALSE(registerVInput(typeid(Shape), CreatorRef()));
        Kolt::VInitialization::initPlugin(Kolt::VInitialization::Attach, "sample", ApiKey);
    }
    EXPECT_THAT(observer_.events, IsEmpty());
}

class Choice : public Registry {
protected:
    std::string chosen(Names const& wanted) const {
        auto const choice = InputRegistry::theRegistry().choose("Sample::Shape", wanted);
        auto const creator = choice.creator.strong();
        return creator ? creator->Name() : "none";
    }
    std::string explained(Names const& wanted) const {
        return InputRegistry::theRegistry().choose("Sample::Shape", wanted).explanation;
    }
};

TEST_F(Choice, OfNoCreatorSaysSo) {
    EXPECT_EQ(chosen({"QT"}), "none");
    EXPECT_EQ(explained({"QT"}), "no creator is registered for Sample::Shape");
    VInputCreator<int, VInputCreatorBase> const otherType("int", 0, set({"QT"}), ApiKey);
    EXPECT_EQ(chosen({"QT"}), "none");
}

TEST_F(Choice, TakesOneWhoseSetHoldsAllThatIsWanted) {
    Creator const plain("plain", 9, set({"QT"}), ApiKey);
    Creator const dial("dial", 0, set({"QT", "dial"}), ApiKey);
    EXPECT_EQ(chosen({"QT", "dial"}), "dial") << "although the priority of the other is higher";
    EXPECT_EQ(chosen({"QT"}), "plain");
    EXPECT_EQ(explained({"QT", "dial"}),
              "\"dial\" {QT, dial} holds all of the wanted {QT, dial}, of 2 creators for Sample::Shape");
}

TEST_F(Choice, AmongThoseTakesTheHighestPriority) {
    Creator const low("low", 1, set({"QT"}), ApiKey);
    Creator const high("high", 2, set({"QT", "dial", "periodic"}), ApiKey);
    Creator const middle("middle", 1, set({"QT"}), ApiKey);
    EXPECT_EQ(chosen({"QT"}), "high");
}

TEST_F(Choice, ThenTheSmallestSet) {
    Creator const large("large", 0, set({"QT", "dial", "periodic"}), ApiKey);
    Creator const small("small", 0, set({"QT", "dial"}), ApiKey);
    Creator const middle("middle", 0, set({"QT", "a", "b"}), ApiKey);
    EXPECT_EQ(chosen({"QT"}), "small");
    EXPECT_EQ(chosen({}), "small");
}

TEST_F(Choice, ThenTheFirstRegisteredOfItsFile) {
    auto first = std::make_unique<Creator>("first", 0, set({"QT", "b"}), ApiKey);
    Creator const second("second", 0, set({"QT", "a"}), ApiKey);
    EXPECT_EQ(chosen({"QT"}), "first");
    first.reset();
    EXPECT_EQ(chosen({"QT"}), "second");
}

TEST_F(Choice, WithoutOneThatHoldsAllTakesTheOneThatSharesMost) {
    Creator const none("none of it", 9, set({"editable"}), ApiKey);
    Creator const one("one", 5, set({"QT"}), ApiKey);
    Creator const two("two", 0, set({"QT", "dial", "x", "y"}), ApiKey);
    EXPECT_EQ(chosen({"QT", "dial", "periodic"}), "two");
    EXPECT_EQ(explained({"QT", "dial", "periodic"}), "\"two\" {QT, dial, x, y} shares most with the wanted {QT, dial, "
                                                     "periodic}, of 3 creators for Sample::Shape");
}

TEST_F(Choice, AmongThoseThatShareMostTheSameTiesDecide) {
    Creator const large("large", 0, set({"QT", "a", "b"}), ApiKey);
    Creator const first("first", 0, set({"QT", "a"}), ApiKey);
    Creator const second("second", 0, set({"QT", "b"}), ApiKey);
    EXPECT_EQ(chosen({"QT", "dial"}), "first");
    Creator const high("high", 1, set({"QT", "a", "b", "c"}), ApiKey);
    EXPECT_EQ(chosen({"QT", "dial"}), "high");
}

TEST_F(Choice, SharingNothingIsBetterThanNoEditor) {
    Creator const only("only", 0, set({"text"}), ApiKey);
    EXPECT_EQ(chosen({"QT"}), "only");
    EXPECT_THAT(explained({"QT"}), HasSubstr("shares most with the wanted {QT}, of 1 creator for Sample::Shape"));
}

TEST_F(Choice, SeesTheNamesThatACreatorAddedAfterItsRegistration) {
    Creator const creator("late", 0, set({}), ApiKey);
    Creator const other("other", 0, set({"a"}), ApiKey);
    *creator.preferences() += "QT";
    EXPECT_EQ(chosen({"QT"}), "late");
}

TEST_F(Choice, OfAParameterTakesItsPreferencesAndTheFrontEnds) {
    VParameter parameter("shape", makeValue(Shape()));
    EXPECT_THAT(InputRegistry::wantedPreferences(parameter, {"QT"}), ElementsAre("QT"));
    parameter.setCreationPreferences(set({"dial"}));
    EXPECT_THAT(InputRegistry::wantedPreferences(parameter, {"QT"}), ElementsAre("QT", "dial"));
    EXPECT_THAT(parameter.creationPreferences()->names(), ElementsAre("dial"));

    Creator const plain("plain", 0, set({"QT"}), ApiKey);
    Creator const dial("dial", 0, set({"QT", "dial"}), ApiKey);
    auto const choice = InputRegistry::theRegistry().choose(parameter, {"QT"});
    EXPECT_EQ(choice.creator.strong()->Name(), "dial");
    EXPECT_THAT(choice.explanation, HasSubstr("holds all of the wanted {QT, dial}"));
}

TEST_F(Choice, ATextWithoutPreferencesWantsOneLine) {
    VParameter text("text", makeValue(std::string()));
    EXPECT_THAT(InputRegistry::wantedPreferences(text, {"QT"}), ElementsAre("OneLine", "QT"));
    text.setCreationPreferences(set({}));
    EXPECT_THAT(InputRegistry::wantedPreferences(text, {"QT"}), ElementsAre("OneLine", "QT"))
        << "an empty set says no more than none";
    text.setCreationPreferences(set({"MultiLine"}));
    EXPECT_THAT(InputRegistry::wantedPreferences(text, {"QT"}), ElementsAre("MultiLine", "QT"));

    VInputCreator<std::string, VInputCreatorBase> const file("file", 0, set({"QT", "FileInput"}), ApiKey);
    VInputCreator<std::string, VInputCreatorBase> const line("line", 0, set({"QT", "OneLine"}), ApiKey);
    text.setCreationPreferences(nullptr);
    EXPECT_EQ(InputRegistry::theRegistry().choose(text, {"QT"}).creator.strong()->Name(), "line")
        << "the order of registration decides nothing";
}

TEST_F(Choice, ATextThatIsOnlyWrittenOnEnterWantsOneLineToo) {
    VInputCreator<std::string, VInputCreatorBase> const file("file", 0, set({"QT", "FileInput"}), ApiKey);
    VInputCreator<std::string, VInputCreatorBase> const lines("lines", 0, set({"QT", "MultiLine"}), ApiKey);
    VInputCreator<std::string, VInputCreatorBase> const line("line", 0, set({"QT", "OneLine"}), ApiKey);
    VParameter text("text", makeValue(std::string()));
    auto const chosen = [&](Names const& names) {
        text.setCreationPreferences(set(names));
        return InputRegistry::theRegistry().choose(text, {"QT"}).creator.strong()->Name();
    };
    EXPECT_EQ(chosen({"UpdateOnEnterOnly"}), "line") << "the order of registration decides nothing";
    EXPECT_EQ(chosen({"MultiLine", "UpdateOnEnterOnly"}), "lines");
    EXPECT_EQ(chosen({"FileInput", "UpdateOnEnterOnly"}), "file");
}

TEST_F(Choice, LeavesOutACreatorThatDoesNotSuitTheParameter) {
    struct Choosy : Creator {
        using Creator::Creator;
        bool supports(VParameter const& parameter) const override { return parameter.Name() == "mine"; }
    };
    Choosy const choosy("choosy", 5, set({"QT"}), ApiKey);
    Creator const any("any", 0, set({"QT"}), ApiKey);
    VParameter const mine("mine", makeValue(Shape()));
    VParameter const other("other", makeValue(Shape()));
    EXPECT_EQ(InputRegistry::theRegistry().choose(mine, {"QT"}).creator.strong()->Name(), "choosy");
    EXPECT_EQ(InputRegistry::theRegistry().choose(other, {"QT"}).creator.strong()->Name(), "any");
}

class ValueCreators : public TaloTest {
protected:
    Observer observer_;
};

TEST_F(ValueCreators, MakeAValueByTheNameOfItsType) {
    for (auto const* const name : {"bool", "int", "double", "std::string", "std::array<std::string, 1>"}) {
        auto const value = Kolt::VValueCreator::create(name);
        ASSERT_TRUE(value) << name;
        EXPECT_EQ(Tessera::Typename(value->valueType()), name);
    }
    EXPECT_FALSE(Kolt::VValueCreator::create("Sample::Shape"));
    EXPECT_FALSE(Kolt::VValueCreator::create(""));
}

TEST_F(ValueCreators, LeaveWhenTheyAreDestroyed) {
    auto const shape = Tessera::Typename(typeid(Shape));
    {
        Kolt::TypedValueCreator<Shape> creator;
        Kolt::VValueCreator::registerCreator(Tessera::WeakPtr<Kolt::VValueCreator>(&creator), shape);
        EXPECT_EQ(Kolt::VValueCreator::registered(shape), 1);
        EXPECT_THAT(observer_.events, ElementsAre("value Sample::Shape"));
        EXPECT_EQ(Kolt::valueOr(Kolt::VValueCreator::create(shape), Shape{9}).corners, 3);
    }
    EXPECT_EQ(Kolt::VValueCreator::registered(shape), 0);
    EXPECT_FALSE(Kolt::VValueCreator::create(shape));
}

TEST_F(ValueCreators, AnEmptyOneIsIgnored) {
    Kolt::VValueCreator::registerCreator({}, "Sample::Empty");
    EXPECT_EQ(Kolt::VValueCreator::registered("Sample::Empty"), 0);
    EXPECT_THAT(observer_.events, IsEmpty());
}

TEST_F(ValueCreators, AreProvidedOnceHoweverOftenTheyAreAskedFor) {
    Kolt::registerValueCreatorOnce<std::pair<int, int>>();
    Kolt::registerValueCreatorOnce<std::pair<int, int>>();
    EXPECT_EQ(Kolt::VValueCreator::registered("std::pair<int, int>"), 1);
    EXPECT_THAT(observer_.events, ElementsAre("value std::pair<int, int>"));
}

} // namespace

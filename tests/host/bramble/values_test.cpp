#include "support/TaloTest.hpp"
#include <bramble/Action.hpp>
#include <bramble/Color.hpp>
#include <bramble/FlagList.hpp>
#include <bramble/Info.hpp>
#include <bramble/ObjectStatus.hpp>
#include <limits>

namespace {

using Ferro::rgba_float_t;
using Kolt::FlagList;
using Kolt::info;
using Kolt::makeValue;
using Kolt::ParameterPtr;
using Kolt::VAction;
using Kolt::ValuePool;
using Kolt::VObjectStatus;
using Kolt::VValueBase;
using Kolt::VValueTrait;
using Tessera::StrongPtr;
using testing::ElementsAre;
using ColourTrait = VValueTrait<rgba_float_t>;

class Colours : public TaloTest {};

TEST_F(Colours, AreOpaqueBlackAtFirst) {
    EXPECT_EQ(ColourTrait::Text({}), "0 0 0 1");
}

TEST_F(Colours, TheTextIsTheFourChannels) {
    EXPECT_EQ(ColourTrait::Text({0.1F, 0.25F, -1.0F, 1e10F}), "0.1 0.25 -1 1e+10");
    rgba_float_t colour;
    EXPECT_TRUE(ColourTrait::setValueFromText(colour, "0.1 0.25  -1 1e+10"));
    EXPECT_TRUE(ColourTrait::Equal(colour, {0.1F, 0.25F, -1.0F, 1e10F}));
}

TEST_F(Colours, AWrongTextChangesNothing) {
    for (auto const* const wrong : {"", "1 0 0", "1 0 0 1 0", "1,0,0,1", "red", "1 0 0 x", "1 0 0 1 ", "1 0 0 1e99",
                                    "0.5.5.5.5", "1-1-1-1", "#ff0000"}) {
        rgba_float_t colour{0.5F, 0.5F, 0.5F, 0.5F};
        EXPECT_FALSE(ColourTrait::setValueFromText(colour, wrong)) << wrong;
        EXPECT_TRUE(ColourTrait::Equal(colour, {0.5F, 0.5F, 0.5F, 0.5F})) << wrong;
    }
}

TEST_F(Colours, AreComparedChannelByChannel) {
    constexpr float none = std::numeric_limits<float>::quiet_NaN();
    rgba_float_t const colour{0.1F, 0.2F, 0.3F, 0.4F};
    EXPECT_TRUE(ColourTrait::Equal(colour, colour));
    EXPECT_FALSE(ColourTrait::Equal(colour, {0.0F, 0.2F, 0.3F, 0.4F}));
    EXPECT_FALSE(ColourTrait::Equal(colour, {0.1F, 0.0F, 0.3F, 0.4F}));
    EXPECT_FALSE(ColourTrait::Equal(colour, {0.1F, 0.2F, 0.0F, 0.4F}));
    EXPECT_FALSE(ColourTrait::Equal(colour, {0.1F, 0.2F, 0.3F, 0.0F}));
    EXPECT_TRUE(ColourTrait::Equal({none, 0, 0, 0}, {none, 0, 0, 0}));
    EXPECT_FALSE(ColourTrait::Equal({none, 0, 0, 0}, {0, 0, 0, 0}));
}

TEST_F(Colours, AChannelThatIsNoNumberIsCalledThatWhateverItsSign) {
    constexpr float none = std::numeric_limits<float>::quiet_NaN();
    EXPECT_EQ(ColourTrait::Text({none, -none, 0, 1}), "nan nan 0 1");
}

class FlagLists : public TaloTest {
protected:
    static std::vector<std::string> names(FlagList const& flags) {
        std::vector<std::string> names;
        for (auto const& [name, on] : flags)
            names.push_back(name + (on ? "+" : "-"));
        return names;
    }
};

TEST_F(FlagLists, AreOrderedByNameHoweverTheyAreMade) {
    FlagList flags{{"zoom", true}, {"alpha", false}, {"Zoom", true}};
    flags["middle"] = true;
    EXPECT_THAT(names(flags), ElementsAre("Zoom+", "alpha-", "middle+", "zoom+"));
    EXPECT_EQ(flags.size(), 4U);
}

TEST_F(FlagLists, ANewNameIsOffAndAskingMakesNone) {
    FlagList flags;
    EXPECT_FALSE(flags.isSet("a"));
    EXPECT_FALSE(flags.contains("a"));
    EXPECT_FALSE(flags["a"]);
    EXPECT_TRUE(flags.contains("a"));
    flags["a"] = true;
    EXPECT_TRUE(flags.isSet("a"));
}

TEST_F(FlagLists, CopiesAreApart) {
    FlagList const flags{{"a", true}};
    FlagList copy(flags);
    EXPECT_TRUE(copy == flags);
    copy["a"] = false;
    EXPECT_TRUE(flags.isSet("a"));
    EXPECT_FALSE(copy == flags);
    copy = flags;
    EXPECT_TRUE(copy == flags);
}

TEST_F(FlagLists, TheTextHasALineForEachFlag) {
    FlagList flags{{"b", false}, {"a=x", true}};
    EXPECT_EQ(VValueTrait<FlagList>::Text(flags), "a=x=true\nb=false");
    EXPECT_EQ(VValueTrait<FlagList>::Text({}), "");
    EXPECT_TRUE(VValueTrait<FlagList>::setValueFromText(flags, "a=x=false\nnew=true"));
    EXPECT_THAT(names(flags), ElementsAre("a=x-", "b-", "new+")) << "flags that are left out stay";
    EXPECT_TRUE(VValueTrait<FlagList>::setValueFromText(flags, ""));
    EXPECT_EQ(flags.size(), 3U);
}

TEST_F(FlagLists, ANameWithALineFeedIsOneLine) {
    FlagList const flags{{"a=true\nb", true}, {"\\", false}, {"", true}};
    auto const text = VValueTrait<FlagList>::Text(flags);
    FlagList read{{"a=true\nb", false}, {"\\", true}, {"", false}};
    EXPECT_TRUE(VValueTrait<FlagList>::setValueFromText(read, text)) << text;
    EXPECT_EQ(read, flags) << text;
}

TEST_F(FlagLists, AWrongTextChangesNothing) {
    for (auto const* const wrong : {"b", "a=true\nb", "a=1", "a=True", "a=true\nb=", "=", "a = true"}) {
        FlagList flags{{"a", false}, {"b", true}};
        EXPECT_FALSE(VValueTrait<FlagList>::setValueFromText(flags, wrong)) << wrong;
        EXPECT_THAT(names(flags), ElementsAre("a-", "b+")) << wrong;
    }
}

class Texts : public TaloTest {};

TEST_F(Texts, OfInfoAndStatusAreTheTextItself) {
    std::string const odd("<b>x</b>\n\xc3\xa4");
    info information{"before"};
    EXPECT_TRUE(VValueTrait<info>::setValueFromText(information, odd));
    EXPECT_EQ(information.text, odd);
    EXPECT_EQ(VValueTrait<info>::Text(information), odd);
    VObjectStatus status("before");
    EXPECT_EQ(status.text(), "before");
    EXPECT_TRUE(VValueTrait<VObjectStatus>::setValueFromText(status, odd));
    EXPECT_EQ(status.text(), odd);
    EXPECT_EQ(VValueTrait<VObjectStatus>::Text(status), odd);
    EXPECT_EQ(VObjectStatus().text(), "");
}

class Actions : public TaloTest {
protected:
    StrongPtr<ValuePool> const pool_{new ValuePool("pool")};
    ParameterPtr parameter_{new Kolt::VParameter("p", makeValue(1))};
};

TEST_F(Actions, CallTheirHandlerWithPoolAndParameter) {
    int calls = 0;
    VAction action("fire", [&](StrongPtr<ValuePool> const& pool, ParameterPtr const& parameter) {
        ++calls;
        EXPECT_EQ(pool, pool_);
        EXPECT_EQ(parameter, parameter_);
    });
    action.emitAction(pool_, parameter_);
    action.emitAction(pool_, parameter_);
    EXPECT_EQ(calls, 2);
    EXPECT_EQ(action.Name(), "fire");
}

TEST_F(Actions, WithoutAHandlerOrWithNullsNothingBreaks) {
    VAction action;
    action.emitAction(pool_, parameter_);
    int calls = 0;
    action.setHandler([&](auto const& pool, auto const& parameter) { calls += !pool && !parameter; });
    action.emitAction(nullptr, nullptr);
    EXPECT_EQ(calls, 1);
}

TEST_F(Actions, TheHandlerMayDeleteTheActionAndWhatItWasGiven) {
    StrongPtr<VAction> action(new VAction("fire"));
    std::string const text = "still here";
    std::string seen;
    action->setHandler([&, text](StrongPtr<ValuePool> const&, ParameterPtr const& parameter) {
        parameter_.reset();
        action.reset();
        seen = text + " " + parameter->Name();
    });
    auto* const raw = action.get();
    raw->emitAction(pool_, parameter_);
    EXPECT_EQ(seen, "still here p");
    EXPECT_FALSE(parameter_);
}

TEST_F(Actions, TheHandlerMayReplaceItself) {
    std::vector<int> calls;
    VAction action("fire");
    action.setHandler([&](auto const&, auto const&) {
        action.setHandler([&](auto const&, auto const&) { calls.push_back(2); });
        calls.push_back(1);
    });
    action.emitAction(nullptr, nullptr);
    action.emitAction(nullptr, nullptr);
    EXPECT_THAT(calls, ElementsAre(1, 2));
}

TEST_F(Actions, TheTextIsTheNameAndNoTextMakesOne) {
    using Trait = VValueTrait<StrongPtr<VAction>>;
    StrongPtr<VAction> action(new VAction("fire"));
    EXPECT_EQ(Trait::Text(action), "fire");
    EXPECT_EQ(Trait::Text(nullptr), "");
    auto const before = action;
    EXPECT_FALSE(Trait::setValueFromText(action, "fire"));
    EXPECT_FALSE(Trait::setValueFromText(action, ""));
    EXPECT_EQ(action, before);
}

class BrambleValues : public TaloTest {};

TEST_F(BrambleValues, ClonesAreEqualAndApart) {
    std::pair<StrongPtr<VValueBase>, char const*> const values[] = {
        {makeValue(rgba_float_t{1, 0, 0, 1}), "0 0 1 1"},
        {makeValue(FlagList{{"a", false}}), "a=true"},
        {makeValue(info{"x"}), "y"},
        {makeValue(VObjectStatus("x")), "y"},
    };
    for (auto const& [value, other] : values) {
        auto const clone = value->clone();
        EXPECT_EQ(clone->valueType(), value->valueType());
        EXPECT_TRUE(clone->equals(*value));
        EXPECT_EQ(clone->Text(), value->Text());
        EXPECT_TRUE(clone->setValueFromText(other));
        EXPECT_EQ(clone->Text(), other);
        EXPECT_FALSE(clone->equals(*value));
    }
}

TEST_F(BrambleValues, CloneOfAnActionSharesIt) {
    StrongPtr<VAction> const action(new VAction("fire"));
    auto const value = makeValue(action);
    auto const clone = value->clone();
    EXPECT_TRUE(clone->equals(*value));
    EXPECT_EQ(Kolt::valueOr<StrongPtr<VAction>>(clone, nullptr), action);
    EXPECT_FALSE(clone->equals(*makeValue(StrongPtr<VAction>(new VAction("fire"))))) << "another action of that name";
}

} // namespace

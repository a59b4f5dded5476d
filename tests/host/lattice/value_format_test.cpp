#include "support/TestWarnings.hpp"

#include <lattice/ValueFormat.hpp>
#include <memory>

namespace Sample {

/// A value type of a plug-in, with a text.
struct Weight {
    int grams = 0;
    bool operator==(Weight const& other) const { return grams == other.grams; }
};

/// One that people do not edit.
struct Lamp {
    bool isOn = false;
    bool operator==(Lamp const& other) const { return isOn == other.isOn; }
};

struct Textless {};

} // namespace Sample

namespace Kolt {

template <>
struct VValueTrait<Sample::Weight> : ValueTraitDefaults<Sample::Weight> {
    static std::string Text(Sample::Weight const& weight) { return VValueTrait<int>::Text(weight.grams) + " g"; }
    static bool setValueFromText(Sample::Weight& weight, std::string const& text) {
        return text.size() > 2 && VValueTrait<int>::setValueFromText(weight.grams, text.substr(0, text.size() - 2));
    }
};

template <>
struct VValueTrait<Sample::Lamp> : ValueTraitDefaults<Sample::Lamp> {
    static constexpr bool IsEdited = false;
    static std::string Text(Sample::Lamp const& lamp) { return VValueTrait<bool>::Text(lamp.isOn); }
    static bool setValueFromText(Sample::Lamp& lamp, std::string const& text) {
        return VValueTrait<bool>::setValueFromText(lamp.isOn, text);
    }
};

} // namespace Kolt

namespace {

using Kolt::makeValue;
using Kolt::TypedValueFormat;
using Kolt::VValueFormat;
using Sample::Lamp;
using Sample::Weight;
using testing::ElementsAre;
using testing::IsEmpty;

static_assert(Kolt::HasText<Weight> && Kolt::HasText<int> && !Kolt::HasText<Sample::Textless>);

std::string gramsAsJson(Weight const& weight) {
    return weight.grams < 0 ? std::string() : "[" + std::to_string(weight.grams) + "]";
}

std::optional<Weight> gramsFromJson(std::string const& json) {
    Weight weight;
    bool const isList = json.size() > 2 && json.front() == '[';
    return isList && Kolt::VValueTrait<int>::setValueFromText(weight.grams, json.substr(1, json.size() - 2))
               ? std::make_optional(weight)
               : std::nullopt;
}

class ValueFormats : public TaloTest {
protected:
    RecordedWarnings warnings_;
    std::string const weightType_ = Tessera::Typename(typeid(Weight));
};

} // namespace

TEST_F(ValueFormats, AreKnownAsLongAsTheyLive) {
    EXPECT_EQ(VValueFormat::ofKey("weight"), nullptr);
    {
        TypedValueFormat<Weight> const format("weight");
        EXPECT_EQ(VValueFormat::ofKey("weight"), &format);
        EXPECT_EQ(VValueFormat::ofType("Sample::Weight"), &format);
        EXPECT_THAT(VValueFormat::all(), ElementsAre(&format));
        EXPECT_EQ(Kolt::VValueCreator::registered(weightType_), 1) << "values can be made by the name of the type";
    }
    EXPECT_EQ(VValueFormat::ofKey("weight"), nullptr);
    EXPECT_EQ(VValueFormat::ofType("Sample::Weight"), nullptr);
    EXPECT_THAT(VValueFormat::all(), IsEmpty());
    EXPECT_EQ(Kolt::VValueCreator::registered(weightType_), 0);
    EXPECT_THAT(warnings_.texts, IsEmpty());
}

TEST_F(ValueFormats, WriteAndReadTheTextOfTheTraitWithoutFurtherCode) {
    TypedValueFormat<Weight> const format("weight");
    EXPECT_EQ(format.notation(), VValueFormat::Notation::Text);
    EXPECT_FALSE(format.showsState());
    EXPECT_EQ(format.write(makeValue(Weight{70})), "70 g");
    EXPECT_EQ(format.write(makeValue(70)), std::nullopt) << "a value of another type";
    auto const value = format.read("80 g");
    ASSERT_TRUE(value);
    EXPECT_EQ(Kolt::valueOr(value, Weight()).grams, 80);
    EXPECT_FALSE(format.read("heavy g"));
}

TEST_F(ValueFormats, WriteAndReadJsonByTwoFunctions) {
    TypedValueFormat<Weight> const format("weight", "a list of one number", gramsAsJson, gramsFromJson);
    EXPECT_EQ(format.notation(), VValueFormat::Notation::Json);
    EXPECT_EQ(format.description(), "a list of one number");
    EXPECT_EQ(format.write(makeValue(Weight{70})), "[70]");
    EXPECT_EQ(format.write(makeValue(Weight{-1})), std::nullopt) << "the function says that it cannot be written";
    auto const value = format.read("[80]");
    ASSERT_TRUE(value);
    EXPECT_EQ(Kolt::valueOr(value, Weight()).grams, 80);
    EXPECT_FALSE(format.read("80"));
}

TEST_F(ValueFormats, ShowStateWhereNobodyEditsTheType) {
    TypedValueFormat<Lamp> const format("lamp");
    EXPECT_TRUE(format.showsState());
}

TEST_F(ValueFormats, AreRefusedWithAWarningWhereTheKeyOrTheTypeIsTaken) {
    TypedValueFormat<Weight> const format("weight");
    {
        TypedValueFormat<Lamp> const sameKey("weight");
        TypedValueFormat<Weight> const sameType("mass");
        TypedValueFormat<Lamp> const keyless("");
        EXPECT_THAT(VValueFormat::all(), ElementsAre(&format));
        EXPECT_EQ(VValueFormat::ofType("Sample::Lamp"), nullptr);
        EXPECT_EQ(VValueFormat::ofKey("mass"), nullptr);
    }
    EXPECT_THAT(warnings_.texts,
                ElementsAre("The format \"weight\" of the type Sample::Lamp is not registered: the key is that of the "
                            "type Sample::Weight",
                            "The format \"mass\" of the type Sample::Weight is not registered: the type has the format "
                            "\"weight\"",
                            "The format \"\" of the type Sample::Lamp is not registered: it has no key"));
    EXPECT_EQ(VValueFormat::ofKey("weight"), &format) << "a refused format takes nothing back";
    EXPECT_EQ(VValueFormat::ofType("Sample::Weight"), &format);
}

TEST_F(ValueFormats, AreNotReachedAfterTheyWereTakenBack) {
    auto const format = std::make_unique<TypedValueFormat<Weight>>("weight");
    EXPECT_TRUE(VValueFormat::unregister(format.get()));
    EXPECT_EQ(VValueFormat::ofKey("weight"), nullptr);
    EXPECT_FALSE(VValueFormat::unregister(format.get()));
    TypedValueFormat<Weight> const next("weight");
    EXPECT_EQ(VValueFormat::ofKey("weight"), &next);
}

#include "support/TaloTest.hpp"
#include <cmath>
#include <lattice/Object.hpp>
#include <lattice/Value.hpp>
#include <limits>

namespace {

using Kolt::makeValue;
using Kolt::valueIn;
using Kolt::valueOr;
using Kolt::VValue;
using Kolt::VValueBase;
using Kolt::VValueTrait;
using Tessera::StrongPtr;

using OneText = std::array<std::string, 1>;

class Values : public TaloTest {
protected:
    /// Whether the text can be read; one that cannot must leave the value unchanged.
    template <typename T>
    static bool reads(std::string const& text, T const& before) {
        auto value = before;
        bool const read = VValueTrait<T>::setValueFromText(value, text);
        EXPECT_TRUE(read || VValueTrait<T>::Equal(value, before)) << "a refused text changed the value: " << text;
        return read;
    }
    template <typename T>
    static T readFrom(std::string const& text, T value) {
        EXPECT_TRUE(VValueTrait<T>::setValueFromText(value, text)) << text;
        return value;
    }
};

TEST_F(Values, OfBoolAreTheTwoWords) {
    EXPECT_EQ(VValueTrait<bool>::Text(true), "true");
    EXPECT_EQ(VValueTrait<bool>::Text(false), "false");
    EXPECT_TRUE(readFrom("true", false));
    EXPECT_FALSE(readFrom("false", true));
    for (auto const* const wrong : {"", "True", "1", "true ", " false", "yes"})
        EXPECT_FALSE(reads(wrong, true)) << wrong;
}

TEST_F(Values, OfIntAreDecimal) {
    constexpr int least = std::numeric_limits<int>::min();
    constexpr int most = std::numeric_limits<int>::max();
    EXPECT_EQ(VValueTrait<int>::Text(least), "-2147483648");
    EXPECT_EQ(VValueTrait<int>::Text(0), "0");
    for (int const number : {least, -1, 0, 7, most})
        EXPECT_EQ(readFrom(VValueTrait<int>::Text(number), 1), number);
    for (auto const* const wrong : {"", " 1", "1 ", "1.5", "0x1", "2147483648", "-2147483649", "seven", "--1", "1,000"})
        EXPECT_FALSE(reads(wrong, 3)) << wrong;
}

TEST_F(Values, OfDoubleReadBackAsTheSameNumber) {
    constexpr double infinity = std::numeric_limits<double>::infinity();
    EXPECT_EQ(VValueTrait<double>::Text(0.1), "0.1");
    EXPECT_EQ(VValueTrait<double>::Text(1e300), "1e+300");
    EXPECT_EQ(VValueTrait<double>::Text(infinity), "inf");
    EXPECT_EQ(VValueTrait<double>::Text(-infinity), "-inf");
    for (double const number : {0.0, 0.1, 1.0 / 3.0, -1e-300, 5e-324, std::numeric_limits<double>::max(),
                                std::numeric_limits<double>::lowest(), infinity, -infinity})
        EXPECT_EQ(readFrom(VValueTrait<double>::Text(number), 1.0), number);
    EXPECT_TRUE(std::signbit(readFrom(VValueTrait<double>::Text(-0.0), 1.0)));
    for (auto const* const wrong : {"", " 1", "1 ", "1,5", "1e400", "one", "1.5.5"})
        EXPECT_FALSE(reads(wrong, 3.5)) << wrong;
}

TEST_F(Values, WhatIsNoNumberIsCalledThatWhateverItsSign) {
    constexpr double none = std::numeric_limits<double>::quiet_NaN();
    EXPECT_EQ(VValueTrait<double>::Text(none), "nan");
    EXPECT_EQ(VValueTrait<double>::Text(-none), "nan");
    EXPECT_TRUE(std::isnan(readFrom("nan", 1.0)));
    EXPECT_TRUE(VValueTrait<double>::Equal(none, -none));
    EXPECT_FALSE(VValueTrait<double>::Equal(none, 0.0));
}

TEST_F(Values, ZeroAndMinusZeroDifferAsTheirTextsDo) {
    EXPECT_NE(VValueTrait<double>::Text(0.0), VValueTrait<double>::Text(-0.0));
    EXPECT_FALSE(VValueTrait<double>::Equal(0.0, -0.0));
    EXPECT_TRUE(VValueTrait<double>::Equal(-0.0, -0.0));
}

TEST_F(Values, OfTextAreTheTextItself) {
    std::string const odd("a\n\xff\0b", 5);
    EXPECT_EQ(VValueTrait<std::string>::Text(odd), odd);
    EXPECT_EQ(readFrom(odd, std::string("before")), odd);
    EXPECT_EQ(VValueTrait<OneText>::Text({odd}), odd);
    EXPECT_EQ(readFrom(odd, OneText{"before"})[0], odd);
    EXPECT_EQ(readFrom("", std::string("before")), "");
}

TEST_F(Values, OfATypeWithoutATraitHaveNoText) {
    using Pair = std::pair<int, int>;
    EXPECT_EQ(VValueTrait<Pair>::Text({1, 2}), "");
    EXPECT_FALSE(reads("1 2", Pair(1, 2)));
}

TEST_F(Values, ATypedValueReadsStoresAndSpeaks) {
    VValue<int> value(3);
    EXPECT_EQ(value.valueType(), typeid(int));
    EXPECT_EQ(value.Text(), "3");
    EXPECT_TRUE(value.set(4));
    EXPECT_EQ(value.Text(), "4");
    EXPECT_TRUE(value.setValueFromText("5"));
    EXPECT_FALSE(value.setValueFromText("five"));
    EXPECT_EQ(value.Text(), "5");
    EXPECT_EQ(VValue<int>().Text(), "0");
    EXPECT_EQ(VValue<double>().Text(), "0");
    EXPECT_EQ(VValue<bool>().Text(), "false");
}

TEST_F(Values, ACloneIsEqualAndApart) {
    StrongPtr<VValueBase> const values[] = {makeValue(true), makeValue(3), makeValue(1.5), makeValue(std::string("x")),
                                            makeValue(OneText{"x"})};
    char const* const others[] = {"false", "4", "2", "y", "y"};
    for (std::size_t index = 0; index < std::size(values); ++index) {
        auto const& value = values[index];
        value->renewAge();
        auto const clone = value->clone();
        EXPECT_NE(clone, value);
        EXPECT_EQ(clone->valueType(), value->valueType());
        EXPECT_TRUE(clone->equals(*value));
        EXPECT_EQ(clone->age(), 0U) << "a clone is a new object";
        EXPECT_TRUE(clone->setValueFromText(others[index]));
        EXPECT_FALSE(clone->equals(*value));
        EXPECT_FALSE(value->equals(*clone));
    }
}

TEST_F(Values, OfDifferentTypesAreNeverEqual) {
    EXPECT_FALSE(makeValue(1)->equals(*makeValue(1.0)));
    EXPECT_FALSE(makeValue(std::string("x"))->equals(*makeValue(OneText{"x"})));
    EXPECT_FALSE(makeValue(std::string("x"))->equals(*makeValue(true)));
}

TEST_F(Values, AreReadOutOfAnObjectOfTheirTypeOnly) {
    EXPECT_EQ(valueOr<int>(makeValue(4), -1), 4);
    EXPECT_EQ(valueOr<int>(makeValue(4.0), -1), -1);
    EXPECT_EQ(valueOr<int>(nullptr, -1), -1);
}

TEST_F(Values, AreAskedForWhatTheyHold) {
    EXPECT_EQ(valueIn<int>(makeValue(4)), 4);
    EXPECT_EQ(valueIn<int>(makeValue(4).get()), 4);
    EXPECT_EQ(valueIn<std::string>(makeValue(std::string("text"))), "text");
    EXPECT_EQ(valueIn<bool>(makeValue(false)), false) << "a false value is a value";
    EXPECT_EQ(valueIn<int>(makeValue(4.0)), std::nullopt);
    EXPECT_EQ(valueIn<int>(Kolt::ValuePtr()), std::nullopt);
    EXPECT_EQ(valueIn<int>(nullptr), std::nullopt);
}

/// A text that counts how often it is copied.
struct CountingText {
    CountingText() = default;
    CountingText(CountingText const& other) : text(other.text) { ++copies; }
    CountingText(CountingText&&) = default;
    CountingText& operator=(CountingText const& other) {
        text = other.text;
        ++copies;
        return *this;
    }
    CountingText& operator=(CountingText&&) = default;
    ~CountingText() = default;
    bool operator==(CountingText const& other) const { return text == other.text; }
    std::string text;
    static int copies;
};
int CountingText::copies = 0;

TEST_F(Values, AreCopiedOnceWhereTheyAreAskedFor) {
    CountingText text;
    text.text = "text";
    auto const value = makeValue(text);
    CountingText::copies = 0;
    auto const content = valueIn<CountingText>(value);
    ASSERT_TRUE(content);
    EXPECT_EQ(content->text, "text");
    EXPECT_EQ(CountingText::copies, 1);
    EXPECT_EQ(valueOr(value, CountingText()).text, "text");
    EXPECT_EQ(CountingText::copies, 2);
}

/// A number that uses its value object again in every operation.
struct ReachingBack {
    ReachingBack() = default;
    ReachingBack(ReachingBack const& other) : number(other.number) { reach(); }
    ReachingBack& operator=(ReachingBack const& other) {
        number = other.number;
        reach();
        return *this;
    }
    ~ReachingBack() { reach(); }
    bool operator==(ReachingBack const& other) const {
        reach();
        return number == other.number;
    }
    static void reach() {
        if (!target)
            return;
        auto* const value = std::exchange(target, nullptr);
        {
            ReachingBack read;
            EXPECT_TRUE(value->get(read));
            EXPECT_TRUE(value->holds(read));
        }
        ++reached;
        target = value;
    }
    int number = 0;
    static Kolt::VTypedValueBase<ReachingBack>* target;
    static int reached;
};
Kolt::VTypedValueBase<ReachingBack>* ReachingBack::target = nullptr;
int ReachingBack::reached = 0;

TEST_F(Values, AreUsedAgainByWhatTheyContain) {
    VValue<ReachingBack> value;
    ReachingBack::reached = 0;
    int reachedBefore = 0;
    auto const reachesBack = [&] {
        return std::exchange(reachedBefore, ReachingBack::reached) < ReachingBack::reached;
    };
    ReachingBack content;
    ReachingBack::target = &value;
    EXPECT_TRUE(value.set(content));
    EXPECT_TRUE(reachesBack()) << "the old one is destroyed";
    EXPECT_TRUE(value.get(content));
    EXPECT_TRUE(reachesBack()) << "it is copied";
    EXPECT_TRUE(value.holds(content));
    EXPECT_TRUE(reachesBack()) << "it is compared";
    EXPECT_TRUE(value.clone());
    EXPECT_TRUE(reachesBack()) << "it is cloned";
    ReachingBack::target = nullptr;
}

/// A value that is computed on access: it may be unavailable, and it accepts only positive numbers.
struct Computed : Kolt::VTypedValueBase<int> {
    bool get(int& out) const override {
        if (available)
            out = value;
        return available;
    }
    bool set(int const& newValue) override {
        if (newValue > 0)
            value = newValue;
        return newValue > 0;
    }
    StrongPtr<VValueBase> clone() const override { return makeValue(value); }
    bool available = true;
    int value = 1;
};

TEST_F(Values, AStoreSaysWhetherItWasAccepted) {
    Computed value;
    EXPECT_TRUE(value.setValueFromText("7"));
    EXPECT_FALSE(value.setValueFromText("-7"));
    EXPECT_EQ(value.Text(), "7");
    EXPECT_TRUE(value.equals(*makeValue(7)));
}

TEST_F(Values, AreComparedWithPlainOnesAsTheirTraitSays) {
    Kolt::VValue<double> const notANumber(std::nan(""));
    EXPECT_TRUE(notANumber.holds(std::nan("")));
    EXPECT_FALSE(notANumber.holds(0.0));
    Computed value;
    EXPECT_TRUE(value.holds(1));
    EXPECT_FALSE(value.holds(0));
}

TEST_F(Values, AreFoundByTheirTypeWhateverKeepsThem) {
    StrongPtr<VValueBase> const kept = makeValue(4);
    EXPECT_EQ(Kolt::typedValue<int>(kept.get()), kept.get());
    EXPECT_EQ(Kolt::typedValue<double>(kept.get()), nullptr);
    StrongPtr<VValueBase> const computed(new Computed);
    EXPECT_EQ(Kolt::typedValue<int>(computed.get()), computed.get());
    VValueBase const& constant = *computed;
    EXPECT_EQ(Kolt::typedValue<int>(&constant), computed.get());
    EXPECT_EQ(valueIn<int>(computed), 1);
    EXPECT_EQ(Kolt::typedValue<bool>(computed.get()), nullptr);
    EXPECT_EQ(Kolt::typedValue<int>(static_cast<VValueBase*>(nullptr)), nullptr);
}

TEST_F(Values, OneThatCannotBeHadHasNoText) {
    Computed value;
    value.available = false;
    EXPECT_FALSE(value.holds(1));
    EXPECT_EQ(value.Text(), "");
    EXPECT_FALSE(value.setValueFromText("7"));
    EXPECT_FALSE(value.equals(*makeValue(1)));
    EXPECT_FALSE(makeValue(1)->equals(value));
    StrongPtr<VValueBase> const held(new Computed);
    static_cast<Computed&>(*held).available = false;
    EXPECT_EQ(valueOr<int>(held, -1), -1);
    EXPECT_EQ(valueIn<int>(held), std::nullopt);
}

TEST_F(Values, RememberTheirContainerAndSourceWeakly) {
    auto const value = makeValue(1);
    EXPECT_FALSE(value->containerValue());
    EXPECT_FALSE(value->source());
    EXPECT_FALSE(value->getInterface());
    {
        auto const container = makeValue(2);
        Kolt::ObjectPtr const object(new Kolt::VObject("object"));
        value->setContainerValue(container);
        value->setSource(object);
        EXPECT_EQ(value->containerValue().strong(), container);
        EXPECT_EQ(value->source().strong()->Name(), "object");
    }
    EXPECT_FALSE(value->containerValue());
    EXPECT_FALSE(value->source());
}

} // namespace

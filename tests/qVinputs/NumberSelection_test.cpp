#include "support/TaloTest.hpp"

#include <locale>
#include <qVinputs/basics/NumberSelection.hpp>

namespace {

using Rows = std::vector<std::uint64_t>;

/// The rows that the text selects, one by one.
Rows rowsOf(std::string const& text, std::uint64_t rowCount = 10) {
    Rows rows;
    for (auto const& series : Kolt::rowsByNumber(text, rowCount)) {
        EXPECT_LT(series.first, series.end) << text;
        EXPECT_LE(series.end, rowCount) << text;
        EXPECT_GE(series.step, 1U) << text;
        for (auto row = series.first; row < series.end; row += series.step)
            rows.push_back(row);
    }
    return rows;
}

/// The rows that a text selects in a list of ten rows.
struct Reading {
    char const* name;
    std::string text;
    Rows rows;
};

void PrintTo(Reading const& reading, std::ostream* stream) {
    *stream << '"' << reading.text << '"';
}

std::string readingName(testing::TestParamInfo<Reading> const& reading) {
    return reading.param.name;
}

class NumberSelectionReading : public TaloTest, public testing::WithParamInterface<Reading> {};

Rows const noRows;
Rows const allRows = {0, 1, 2, 3, 4, 5, 6, 7, 8, 9};
Rows const evenRows = {0, 2, 4, 6, 8};

} // namespace

TEST_P(NumberSelectionReading, InTenRows) {
    EXPECT_EQ(rowsOf(GetParam().text), GetParam().rows);
}

INSTANTIATE_TEST_SUITE_P(
    Ranges, NumberSelectionReading,
    testing::Values(
        Reading{"Ascending", "2-5", {2, 3, 4, 5}}, Reading{"Descending", "5-2", {2, 3, 4, 5}},
        Reading{"OfOneRow", "2-2", {2}}, Reading{"WholeList", "0-9", allRows},
        Reading{"UpperEndPastTheLastRow", "0-99", noRows}, Reading{"LowerEndPastTheLastRow", "99-0", noRows},
        Reading{"JustPastTheLastRow", "3-10", noRows}, Reading{"EmptyLowerSide", "-3", noRows},
        Reading{"EmptyUpperSide", "3-", noRows}, Reading{"BothSidesEmpty", "-", noRows},
        Reading{"SpaceLowerSide", " \t-3", noRows}, Reading{"SpaceUpperSide", "3- \v\f\r\n", noRows},
        Reading{"SideWithoutDigitsIsZero", "x-2", {0, 1, 2}}, Reading{"OtherSideWithoutDigitsIsZero", "2-x", {0, 1, 2}},
        Reading{"NulByteIsNotSpace", std::string("2-\0", 3), {0, 1, 2}},
        Reading{"TheFirstMinusCounts", "1-2-3", {1, 2}}, Reading{"NegativeUpperEnd", "1--2", noRows},
        Reading{"MinusBeforeTheLowerEnd", "-1-2", noRows}, Reading{"SpacesAroundNumbers", " 1 - 3 ", {1, 2, 3}},
        Reading{"PlusSigns", "+1-+3", {1, 2, 3}}, Reading{"BeatsASuffix", "2nd-4th", {2, 3, 4}},
        Reading{"MinusInsideASuffix", "2-nd", {0, 1, 2}}, Reading{"BeyondThirtyTwoBits", "0-4294967296", noRows},
        Reading{"FarBeyondThirtyTwoBits", "0-99999999999999999999999", noRows},
        Reading{"NegativeBeyondThirtyTwoBits", "0--99999999999999999999999", noRows}),
    readingName);

INSTANTIATE_TEST_SUITE_P(
    EveryNth, NumberSelectionReading,
    testing::Values(
        Reading{"Second", "2nd", evenRows}, Reading{"Third", "3rd", {0, 3, 6, 9}}, Reading{"Fourth", "4th", {0, 4, 8}},
        Reading{"First", "1st", allRows}, Reading{"Shifted", "4th+2", {2, 6}},
        Reading{"ShiftPastTheLastRow", "2nd+20", noRows}, Reading{"ShiftToTheLastRow", "2nd+9", {9}},
        Reading{"ShiftJustPastTheLastRow", "2nd+10", noRows}, Reading{"StepZero", "0th", allRows},
        Reading{"NoStep", "th", allRows}, Reading{"NoStepShifted", "rd+7", {7, 8, 9}},
        Reading{"SpaceStep", "  nd+8", {8, 9}}, Reading{"UnreadableStep", "xst+8", {8, 9}},
        Reading{"EmptyShift", "2nd+", evenRows}, Reading{"SpaceShift", "2nd+ ", evenRows},
        Reading{"UnreadableShift", "2nd+x", evenRows}, Reading{"AnySuffixFitsAnyNumber", "3th", {0, 3, 6, 9}},
        Reading{"AnotherSuffixFitsAnyNumber", "2rd", evenRows}, Reading{"UpperCaseIsNoSuffix", "2ND", {2}},
        Reading{"MixedCaseIsNoSuffix", "2Nd", {2}}, Reading{"TextAroundTheSuffix", " 5 x th yz + 1 x", {1, 6}},
        Reading{"TheFirstPlusCounts", "4th+2+1", {2, 6}}, Reading{"SecondPlusIsASign", "4th++2", {2, 6}},
        Reading{"APlusBeforeTheSuffix", "+4th", {4, 8}}, Reading{"AShiftBeforeTheSuffix", "2+3th", {3, 5, 7, 9}},
        Reading{"ThBeatsAnEarlierNd", "3nd4th", {0, 3, 6, 9}}, Reading{"NdBeatsAnEarlierRd", "5rd2nd", {0, 5}},
        Reading{"RdBeatsAnEarlierSt", "5st2rd", {0, 5}}, Reading{"TheFirstOccurrenceCounts", "5th2th", {0, 5}},
        Reading{"StepBeyondThirtyTwoBits", "4294967296th+3", {3}},
        Reading{"LargestStepDoesNotWrap", "4294967295th+3", {3}},
        Reading{"ShiftBeyondThirtyTwoBits", "1st+4294967296", noRows},
        Reading{"LargestShift", "1st+4294967295", noRows}),
    readingName);

INSTANTIATE_TEST_SUITE_P(SingleRows, NumberSelectionReading,
                         testing::Values(Reading{"Row", "3", {3}}, Reading{"FirstRow", "0", {0}},
                                         Reading{"LastRow", "9", {9}}, Reading{"PastTheLastRow", "10", noRows},
                                         Reading{"StopsAtTheFirstOtherCharacter", "3x", {3}},
                                         Reading{"WithoutDigits", "x", {0}}, Reading{"Decimal", "010", noRows},
                                         Reading{"NotHexadecimal", "0x5", {0}},
                                         Reading{"SpacesBefore", " \t\n\v\f\r4", {4}}, Reading{"PlusSign", "+4", {4}},
                                         Reading{"PlusSignAlone", "+", {0}}, Reading{"ArabicDigits", "\xD9\xA3", {0}},
                                         Reading{"SuffixOfOneLetter", "t", {0}},
                                         Reading{"BeyondThirtyTwoBits", "4294967297", noRows}),
                         readingName);

INSTANTIATE_TEST_SUITE_P(Lists, NumberSelectionReading,
                         testing::Values(Reading{"Empty", "", noRows}, Reading{"Space", "  ", noRows},
                                         Reading{"CommaAlone", ",", noRows}, Reading{"EmptyTokens", "1,,2,", {1, 2}},
                                         Reading{"SpaceToken", "1, ,2", {1, 2}}, Reading{"LeadingComma", ",1", {1}},
                                         Reading{"InOrder", "9,0-2,4th", {9, 0, 1, 2, 0, 4, 8}},
                                         Reading{"BadTokensAreSkipped", "3-20,5,99", {5}},
                                         Reading{"LineBreaksAreSpaces", "1\n,2", {1, 2}},
                                         Reading{"NulBytesDoNotEndTheText", std::string("1\0,2", 4), {1, 2}}),
                         readingName);

namespace {

class NumberSelectionTest : public TaloTest {};

/// A locale that groups digits and has its own space character.
class GroupingNumbers : public std::numpunct<char> {
protected:
    char do_thousands_sep() const override { return '_'; }
    std::string do_grouping() const override { return "\1"; }
};

} // namespace

TEST_F(NumberSelectionTest, AnEmptyListHasNoRows) {
    for (auto const* const text : {"0", "0-0", "1st", "x", "th+0", "-", ""})
        EXPECT_EQ(rowsOf(text, 0), noRows) << text;
}

TEST_F(NumberSelectionTest, RowsBeyondThirtyTwoBitsAreCountedWithoutWrapping) {
    auto const rows = rowsOf("4294967295th+2147483647", 8589934592U);
    EXPECT_EQ(rows, (Rows{2147483647U, 6442450942U}));
}

TEST_F(NumberSelectionTest, TheLocaleOfTheProgramDoesNotMatter) {
    auto const before = std::locale::global(std::locale(std::locale::classic(), new GroupingNumbers));
    EXPECT_EQ(rowsOf("1_1", 100), (Rows{1}));
    EXPECT_EQ(rowsOf("1_2-3_4", 100), (Rows{1, 2, 3}));
    EXPECT_EQ(rowsOf("5_0th+1_0", 12), (Rows{1, 6, 11}));
    std::locale::global(before);
}

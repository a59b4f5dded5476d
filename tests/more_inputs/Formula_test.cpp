#include "support/TaloTest.hpp"

#include <more_inputs/Formula.hpp>

using MoreInputs::Formula;

namespace {

using FormulaTest = TaloTest;

double valueOf(char const* text, char decimalPoint = '.') {
    auto const result = Formula::compute(QString::fromUtf8(text), QLatin1Char(decimalPoint));
    EXPECT_TRUE(result.value) << text << ": " << qPrintable(result.error);
    EXPECT_TRUE(result.error.isEmpty());
    return result.value.value_or(-999);
}

std::string errorOf(char const* text) {
    auto const result = Formula::compute(QString::fromUtf8(text));
    EXPECT_FALSE(result.value) << text;
    return result.error.toStdString();
}

} // namespace

TEST_F(FormulaTest, Computes) {
    EXPECT_EQ(valueOf("2"), 2);
    EXPECT_EQ(valueOf(" 2 * 3 "), 6);
    EXPECT_EQ(valueOf("2+3*4"), 14);
    EXPECT_EQ(valueOf("(2+3)*4"), 20);
    EXPECT_EQ(valueOf("8/2/2"), 2);
    EXPECT_EQ(valueOf("8-2-2"), 4);
    EXPECT_EQ(valueOf("-3*-(1+1)"), 6);
    EXPECT_EQ(valueOf("2--+-3"), -1 + 0.0) << "two signs of each kind: 2 - (-(+(-3)))";
    EXPECT_EQ(valueOf("1.5e2+.5"), 150.5);
    EXPECT_EQ(valueOf("1e-2"), 0.01);
    EXPECT_DOUBLE_EQ(valueOf("2*pi"), 6.283185307179586);
    EXPECT_DOUBLE_EQ(valueOf("PI/2"), 1.5707963267948966);
}

TEST_F(FormulaTest, ADecimalCommaCountsWhereTheLanguageHasOne) {
    EXPECT_EQ(valueOf("1,5*2", ','), 3);
    EXPECT_EQ(valueOf("1.5*2", ','), 3);
    EXPECT_EQ(errorOf("1,5"), "\",5\" was not expected.");
}

TEST_F(FormulaTest, SaysWhatIsWrong) {
    EXPECT_EQ(errorOf(""), "A number is missing at the end.");
    EXPECT_EQ(errorOf("2*"), "A number is missing at the end.");
    EXPECT_EQ(errorOf("2*x"), "A number is missing before \"x\".");
    EXPECT_EQ(errorOf("2 3"), "\"3\" was not expected.");
    EXPECT_EQ(errorOf("(2+3"), "A closing parenthesis is missing.");
    EXPECT_EQ(errorOf("2)"), "\")\" was not expected.");
    EXPECT_EQ(errorOf("1/0"), "A division by zero has no result.");
    EXPECT_EQ(errorOf("1/(2-2)"), "A division by zero has no result.");
    EXPECT_EQ(errorOf("1.2.3"), "\"1.2.3\" is no number.");
    EXPECT_EQ(errorOf("1e300*1e300"), "The result is too large.");
    EXPECT_EQ(errorOf("0x10"), "\"x10\" was not expected.");
    EXPECT_EQ(errorOf("nan"), "A number is missing before \"nan\".");
}

TEST_F(FormulaTest, ADeepTextIsRefused) {
    EXPECT_EQ(errorOf(std::string(100000, '(').c_str()), "There are too many parentheses.");
    EXPECT_EQ(valueOf((std::string(90, '(') + "1" + std::string(90, ')')).c_str()), 1);
    EXPECT_EQ(valueOf((std::string(100000, '-') + "1").c_str()), 1);
}

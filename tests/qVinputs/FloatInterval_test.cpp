#include "support/TaloTest.hpp"

#include <array>
#include <cmath>
#include <limits>
#include <qVinputs/basics/FloatInterval.hpp>
#include <random>

using Kolt::FloatInterval;

namespace {

constexpr int LargestInt = std::numeric_limits<int>::max();
constexpr double Infinity = std::numeric_limits<double>::infinity();
constexpr double NotANumber = std::numeric_limits<double>::quiet_NaN();

FloatInterval interval(double min, double max, double resolution) {
    FloatInterval made;
    made.min = min;
    made.max = max;
    made.setResolution(resolution);
    return made;
}

/// The distance between neighbouring doubles near the larger end of the interval.
double spacing(FloatInterval const& bounds) {
    double const largest = std::max(std::abs(bounds.min), std::abs(bounds.max));
    return std::nextafter(largest, Infinity) - largest;
}

class FloatIntervalTest : public TaloTest {};

/// Random intervals of many positions, widths and resolutions, the same in every run.
class RandomIntervals : public TaloTest {
protected:
    template <typename Check>
    void forEach(Check check) {
        std::mt19937 generator(20230329);
        std::uniform_real_distribution<double> place(-1e6, 1e6);
        std::uniform_real_distribution<double> exponent(-6, 7);
        std::uniform_real_distribution<double> share(0, 1);
        for (int round = 0; round < 20000; ++round) {
            double const min = place(generator);
            double const max = min + std::pow(10, exponent(generator));
            auto const bounds = interval(min, max, 2 + std::pow(10, share(generator) * 9));
            SCOPED_TRACE(testing::Message() << "min " << min << " max " << max << " delta " << bounds.delta);
            check(bounds, share(generator));
            if (HasFailure())
                return;
        }
    }
};

} // namespace

TEST_F(FloatIntervalTest, StartsAsTheUnitInterval) {
    FloatInterval const bounds;
    EXPECT_EQ(bounds.min, 0.0);
    EXPECT_EQ(bounds.max, 1.0);
    EXPECT_EQ(bounds.delta, 0.001);
    EXPECT_EQ(bounds.steps, 1000000000);
    EXPECT_EQ(bounds.lastPosition(), 1001);
}

TEST_F(FloatIntervalTest, TheUsualResolutionGivesAHundredMillionPositions) {
    auto const bounds = interval(0.0, 1.0, 100000000.0);
    EXPECT_EQ(bounds.delta, 1.0 / 99999999);
    EXPECT_EQ(bounds.lastPosition(), 100000000);
    EXPECT_EQ(bounds.valueAt(0), 0.0);
    EXPECT_EQ(bounds.valueAt(50000000), 0.5);
    EXPECT_EQ(bounds.valueAt(100000000), 1.0);
    EXPECT_EQ(bounds.positionOf(0.5), 50000000);
}

TEST_F(FloatIntervalTest, OnlyTheWholePartOfTheResolutionCounts) {
    EXPECT_EQ(interval(0.0, 1.0, 5.9).delta, 0.25);
    EXPECT_EQ(interval(0.0, 1.0, 5.9).lastPosition(), 5);
}

TEST_F(FloatIntervalTest, ValuesAreClampedAndPositionsAreNot) {
    auto const bounds = interval(-2.0, 2.0, 101);
    EXPECT_EQ(bounds.valueAt(-1), -2.0);
    EXPECT_EQ(bounds.valueAt(bounds.lastPosition() + 1), 2.0);
    EXPECT_LT(bounds.positionOf(-3.0), 0);
    EXPECT_GT(bounds.positionOf(3.0), bounds.lastPosition());
}

TEST_F(FloatIntervalTest, PositionsRoundToTheNearest) {
    auto bounds = interval(0.0, 1.0, 10);
    ASSERT_EQ(bounds.lastPosition(), 10);
    EXPECT_EQ(bounds.positionOf(0.149), 1);
    EXPECT_EQ(bounds.positionOf(0.151), 2);
    EXPECT_EQ(bounds.positionAtFraction(0.149), 1);
    EXPECT_EQ(bounds.positionAtFraction(0.151), 2);
    EXPECT_EQ(bounds.positionAtFraction(1.0), 10);
}

TEST_F(FloatIntervalTest, SharesOfTheIntervalHaveTheirPositions) {
    auto const bounds = interval(10.0, 30.0, 100);
    ASSERT_EQ(bounds.lastPosition(), 100);
    EXPECT_EQ(bounds.positionAtShare(0.1), 10);
    EXPECT_EQ(bounds.positionAtShare(0.33), 33);
    EXPECT_EQ(bounds.positionAtShare(0.66), 66);
    EXPECT_EQ(bounds.positionAtShare(0.9), 90);
}

TEST_F(FloatIntervalTest, CoarseningStopsAtTheWidth) {
    auto bounds = interval(-1.0, 3.0, 1001);
    bounds.coarsen();
    EXPECT_EQ(bounds.delta, 0.008);
    for (int n = 0; n < 40; ++n)
        bounds.coarsen();
    EXPECT_EQ(bounds.delta, 4.0);
    EXPECT_EQ(bounds.lastPosition(), 2);
}

TEST_F(FloatIntervalTest, RefiningStopsAtAHundredMillionthOfTheWidth) {
    auto bounds = interval(-1.0, 3.0, 1001);
    bounds.refine();
    EXPECT_EQ(bounds.delta, 0.002);
    for (int n = 0; n < 40; ++n)
        bounds.refine();
    EXPECT_EQ(bounds.delta, 1e-8 * 4.0);
    EXPECT_EQ(bounds.lastPosition(), 100000001);
}

TEST_F(FloatIntervalTest, WideningAndNarrowingPutTheValueInTheMiddle) {
    auto bounds = interval(0.0, 1.0, 1001);
    EXPECT_EQ(bounds.widen(0.25), 500000000);
    EXPECT_EQ(bounds.min, -0.75);
    EXPECT_EQ(bounds.max, 1.25);
    EXPECT_EQ(bounds.delta, 2.0 / 999999999);
    EXPECT_EQ(bounds.lastPosition(), 1000000000);
    EXPECT_DOUBLE_EQ(bounds.valueAt(500000000), 0.25);

    bounds = interval(0.0, 1.0, 1001);
    EXPECT_EQ(bounds.narrow(0.25), 500000000);
    EXPECT_EQ(bounds.min, 0.0);
    EXPECT_EQ(bounds.max, 0.5);
    EXPECT_EQ(bounds.delta, 0.5 / 999999999);
    EXPECT_DOUBLE_EQ(bounds.valueAt(500000000), 0.25);
}

TEST_F(FloatIntervalTest, ProductsAreFormedBeforeQuotients) {
    // Numbers for which another order of operations rounds to another value.
    FloatInterval bounds;
    bounds.max = 0.7;
    bounds.delta = 0.1;
    double const volatile width = bounds.max - bounds.min;
    int const last = bounds.lastPosition();
    int differing = 0;
    for (int position = 0; position <= last; ++position) {
        double const volatile product = position * width;
        double const volatile quotient = product / last;
        EXPECT_EQ(bounds.valueAt(position), quotient + bounds.min);
        double const volatile otherQuotient = width / last;
        double const volatile other = position * otherQuotient;
        differing += other != quotient;
    }
    EXPECT_GT(differing, 0);
}

TEST_F(FloatIntervalTest, NumbersWithoutSenseHaveSaturatedPositions) {
    std::array const numbers{0.0,    -0.0,   1.0,      -1.0,      1.5,        1e308,        -1e308,
                             5e-324, 1e-300, Infinity, -Infinity, NotANumber, 2147483648.0, -2147483649.0};
    for (double const min : numbers) {
        for (double const max : numbers) {
            for (double const resolution : numbers) {
                auto const bounds = interval(min, max, resolution);
                EXPECT_GE(bounds.lastPosition(), 1);
                EXPECT_EQ(bounds.positionOf(NotANumber), 0);
                for (double const value : numbers)
                    bounds.positionOf(value);
                for (int const position : {-1, 0, 1, LargestInt}) {
                    double const value = bounds.valueAt(position);
                    EXPECT_FALSE(value > max) << min << ' ' << max << ' ' << resolution;
                }
                bounds.positionAtFraction(0.5);
                bounds.positionAtShare(0.5);
                auto changed = bounds;
                changed.coarsen();
                EXPECT_GE(changed.lastPosition(), 1);
                changed.refine();
                EXPECT_GE(changed.lastPosition(), 1);
                changed.widen(max);
                EXPECT_GE(changed.lastPosition(), 1);
                changed.narrow(min);
                EXPECT_GE(changed.lastPosition(), 1);
            }
        }
    }
}

TEST_F(FloatIntervalTest, APositionTooLargeIsTheLargestInt) {
    FloatInterval bounds;
    bounds.delta = 1e-300;
    EXPECT_EQ(bounds.lastPosition(), LargestInt);
    EXPECT_EQ(bounds.positionOf(2.0), LargestInt);
    EXPECT_EQ(bounds.positionOf(-2.0), std::numeric_limits<int>::min());
    EXPECT_EQ(bounds.positionOf(Infinity), LargestInt);
    EXPECT_EQ(interval(5.0, 5.0, 100).lastPosition(), 1);
    EXPECT_EQ(interval(0.0, 1.0, 1.0).lastPosition(), 1);
    EXPECT_EQ(interval(0.0, 1.0, -7.0).lastPosition(), 1);
}

TEST_F(RandomIntervals, ThePositionOfAValueStandsForItWithinOneStep) {
    forEach([](FloatInterval const& bounds, double share) {
        double const width = bounds.max - bounds.min;
        double const value = bounds.min + share * width;
        int const position = bounds.positionOf(value);
        EXPECT_GE(position, 0);
        EXPECT_LE(position, bounds.lastPosition());
        double const step = width / bounds.lastPosition();
        EXPECT_NEAR(bounds.valueAt(position), value, step + 4 * spacing(bounds));
    });
}

TEST_F(RandomIntervals, TheValueAtAPositionLiesInTheIntervalAndHasThatPosition) {
    forEach([](FloatInterval const& bounds, double share) {
        auto const position = static_cast<int>(share * bounds.lastPosition());
        double const value = bounds.valueAt(position);
        EXPECT_GE(value, bounds.min);
        EXPECT_LE(value, bounds.max);
        double const step = (bounds.max - bounds.min) / bounds.lastPosition();
        EXPECT_NEAR(bounds.positionOf(value), position, 1 + 4 * spacing(bounds) / step);
    });
}

TEST_F(RandomIntervals, TheEndsAreTheFirstAndTheLastPosition) {
    forEach([](FloatInterval const& bounds, double) {
        EXPECT_EQ(bounds.positionOf(bounds.min), 0);
        EXPECT_EQ(bounds.positionOf(bounds.max), bounds.lastPosition());
        EXPECT_EQ(bounds.valueAt(0), bounds.min);
    });
}

TEST_F(FloatIntervalTest, FiniteEndsGiveFiniteValuesHoweverFarApart) {
    constexpr double Largest = std::numeric_limits<double>::max();
    for (auto const& [min, max] : std::vector<std::pair<double, double>>{
             {-1e308, 1e308}, {-Largest, Largest}, {0.0, 1e305}, {1e-300, 1e300}, {-Largest, -1e308}}) {
        auto bounds = interval(min, max, 1e8);
        for (int round = 0; round < 12; ++round) {
            SCOPED_TRACE(testing::Message() << min << ' ' << max << ' ' << round);
            ASSERT_TRUE(std::isfinite(bounds.min) && std::isfinite(bounds.max) && std::isfinite(bounds.delta));
            int const last = bounds.lastPosition();
            EXPECT_GT(last, 2);
            EXPECT_EQ(bounds.valueAt(0), bounds.min);
            EXPECT_EQ(bounds.valueAt(last), bounds.max);
            EXPECT_EQ(bounds.positionOf(bounds.max), last);
            EXPECT_EQ(bounds.positionOf(bounds.min), 0);
            EXPECT_LE(std::abs(bounds.positionOf(bounds.valueAt(last / 3)) - last / 3), 1);
            EXPECT_NEAR(bounds.positionAtShare(0.9), 0.9 * last, 1.0);
            EXPECT_LT(bounds.valueAt(last / 3), bounds.valueAt(last / 2));
            double const middle = bounds.valueAt(last / 2);
            if (round % 4 == 0)
                bounds.widen(middle);
            else if (round % 4 == 1)
                bounds.refine();
            else if (round % 4 == 2)
                bounds.narrow(middle);
            else
                bounds.coarsen();
        }
    }
}

TEST_F(FloatIntervalTest, HugeIntervalsHaveThePositionsOfSmallOnes) {
    auto const huge = interval(-0x1p1023, 0x1p1023, 1000);
    auto const small = interval(-1.0, 1.0, 1000);
    ASSERT_EQ(huge.lastPosition(), small.lastPosition());
    for (int position = 0; position <= small.lastPosition(); ++position) {
        EXPECT_EQ(huge.valueAt(position), small.valueAt(position) * 0x1p1023);
        EXPECT_EQ(huge.positionOf(huge.valueAt(position)), small.positionOf(small.valueAt(position)));
    }
}

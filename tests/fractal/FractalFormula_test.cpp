#include "support/TaloTest.hpp"

#include <cmath>
#include <fractal/engine/ColourScale.hpp>
#include <fractal/engine/FractalFormula.hpp>
#include <fractal/engine/FractalView.hpp>
#include <limits>

using Fractal::FractalFormula;
using Fractal::FractalSettings;
using Fractal::FractalView;
using Point = FractalFormula::Point;
using Formula = FractalSettings::Formula;

namespace {

class FractalFormulaTest : public TaloTest {
protected:
    FractalFormula formula(Formula kind) {
        settings.formula = kind;
        return FractalFormula(settings);
    }
    FractalFormula::EscapeResult resultOf(Formula kind, Point const& point) {
        return formula(kind).escapeResultAt(point);
    }

    FractalSettings settings;
};

void expectNear(Point const& point, Point const& expected, double distance) {
    EXPECT_LT(std::abs(point - expected), distance) << point << " instead of " << expected;
}

} // namespace

TEST_F(FractalFormulaTest, PointsOfTheMandelbrotSetStay) {
    // The origin, the centre of the largest disc, the tip of the antenna, and a point of a small part.
    for (auto const& point : {Point(0, 0), Point(-1, 0), Point(-2, 0), Point(-0.1226, 0.7449)})
        EXPECT_TRUE(resultOf(Formula::Mandelbrot, point).stays) << point;
    for (auto const& point : {Point(0.3, 0), Point(-2.01, 0), Point(1, 1), Point(0, 1.1)})
        EXPECT_FALSE(resultOf(Formula::Mandelbrot, point).stays) << point;
}

TEST_F(FractalFormulaTest, TheLargestPartsHaveTheirTrueEdge) {
    settings.iterations = 20000;
    EXPECT_TRUE(resultOf(Formula::Mandelbrot, {0.2499, 0}).stays);
    EXPECT_FALSE(resultOf(Formula::Mandelbrot, {0.2502, 0}).stays);
    EXPECT_TRUE(resultOf(Formula::Mandelbrot, {-1.2499, 0}).stays);
    EXPECT_FALSE(resultOf(Formula::Mandelbrot, {-0.75, 0.05}).stays);
}

TEST_F(FractalFormulaTest, TheConstantMakesAnotherJuliaSet) {
    EXPECT_FALSE(resultOf(Formula::Julia, {1.7, 0}).stays);
    settings.juliaReal = -1;
    settings.juliaImaginary = 0;
    // 0 and -1 follow each other for ever.
    EXPECT_TRUE(resultOf(Formula::Julia, {0, 0}).stays);
    expectNear(formula(Formula::Julia).orbitOf({0.5, 0}, 2).at(1), {-0.75, 0}, 1e-12);
    auto const fixed = formula(Formula::Julia).focus();
    expectNear(fixed * fixed - 1.0, fixed, 1e-12);
    settings.juliaReal = 2.5;
    settings.juliaImaginary = -std::numeric_limits<double>::infinity();
    settings.limit();
    EXPECT_EQ(settings.juliaReal, 2);
    EXPECT_EQ(settings.juliaImaginary, -2);
    settings.juliaReal = std::numeric_limits<double>::quiet_NaN();
    settings.limit();
    EXPECT_EQ(settings.juliaReal, FractalSettings().juliaReal);
}

TEST_F(FractalFormulaTest, CountsTheStepsToTheEscape) {
    settings.smooth = false;
    // 0, 3, 12, 147, 21612: the fifth place is the first whose square exceeds 65536.
    EXPECT_EQ(resultOf(Formula::Mandelbrot, {3, 0}).count, 4);
    EXPECT_LT(resultOf(Formula::Mandelbrot, {3, 0}).count, resultOf(Formula::Mandelbrot, {0.3, 0}).count);
    EXPECT_TRUE(resultOf(Formula::Mandelbrot, {0.26, 0}).count > 10);
    settings.iterations = 10;
    EXPECT_TRUE(resultOf(Formula::Mandelbrot, {0.26, 0}).stays);
}

TEST_F(FractalFormulaTest, ASmoothCountIsWithinAStepOfTheWholeOne) {
    for (auto const kind : {Formula::Mandelbrot, Formula::Julia, Formula::BurningShip, Formula::Newton}) {
        for (auto const& point : {Point(0.4, 0.3), Point(-1.9, 0.4), Point(0.31, -1.2)}) {
            settings.smooth = false;
            auto const whole = resultOf(kind, point);
            settings.smooth = true;
            auto const smooth = resultOf(kind, point);
            ASSERT_EQ(whole.stays, smooth.stays);
            EXPECT_EQ(whole.count, std::floor(whole.count));
            EXPECT_LE(std::abs(whole.count - smooth.count), 1.001) << point;
        }
    }
}

TEST_F(FractalFormulaTest, NewtonFindsTheRootNextToThePoint) {
    EXPECT_EQ(resultOf(Formula::Newton, {2, 0}).root, 0);
    EXPECT_EQ(resultOf(Formula::Newton, {-0.5, 0.9}).root, 1);
    EXPECT_EQ(resultOf(Formula::Newton, {-0.5, -0.9}).root, 2);
    EXPECT_EQ(resultOf(Formula::Newton, {1, 0}).count, 0);
    EXPECT_TRUE(resultOf(Formula::Newton, {0, 0}).stays);
}

TEST_F(FractalFormulaTest, EveryPointGetsAnAnswer) {
    double const infinity = std::numeric_limits<double>::infinity();
    double const nan = std::numeric_limits<double>::quiet_NaN();
    for (auto const kind : {Formula::Mandelbrot, Formula::Julia, Formula::BurningShip, Formula::Newton}) {
        for (double const number : {infinity, -infinity, nan, 1e308, -1e308, 5e-324}) {
            auto const answer = resultOf(kind, {number, 0.5});
            EXPECT_TRUE(std::isfinite(answer.count));
            EXPECT_GE(answer.count, 0);
            EXPECT_LE(formula(kind).orbitOf({number, 0.5}, 7).size(), 7U);
        }
    }
}

TEST_F(FractalFormulaTest, AnOrbitEndsWhereItEscapes) {
    auto const mandelbrot = formula(Formula::Mandelbrot);
    EXPECT_EQ(mandelbrot.orbitOf({-1, 0}, 5), (std::vector<Point>{{0, 0}, {-1, 0}, {0, 0}, {-1, 0}, {0, 0}}));
    EXPECT_EQ(mandelbrot.orbitOf({3, 0}, 50), (std::vector<Point>{{0, 0}, {3, 0}, {12, 0}, {147, 0}}));
}

TEST_F(FractalFormulaTest, TheCentreOfThePictureIsHomeAndTheZoomApproachesTheFocus) {
    settings.rotation = 0;
    FractalView const whole(settings, {80, 60});
    FractalFormula const mandelbrot(settings);
    expectNear(whole.pointAt(40, 30), mandelbrot.home(), 1e-12);
    expectNear(whole.pointAt(40, 0), mandelbrot.home() + Point(0, mandelbrot.homeHalfHeight()), 1e-12);

    settings.zoom = 40;
    FractalView const near(settings, {80, 60});
    expectNear(near.centre(), mandelbrot.focus(), 1e-11);
    EXPECT_DOUBLE_EQ(near.scale(), whole.scale() / std::exp2(40));
    // The focus keeps its place while the zoom changes.
    auto const place = near.placeOf(mandelbrot.focus());
    EXPECT_NEAR(place.x(), whole.placeOf(mandelbrot.focus()).x(), 0.01);
    EXPECT_NEAR(place.y(), whole.placeOf(mandelbrot.focus()).y(), 0.01);
}

TEST_F(FractalFormulaTest, AtEveryZoomThereIsSomethingToSee) {
    settings.iterations = 5000;
    for (auto const kind : {Formula::Mandelbrot, Formula::Julia, Formula::BurningShip, Formula::Newton}) {
        for (double const zoom : {0.0, 5.0, 15.0, 30.0}) {
            settings.zoom = zoom;
            auto const chosen = formula(kind);
            FractalView const view(settings, {24, 18});
            std::set<long> counts;
            for (int y = 0; y < 18; ++y) {
                for (int x = 0; x < 24; ++x) {
                    auto const answer = chosen.escapeResultAt(view.pointAt(x, y));
                    counts.insert(answer.stays ? -1 : std::lround(answer.count));
                }
            }
            EXPECT_GE(counts.size(), 3U) << "formula " << static_cast<int>(kind) << ", zoom " << zoom;
        }
    }
}

TEST_F(FractalFormulaTest, PlacesAndPointsAreTurnedTheSameWay) {
    settings.rotation = 30.5;
    settings.zoom = 3;
    FractalView const view(settings, {80, 60});
    auto const place = view.placeOf(view.pointAt(13, 47));
    EXPECT_NEAR(place.x(), 13, 1e-9);
    EXPECT_NEAR(place.y(), 47, 1e-9);
}

TEST_F(FractalFormulaTest, ASymmetryMirrorsEveryPointIntoTheFirstSector) {
    settings.symmetry = 60;
    settings.rotation = 0;
    FractalView const view(settings, {80, 60});
    for (auto const& place : {QPointF(70, 5), QPointF(3, 31), QPointF(41, 59)}) {
        double const angle = std::arg(view.pointAt(place.x(), place.y()) - view.centre()) * 180 / M_PI;
        EXPECT_GE(angle, -1e-9);
        EXPECT_LE(angle, 60 + 1e-9);
    }
    // With 180 degrees the lower half mirrors the upper one.
    settings.symmetry = 180;
    FractalView const halves(settings, {80, 60});
    expectNear(halves.pointAt(10, 50), halves.pointAt(10, 10), 1e-12);
}

TEST_F(FractalFormulaTest, TheScaleGoesFromTheOutsideColourToTheLastOfThePalette) {
    settings.outside = {0.2F, 0.4F, 0.6F, 1};
    settings.palette = FractalSettings::Palette::FromFile;
    settings.fileColours = {qRgb(255, 0, 0), qRgb(0, 0, 255)};
    for (auto const blend : {FractalSettings::Blend::Linear, FractalSettings::Blend::Cosine,
                             FractalSettings::Blend::Cubic, FractalSettings::Blend::Steps}) {
        settings.blend = blend;
        Fractal::ColourScale const scale(settings);
        EXPECT_NEAR(scale.colourAt(0).green, 0.4F, 1e-3F);
        EXPECT_NEAR(scale.colourAt(1).blue, 1, 1e-3F);
        EXPECT_NEAR(scale.colourAt(0.5).red, 1, 2e-3F);
        EXPECT_EQ(scale.colourAt(7).blue, scale.colourAt(1).blue);
        EXPECT_EQ(scale.colourAt(-7).blue, scale.colourAt(0).blue);
    }
}

TEST_F(FractalFormulaTest, SettingsBeyondAllBoundsAreLimited) {
    double const infinity = std::numeric_limits<double>::infinity();
    double const nan = std::numeric_limits<double>::quiet_NaN();
    settings.iterations = std::numeric_limits<int>::max();
    settings.quality = -3;
    settings.symmetry = std::numeric_limits<int>::min();
    settings.zoom = nan;
    settings.contrast = -infinity;
    settings.rotation = infinity;
    settings.inside = {std::numeric_limits<float>::quiet_NaN(), -1, 7, 0.5F};
    settings.width = 0;
    settings.limit();
    EXPECT_EQ(settings.iterations, 20000);
    EXPECT_EQ(settings.quality, 1);
    EXPECT_GE(settings.symmetry, 0);
    EXPECT_LT(settings.symmetry, 360);
    EXPECT_EQ(settings.zoom, 0);
    EXPECT_EQ(settings.contrast, 0);
    EXPECT_EQ(settings.rotation, 0);
    EXPECT_EQ(settings.inside.red, 0);
    EXPECT_EQ(settings.inside.green, 0);
    EXPECT_EQ(settings.inside.blue, 1);
    EXPECT_EQ(settings.inside.alpha, 0.5F);
    EXPECT_EQ(settings.width, 16);
    settings.symmetry = 360;
    settings.rotation = -90;
    settings.limit();
    EXPECT_EQ(settings.symmetry, 0);
    EXPECT_EQ(settings.rotation, 270);
}

#include "Rendering.hpp"
#include "support/MemoryLimit.hpp"
#include "support/TaloTest.hpp"

#include <cmath>
#include <functional>

using Fractal::FractalSettings;
using Rendering::points;
using Rendering::quick;

namespace {

class FractalRendererTest : public TaloTest {};

} // namespace

TEST_F(FractalRendererTest, EqualSettingsGiveEqualBytes) {
    EXPECT_EQ(points(quick()).image, points(quick()).image);
    EXPECT_EQ(points(quick()).counts, points(quick()).counts);
}

TEST_F(FractalRendererTest, TheNumberOfThreadsDoesNotMatter) {
    auto settings = quick();
    settings.quality = 2;
    auto const one = points(settings, {81, 61}, 1);
    for (int const threads : {-1, 2, 3, 16, 100}) {
        auto const several = points(settings, {81, 61}, threads);
        EXPECT_EQ(several.image, one.image) << threads;
        EXPECT_EQ(several.counts, one.counts) << threads;
    }
}

TEST_F(FractalRendererTest, EachSettingChangesThePicture) {
    auto const usual = points(quick()).image;
    auto const changed = [&](std::function<void(FractalSettings&)> const& change) {
        auto settings = quick();
        change(settings);
        return points(settings).image != usual;
    };
    EXPECT_FALSE(changed([](FractalSettings&) {}));
    for (auto const formula :
         {FractalSettings::Formula::Julia, FractalSettings::Formula::BurningShip, FractalSettings::Formula::Newton})
        EXPECT_TRUE(changed([&](FractalSettings& settings) { settings.formula = formula; }));
    EXPECT_TRUE(changed([](FractalSettings& settings) { settings.iterations = 61; }));
    EXPECT_TRUE(changed([](FractalSettings& settings) { settings.quality = 2; }));
    EXPECT_TRUE(changed([](FractalSettings& settings) { settings.symmetry = 45; }));
    EXPECT_TRUE(changed([](FractalSettings& settings) { settings.zoom = 0.1; }));
    EXPECT_TRUE(changed([](FractalSettings& settings) { settings.contrast = 1.1; }));
    EXPECT_TRUE(changed([](FractalSettings& settings) { settings.rotation = 1; }));
    EXPECT_TRUE(changed([](FractalSettings& settings) { settings.smooth = false; }));
    EXPECT_TRUE(changed([](FractalSettings& settings) { settings.inside.green = 0.5F; }));
    EXPECT_TRUE(changed([](FractalSettings& settings) { settings.outside.blue = 0.9F; }));
    for (auto const palette : {FractalSettings::Palette::Glacier, FractalSettings::Palette::Meadow,
                               FractalSettings::Palette::Greyscale, FractalSettings::Palette::FromFile})
        EXPECT_TRUE(changed([&](FractalSettings& settings) { settings.palette = palette; }));
    for (auto const blend :
         {FractalSettings::Blend::Cosine, FractalSettings::Blend::Cubic, FractalSettings::Blend::Steps})
        EXPECT_TRUE(changed([&](FractalSettings& settings) { settings.blend = blend; }));
    for (auto const channel : {&FractalSettings::red, &FractalSettings::green, &FractalSettings::blue})
        EXPECT_TRUE(changed([&](FractalSettings& settings) { settings.*channel = false; }));
    EXPECT_TRUE(changed([](FractalSettings& settings) {
        settings.alpha = true;
        settings.inside.alpha = 0.5F;
    }));
}

TEST_F(FractalRendererTest, TheMandelbrotSetIsItsOwnMirrorImage) {
    auto settings = quick();
    settings.quality = 2;
    auto const image = points(settings).image;
    EXPECT_EQ(image, image.mirrored(false, true));
    settings.formula = FractalSettings::Formula::Julia;
    auto const julia = points(settings).image;
    EXPECT_NE(julia, julia.mirrored(false, true));
    // Turned by 180 degrees it is the same, except for rounding of counts.
    auto const turned = julia.mirrored(true, true);
    int different = 0;
    for (int y = 0; y < julia.height(); ++y) {
        for (int x = 0; x < julia.width(); ++x)
            different += std::abs(qRed(julia.pixel(x, y)) - qRed(turned.pixel(x, y))) > 2 ? 1 : 0;
    }
    EXPECT_EQ(different, 0);
}

TEST_F(FractalRendererTest, AKaleidoscopeMirrorsThePicture) {
    auto settings = quick();
    settings.rotation = 20;
    settings.symmetry = 180;
    auto const halves = points(settings).image;
    EXPECT_EQ(halves, halves.mirrored(false, true));
    EXPECT_NE(halves, halves.mirrored(true, false));
    settings.symmetry = 90;
    auto const quarters = points(settings).counts;
    for (int x = 0; x < 40; ++x)
        EXPECT_NEAR(quarters[static_cast<std::size_t>(x)], quarters[static_cast<std::size_t>(79 - x)], 1e-3F) << x;
    settings.symmetry = 360;
    auto const whole = points(settings).image;
    settings.symmetry = 0;
    EXPECT_EQ(whole, points(settings).image);
}

TEST_F(FractalRendererTest, TheCornersEscapeAndTheMiddleStays) {
    auto settings = quick();
    settings.inside = {0, 0, 1, 1};
    auto const rendered = points(settings);
    EXPECT_EQ(rendered.image.pixel(40, 30), qRgb(0, 0, 255));
    EXPECT_TRUE(std::isinf(rendered.counts[30 * 80 + 40]));
    EXPECT_NE(rendered.image.pixel(0, 0), qRgb(0, 0, 255));
    EXPECT_TRUE(std::isfinite(rendered.counts[0]));
    EXPECT_GT(rendered.staying, 0.1);
    EXPECT_LT(rendered.staying, 0.5);
}

TEST_F(FractalRendererTest, WithoutTheAlphaChannelEveryPictureIsOpaque) {
    auto settings = quick();
    settings.inside.alpha = 0;
    settings.outside.alpha = 0.25F;
    EXPECT_EQ(qAlpha(points(settings).image.pixel(40, 30)), 255);
    settings.alpha = true;
    EXPECT_EQ(qAlpha(points(settings).image.pixel(40, 30)), 0);
    EXPECT_LT(qAlpha(points(settings).image.pixel(0, 0)), 255);
    settings.red = settings.green = settings.blue = settings.alpha = false;
    EXPECT_EQ(points(settings).image.pixel(0, 0), qRgb(0, 0, 0));
}

TEST_F(FractalRendererTest, SettingsWithoutSenseGiveAPicture) {
    double const infinity = std::numeric_limits<double>::infinity();
    double const nan = std::numeric_limits<double>::quiet_NaN();
    for (double const number : {nan, infinity, -infinity, 1e300, -1e300, -5.0}) {
        auto settings = quick();
        settings.quality = std::numeric_limits<int>::min();
        settings.symmetry = -77;
        settings.zoom = number;
        settings.contrast = number;
        settings.rotation = number;
        settings.inside = {static_cast<float>(number), 0, 0, 1};
        settings.width = -1;
        settings.contours = {std::numeric_limits<int>::min(), 0, std::numeric_limits<int>::max()};
        settings.axes = settings.grid = settings.escapeCircle = settings.orbit = settings.legend = true;
        EXPECT_EQ(Rendering::picture(settings, {40, 30}).size(), QSize(40, 30)) << number;
    }
}

TEST_F(FractalRendererTest, ACancelledPictureEndsWithinARow) {
    auto settings = quick();
    settings.limit();
    std::atomic<bool> cancelled{false};
    int reported = 0;
    auto const rendered =
        Fractal::FractalRenderer(1).render(settings, {400, 300}, cancelled, [&](int) { cancelled = ++reported == 2; });
    EXPECT_FALSE(rendered);
    EXPECT_EQ(reported, 2);
    // One row of four thousand slow pixels would take very long.
    settings.iterations = 20000;
    settings.quality = 16;
    settings.zoom = -8;
    cancelled = true;
    EXPECT_FALSE(Fractal::FractalRenderer(2).render(settings, {4000, 1}, cancelled));
}

TEST_F(FractalRendererTest, ProgressGoesUpToAHundredPercent) {
    std::vector<int> reported;
    std::atomic<bool> const cancelled{false};
    auto settings = quick();
    settings.limit();
    ASSERT_TRUE(Fractal::FractalRenderer(1).render(settings, {30, 20}, cancelled,
                                                   [&](int percent) { reported.push_back(percent); }));
    EXPECT_TRUE(std::is_sorted(reported.begin(), reported.end()));
    EXPECT_EQ(reported.size(), 20U);
    EXPECT_EQ(reported.back(), 100);
}

TEST_F(FractalRendererTest, APictureWithoutPointsIsNone) {
    std::atomic<bool> const cancelled{false};
    for (auto const& size : {QSize(0, 10), QSize(10, 0), QSize(), QSize(-4, 3)})
        EXPECT_FALSE(Fractal::FractalRenderer(1).render(quick(), size, cancelled));
}

#ifdef TALO_LIMITS_MEMORY
TEST_F(FractalRendererTest, WorksWithAsManyThreadsAsThereAre) {
    auto const usual = points(quick()).image;
    MemoryLimit const limit(4 << 20);
    EXPECT_EQ(points(quick(), {80, 60}, 16).image, usual);
}
#endif

#include <fractal/engine/FractalSettings.hpp>

#include <algorithm>
#include <cmath>

namespace Fractal {

namespace {

constexpr double fullTurn = 360;

double limited(double value, double least, double most, double otherwise) {
    return std::isnan(value) ? otherwise : std::clamp(value, least, most);
}

void limitChannels(Ferro::rgba_float_t& colour) {
    for (auto* const channel : {&colour.red, &colour.green, &colour.blue, &colour.alpha})
        *channel = std::isnan(*channel) ? 0.0F : std::clamp(*channel, 0.0F, 1.0F);
}

} // namespace

void FractalSettings::limit() {
    FractalSettings const usual;
    iterations = std::clamp(iterations, 1, 20000);
    quality = std::clamp(quality, 1, 16);
    symmetry = (symmetry % 360 + 360) % 360;
    zoom = limited(zoom, -8, 44, usual.zoom);
    juliaReal = limited(juliaReal, -2, 2, usual.juliaReal);
    juliaImaginary = limited(juliaImaginary, -2, 2, usual.juliaImaginary);
    contrast = limited(contrast, 0, 16, usual.contrast);
    rotation = std::isfinite(rotation) ? std::fmod(rotation, fullTurn) : usual.rotation;
    if (rotation < 0)
        rotation += fullTurn;
    limitChannels(inside);
    limitChannels(outside);
    width = std::clamp(width, 16, 8192);
}

} // namespace Fractal

#include <fractal/engine/ColourScale.hpp>

#include <algorithm>
#include <cmath>

namespace Fractal {

namespace {

using Colour = ColourScale::Colour;
using Blend = FractalSettings::Blend;

// Finer than 8 bits per channel can show.
constexpr int scaleLength = 4096;
// No point within the circle of radius 2 escapes in fewer steps.
constexpr int earliestEscape = 3;

std::vector<QRgb> paletteColours(FractalSettings const& settings) {
    switch (settings.palette) {
    case FractalSettings::Palette::Embers:
        return {qRgb(246, 148, 36), qRgb(206, 60, 28), qRgb(110, 16, 40), qRgb(34, 6, 34)};
    case FractalSettings::Palette::Glacier:
        return {qRgb(188, 228, 244), qRgb(92, 168, 220), qRgb(28, 84, 160), qRgb(8, 24, 72)};
    case FractalSettings::Palette::Meadow:
        return {qRgb(214, 222, 96), qRgb(124, 180, 60), qRgb(36, 120, 76), qRgb(10, 48, 52)};
    case FractalSettings::Palette::FromFile:
        if (!settings.fileColours.empty())
            return settings.fileColours;
        break;
    case FractalSettings::Palette::Greyscale:
        break;
    }
    return {qRgb(224, 224, 224), qRgb(128, 128, 128), qRgb(24, 24, 24)};
}

Colour straight(QRgb colour) {
    auto const channel = [](int value) { return static_cast<float>(value) / 255.0F; };
    return {channel(qRed(colour)), channel(qGreen(colour)), channel(qBlue(colour)), 1.0F};
}

template <typename Function>
Colour eachChannel(Function const& function) {
    return {function(&Colour::red), function(&Colour::green), function(&Colour::blue), function(&Colour::alpha)};
}

/// Interpolates between the second and the third of four neighbouring colours; `place` is 0 to 1.
Colour blended(Blend blend, Colour const& before, Colour const& left, Colour const& right, Colour const& after,
               float place) {
    float share = place;
    switch (blend) {
    case Blend::Steps:
        return left;
    case Blend::Cubic:
        return eachChannel([&](float Colour::*channel) {
            float const a = before.*channel;
            float const b = left.*channel;
            float const c = right.*channel;
            float const d = after.*channel;
            float const value =
                b + 0.5F * place * (c - a + place * (2 * a - 5 * b + 4 * c - d + place * (3 * (b - c) + d - a)));
            return std::clamp(value, 0.0F, 1.0F);
        });
    case Blend::Cosine:
        share = 0.5F - 0.5F * std::cos(place * 3.14159265F);
        break;
    case Blend::Linear:
        break;
    }
    return eachChannel(
        [&](float Colour::*channel) { return left.*channel + share * (right.*channel - left.*channel); });
}

/// Removes the channels that the settings do not use, and premultiplies, so that colours can be added.
Colour withChannels(Colour colour, FractalSettings const& settings) {
    if (!settings.alpha)
        colour.alpha = 1;
    colour.red *= settings.red ? colour.alpha : 0.0F;
    colour.green *= settings.green ? colour.alpha : 0.0F;
    colour.blue *= settings.blue ? colour.alpha : 0.0F;
    return colour;
}

Colour plain(Ferro::rgba_float_t const& colour) {
    return {colour.red, colour.green, colour.blue, colour.alpha};
}

} // namespace

ColourScale::ColourScale(FractalSettings const& settings)
    : inside_(withChannels(plain(settings.inside), settings)),
      logarithmOfMost_(std::log1p(settings.iterations)),
      contrast_(settings.contrast),
      hasRoots_(settings.formula == FractalSettings::Formula::Newton) {
    std::vector<Colour> colours{plain(settings.outside)};
    for (auto const colour : paletteColours(settings))
        colours.push_back(straight(colour));

    bool const steps = settings.blend == Blend::Steps;
    auto const last = colours.size() - 1;
    auto const stretch = static_cast<double>(steps ? colours.size() : last);
    scale_.reserve(scaleLength);
    for (int index = 0; index < scaleLength; ++index) {
        double const place = stretch * index / (scaleLength - 1);
        auto const left = std::min(static_cast<std::size_t>(place), steps ? last : last - 1);
        auto const colour =
            blended(settings.blend, colours[left > 0 ? left - 1 : 0], colours[left], colours[std::min(left + 1, last)],
                    colours[std::min(left + 2, last)], static_cast<float>(place - static_cast<double>(left)));
        scale_.push_back(withChannels(colour, settings));
    }
}

ColourScale::Colour const& ColourScale::colourAt(double place) const {
    return scale_[static_cast<std::size_t>(std::clamp(place, 0.0, 1.0) * (scaleLength - 1))];
}

ColourScale::Colour const& ColourScale::colourOf(FractalFormula::EscapeResult const& result) const {
    if (result.stays)
        return inside_;
    // Most points escape early, so the early ones get most of the scale.
    auto const share = [&](double count) { return std::log1p(std::max(0.0, count)) / logarithmOfMost_; };
    double const place = hasRoots_ ? (share(result.count) + result.root) / 3 : share(result.count - earliestEscape);
    return colourAt(0.5 + (place - 0.5) * contrast_);
}

QColor ColourScale::forPainting(Colour const& colour) {
    if (colour.alpha <= 0)
        return Qt::transparent;
    auto const channel = [&](float value) { return std::clamp(static_cast<double>(value / colour.alpha), 0.0, 1.0); };
    return QColor::fromRgbF(channel(colour.red), channel(colour.green), channel(colour.blue),
                            static_cast<double>(colour.alpha));
}

} // namespace Fractal

#pragma once

#include <bramble/Color.hpp>
#include <QRgb>
#include <QString>
#include <vector>

namespace Fractal {

/// Everything that a picture is computed from, as plain values. What is set here is what is used where a network says
/// nothing. Copies are apart, so a worker computes from a copy while the parameters go on changing.
struct FractalSettings {
    enum class Formula {
        Mandelbrot,
        Julia,
        BurningShip,
        Newton ///< the roots of z*z*z = 1
    };
    enum class Palette { Embers, Glacier, Meadow, Greyscale, FromFile };
    /// How the colours between two colours of the palette are found.
    enum class Blend {
        Linear,
        Cosine, ///< slow beside the colours of the palette
        Cubic,  ///< a smooth curve through all of them
        Steps   ///< there are none
    };

    Formula formula = Formula::Mandelbrot;
    /// After how many steps a point counts as one that stays, 1 to 20,000.
    int iterations = 400;
    /// How many samples a point of the picture has in each direction, 1 to 16.
    int quality = 2;
    /// The angle of the mirrors of a kaleidoscope around the centre, in degrees, 1 to 359; 0 for none.
    int symmetry = 0;
    /// The magnification as a power of two, -8 to 44.
    double zoom = 0;
    /// How far the colours are spread around the middle of the scale, 0 (one colour) to 16.
    double contrast = 1;
    /// By how much the plane is turned, in degrees, counter-clockwise, 0 to 360.
    double rotation = 0;
    /// Whether the count of steps has a fraction, so that the colours have no bands.
    bool smooth = true;

    /// The colour of the points that stay, and of those that escape at once. All channels 0 to 1.
    Ferro::rgba_float_t inside{0.0F, 0.0F, 0.1F, 1.0F};
    Ferro::rgba_float_t outside{1.0F, 0.85F, 0.4F, 1.0F};
    Palette palette = Palette::Embers;
    /// The colours for Palette::FromFile; without any the greys are taken.
    std::vector<QRgb> fileColours;
    Blend blend = Blend::Linear;
    /// Which channels of the colours are used. Without red, green or blue there is none of it; without alpha the
    /// picture is opaque.
    bool red = true;
    bool green = true;
    bool blue = true;
    bool alpha = false;

    bool axes = false;
    bool grid = false;
    bool escapeCircle = false;
    bool orbit = false;
    bool legend = false;
    /// The counts of steps at which a line is drawn.
    std::vector<int> contours;

    QString heading;
    QString author;
    QString caption;
    QString date;
    QString legendText;

    /// What the user should know about the picture, as that the palette file cannot be read; usually empty.
    QString problem;

    /// The width of pictures that are computed to be kept, 16 to 8192 points; they are 4 to 3.
    int width = 960;

    /// Brings every number into its range: what is no number becomes the value that is used where nothing is said.
    void limit();
    /// The height that belongs to the width.
    int height() const { return width * 3 / 4; }
};

} // namespace Fractal

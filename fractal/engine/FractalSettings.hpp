#pragma once

#include <bramble/Color.hpp>
#include <QRgb>
#include <QString>
#include <vector>

namespace Fractal {

/// Everything that a picture is computed from, as plain values. The member initialisers are the defaults. A copy is
/// independent, so a worker can compute from a copy while the parameters change.
struct FractalSettings {
    enum class Formula {
        Mandelbrot,
        Julia,
        BurningShip,
        Newton ///< the roots of z*z*z = 1
    };
    enum class Palette { Embers, Glacier, Meadow, Greyscale, FromFile };
    /// How the colours between two colours of the palette are computed.
    enum class Blend {
        Linear,
        Cosine, ///< an S-curve between the two
        Cubic,  ///< a smooth curve through all colours of the palette
        Steps   ///< no colours in between
    };

    Formula formula = Formula::Mandelbrot;
    /// The number of iterations after which a point counts as one that stays, 1 to 20,000.
    int iterations = 400;
    /// The number of samples for each pixel in each direction, 1 to 16.
    int quality = 2;
    /// The angle of the mirrors of a kaleidoscope around the centre, in degrees, 1 to 359; 0 for none.
    int symmetry = 0;
    /// The magnification as a power of two, -8 to 44.
    double zoom = 0;
    /// How far the colours are spread around the middle of the scale, 0 (one colour) to 16.
    double contrast = 1;
    /// The rotation of the plane in degrees, counter-clockwise, 0 to 360.
    double rotation = 0;
    /// The constant of the Julia set, both parts -2 to 2.
    double juliaReal = -0.8;
    double juliaImaginary = 0.156;
    /// Whether the number of steps has a fraction, which avoids bands of colour.
    bool smooth = true;

    /// The colours of the points that stay, and of those that escape at once. All channels 0 to 1.
    Ferro::rgba_float_t inside{0.0F, 0.0F, 0.1F, 1.0F};
    Ferro::rgba_float_t outside{1.0F, 0.85F, 0.4F, 1.0F};
    Palette palette = Palette::Embers;
    /// The colours for Palette::FromFile; if empty, the greyscale is used.
    std::vector<QRgb> fileColours;
    Blend blend = Blend::Linear;
    /// Which channels of the colours are used. An unused red, green or blue is 0; without alpha the picture is opaque.
    bool red = true;
    bool green = true;
    bool blue = true;
    bool alpha = false;

    bool axes = false;
    bool grid = false;
    bool escapeCircle = false;
    bool orbit = false;
    bool legend = false;
    /// The numbers of steps at which a contour line is drawn.
    std::vector<int> contours;

    QString heading;
    QString author;
    QString caption;
    QString date;
    QString legendText;

    /// A message to the user about the picture, for example that the palette file cannot be read; usually empty.
    QString problem;

    /// The width of full-size pictures in pixels, 16 to 8192. Their aspect ratio is 4:3.
    int width = 960;

    /// Brings every number into its range. Angles wrap around. NaN and an infinite rotation become the default; NaN in
    /// a colour channel becomes 0.
    void limit();
    /// The height that belongs to the width.
    int height() const { return width * 3 / 4; }
};

} // namespace Fractal

#pragma once

#include <fractal/engine/FractalFormula.hpp>
#include <QColor>

namespace Fractal {

/// The colours of a picture: one for the points that stay, and a scale for those that escape, from the colour for
/// immediate escape to the last colour of the palette. Any thread.
class ColourScale {
public:
    /// A colour as red, green, blue and alpha, each 0 to 1. Red, green and blue are premultiplied by alpha, so that
    /// colours can be added.
    struct Colour {
        float red = 0;
        float green = 0;
        float blue = 0;
        float alpha = 0;
    };

    /// The settings must have been limited.
    explicit ColourScale(FractalSettings const& settings);

    /// The colour of a point.
    Colour const& colourOf(FractalFormula::EscapeResult const& result) const;
    /// The colour at a position on the scale, 0 to 1; positions outside are clamped.
    Colour const& colourAt(double place) const;
    /// Converts a premultiplied colour to a QColor, which is not.
    static QColor forPainting(Colour const& colour);
    Colour const& inside() const { return inside_; }

private:
    std::vector<Colour> scale_;
    Colour inside_;
    double const logarithmOfMost_;
    double const contrast_;
    bool const hasRoots_;
};

} // namespace Fractal

#pragma once

#include <fractal/engine/FractalFormula.hpp>
#include <QColor>

namespace Fractal {

/// The colours of a picture: one for the points that stay, and a scale for those that escape, from the colour for
/// "at once" to the last one of the palette. Any thread.
class ColourScale {
public:
    /// A colour by its channels red, green, blue and alpha, each 0 to 1; the first three are multiplied by the alpha,
    /// so that colours can be added up.
    struct Colour {
        float red = 0;
        float green = 0;
        float blue = 0;
        float alpha = 0;
    };

    /// The settings must have been limited.
    explicit ColourScale(FractalSettings const& settings);

    /// The colour of a point.
    Colour const& colourOf(FractalFormula::EscapeResult const& fate) const;
    /// The colour at a place of the scale, from 0 to 1; places beyond are taken to the nearest end.
    Colour const& colourAt(double place) const;
    /// The same for painting.
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

#pragma once

#include <fractal/engine/FractalFormula.hpp>
#include <QPointF>
#include <QSize>

namespace Fractal {

/// Maps places in a picture to points of the plane and back. Any thread.
class FractalView {
public:
    using Point = FractalFormula::Point;

    /// The settings must have been limited. An empty size is treated as one pixel.
    FractalView(FractalSettings const& settings, QSize const& size);

    /// The point at a place in the picture, which is given in pixels from the upper left corner. With a symmetry, the
    /// point is mirrored into the first sector.
    Point pointAt(double x, double y) const;
    /// The place of a point, ignoring the symmetry.
    QPointF placeOf(Point const& point) const;
    /// The point in the middle of the picture.
    Point const& centre() const { return centre_; }
    /// The side length of a pixel in the plane.
    double scale() const { return scale_; }

private:
    Point mirrored(Point const& offset) const;

    QPointF const middle_;
    double scale_;
    Point centre_;
    Point turn_;
    // In radians; 0 for none.
    double const sector_;
};

} // namespace Fractal

#pragma once

#include <fractal/engine/FractalFormula.hpp>
#include <QPointF>
#include <QSize>

namespace Fractal {

/// Maps places of a picture to points of the plane and back. Any thread.
class FractalView {
public:
    using Point = FractalFormula::Point;

    /// The settings must have been limited; a size without points is taken as one point.
    FractalView(FractalSettings const& settings, QSize const& size);

    /// The point at a place of the picture: 0, 0 is its upper left corner, and one is the length of a side of a point
    /// of the picture. Where there is a symmetry, mirrored into the first sector.
    Point pointAt(double x, double y) const;
    /// The place of a point, without the symmetry.
    QPointF placeOf(Point const& point) const;
    /// The point in the middle of the picture.
    Point const& centre() const { return centre_; }
    /// The length in the plane that a side of a point of the picture has.
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

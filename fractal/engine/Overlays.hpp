#pragma once

#include <fractal/engine/FractalRenderer.hpp>
#include <fractal/engine/FractalView.hpp>
#include <QPainter>

namespace Fractal {

/// What is drawn over the points of a picture, as the settings choose: axes, grid, the circle that no point comes back
/// from, the way of the middle point, a legend, and lines where the count of steps passes a level. Any thread that may
/// paint on images.
class Overlays {
public:
    /// The settings must have been limited and must outlive the object.
    Overlays(FractalSettings const& settings, QSize const& size);

    /// Draws everything over a picture of the size, whose points are given.
    void paint(QPainter& painter, FractalPoints const& points) const;

private:
    void paintContours(QPainter& painter, FractalPoints const& points) const;
    void paintGrid(QPainter& painter) const;
    void paintAxes(QPainter& painter) const;
    void paintEscapeCircle(QPainter& painter) const;
    void paintOrbit(QPainter& painter) const;
    void paintLegend(QPainter& painter) const;

    /// Lines of the plane, from one end of the picture to the other.
    void paintLine(QPainter& painter, FractalView::Point const& through, FractalView::Point const& direction) const;
    /// How far the farthest corner of the picture is from its middle, in the plane.
    double reach() const;
    /// How long a millimetre is in a picture that is 100 millimetres high, in points: everything grows with it.
    double unit() const;

    FractalSettings const& settings_;
    QSize const size_;
    FractalFormula const formula_;
    FractalView const view_;
};

} // namespace Fractal

#pragma once

#include <fractal/engine/FractalRenderer.hpp>
#include <fractal/engine/FractalView.hpp>
#include <QPainter>

namespace Fractal {

/// What is drawn over the pixels of a picture, as the settings choose: axes, grid, escape circle, orbit of the centre,
/// legend, and contour lines where the number of steps crosses a level. Any thread that may paint on images.
class Overlays {
public:
    /// The settings must have been limited and must outlive the object.
    Overlays(FractalSettings const& settings, QSize const& size);

    /// Draws everything over a picture of the constructor's size. `points` are its computed pixels.
    void paint(QPainter& painter, FractalPoints const& points) const;

private:
    void paintContours(QPainter& painter, FractalPoints const& points) const;
    void paintGrid(QPainter& painter) const;
    void paintAxes(QPainter& painter) const;
    void paintEscapeCircle(QPainter& painter) const;
    void paintOrbit(QPainter& painter) const;
    void paintLegend(QPainter& painter) const;

    /// Draws a line of the plane across the whole picture.
    void paintLine(QPainter& painter, FractalView::Point const& through, FractalView::Point const& direction) const;
    /// The length of the picture's diagonal in the plane: more than the distance from its centre to any corner.
    double reach() const;
    /// A hundredth of the picture's height in pixels. All lengths that are drawn scale with it.
    double unit() const;

    FractalSettings const& settings_;
    QSize const size_;
    FractalFormula const formula_;
    FractalView const view_;
};

} // namespace Fractal

#pragma once

#include <fractal/engine/FractalSettings.hpp>
#include <QFont>
#include <QPainter>

namespace Fractal {

/// The texts of a picture: heading and author above, caption and date below. Any thread that may paint on images.
class Titles {
public:
    /// The settings must outlive the object.
    explicit Titles(FractalSettings const& settings);

    /// Draws the texts over a picture of this size, on dark bands that keep them readable. A line without text has no
    /// band.
    void paintOver(QPainter& painter, QSizeF const& size) const;
    /// Draws the texts, the legend's included, on a page, and the picture in the remaining space.
    void paintPage(QPainter& painter, QRectF const& page, QImage const& picture) const;

    /// The font for a text of a height in pixels, at least 1.
    static QFont font(double height, bool bold);

private:
    FractalSettings const& settings_;
};

} // namespace Fractal

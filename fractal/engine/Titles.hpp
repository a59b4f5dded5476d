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

    /// Writes the texts over a picture of the size, on bands that leave them readable. A line without text has no band.
    void paintOver(QPainter& painter, QSizeF const& size) const;
    /// Writes the texts on a page, the text of the legend among them, with the picture in the room that is left.
    void paintPage(QPainter& painter, QRectF const& page, QImage const& picture) const;

    /// The font of a text, by its height in points of the picture. Texts that are too small to be read still have one.
    static QFont font(double height, bool bold);

private:
    FractalSettings const& settings_;
};

} // namespace Fractal

#pragma once

#include <QColor>
#include <QImage>
#include <QMargins>
#include <QRegion>
#include <tessera/Export.hpp>
#include <vector>

class QPainter;
class QStyleOptionGroupBox;
class QWidget;

namespace Talo {

/// Paints the frame of a group box as the style does, and quicker: some styles load a picture for each frame that they
/// paint, and blend all of it where only a value within it changed. Between its title and its lower edge a frame is
/// usually the same at each height, and between its corners at each place of a line; such parts are filled with the
/// colours that the style has painted once. In pixels. User-interface thread.
class TALO_EXPORT BoxFrame {
public:
    /// The colour that the box's parent fills it with; invalid if that is not one opaque colour, or not known.
    static QColor backgroundOf(QWidget const& box);
    /// Paints the frame where the box is exposed, and the background where that is valid; otherwise the background is
    /// there already. The option is that of an open box.
    void paint(QPainter& painter, QStyleOptionGroupBox const& option, QRegion const& exposed, QColor const& background,
               QWidget const& box);
    /// To be called when the style, the palette or the state of the box may have changed.
    void forget() { isKnown_ = false; }

private:
    /// Neighbouring lines of an edge that have one colour.
    struct Stripe {
        qreal begin = 0;
        qreal end = 0;
        QRgb painted = 0; ///< by the style, premultiplied
        QColor shown;     ///< on the background
    };
    using Edge = std::vector<Stripe>;

    void look(QStyleOptionGroupBox const& option, QWidget const& box);
    /// The stripes of some pixels of a frame that the style has painted. The pixels follow `first` to the right or
    /// downwards.
    static Edge edgeOf(QImage const& painted, QPoint const& first, int count, Qt::Orientation across);
    /// Makes the colours that are seen on the background; if that is not valid, those that the style has painted.
    void showOn(QColor const& background);
    void paintLines(QPainter& painter, QRect const& lines, QRegion const& exposed) const;
    void paintEnds(QPainter& painter, QRect const& whole, QRegion const& exposed) const;
    void paintCorner(QPainter& painter, QRect const& place, QImage const& corner) const;
    /// Fills stripes that follow each other across an edge, but for those of the colour that is there already.
    static void fill(QPainter& painter, QRect const& edge, Edge const& stripes, Qt::Orientation across,
                     QColor const& behind);

    bool isKnown_ = false;
    // How far the part that is the same at each height is from the edges of the box, if there is such a part.
    QMargins edges_;
    bool isUniform_ = false;
    // Whether what is above and below that part is the same between the corners.
    bool hasUniformEnds_ = false;
    // The corners as the style paints them.
    QImage topLeft_;
    QImage topRight_;
    QImage bottomLeft_;
    QImage bottomRight_;
    Edge left_;
    Edge right_;
    Edge top_;
    Edge bottom_;
    Edge inside_; // one stripe
    // The background for which the stripes have their colours; invalid for none.
    QColor background_;
};

} // namespace Talo

#pragma once

#include <QColor>
#include <QImage>
#include <QMargins>
#include <QRegion>
#include <tessera/Export.hpp>

class QPainter;
class QStyleOptionGroupBox;
class QWidget;

namespace Talo {

/// Paints the frame of a group box as the style does, and quicker: some styles load a picture for each frame that they
/// paint, and blend all of it where only a value within it changed. Between its title and its lower edge a frame is
/// usually the same at each height; then that part is painted from lines that the style has painted once, and what is
/// within it is filled with one colour. In pixels. User-interface thread.
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
    void look(QStyleOptionGroupBox const& option, QWidget const& box);
    void paintLines(QPainter& painter, QRect const& lines, QRegion const& exposed, QColor const& inside) const;
    void paintEdge(QPainter& painter, QRect const& edge, QImage const& lines) const;
    /// What the inside gives on the background.
    QColor insideOn(QColor const& background);

    bool isKnown_ = false;
    // How far the part that is the same at each height is from the edges of the box, if there is such a part.
    QMargins edges_;
    bool isUniform_ = false;
    // Lines of its left and right edge that are all alike, and what is between them.
    QImage left_;
    QImage right_;
    QColor inside_;
    // What that gives on a background.
    QColor background_;
    QColor insideOnBackground_;
};

} // namespace Talo

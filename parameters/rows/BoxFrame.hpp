#pragma once

#include <QColor>
#include <QImage>
#include <QMargins>
#include <QRect>
#include <tessera/Export.hpp>

class QPainter;
class QStyleOptionGroupBox;
class QWidget;

namespace Talo {

/// Paints the frame of a group box as the style does, and quicker: some styles load a picture for each frame that they
/// paint, and blend all of it where only a value within it changed. Between its title and its lower edge a frame is
/// usually the same at each height; then that part is painted from a line that the style has painted once. In pixels.
/// User-interface thread.
class TALO_EXPORT BoxFrame {
public:
    /// Paints the frame where the box is exposed. The option is that of an open box.
    void paint(QPainter& painter, QStyleOptionGroupBox const& option, QRect const& exposed, QWidget const& box);
    /// To be called when the style, the palette or the state of the box may have changed.
    void forget() { isKnown_ = false; }

private:
    void look(QStyleOptionGroupBox const& option, QWidget const& box);

    bool isKnown_ = false;
    // How far the part that is the same at each height is from the edges of the box, if there is such a part.
    QMargins edges_;
    bool isUniform_ = false;
    // One line of its left and right edge, and what is between them.
    QImage left_;
    QImage right_;
    QColor inside_;
};

} // namespace Talo

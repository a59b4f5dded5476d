#pragma once

#include <QProxyStyle>

namespace Panel {

/// The Fusion style, but for two things.
/// - It draws the frames of check boxes and radio buttons and the notches of dials darker than the ground, and on a
/// dark
///   ground they cannot be made out.
/// - In a layout from right to left it tears the caption of a button away from the button's icon.
class PanelStyle : public QProxyStyle {
    Q_OBJECT

public:
    PanelStyle();
    ~PanelStyle() override;

    void drawPrimitive(PrimitiveElement element, QStyleOption const* option, QPainter* painter,
                       QWidget const* widget) const override;
    void drawControl(ControlElement element, QStyleOption const* option, QPainter* painter,
                     QWidget const* widget) const override;
    void drawComplexControl(ComplexControl control, QStyleOptionComplex const* option, QPainter* painter,
                            QWidget const* widget) const override;
};

} // namespace Panel

#pragma once

#include <QProxyStyle>

namespace Panel {

/// The Fusion style, but for the frames of check boxes and radio buttons: it draws them darker than the ground, and on
/// a dark ground a box that is not checked cannot be made out.
class PanelStyle : public QProxyStyle {
    Q_OBJECT

public:
    PanelStyle();
    ~PanelStyle() override;

    void drawPrimitive(PrimitiveElement element, QStyleOption const* option, QPainter* painter,
                       QWidget const* widget) const override;
};

} // namespace Panel

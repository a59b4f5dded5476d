#include <panel/look/PanelStyle.hpp>

#include <parameters/rows/MutedLabel.hpp>
#include <QPainter>
#include <QStyleOption>

namespace Panel {

namespace {

bool isDark(QPalette const& palette) {
    return palette.color(QPalette::Window).lightness() <= 127;
}

} // namespace

PanelStyle::PanelStyle() : QProxyStyle(QStringLiteral("Fusion")) {}

PanelStyle::~PanelStyle() = default;

void PanelStyle::drawPrimitive(PrimitiveElement element, QStyleOption const* option, QPainter* painter,
                               QWidget const* widget) const {
    bool const indicator = element == PE_IndicatorCheckBox || element == PE_IndicatorRadioButton;
    auto const* const button = qstyleoption_cast<QStyleOptionButton const*>(option);
    if (!indicator || !button || !isDark(option->palette)) {
        QProxyStyle::drawPrimitive(element, option, painter, widget);
        return;
    }
    // The frame is a darker shade of the ground that the option names.
    auto framed = *button;
    framed.palette.setColor(QPalette::Window, Talo::mutedText(option->palette));
    QProxyStyle::drawPrimitive(element, &framed, painter, widget);
}

void PanelStyle::drawControl(ControlElement element, QStyleOption const* option, QPainter* painter,
                             QWidget const* widget) const {
    auto const* const button = qstyleoption_cast<QStyleOptionButton const*>(option);
    bool const mirrorsTwice =
        element == CE_PushButtonLabel && button && !button->icon.isNull() && button->direction == Qt::RightToLeft;
    auto const direction = painter->layoutDirection();
    if (mirrorsTwice)
        painter->setLayoutDirection(Qt::LeftToRight);
    QProxyStyle::drawControl(element, option, painter, widget);
    painter->setLayoutDirection(direction);
}

void PanelStyle::drawComplexControl(ComplexControl control, QStyleOptionComplex const* option, QPainter* painter,
                                    QWidget const* widget) const {
    auto const* const slider = qstyleoption_cast<QStyleOptionSlider const*>(option);
    if (control != CC_Dial || !slider || !isDark(option->palette)) {
        QProxyStyle::drawComplexControl(control, option, painter, widget);
        return;
    }
    auto notched = *slider;
    notched.palette.setColor(QPalette::Dark, Talo::mutedText(option->palette));
    QProxyStyle::drawComplexControl(control, &notched, painter, widget);
}

} // namespace Panel

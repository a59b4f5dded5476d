#include <panel/Look.hpp>
#include <panel/PanelStyle.hpp>
#include <QStyleOption>

namespace Panel {

PanelStyle::PanelStyle() : QProxyStyle(QStringLiteral("Fusion")) {}

PanelStyle::~PanelStyle() = default;

void PanelStyle::drawPrimitive(PrimitiveElement element, QStyleOption const* option, QPainter* painter,
                               QWidget const* widget) const {
    bool const indicator = element == PE_IndicatorCheckBox || element == PE_IndicatorRadioButton;
    auto const* const button = qstyleoption_cast<QStyleOptionButton const*>(option);
    if (!indicator || !button || option->palette.color(QPalette::Window).lightness() > 127) {
        QProxyStyle::drawPrimitive(element, option, painter, widget);
        return;
    }
    // The frame is a darker shade of the ground that the option names.
    auto framed = *button;
    framed.palette.setColor(QPalette::Window, mutedText(option->palette));
    QProxyStyle::drawPrimitive(element, &framed, painter, widget);
}

} // namespace Panel

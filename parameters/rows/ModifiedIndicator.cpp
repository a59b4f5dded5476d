#include <parameters/rows/ModifiedIndicator.hpp>

#include <QPainter>
#include <QStyle>
#include <QStyleOptionToolButton>

namespace Talo {

ModifiedIndicator::ModifiedIndicator(QWidget* parent) : QToolButton(parent) {
    setAutoRaise(true);
    setFocusPolicy(Qt::TabFocus);
    // An edit shows or hides the dot. It keeps its place when it is hidden, so that no edit lays out the row.
    QSizePolicy policy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    policy.setRetainSizeWhenHidden(true);
    setSizePolicy(policy);
}

ModifiedIndicator::~ModifiedIndicator() = default;

void ModifiedIndicator::setDefault(QString const& parameterName, QString const& text) {
    auto const sentence = tr("Default: %1").arg(text);
    setAccessibleName(tr("Reset %1 to its default").arg(parameterName));
    setAccessibleDescription(sentence);
    setToolTip(QStringLiteral("<p>%1<br>%2</p>")
                   .arg(sentence.toHtmlEscaped(), tr("Click to reset the value.").toHtmlEscaped()));
}

int ModifiedIndicator::side(QWidget const& widget) {
    return widget.fontMetrics().height();
}

QSize ModifiedIndicator::sizeHint() const {
    return {side(*this), side(*this)};
}

void ModifiedIndicator::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    QStyleOptionToolButton option;
    initStyleOption(&option);
    if (option.state & (QStyle::State_MouseOver | QStyle::State_Sunken | QStyle::State_HasFocus))
        style()->drawPrimitive(QStyle::PE_PanelButtonTool, &option, &painter, this);
    if (option.state & QStyle::State_HasFocus) {
        QStyleOptionFocusRect focus;
        focus.QStyleOption::operator=(option);
        style()->drawPrimitive(QStyle::PE_FrameFocusRect, &focus, &painter, this);
    }
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(palette().color(QPalette::WindowText));
    double const radius = height() / 6.0;
    painter.drawEllipse(QRectF(rect()).center(), radius, radius);
}

} // namespace Talo

#include <panel/DefaultMarker.hpp>
#include <panel/StepText.hpp>
#include <QPainter>
#include <QStyle>
#include <QStyleOptionToolButton>

namespace Panel {

DefaultMarker::DefaultMarker(Kolt::ParameterPtr const& parameter, PoolSource const& pools, QWidget* parent)
    : QToolButton(parent), parameter_(parameter), pools_(pools) {
    setAutoRaise(true);
    setFocusPolicy(Qt::TabFocus);
    // The name keeps its place.
    auto policy = sizePolicy();
    policy.setRetainSizeWhenHidden(true);
    policy.setHorizontalPolicy(QSizePolicy::Fixed);
    policy.setVerticalPolicy(QSizePolicy::Fixed);
    setSizePolicy(policy);
    auto const name = parameter ? QString::fromStdString(parameter->Name()) : QString();
    setAccessibleName(tr("Reset %1 to its default").arg(name.mid(name.lastIndexOf(QLatin1Char('.')) + 1)));
    hide();
    if (parameter && parameter->defaults())
        parameter->addNotifier(Tessera::WeakPtr<Kolt::ValueNotifier>(this));
    refresh();
}

DefaultMarker::~DefaultMarker() {
    leaveDelivery();
}

void DefaultMarker::onValueChange(Tessera::StrongPtr<Kolt::VValueBase> const&, Kolt::VContext const&,
                                  Kolt::ValueMap const* properties) {
    if (!properties)
        refresh();
}

void DefaultMarker::refresh() {
    auto const parameter = parameter_.strong();
    auto const* const defaults = parameter ? parameter->defaults() : nullptr;
    if (!defaults || defaults->holdsIn(*parameter, pools_.pool())) {
        hide();
        return;
    }
    auto const value = defaults->in(pools_.pool()).value;
    if (value != named_) {
        named_ = value;
        auto const text = tr("Default: %1").arg(valueText(*value));
        setAccessibleDescription(text);
        setToolTip(QStringLiteral("<p>%1<br>%2</p>")
                       .arg(text.toHtmlEscaped(), tr("Click to reset the value.").toHtmlEscaped()));
    }
    show();
}

QSize DefaultMarker::sizeHint() const {
    int const side = fontMetrics().height();
    return {side, side};
}

void DefaultMarker::paintEvent(QPaintEvent*) {
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

} // namespace Panel

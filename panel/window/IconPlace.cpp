#include <panel/window/IconPlace.hpp>

#include <network/PlainText.hpp>
#include <parameters/rows/ParameterDescription.hpp>
#include <QHBoxLayout>

namespace Panel {

namespace {

// Of the lines of the list's text that an icon is high, at least.
constexpr double leastLines = 1.4;

} // namespace

IconPlace::IconPlace(QWidget* parent) : QWidget(parent) {
    setAttribute(Qt::WA_TransparentForMouseEvents);
    auto* const layout = new QHBoxLayout(this);
    layout->setContentsMargins(3, 3, 6, 3);
    layout->addStretch(1);
}

IconPlace::~IconPlace() = default;

void IconPlace::setIcon(QWidget* icon, Kolt::ParameterPtr const& parameter) {
    icon_ = icon;
    parameter_ = parameter;
    auto const hint = icon->sizeHint();
    if (hint.height() > 0)
        icon->setMinimumSize(hint * qMax(1.0, leastLines * fontMetrics().height() / hint.height()));
    layout()->addWidget(icon);
}

QString IconPlace::valueText(Kolt::PoolPtr const& pool) const {
    auto const parameter = parameter_.strong();
    if (!parameter)
        return {};
    //: A parameter and its value.
    return Talo::plainToolTip(tr("%1 = %2").arg(Talo::ParameterDescription(*parameter).label,
                                                QString::fromStdString(parameter->effectiveValue(pool)->Text())));
}

} // namespace Panel

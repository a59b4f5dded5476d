#include <parameters/rows/RawValueLabel.hpp>

#include <algorithm>
#include <parameters/rows/MutedLabel.hpp>
#include <QEvent>
#include <QPainter>
#include <QStyle>

namespace Talo {

namespace {

// Of what does not fit, in characters.
constexpr int longestShown = 200;
constexpr int longestTip = 2000;
// None has more than four bytes.
constexpr std::size_t longestTipBytes = 8000;

/// As much of the text of a value as the tool tip says.
QString startOf(Kolt::VValueBase const& value) {
    // A long one is not copied.
    auto const own = Kolt::sharedValueIn<std::string>(&value);
    auto const made = own ? std::string() : value.Text();
    auto const& text = own ? *own : made;
    auto start = QString::fromUtf8(text.data(), static_cast<int>(std::min(text.size(), longestTipBytes)));
    if (start.size() <= longestTip)
        return start;
    start.truncate(longestTip);
    // The half of a character.
    if (start.at(longestTip - 1).isHighSurrogate())
        start.chop(1);
    return start + QChar(0x2026);
}

} // namespace

RawValueLabel::RawValueLabel(Kolt::ParameterPtr const& parameter, PoolSourceRef const& pools, QWidget* parent)
    : QWidget(parent), parameter_(parameter), pools_(pools) {
    setSizePolicy(QSizePolicy::Maximum, QSizePolicy::Minimum);
    showName();
    if (parameter)
        parameter->addNotifier(Tessera::WeakPtr<Kolt::ValueNotifier>(this));
    refresh();
}

RawValueLabel::~RawValueLabel() {
    stopNotifications();
}

void RawValueLabel::showName() {
    if (auto const parameter = parameter_.strong())
        setAccessibleName(tr("Raw value of %1").arg(QString::fromStdString(parameter->Name())));
}

void RawValueLabel::changeEvent(QEvent* event) {
    QWidget::changeEvent(event);
    if (event->type() != QEvent::LanguageChange)
        return;
    showName();
    refresh();
}

void RawValueLabel::onValueChange(Kolt::ValuePtr const&, Kolt::VContext const&, Kolt::ValueMap const*) {
    // Read later: an edit renews the age stamp only after everybody was notified. Any number of changes until then is
    // one.
    if (!refreshWaits_.exchange(true))
        QMetaObject::invokeMethod(this, &RawValueLabel::refresh, Qt::QueuedConnection);
}

void RawValueLabel::refresh() {
    refreshWaits_ = false;
    QString text;
    QString stamp;
    if (auto const parameter = parameter_.strong()) {
        auto const pool = pools_.pool();
        auto const value = parameter->effectiveValue(pool);
        text = startOf(*value);
        auto const age = QString::number(value->age());
        auto const poolName = pool ? QString::fromStdString(pool->Name()) : QString();
        if (!parameter->keepsValuesPerPool() || !pool)
            stamp = tr("age %1").arg(age);
        else if (value != parameter->ownValue())
            stamp = tr("age %1, pool %2").arg(age, poolName);
        else
            stamp = tr("age %1, not set in pool %2").arg(age, poolName);
    } else {
        stamp = tr("removed");
    }
    if (text == text_ && stamp == stamp_)
        return;
    text_ = text;
    stamp_ = stamp;
    showToolTip();
    setAccessibleDescription(text.left(longestShown));
    update();
}

void RawValueLabel::setExplanation(QString const& richText) {
    explanation_ = richText;
    showToolTip();
}

void RawValueLabel::showToolTip() {
    setToolTip(QStringLiteral("<p style='white-space:pre'>%1</p>").arg(text_.toHtmlEscaped()) + explanation_);
}

QSize RawValueLabel::sizeHint() const {
    return {26 * fontMetrics().averageCharWidth(), 2 * fontMetrics().lineSpacing() + 2};
}

QSize RawValueLabel::minimumSizeHint() const {
    return {10 * fontMetrics().averageCharWidth(), sizeHint().height()};
}

void RawValueLabel::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    auto line = rect();
    line.setTop((height() - 2 * fontMetrics().lineSpacing()) / 2);
    line.setHeight(fontMetrics().lineSpacing());

    auto font = this->font();
    font.setFamily(QStringLiteral("monospace"));
    font.setStyleHint(QFont::Monospace);
    painter.setFont(font);
    painter.setPen(text_.isEmpty() ? mutedText(palette()) : palette().color(QPalette::WindowText));
    // A line is much shorter.
    auto oneLine = text_.isEmpty() ? tr("(empty)") : text_.left(longestShown);
    oneLine.replace(QLatin1Char('\n'), QChar(0x21B5));
    // A value reads in its own direction, or "0.5 1" would become "1 0.5" in a panel from right to left.
    int const direction = oneLine.isRightToLeft() ? Qt::TextForceRightToLeft : Qt::TextForceLeftToRight;
    int const alignment =
        static_cast<int>(QStyle::visualAlignment(layoutDirection(), Qt::AlignLeft)) | Qt::AlignAbsolute;
    painter.drawText(line, alignment | direction | Qt::AlignVCenter | Qt::TextSingleLine,
                     QFontMetrics(font).elidedText(oneLine, Qt::ElideRight, line.width()));

    line.translate(0, line.height());
    painter.setFont(this->font());
    painter.setPen(mutedText(palette()));
    painter.drawText(line, alignment | Qt::AlignVCenter | Qt::TextSingleLine,
                     fontMetrics().elidedText(stamp_, Qt::ElideRight, line.width()));
}

} // namespace Talo

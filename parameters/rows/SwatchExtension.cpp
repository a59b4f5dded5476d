#include <parameters/rows/SwatchExtension.hpp>

#include <algorithm>
#include <cmath>
#include <lattice/UndoHistory.hpp>
#include <parameters/input/InputFilter.hpp>
#include <QBoxLayout>
#include <QKeyEvent>
#include <QMouseEvent>
#include <utility>

namespace Talo {

namespace {

// Below this, small texts count as unreadable (WCAG 2.1, 1.4.3).
constexpr double leastContrast = 4.5;

QColor blended(QColor const& colour, QColor const& ground) {
    double const alpha = colour.alphaF();
    auto const mixed = [alpha](double over, double under) { return alpha * over + (1 - alpha) * under; };
    return QColor::fromRgbF(mixed(colour.redF(), ground.redF()), mixed(colour.greenF(), ground.greenF()),
                            mixed(colour.blueF(), ground.blueF()));
}

double luminance(QColor const& colour) {
    auto const linear = [](double channel) {
        return channel <= 0.03928 ? channel / 12.92 : std::pow((channel + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(colour.redF()) + 0.7152 * linear(colour.greenF()) + 0.0722 * linear(colour.blueF());
}

double contrast(QColor const& one, QColor const& other) {
    auto const [darker, lighter] = std::minmax({luminance(one), luminance(other)});
    return (lighter + 0.05) / (darker + 0.05);
}

bool isReadable(QLabel const& swatch) {
    auto const& around = swatch.parentWidget()->palette().color(QPalette::Window);
    auto const ground = blended(swatch.palette().color(QPalette::Window), around);
    return contrast(blended(swatch.palette().color(QPalette::WindowText), ground), ground) >= leastContrast;
}

bool isReturn(QEvent const& event) {
    int const key = event.type() == QEvent::KeyPress ? static_cast<QKeyEvent const&>(event).key() : 0;
    return key == Qt::Key_Return || key == Qt::Key_Enter;
}

} // namespace

SwatchExtension* SwatchExtension::makeFor(Kolt::Editor const& editor, Kolt::ParameterPtr const& parameter,
                                          PoolSourceRef const& pools) {
    auto* const label = qobject_cast<QLabel*>(editor.widget);
    auto* const dialog = label ? label->findChild<QColorDialog*>() : nullptr;
    return dialog ? new SwatchExtension(*label, *dialog, editor, parameter, pools) : nullptr;
}

SwatchExtension::SwatchExtension(QLabel& swatch, QColorDialog& dialog, Kolt::Editor editor,
                                 Kolt::ParameterPtr const& parameter, PoolSourceRef const& pools)
    : EditorExtension(&swatch),
      swatch_(swatch),
      dialog_(dialog),
      editor_(std::move(editor)),
      parameter_(parameter),
      pools_(pools) {
    dialog.setWindowTitle(QString::fromStdString(parameter->fullName()));
    dialog.installEventFilter(this);
    swatch.installEventFilter(this);
    connect(&dialog, &QDialog::rejected, this, &SwatchExtension::restoreColour);
    showText();
}

SwatchExtension::~SwatchExtension() {
    delete text_;
}

void SwatchExtension::refresh() {
    if (dialog_.isVisible() && pool_ != pools_.pool())
        dialog_.hide();
    showText();
}

bool SwatchExtension::eventFilter(QObject* watched, QEvent* event) {
    if (watched == &dialog_) {
        if (event->type() == QEvent::Show && !event->spontaneous())
            beginChoice();
        else if (event->type() == QEvent::Hide && !event->spontaneous())
            endChoice();
        else if (isReturn(*event))
            dialog_.accept();
        return isReturn(*event);
    }
    // A window that is only minimized hides the swatch, too, but then the event is spontaneous.
    if (event->type() == QEvent::Hide && !event->spontaneous())
        dialog_.hide();
    // A colour may be transparent, and what is behind it has another colour now.
    if (event->type() == QEvent::PaletteChange)
        showText();
    // The swatch opens its dialog whichever button is pressed.
    return event->type() == QEvent::MouseButtonPress && static_cast<QMouseEvent*>(event)->button() == Qt::RightButton;
}

void SwatchExtension::beginChoice() {
    auto const parameter = parameter_.strong();
    pool_ = pools_.pool();
    before_ = parameter ? Kolt::copyEffectiveValue(*parameter, pool_) : Kolt::EffectiveValue();
    showText();
}

void SwatchExtension::endChoice() {
    Kolt::showValue(editor_, parameter_.strong(), pools_.source());
    showText();
}

void SwatchExtension::restoreColour() {
    // The key that closed the dialog is a gesture; what it restores is a step of its own.
    InputFilter::shared()->gestures().end();
    auto const parameter = parameter_.strong();
    if (parameter && before_.value)
        (void)parameter->history().store(parameter, pool_, before_);
}

void SwatchExtension::showText() {
    bool const isNeeded = !isReadable(swatch_);
    auto* const row = qobject_cast<QBoxLayout*>(swatch_.parentWidget()->layout());
    if (isNeeded && !text_ && row) {
        text_ = new QLabel(swatch_.parentWidget());
        text_->setObjectName(QStringLiteral("readableText"));
        text_->setTextFormat(Qt::PlainText);
        row->insertWidget(row->indexOf(&swatch_) + 1, text_);
    }
    if (!text_)
        return;
    text_->setText(swatch_.text().trimmed());
    text_->setVisible(isNeeded);
}

} // namespace Talo

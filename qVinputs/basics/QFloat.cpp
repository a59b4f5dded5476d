#include <qVinputs/basics/QFloat.hpp>

#include <algorithm>
#include <lattice/ActionNotifier.hpp>
#include <optional>
#include <plugin/QInputWidgetCreator.hpp>
#include <QAccessible>
#include <QDoubleValidator>
#include <QHBoxLayout>
#include <QMouseEvent>
#include <qVinputs/basics/NumberToolTip.hpp>

namespace Kolt {

namespace {

constexpr char IncrementProperty[] = "increment";
constexpr char PrecisionProperty[] = "precision";

// A double has no more decimals than this that are not all zero.
constexpr int LargestPrecision = 1000;

// Single steps that one notch of the wheel makes by default.
constexpr int WheelLines = 3;

/// The share of the interval to which a key of the slider leads.
std::optional<double> shareOf(int key) {
    switch (key) {
    case Qt::Key_1:
        return 0.1;
    case Qt::Key_2:
        return 0.33;
    case Qt::Key_3:
        return 0.66;
    case Qt::Key_4:
        return 0.9;
    default:
        return std::nullopt;
    }
}

} // namespace

IntervalControl::State IntervalControl::numberState() const {
    return {number, interval.min, interval.max, interval.delta};
}

MyQSlider::MyQSlider(QFloat* parent, char const*) : QSlider(Qt::Horizontal, parent) {
    setFocusPolicy(Qt::WheelFocus);
    // The place of the handle is reckoned from the left.
    setLayoutDirection(Qt::LeftToRight);
}

void MyQSlider::mousePressEvent(QMouseEvent* event) {
    if (event->button() != Qt::LeftButton) {
        QSlider::mousePressEvent(event);
        return;
    }
    if (width() <= 0)
        return;
    {
        // Beside the handle the base class steps by a page and repeats that; the user asked for one place.
        QSignalBlocker const blocker(this);
        int const position = value();
        QSlider::mousePressEvent(event);
        setRepeatAction(SliderNoAction);
        setValue(position);
    }
    setValue(positionAt(*event));
}

void MyQSlider::mouseMoveEvent(QMouseEvent* event) {
    // The base class measures from the handle's edge, which would throw the value back where the press put the handle.
    if ((event->buttons() & Qt::LeftButton) && width() > 0)
        setSliderPosition(positionAt(*event));
    else
        QSlider::mouseMoveEvent(event);
}

int MyQSlider::positionAt(QMouseEvent const& event) const {
    return interval.positionAtFraction(static_cast<double>(qRound(event.localPos().x())) / width());
}

void MyQSlider::takeRange() {
    int const last = interval.lastPosition();
    setRange(0, last);
    setSingleStep(std::max(1, last / (100 * WheelLines)));
    setPageStep(std::max(1, last / 10));
}

void MyQSlider::keyPressEvent(QKeyEvent* event) {
    double const current = interval.valueAt(value());
    event->accept();
    switch (event->key()) {
    case Qt::Key_Right:
        if (value() < maximum())
            setValue(value() + 1);
        break;
    case Qt::Key_Home:
    case Qt::Key_End:
    case Qt::Key_Left:
        setValue(value() - 1);
        break;
    case Qt::Key_Up:
        interval.coarsen();
        rescale(current);
        break;
    case Qt::Key_Down:
        interval.refine();
        rescale(current);
        break;
    // These two leave the control's range as it is, so the middle of the new interval may lie beyond it.
    case Qt::Key_Plus:
    case Qt::Key_Equal:
        setValue(interval.widen(current));
        break;
    case Qt::Key_Minus:
    case Qt::Key_Underscore:
        setValue(interval.narrow(current));
        break;
    default:
        if (auto const share = shareOf(event->key()))
            setValue(interval.positionAtShare(*share));
        break;
    }
}

void MyQSlider::rescale(double current) {
    {
        QSignalBlocker const blocker(this);
        takeRange();
    }
    setValue(interval.positionOf(current));
}

MyQDial::MyQDial(QFloat* parent, char const*) : QDial(parent) {
    setFocusPolicy(Qt::WheelFocus);
}

void MyQDial::mousePressEvent(QMouseEvent*) {}

void MyQDial::keyPressEvent(QKeyEvent*) {}

QFloat::QFloat(ParameterRef const& parameter, QWidget* parent, ValuePoolSource* poolSource,
               PreferencesPtr const& preferences)
    : QFrame(parent), VInputValue<double>(parameter, poolSource) {
    setContextMenuPolicy(Qt::ActionsContextMenu);
    setLayout(new QHBoxLayout);

    if (!owner())
        VActionNotifier::Warning("QFloat created for non-integer parameter.");
    else if (!fetchValue(pool(), std::string()))
        // Relative to the repository, so that the warning is the same wherever it was built.
        VActionNotifier::Warning("qVinputs/basics/QFloat.cpp -- QFloat could not initialize value.");
    shown_ = cached_;

    lineEdit_ = new QLeaveLineEdit(this);
    layout()->addWidget(lineEdit_);
    bool const periodic = preferences && preferences->contains("periodic");
    if (periodic || (preferences && preferences->contains("dial")))
        makeDial(periodic);
    else
        makeSlider();

    ensureProperty(MinimumProperty, 0.0);
    ensureProperty(MaximumProperty, 1.0);
    auto const living = owner().strong();
    applyProperties(living ? living->properties() : nullptr);

    setUpLineEdit();
    if (slider_)
        connect(slider_, &QSlider::valueChanged, this, &QFloat::sliderValueChanged);
    if (dial_)
        connect(dial_, &QDial::valueChanged, this, &QFloat::sliderValueChanged);
    connect(lineEdit_, &QLineEdit::returnPressed, this, &QFloat::textEnter);
    showNumber(cached_);
    activateNotification();
}

QFloat::~QFloat() = default;

void QFloat::makeDial(bool periodic) {
    dial_ = new MyQDial(this, "float dialer");
    addDial(*layout(), *dial_, periodic);
}

void QFloat::makeSlider() {
    slider_ = new MyQSlider(this, "float slider");
    layout()->addWidget(slider_);
}

void QFloat::setUpLineEdit() {
    lineEdit_->showText(QLatin1String("0.0"));
    lineEdit_->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    auto* const validator = new QDoubleValidator(lineEdit_);
    validator->setLocale(QLocale(QLocale::C));
    lineEdit_->setValidator(validator);
    layout()->setAlignment(lineEdit_, Qt::AlignLeft | Qt::AlignVCenter);
    lineEdit_->adjustSize();
}

QAbstractSlider* QFloat::control() const {
    if (slider_)
        return slider_;
    return dial_;
}

IntervalControl* QFloat::intervalControl() const {
    if (slider_)
        return slider_;
    return dial_;
}

FloatInterval* QFloat::interval() const {
    auto* const shown = intervalControl();
    return shown ? &shown->interval : nullptr;
}

void QFloat::applyProperties(ValueMap const* properties) {
    resolution_ = propertyOr(properties, IncrementProperty, resolution_);
    if (auto* const shown = interval()) {
        bounds_ = boundsOr<double>(properties, {shown->min, shown->max});
        shown->min = bounds_.minimum;
        shown->max = bounds_.maximum;
        shown->setResolution(resolution_);
        QSignalBlocker const blocker(control());
        if (slider_)
            slider_->takeRange();
        else
            dial_->setRange(0, shown->lastPosition());
    }
    precision_ = std::clamp(propertyOr(properties, PrecisionProperty, precision_), 0, LargestPrecision);
}

void QFloat::moveHandle(double value) {
    if (auto const* const bounds = interval())
        moveSilently(control(), bounds->positionOf(value));
}

void QFloat::showText(double value, TypedText typed) {
    shown_ = value;
    showNumberText(lineEdit_, QString::fromLatin1("%1").arg(value, precision_, 'f', precision_, QLatin1Char(' ')),
                   typed);
    markNumber(lineEdit_, isOutside(value, bounds_), [this] { return numberTip(); });
    auto* const shown = intervalControl();
    if (!shown)
        return;
    shown->number = value;
    if (QAccessible::isActive()) {
        QAccessibleValueChangeEvent change(control(), value);
        QAccessible::updateAccessibility(&change);
    }
}

QString QFloat::numberTip() const {
    return numberToolTip(factsOf(shown_, bounds_), slider_ ? floatSliderKeys() : QString());
}

bool QFloat::event(QEvent* event) {
    if (event->type() == QEvent::ToolTip && showNumberToolTip(*this, *static_cast<QHelpEvent*>(event), numberTip()))
        return true;
    return QFrame::event(event);
}

void QFloat::showNumber(double value) {
    showText(value, TypedText::Keep);
    moveHandle(value);
}

void QFloat::showAndWrite(double value, TypedText typed) {
    showText(value, typed);
    QPointer<QFloat> const self(this);
    commit(value);
    // A listener may have set another value, which is the one shown now.
    if (self)
        moveHandle(shown_);
}

void QFloat::sliderValueChanged(int position) {
    if (auto const* const bounds = interval())
        showAndWrite(bounds->valueAt(position), TypedText::Replace);
}

void QFloat::textEnter() {
    bool isNumber = false;
    auto const number = static_cast<double>(lineEdit_ ? lineEdit_->text().toFloat(&isNumber) : 0.0F);
    if (!isNumber)
        return;
    moveHandle(number);
    shown_ = number;
    QPointer<QFloat> const self(this);
    commit(number);
    if (self)
        showText(shown_, TypedText::Replace);
}

void QFloat::onValueChange(ValuePtr const& newValue, VContext const& context, ValueMap const* properties) {
    if (properties) {
        applyProperties(properties);
        // The same position now means another value, and the text may have other decimals.
        showNumber(shown_);
    }

    auto const value = storedValueIn<double>(newValue);
    if (!value)
        return;
    switch (arrivalOf(newValue, context)) {
    case Arrival::OtherPool:
        break;
    case Arrival::Current:
        cached_ = *value;
        showNumber(*value);
        break;
    case Arrival::NotYetStored:
        showAndWrite(*value, TypedText::Keep);
        break;
    }
}

namespace {

TALO_STATIC_CREATOR QInputWidgetCreator<double, QFloat> const doubleCreator("double", nullptr);
TALO_STATIC_CREATOR QInputWidgetCreator<double, QFloat> const
    numberDialCreator("FltDial", PreferencesPtr(new VCreationPreferences("dial")));
TALO_STATIC_CREATOR QInputWidgetCreator<double, QFloat> const
    periodicNumberDialCreator("Periodic FltDial", PreferencesPtr(new VCreationPreferences("dial", "periodic")));

} // namespace

} // namespace Kolt

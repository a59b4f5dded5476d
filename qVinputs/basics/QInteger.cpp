#include <qVinputs/basics/QInteger.hpp>

#include <lattice/ActionNotifier.hpp>
#include <limits>
#include <plugin/QInputWidgetCreator.hpp>
#include <QIntValidator>
#include <qVinputs/basics/NumberToolTip.hpp>
#include <qVinputs/basics/QIntegerIcon.hpp>
#include <utility>

namespace Kolt {

namespace {

// How much a move of the control matters to the history.
constexpr int UndoWeight = 20;

constexpr int LargestInt = std::numeric_limits<int>::max();

int sliderMaximumFor(ValuePtr const& value) {
    auto const number = storedValueIn<int>(value);
    if (!number)
        return 256;
    if (*number < 100)
        return 100;
    return *number > LargestInt / 2 ? LargestInt : 2 * *number;
}

} // namespace

IntegerUndo::IntegerUndo(Tessera::WeakPtr<VInputValue<int>, ValueNotifier> const& input,
                         Tessera::StrongPtr<VContext::Addendum> const& addendum, int previous)
    : VUndoAction("Set int value to " + VValueTrait<int>::Text(previous)),
      input_(input),
      addendum_(addendum),
      previous_(previous) {}

IntegerUndo::~IntegerUndo() = default;

bool IntegerUndo::undo() {
    VContext const context(addendum_);
    auto const input = input_.strong();
    auto const parameter = input ? input->owner().strong() : nullptr;
    if (!parameter || !input->setValue(context.pool(), std::string(), previous_, nullptr))
        return false;
    markValueChanged(*parameter, context.pool());
    // The input is the source of the change, so it was not notified.
    if (input)
        input->onValueChange(parameter->getLocalValue(context.pool(), std::string(), false), context, nullptr);
    return true;
}

QInteger::QInteger(ParameterRef const& parameter, QWidget* parent, ValuePoolSource* poolSource,
                   PreferencesPtr const& preferences)
    : QWidget(parent), VInputValue<int>(parameter, poolSource), layout_(new QHBoxLayout) {
    layout_->setContentsMargins(0, 0, 0, 0);
    addInterface(Tessera::StrongPtr<Tessera::InterfaceBase>(new QIntegerIconizer(*this)));

    int const defaultMaximum = sliderMaximumFor(ownValue());
    if (!owner())
        VActionNotifier::Warning("QInteger created for non-integer parameter.");
    else if (!fetchValue(pool(), std::string()))
        VActionNotifier::Warning("QInteger could not initialize value.");
    shown_ = cached_;

    lineEdit_ = new QLeaveLineEdit(this);
    if (preferences && preferences->contains("dial"))
        makeDial(preferences->contains("periodic"));
    else
        makeSlider(defaultMaximum);
    makeLineEdit();
    setLayout(layout_);
    show();
    if (owner())
        showNumber(cached_, TypedText::Replace);

    if (slider_)
        connect(slider_, &QSlider::valueChanged, this, &QInteger::valueChanged);
    if (dial_)
        connect(dial_, &QDial::valueChanged, this, &QInteger::valueChanged);
    if (slider_)
        slider_->setTickPosition(QSlider::NoTicks);
    connect(lineEdit_, &QLineEdit::returnPressed, this, &QInteger::textEnter);
    activateNotification();
}

QInteger::~QInteger() = default;

void QInteger::makeDial(bool periodic) {
    periodic_ = periodic;
    dial_ = new QDial(this);
    addDial(*layout_, *dial_, periodic);
    setRangeFromProperties(360);
}

void QInteger::makeSlider(int defaultMaximum) {
    slider_ = new QSlider(Qt::Horizontal, this);
    layout_->addWidget(slider_);
    slider_->setTickPosition(QSlider::TicksBelow);
    setRangeFromProperties(defaultMaximum);
}

void QInteger::setRangeFromProperties(int defaultMaximum) {
    ensureProperty(MinimumProperty, 0);
    ensureProperty(MaximumProperty, defaultMaximum);
    auto const parameter = owner().strong();
    auto const* const properties = parameter ? parameter->properties() : nullptr;
    setRange(boundsOr<int>(properties, {0, defaultMaximum}));
}

void QInteger::makeLineEdit() {
    lineEdit_->showText(QLatin1String("0"));
    lineEdit_->setValidator(new QIntValidator(lineEdit_));
    lineEdit_->setAlignment(Qt::AlignRight);
    lineEdit_->adjustSize();
    lineEdit_->setMaximumWidth(100);
    layout_->addWidget(lineEdit_);
}

QAbstractSlider* QInteger::control() const {
    if (slider_)
        return slider_;
    return dial_;
}

void QInteger::setRange(NumberBounds<int> const& bounds) {
    auto* const handle = control();
    if (!handle)
        return;
    QSignalBlocker const blocker(handle);
    // A dial that wraps divides by the width of its range.
    if (dial_)
        dial_->setWrapping(false);
    handle->setRange(bounds.minimum, bounds.maximum);
    if (dial_)
        dial_->setWrapping(periodic_ && bounds.minimum < bounds.maximum);
    handle->setValue(shown_);
    showMark();
}

void QInteger::showNumber(int value, TypedText typed) {
    shown_ = value;
    showNumberText(lineEdit_, QString::number(value), typed);
    moveSilently(control(), value);
    showMark();
}

NumberBounds<int> QInteger::bounds() const {
    auto const* const handle = control();
    // Without a control nothing says what the range is.
    return handle ? NumberBounds<int>{handle->minimum(), handle->maximum()}
                  : NumberBounds<int>{LargestInt, std::numeric_limits<int>::min()};
}

QString QInteger::numberTip() const {
    return numberToolTip(factsOf(shown_, bounds()), sliderKeys());
}

void QInteger::showMark() {
    markNumber(lineEdit_, isOutside(shown_, bounds()), [this] { return numberTip(); });
}

bool QInteger::event(QEvent* event) {
    if (event->type() == QEvent::ToolTip && showNumberToolTip(*this, *static_cast<QHelpEvent*>(event), numberTip()))
        return true;
    return QWidget::event(event);
}

void QInteger::showAndWrite(int value, TypedText typed) {
    showNumber(value, typed);
    // The second part: a listener of the history may move the control again before the number is written.
    if (value == cached_ || value == recording_)
        return;
    auto const currentPool = pool();
    if (!currentPool)
        return;

    VContext const context(currentPool, nullptr);
    Tessera::StrongPtr<VUndoAction> const step(
        new IntegerUndo(Tessera::WeakPtr<VInputValue<int>, ValueNotifier>(this), context.addendum(), cached_));
    auto const outerRecording = recording_;
    recording_ = value;
    QPointer<QInteger> const self(this);
    if (auto const parameter = owner().strong())
        parameter->AddUndoAction(step, UndoWeight);
    if (!self)
        return;
    recording_ = outerRecording;
    if (shown_ != value)
        showNumber(value, TypedText::Replace);
    commit(value);
}

void QInteger::valueChanged(int value) {
    // A typed number moved the handle as far as it goes; what is shown, written and notified is the number.
    int const number = std::exchange(typed_, std::nullopt).value_or(value);
    if (owner())
        showAndWrite(number, TypedText::Replace);
    else
        commit(number);
}

void QInteger::textEnter() {
    bool isNumber = false;
    int const number = lineEdit_ ? lineEdit_->text().toInt(&isNumber) : 0;
    if (!isNumber)
        return;
    if (!owner()) {
        moveSilently(control(), number);
        commit(number);
        return;
    }
    // The control's signal stays live: a handle that moves records the step.
    QPointer<QInteger> const self(this);
    typed_ = number;
    if (auto* const handle = control())
        handle->setValue(number);
    if (!self)
        return;
    typed_.reset();
    // An owner that went meanwhile was reported by the control's slot.
    if (!owner())
        return;
    showNumber(number, TypedText::Replace);
    commit(number);
}

void QInteger::onValueChange(ValuePtr const& newValue, VContext const& context, ValueMap const* properties) {
    // These defaults differ from those of the construction: a range that is changed later is a percentage.
    if (properties)
        setRange(boundsOr<int>(properties, {0, 100}));

    auto const value = storedValueIn<int>(newValue);
    if (!value)
        return;
    switch (arrivalOf(newValue, context)) {
    case Arrival::OtherPool:
        // An undo in another pool was written through this input; the next edit starts from what is shown.
        cached_ = shown_;
        break;
    case Arrival::Current:
        cached_ = *value;
        showNumber(*value, TypedText::Keep);
        break;
    case Arrival::NotYetStored:
        if (owner())
            showAndWrite(*value, TypedText::Keep);
        break;
    }
}

namespace {

TALO_STATIC_CREATOR QInputWidgetCreator<int, QInteger> const integerCreator("int", nullptr);
TALO_STATIC_CREATOR QInputWidgetCreator<int, QInteger> const
    integerDialCreator("intDial", PreferencesPtr(new VCreationPreferences("dial")));
TALO_STATIC_CREATOR QInputWidgetCreator<int, QInteger> const
    periodicIntegerDialCreator("intDialPeriodic", PreferencesPtr(new VCreationPreferences("dial", "periodic")));

} // namespace

} // namespace Kolt

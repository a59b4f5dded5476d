#include "NumberField.hpp"

#include "Formula.hpp"

#include <cmath>
#include <QAction>
#include <QApplication>
#include <QFocusEvent>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMouseEvent>
#include <QPointer>
#include <QStyle>
#include <QToolTip>

namespace MoreInputs {

namespace {

// In pixels for each step.
constexpr int dragDistance = 3;

constexpr double fine = 0.1;
constexpr double coarse = 10;

// In digits.
constexpr int usualLength = 12;
constexpr int leastLength = 4;

double factorOf(Qt::KeyboardModifiers modifiers) {
    if (modifiers & Qt::ShiftModifier)
        return fine;
    return modifiers & Qt::ControlModifier ? coarse : 1;
}

} // namespace

NumberField::NumberField(QWidget* parent) : QAbstractSpinBox(parent), unitLabel_(new QLabel(lineEdit())) {
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    // Beside its unit.
    setAlignment(Qt::AlignRight);
    unitLabel_->setAttribute(Qt::WA_TransparentForMouseEvents);
    unitLabel_->setTextFormat(Qt::PlainText);
    unitLabel_->hide();
    lineEdit()->installEventFilter(this);
    // What is dragged is the number, not its text.
    lineEdit()->setDragEnabled(false);
    connect(lineEdit(), &QLineEdit::textChanged, this, [this] {
        lineEdit()->setCursor(isTyping() ? Qt::IBeamCursor : Qt::SizeHorCursor);
        showError(QString());
    });
    showNumber(0);
    showError(QString());
}

NumberField::~NumberField() = default;

bool NumberField::isTyping() const {
    return lineEdit()->text() != shown_;
}

void NumberField::setScale(NumberScale const& scale) {
    scale_ = scale;
    showNumber(value_);
}

void NumberField::setUnit(QString const& unit) {
    unit_ = unit;
    unitLabel_->setText(unit);
    unitLabel_->setVisible(!unit.isEmpty());
    placeUnit();
    updateGeometry();
}

void NumberField::placeUnit() {
    int const width = unit_.isEmpty() ? 0 : unitLabel_->sizeHint().width();
    int const gap = fontMetrics().averageCharWidth();
    auto const direction = layoutDirection();
    auto const place = QStyle::visualRect(direction, lineEdit()->rect(),
                                          QRect(lineEdit()->width() - width - gap / 2, 0, width, lineEdit()->height()));
    unitLabel_->setGeometry(place);
    int const margin = unit_.isEmpty() ? 0 : width + gap;
    lineEdit()->setTextMargins(direction == Qt::RightToLeft ? margin : 0, 0, direction == Qt::RightToLeft ? 0 : margin,
                               0);
}

void NumberField::showNumber(double number) {
    bool const typing = isTyping();
    value_ = number;
    shown_ = scale_.text(number);
    if (!typing)
        lineEdit()->setText(shown_);
}

QSize NumberField::sizeHint() const {
    auto const width = [this](int digits) { return digits * fontMetrics().horizontalAdvance(QLatin1Char('0')); };
    auto size = minimumSizeHint();
    size.rwidth() += width(usualLength - leastLength);
    return size;
}

QSize NumberField::minimumSizeHint() const {
    // The base class adds frame and buttons to a text of its own, which is empty.
    auto size = QAbstractSpinBox::minimumSizeHint();
    int const unit = unit_.isEmpty() ? 0 : unitLabel_->sizeHint().width() + fontMetrics().averageCharWidth();
    size.rwidth() += leastLength * fontMetrics().horizontalAdvance(QLatin1Char('0')) + unit;
    return size;
}

NumberField::StepEnabled NumberField::stepEnabled() const {
    StepEnabled enabled = StepNone;
    if (value_ < scale_.highest(value_) || isTyping())
        enabled |= StepUpEnabled;
    if (value_ > scale_.lowest(value_) || isTyping())
        enabled |= StepDownEnabled;
    return enabled;
}

void NumberField::stepBy(int steps) {
    QPointer<NumberField> const self(this);
    if (isTyping())
        enterText();
    if (!self || isTyping())
        return;
    bool const isFine = QGuiApplication::keyboardModifiers() & Qt::ShiftModifier;
    enter(scale_.stepped(value_, steps, isFine ? fine : 1));
}

QString NumberField::refusal(double number) const {
    if (scale_.isWhole && number != std::round(number))
        return tr("%1 is no whole number.").arg(number);
    if (scale_.contains(number))
        return {};
    if (std::isinf(scale_.maximum))
        return tr("%1 is below %2.").arg(scale_.text(number), scale_.text(scale_.minimum));
    if (std::isinf(scale_.minimum))
        return tr("%1 is above %2.").arg(scale_.text(number), scale_.text(scale_.maximum));
    return tr("%1 does not lie between %2 and %3.")
        .arg(scale_.text(number), scale_.text(scale_.minimum), scale_.text(scale_.maximum));
}

void NumberField::enterText() {
    auto text = lineEdit()->text().trimmed();
    if (!unit_.isEmpty() && text.endsWith(unit_))
        text.chop(unit_.size());
    auto const result = Formula::compute(text, QString(QLocale().decimalPoint()).at(0));
    auto const error = result.value ? refusal(*result.value) : result.error;
    if (!error.isEmpty()) {
        showError(error);
        return;
    }
    takeTextBack();
    enter(*result.value);
}

void NumberField::enter(double number) {
    if (number == value_ || !refusal(number).isEmpty())
        return;
    showNumber(number);
    emit edited(number);
}

void NumberField::takeTextBack() {
    lineEdit()->setText(shown_);
}

void NumberField::showError(QString const& error) {
    auto const usual = tr("Drag to change the number: with Shift finely, with Ctrl coarsely. Formulas such as 2*3 are "
                          "computed.");
    auto const tip = error.isEmpty() ? usual : error;
    if (toolTip() == tip)
        return;
    setToolTip(tip);
    if (!error.isEmpty()) {
        auto const icon = style()->standardIcon(QStyle::SP_MessageBoxWarning, nullptr, this);
        if (!errorMark_)
            errorMark_ = lineEdit()->addAction(icon, QLineEdit::LeadingPosition);
        errorMark_->setToolTip(error);
        QToolTip::showText(mapToGlobal(rect().bottomLeft()), error, this);
    } else {
        delete errorMark_;
        errorMark_ = nullptr;
        QToolTip::hideText();
    }
}

void NumberField::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Escape && isTyping()) {
        takeTextBack();
        selectAll();
        event->accept();
    } else if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) {
        // The default button of a dialog wants it, too.
        event->ignore();
        QPointer<NumberField> const self(this);
        if (isTyping())
            enterText();
        if (self && !isTyping())
            selectAll();
    } else {
        QAbstractSpinBox::keyPressEvent(event);
    }
}

void NumberField::focusInEvent(QFocusEvent* event) {
    QAbstractSpinBox::focusInEvent(event);
    hasJustComeIn_ = event->reason() == Qt::MouseFocusReason;
}

void NumberField::focusOutEvent(QFocusEvent* event) {
    QAbstractSpinBox::focusOutEvent(event);
    // Of a menu or another window the focus comes back.
    bool const comesBack = event->reason() == Qt::ActiveWindowFocusReason || event->reason() == Qt::PopupFocusReason;
    if (!comesBack && isTyping())
        enterText();
}

void NumberField::changeEvent(QEvent* event) {
    QAbstractSpinBox::changeEvent(event);
    if (event->type() == QEvent::FontChange || event->type() == QEvent::LayoutDirectionChange)
        placeUnit();
}

void NumberField::press(QMouseEvent const& event) {
    isPressed_ = event.button() == Qt::LeftButton && !isTyping() && !isReadOnly();
    isDragging_ = false;
    beginDrag(event);
}

bool NumberField::eventFilter(QObject* watched, QEvent* event) {
    switch (event->type()) {
    case QEvent::Resize:
        placeUnit();
        break;
    case QEvent::MouseButtonPress:
        press(*static_cast<QMouseEvent const*>(event));
        break;
    case QEvent::MouseMove:
        if (isPressed_) {
            drag(*static_cast<QMouseEvent const*>(event));
            return true;
        }
        break;
    case QEvent::MouseButtonRelease:
        // The first click is for typing over the number, the next ones place the cursor.
        if (isPressed_ && !isDragging_ && hasJustComeIn_)
            selectAll();
        isPressed_ = false;
        hasJustComeIn_ = false;
        break;
    default:
        break;
    }
    return QAbstractSpinBox::eventFilter(watched, event);
}

void NumberField::beginDrag(QMouseEvent const& event) {
    dragPlace_ = event.globalX();
    dragNumber_ = value_;
    dragFactor_ = factorOf(event.modifiers());
}

void NumberField::drag(QMouseEvent const& event) {
    if (!isDragging_) {
        isDragging_ = std::abs(event.globalX() - dragPlace_) >= QApplication::startDragDistance();
        if (!isDragging_)
            return;
        lineEdit()->deselect();
    }
    if (factorOf(event.modifiers()) != dragFactor_)
        beginDrag(event);
    double const number = scale_.stepped(dragNumber_, (event.globalX() - dragPlace_) / dragDistance, dragFactor_);
    bool const isAtBound = number == scale_.lowest(dragNumber_) || number == scale_.highest(dragNumber_);
    // So that the way back is as short as it looks.
    if (isAtBound) {
        dragPlace_ = event.globalX();
        dragNumber_ = number;
    }
    enter(number);
}

} // namespace MoreInputs

#include <sorrel/QLeaveLineEdit.hpp>

#include <algorithm>
#include <QApplication>
#include <QFocusEvent>
#include <QIntValidator>
#include <QKeyEvent>
#include <QPainter>
#include <QPointer>

namespace Kolt {

namespace {

constexpr QChar Comma(u',');
constexpr QChar Point(u'.');

bool isReturn(QKeyEvent const& event) {
    return event.key() == Qt::Key_Return || event.key() == Qt::Key_Enter;
}

bool hasDecimals(QLineEdit const& field) {
    return qobject_cast<QDoubleValidator const*>(field.validator());
}

bool isForNumbers(QLineEdit const& field) {
    return hasDecimals(field) || qobject_cast<QIntValidator const*>(field.validator());
}

/// Whether a field's text has nothing but what every reader of numbers understands. Validators accept group separators
/// and repair texts with them, so that 1,5 becomes 15.
bool isPlain(QLineEdit const& field) {
    if (!isForNumbers(field))
        return true;
    auto const text = field.text();
    QLatin1String const plain(hasDecimals(field) ? "+-0123456789.eE" : "+-0123456789");
    return std::all_of(text.begin(), text.end(), [&](QChar each) { return plain.contains(each); });
}

/// The locale in which a person types: that of the widget if it, or a widget around it, was given one, else the default
/// of the program, which may have changed since the widget was made.
QLocale localeOf(QWidget const& widget) {
    for (auto const* each = &widget; each; each = each->isWindow() ? nullptr : each->parentWidget())
        if (each->testAttribute(Qt::WA_SetLocale))
            return widget.locale();
    return {};
}

} // namespace

QLeaveLineEdit::QLeaveLineEdit(QWidget* parent) : QLineEdit(parent) {}

QLeaveLineEdit::~QLeaveLineEdit() = default;

void QLeaveLineEdit::showText(QString const& text) {
    remembered_ = text;
    setText(text);
}

bool QLeaveLineEdit::updateText(QString const& text) {
    bool const isTyped = isModified() && this->text() != remembered_;
    remembered_ = text;
    if (!isTyped)
        setText(text);
    return !isTyped;
}

void QLeaveLineEdit::setValueWriter(ValueWriter writer) {
    valueWriter_ = std::move(writer);
}

void QLeaveLineEdit::setMarked(bool marked) {
    if (std::exchange(marked_, marked) != marked)
        update();
}

void QLeaveLineEdit::focusOutEvent(QFocusEvent* event) {
    auto const typed = text();
    QLineEdit::focusOutEvent(event);
    if (text() != typed) {
        // The validator repaired it.
        setText(typed);
        setModified(true);
    }
    disconnect(focusChanged_);
    if (event->reason() != Qt::ActiveWindowFocusReason && event->reason() != Qt::PopupFocusReason) {
        leave();
        return;
    }
    // The focus may come back to another widget, which causes no event for this one.
    focusChanged_ = connect(qApp, &QApplication::focusChanged, this, [this](QWidget const*, QWidget const* now) {
        if (!now || now->window()->windowType() == Qt::Popup)
            return;
        disconnect(focusChanged_);
        if (now != this)
            leave();
    });
}

void QLeaveLineEdit::leave() {
    if (text() == remembered_)
        return;
    QPointer<QLeaveLineEdit> const self(this);
    if (isPlain(*this) && hasAcceptableInput())
        emit returnPressed();
    if (!self || text() == remembered_)
        return;
    auto const typed = text();
    setText(remembered_);
    emit refused(typed);
}

void QLeaveLineEdit::enter() {
    // A copy: a receiver of the value may delete the field.
    auto const writeValue = text() == remembered_ ? valueWriter_ : ValueWriter();
    if (writeValue && writeValue())
        return;
    QPointer<QLeaveLineEdit> const self(this);
    if (isPlain(*this) && hasAcceptableInput()) {
        emit returnPressed();
        if (self)
            emit editingFinished();
    }
    if (self && text() != remembered_)
        emit refused(text());
}

void QLeaveLineEdit::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Escape && text() != remembered_)
        setText(remembered_);
    else if (isReturn(*event)) {
        // As the base class leaves it, because the default button of a dialog wants it, too. The base class itself
        // would go on with a field that was deleted.
        event->ignore();
        enter();
    } else if (!typeSeparator(*event))
        QLineEdit::keyPressEvent(event);
}

bool QLeaveLineEdit::typeSeparator(QKeyEvent const& event) {
    auto typed = event.text();
    if (isReadOnly() || !isForNumbers(*this) || (typed != Comma && typed != Point))
        return false;
    auto wanted = text();
    int const place = hasSelectedText() ? selectionStart() : cursorPosition();
    wanted.remove(place, selectedText().size());
    bool const isFirst = !wanted.contains(Comma) && !wanted.contains(Point);
    if (hasDecimals(*this) && isFirst && localeOf(*this).decimalPoint() == Comma)
        typed = Point;
    wanted.insert(place, typed);
    insert(typed);
    if (text() != wanted) {
        // The validator refused it.
        setText(wanted);
        setCursorPosition(place + 1);
        setModified(true);
    }
    return true;
}

void QLeaveLineEdit::dropEvent(QDropEvent* event) {
    QLineEdit::dropEvent(event);
    leave();
}

void QLeaveLineEdit::paintEvent(QPaintEvent* event) {
    QLineEdit::paintEvent(event);
    if (!marked_)
        return;
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    // In the colour of the text, so that it can be seen on every ground.
    painter.setBrush(palette().text());
    int const side = height() / 3;
    bool const isMirrored = layoutDirection() == Qt::RightToLeft;
    QPoint const corner = isMirrored ? rect().topRight() + QPoint(1, 0) : rect().topLeft();
    QPoint const along(isMirrored ? -side : side, 0);
    painter.drawPolygon(QPolygon({corner, corner + along, corner + QPoint(0, side)}));
}

} // namespace Kolt

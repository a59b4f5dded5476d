#include <parameters/input/GestureWatcher.hpp>

#include <parameters/input/GestureTarget.hpp>
#include <QAbstractSlider>
#include <QAbstractSpinBox>
#include <QApplication>
#include <QComboBox>
#include <QLineEdit>
#include <QMouseEvent>
#include <QPlainTextEdit>
#include <QTextEdit>

namespace Talo {

namespace {

bool isText(QWidget const* widget) {
    return qobject_cast<QLineEdit const*>(widget) || qobject_cast<QTextEdit const*>(widget) ||
           qobject_cast<QPlainTextEdit const*>(widget);
}

/// A control into which a text can be typed, but which has other ways to change the value as well.
bool isTypedInto(QWidget const* widget) {
    auto const* const comboBox = qobject_cast<QComboBox const*>(widget);
    return (comboBox && comboBox->isEditable()) || qobject_cast<QAbstractSpinBox const*>(widget);
}

/// The text field that a widget is or is a part of, null for none. The line edit of a drop-down list is a part of it.
QWidget* textFieldOf(QWidget* widget) {
    QWidget* field = nullptr;
    for (auto* each = widget; each && !dynamic_cast<GestureTarget*>(each); each = each->parentWidget()) {
        if (isText(each) || isTypedInto(each))
            field = each;
    }
    return field;
}

bool isSingleLine(QWidget const* field) {
    return qobject_cast<QLineEdit const*>(field) || isTypedInto(field);
}

bool isModifier(int key) {
    return key == Qt::Key_Shift || key == Qt::Key_Control || key == Qt::Key_Alt || key == Qt::Key_AltGr ||
           key == Qt::Key_Meta || key == Qt::Key_CapsLock;
}

bool isReturn(int key) {
    return key == Qt::Key_Return || key == Qt::Key_Enter;
}

bool stepsThroughValues(int key) {
    return key == Qt::Key_Up || key == Qt::Key_Down || key == Qt::Key_PageUp || key == Qt::Key_PageDown;
}

/// Whether the field itself could undo, or redo, something.
bool hasOwnHistory(QWidget* field, bool redo) {
    auto const* line = qobject_cast<QLineEdit*>(field);
    if (!line)
        line = field->findChild<QLineEdit*>();
    if (auto const* const text = qobject_cast<QTextEdit*>(field))
        return redo ? text->document()->isRedoAvailable() : text->document()->isUndoAvailable();
    if (auto const* const plain = qobject_cast<QPlainTextEdit*>(field))
        return redo ? plain->document()->isRedoAvailable() : plain->document()->isUndoAvailable();
    return line && (redo ? line->isRedoAvailable() : line->isUndoAvailable());
}

} // namespace

GestureWatcher::GestureWatcher(QObject* parent) : QObject(parent) {
    wheelTimer_.setSingleShot(true);
    wheelTimer_.setInterval(WheelPause);
    connect(&wheelTimer_, &QTimer::timeout, this, [this] {
        if (kind_ == Kind::Wheel)
            end();
    });
}

GestureWatcher::~GestureWatcher() {
    end();
}

void GestureWatcher::begin(Kind kind, QWidget* target) {
    // A listener of the history that hears of the last gesture may delete the target, or take it out of its row.
    QPointer<QWidget> const pressed(target);
    end();
    auto const* const row = dynamic_cast<GestureTarget const*>(GestureTarget::around(pressed));
    if (!row)
        return;
    kind_ = kind;
    target_ = target;
    ++number_;
    // A deleted target sees neither the release nor the loss of the focus.
    connect(target, &QObject::destroyed, this, &GestureWatcher::end);
    auto& history = row->history();
    history_ = Tessera::WeakPtr<Kolt::UndoHistory>(&history);
    macro_.emplace(history);
}

void GestureWatcher::end() {
    if (kind_ == Kind::None)
        return;
    kind_ = Kind::None;
    ending_ = false;
    if (target_)
        disconnect(target_, &QObject::destroyed, this, &GestureWatcher::end);
    target_.clear();
    history_ = nullptr;
    macro_.reset();
}

void GestureWatcher::endLater() {
    if (kind_ == Kind::None || ending_)
        return;
    ending_ = true;
    QMetaObject::invokeMethod(
        this,
        [this, number = number_] {
            if (number == number_)
                end();
        },
        Qt::QueuedConnection);
}

bool GestureWatcher::filter(QWidget& widget, QEvent& event) {
    if (swallowMouse(event) || filterDragKey(event))
        return true;
    switch (event.type()) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonDblClick:
        press(&widget);
        noteMouse(widget, static_cast<QMouseEvent&>(event));
        break;
    case QEvent::MouseMove:
        noteMouse(widget, static_cast<QMouseEvent&>(event));
        break;
    case QEvent::MouseButtonRelease:
        if (kind_ == Kind::Mouse && static_cast<QMouseEvent*>(&event)->buttons() == Qt::NoButton)
            endLater();
        break;
    case QEvent::KeyPress:
        keyPress(&widget, static_cast<QKeyEvent const&>(event));
        break;
    case QEvent::KeyRelease:
        keyRelease(static_cast<QKeyEvent const&>(event));
        break;
    case QEvent::InputMethod:
        if (auto* const field = GestureTarget::around(&widget) ? textFieldOf(&widget) : nullptr)
            type(field);
        break;
    case QEvent::Wheel:
        turnWheel(&widget);
        break;
    case QEvent::FocusOut:
        // Some fields write their text when they lose the focus.
        if (kind_ == Kind::Text && &widget == target_)
            endLater();
        break;
    case QEvent::ShortcutOverride:
        return overrideShortcut(&widget, static_cast<QKeyEvent*>(&event));
    default:
        break;
    }
    return false;
}

void GestureWatcher::press(QWidget* widget) {
    // A press that the pressed widget ignores is delivered to the widgets around it.
    if (kind_ == Kind::Mouse && !ending_ && target_ && widget->isAncestorOf(target_))
        return;
    if (!GestureTarget::around(widget)) {
        end();
        return;
    }
    bool const inText = kind_ == Kind::Text && !ending_ && target_ && isText(target_) &&
                        textFieldOf(widget) == target_ && widget->window() == target_->window();
    if (!inText)
        begin(Kind::Mouse, widget);
}

void GestureWatcher::noteMouse(QWidget const& widget, QMouseEvent const& event) {
    if (kind_ != Kind::Mouse || target_ != &widget)
        return;
    place_ = event.pos();
    if (event.type() != QEvent::MouseMove)
        button_ = event.button();
}

bool GestureWatcher::isDrag() const {
    // The right button opens a menu, which Escape closes.
    return kind_ == Kind::Mouse && !ending_ && button_ != Qt::RightButton && qobject_cast<QAbstractSlider*>(target_);
}

bool GestureWatcher::filterDragKey(QEvent& event) {
    bool const isPress = event.type() == QEvent::KeyPress;
    // Escape is the shortcut of other commands as well.
    bool const isOverride = event.type() == QEvent::ShortcutOverride;
    if ((!isPress && !isOverride) || static_cast<QKeyEvent&>(event).key() != Qt::Key_Escape || !isDrag())
        return false;
    event.accept();
    if (isPress)
        cancelDrag();
    return true;
}

void GestureWatcher::cancelDrag() {
    auto const history = history_;
    // The control moves with the mouse until it sees a release, which may change the value once more.
    QMouseEvent release(QEvent::MouseButtonRelease, place_, target_->mapToGlobal(place_), button_, Qt::NoButton,
                        Qt::NoModifier);
    QApplication::sendEvent(target_, &release);
    swallowsMouse_ = true;
    if (auto const living = history.strong())
        living->cancelStep();
    end();
}

bool GestureWatcher::swallowMouse(QEvent const& event) {
    auto const type = event.type();
    bool const isPress = type == QEvent::MouseButtonPress || type == QEvent::MouseButtonDblClick;
    if (!swallowsMouse_ || (!isPress && type != QEvent::MouseMove && type != QEvent::MouseButtonRelease))
        return false;
    auto const& mouse = static_cast<QMouseEvent const&>(event);
    bool const isLast = type == QEvent::MouseButtonRelease && mouse.buttons() == Qt::NoButton;
    // The release may have gone to another program.
    bool const isNew = isPress ? mouse.buttons() == mouse.button() : !isLast && mouse.buttons() == Qt::NoButton;
    swallowsMouse_ = !isLast && !isNew;
    return !isNew;
}

void GestureWatcher::keyPress(QWidget* widget, QKeyEvent const& event) {
    int const key = event.key();
    bool const repeats = event.isAutoRepeat() && kind_ == Kind::Key && key == key_;
    // A key that no widget accepts is delivered to the widgets around it, too.
    bool const goesOn = kind_ == Kind::Key && !ending_ && target_ && key == key_ && widget->isAncestorOf(target_);
    if (isModifier(key) || repeats || goesOn)
        return;
    if (!GestureTarget::around(widget)) {
        if (kind_ != Kind::Text)
            end();
        return;
    }
    auto* const field = textFieldOf(widget);
    if (field && (isText(field) || !stepsThroughValues(key))) {
        type(field);
        if (isReturn(key) && isSingleLine(field))
            endLater();
        return;
    }
    begin(Kind::Key, widget);
    key_ = key;
}

void GestureWatcher::keyRelease(QKeyEvent const& event) {
    if (kind_ == Kind::Key && event.key() == key_ && !event.isAutoRepeat())
        endLater();
}

void GestureWatcher::type(QWidget* field) {
    if (kind_ != Kind::Text || ending_ || target_ != field)
        begin(Kind::Text, field);
}

void GestureWatcher::turnWheel(QWidget* widget) {
    // Scrolling while typing or dragging ends nothing.
    auto* const target = GestureTarget::around(widget);
    if (!target || kind_ == Kind::Text || (kind_ == Kind::Mouse && !ending_))
        return;
    if (kind_ != Kind::Wheel || target_ != target)
        begin(Kind::Wheel, target);
    wheelTimer_.start();
}

bool GestureWatcher::overrideShortcut(QWidget* widget, QKeyEvent* event) {
    // As QKeyEvent::matches does.
    QKeySequence const keys((static_cast<int>(event->modifiers()) | event->key()) &
                            ~static_cast<int>(Qt::KeypadModifier | Qt::GroupSwitchModifier));
    bool const redo = redoKeys_.contains(keys);
    if (!redo && !undoKeys_.contains(keys))
        return false;
    QPointer<QWidget> const field = GestureTarget::around(widget) ? textFieldOf(widget) : nullptr;
    if (!field)
        return false;
    // The field may write its text on this occasion.
    static_cast<QObject*>(widget)->event(event);
    auto const history = history_.strong();
    bool const isUnwritten = kind_ == Kind::Text && target_ == field && history && !history->isStepOpen();
    if (!field || !isUnwritten || !hasOwnHistory(field, redo))
        event->ignore();
    return true;
}

} // namespace Talo

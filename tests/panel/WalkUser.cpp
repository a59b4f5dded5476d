#include "WalkUser.hpp"

#include "WindowMouse.hpp"

#include <QColorDialog>
#include <QListWidget>
#include <QMimeData>
#include <QPushButton>
#include <QtTest>
#include <QUrl>

namespace {

constexpr int mostViews = 3;

std::string textOf(QPoint const& place) {
    return std::to_string(place.x()) + "," + std::to_string(place.y());
}

} // namespace

WalkUser::WalkUser(Panel::MainWindow& window, WalkDice& dice, QStringList files)
    : window_(window), dice_(dice), files_(std::move(files)) {}

WalkUser::~WalkUser() = default;

void WalkUser::act() {
    auto const choice = dice_.below(1000);
    if (holdsButton())
        moveOrRelease();
    else if (choice < 460)
        useMouse();
    else if (choice < 535)
        turnWheel();
    else if (choice < 545)
        drop();
    else
        pressKey();
}

QList<QWidget*> WalkUser::ofColourDialog() {
    auto const dialogs = window_.findChildren<QColorDialog*>();
    for (auto* const dialog : dialogs) {
        if (!dialog->isVisible())
            continue;
        // One of the buttons picks a colour from the screen and would wait for a click there.
        auto const buttons = dialog->findChildren<QPushButton*>();
        for (auto* const button : buttons)
            button->setEnabled(false);
        if (dice_.below(2) == 0)
            return dialog->findChildren<QWidget*>();
    }
    return {};
}

QList<QWidget*> WalkUser::candidates() {
    if (auto* const popup = QApplication::activePopupWidget())
        return QList<QWidget*>{popup} + popup->findChildren<QWidget*>();
    auto const ofDialog = ofColourDialog();
    if (!ofDialog.isEmpty())
        return ofDialog;
    auto const views = window_.findChildren<Panel::ObjectView*>();
    switch (dice_.below(10)) {
    case 0:
        return window_.findChildren<QWidget*>();
    case 1:
        return window_.objectList()->findChildren<QWidget*>();
    case 2:
        return dice_.oneOf(views)->findChildren<QWidget*>();
    default: {
        auto const rows = window_.currentView()->rows();
        return rows.empty() ? window_.findChildren<QWidget*>() : dice_.oneOf(rows)->findChildren<QWidget*>();
    }
    }
}

QWidget* WalkUser::target() {
    QList<QWidget*> seen;
    auto const all = candidates();
    for (auto* const widget : all) {
        if (widget->isVisible() && widget->window()->windowHandle() && !widget->visibleRegion().isEmpty())
            seen << widget;
    }
    return seen.isEmpty() ? nullptr : dice_.oneOf(seen);
}

void WalkUser::useMouse() {
    if (auto* const widget = target())
        press(*widget);
}

QPoint WalkUser::placeIn(QWidget& widget) {
    auto const area = widget.visibleRegion().boundingRect();
    auto const x = static_cast<int>(dice_.below(static_cast<unsigned>(area.width())));
    auto const y = static_cast<int>(dice_.below(static_cast<unsigned>(area.height())));
    return inWindow(widget, area.topLeft() + QPoint(x, y));
}

void WalkUser::press(QWidget& widget) {
    auto const place = placeIn(widget);
    QPointer<QWindow> const window = widget.window()->windowHandle();
    auto const kind = dice_.below(20);
    auto const button = kind == 0 ? Qt::RightButton : kind == 1 ? Qt::MiddleButton : Qt::LeftButton;
    dice_.note("mouse " + std::to_string(kind) + " at " + textOf(place) + " on " + nameOf(&widget));
    if (kind == 2) {
        QTest::mouseMove(window.data(), place);
        return;
    }
    QPointer<QWidget> const target(&widget);
    activate(widget.window());
    if (!target || !window || !target->isVisible())
        return;
    if (kind < 12) {
        pressAndRelease(window, button, place, kind == 3);
    } else {
        held_ = target;
        button_ = button;
        QTest::mousePress(window.data(), button, {}, place);
    }
}

void WalkUser::pressAndRelease(QPointer<QWindow> const& window, Qt::MouseButton button, QPoint const& place,
                               bool isDouble) {
    click(window, button, place);
    if (!window || !isDouble)
        return;
    // The second press of a double click must follow soon, so subtract the pause that QTest adds to the time stamps.
    QTest::lastMouseTimestamp -= QTest::mouseDoubleClickInterval;
    click(window, button, place);
}

void WalkUser::disturb(Talo::ParameterRow& row) {
    auto const parameter = row.parameter();
    auto const buttons = row.findChild<QListWidget*>() ? row.findChildren<QPushButton*>() : QList<QPushButton*>();
    dice_.note("disturb " + row.parameterName().toStdString());
    if (!buttons.isEmpty() && dice_.below(2) == 0)
        QTest::mouseClick(dice_.oneOf(buttons), Qt::LeftButton);
    else if (parameter && parameter->isEdited())
        parameter->notifyValueChange(parameter->effectiveValue(row.pool()), row.pool(), std::string(), nullptr, nullptr,
                                     nullptr);
}

void WalkUser::moveOrRelease() {
    auto* const row = Talo::ParameterRow::rowOf(held_);
    if (row && dice_.below(4) == 0) {
        disturb(*row);
        return;
    }
    auto* const widget = held_ && held_->isVisible() ? held_.data() : static_cast<QWidget*>(&window_);
    auto* const window = widget->window()->windowHandle();
    auto const spread = [&](int length) {
        return static_cast<int>(dice_.below(static_cast<unsigned>(length) + 40)) - 20;
    };
    auto const x = spread(widget->width());
    auto const place = inWindow(*widget, {x, spread(widget->height())});
    bool const moves = dice_.below(3) != 0;
    dice_.note((moves ? "move to " : "release at ") + textOf(place) + " on " + nameOf(widget));
    if (window && moves) {
        QTest::mouseMove(window, place);
        return;
    }
    held_.clear();
    auto const button = std::exchange(button_, Qt::NoButton);
    if (window)
        QTest::mouseRelease(window, button, {}, place);
}

void WalkUser::release() {
    if (button_ != Qt::NoButton)
        QTest::mouseRelease(window_.windowHandle(), std::exchange(button_, Qt::NoButton), {}, QPoint(1, 1));
    held_.clear();
}

void WalkUser::turnWheel() {
    auto* const widget = target();
    if (!widget)
        return;
    auto const point = inWindow(*widget, widget->visibleRegion().boundingRect().center());
    auto* const window = widget->window()->windowHandle();
    int const angle = dice_.below(2) == 0 ? 120 : -120;
    dice_.note("wheel " + std::to_string(angle) + " on " + nameOf(widget));
    QWheelEvent event(point, window->mapToGlobal(point), QPoint(), QPoint(0, angle), Qt::NoButton, Qt::NoModifier,
                      Qt::NoScrollPhase, false);
    QCoreApplication::sendEvent(window, &event);
}

void WalkUser::drop() {
    static constexpr char const* texts[] = {"7",
                                            "0.25",
                                            "#204060",
                                            "true",
                                            "Gr\303\266\303\237e \316\251",
                                            "two\nlines",
                                            "{\"type\": \"int\", \"value\": 4}"};
    auto* const widget = target();
    if (!widget || QApplication::activePopupWidget())
        return;
    QMimeData data;
    if (dice_.below(3) == 0)
        data.setUrls({QUrl::fromLocalFile(dice_.oneOf(files_))});
    else
        data.setText(QString::fromUtf8(dice_.oneOf(texts)));
    dice_.note("drop " + (data.hasUrls() ? std::string("a file") : data.text().toStdString()) + " on " +
               nameOf(widget));
    // As the window system does: Qt finds the widget that takes the drop.
    auto const place = placeIn(*widget);
    QPointer<QWindow> const window = widget->window()->windowHandle();
    QDragEnterEvent enter(place, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(window, &enter);
    QDragMoveEvent move(place, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(window, &move);
    if (!window)
        return;
    if (move.isAccepted()) {
        QDropEvent dropped(place, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
        QCoreApplication::sendEvent(window, &dropped);
    } else {
        QDragLeaveEvent leave;
        QCoreApplication::sendEvent(window, &leave);
    }
}

void WalkUser::pressKey() {
    // Without an active window, no key arrives.
    if (!QGuiApplication::focusWindow() || !QApplication::activeWindow()) {
        dice_.note("activate");
        window_.activateWindow();
        return;
    }
    auto const kind = dice_.below(60);
    if (kind == 1) {
        auto const& typed = dice_.oneOf(typedLetters());
        dice_.note("type " + typed.toStdString());
        sendKey({Qt::Key_unknown, {}}, typed);
        return;
    }
    if (kind == 2) {
        compose();
        return;
    }
    auto const& stroke = kind == 0 ? dice_.oneOf(rareStrokes()) : dice_.oneOf(strokes());
    dice_.note("key " + QKeySequence(stroke.key | static_cast<int>(stroke.modifiers)).toString().toStdString());
    if (stroke.key == Qt::Key_N && window_.findChildren<Panel::ObjectView*>().size() >= mostViews)
        return;
    QString text;
    if ((stroke.modifiers & (Qt::ControlModifier | Qt::AltModifier)) == 0 && QTest::keyToAscii(stroke.key) != 0)
        text = QLatin1Char(QTest::keyToAscii(stroke.key));
    if (stroke.modifiers == Qt::ShiftModifier)
        text = text.toUpper();
    sendKey(stroke, text);
}

void WalkUser::compose() {
    bool const isEntered = dice_.below(3) != 0;
    dice_.note(isEntered ? "compose" : "begin to compose");
    sendKey({Qt::Key_Dead_Acute, {}}, {});
    QPointer<QWidget> const field = QApplication::focusWidget();
    if (!field || !field->inputMethodQuery(Qt::ImEnabled).toBool())
        return;
    QInputMethodEvent begun(QStringLiteral(u"\u00b4"), {});
    QCoreApplication::sendEvent(field, &begun);
    QInputMethodEvent ended;
    if (isEntered)
        ended.setCommitString(QStringLiteral(u"\u00e9"));
    if (field)
        QCoreApplication::sendEvent(field, &ended);
}

void WalkUser::sendKey(Stroke const& stroke, QString const& text) {
    qt_handleKeyEvent(QGuiApplication::focusWindow(), QEvent::KeyPress, stroke.key, stroke.modifiers, text);
    // The key may have closed the window.
    if (auto* const next = QGuiApplication::focusWindow())
        qt_handleKeyEvent(next, QEvent::KeyRelease, stroke.key, stroke.modifiers, text);
}

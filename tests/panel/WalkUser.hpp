#pragma once

#include "RandomStrokes.hpp"
#include "WalkDice.hpp"

#include <panel/window/MainWindow.hpp>
#include <QPointer>

/// The user of a random walk: mouse, wheel, keys and drops anywhere in any window.
class WalkUser {
public:
    /// Window and dice must outlive the user. Files are dropped from `files`.
    WalkUser(Panel::MainWindow& window, WalkDice& dice, QStringList files);
    ~WalkUser();

    /// Sends one event of mouse, wheel or keyboard, or drops something.
    void act();
    /// Whether a mouse button is held; then `act` moves or releases it.
    bool holdsButton() const { return held_ || button_ != Qt::NoButton; }
    /// Releases the mouse button, if one is held.
    void release();

private:
    /// A visible widget to use the mouse on; null if there is none.
    QWidget* target();
    QList<QWidget*> candidates();
    QList<QWidget*> ofColourDialog();
    void useMouse();
    void press(QWidget& widget);
    void pressAndRelease(QPointer<QWindow> const& window, Qt::MouseButton button, QPoint const& place, bool isDouble);
    void moveOrRelease();
    /// Interferes while the mouse holds a row: the host notifies the row's value, or one of the row's buttons is
    /// pressed.
    void disturb(Talo::ParameterRow& row);
    void turnWheel();
    void drop();
    void pressKey();
    /// Composes a letter, as a dead key or an input method does, and enters it or gives it up.
    void compose();
    void sendKey(Stroke const& stroke, QString const& text);
    QPoint placeIn(QWidget& widget);

    Panel::MainWindow& window_;
    WalkDice& dice_;
    QStringList const files_;
    // Where the mouse button is held down.
    QPointer<QWidget> held_;
    Qt::MouseButton button_ = Qt::NoButton;
};

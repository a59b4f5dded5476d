#pragma once

#include <QKeyEvent>
#include <QObject>
#include <QPointer>
#include <QTimer>
#include <QWidget>

namespace Talo {

/// Tells the host's history (UndoHistory) when the user's gestures begin and end, so that each of them is one step:
/// - a mouse button from press to release,
/// - a key from press to release, with all its repetitions,
/// - turns of the wheel over one row, until it rests,
/// - a typed text, from its first key until Return in a single line, until the focus leaves, or until a mouse press
///   elsewhere.
/// Only what happens in a ParameterRow counts, the row's popups and dialogs included. Watches the whole application as
/// long as it lives. User-interface thread.
///
/// In a text field of a row the keys for undo and redo belong to the history; only a text that was typed and is not
/// written yet is taken back by the field itself.
class GestureWatcher : public QObject {
    Q_OBJECT

public:
    /// For how long the wheel has to rest, in milliseconds.
    static constexpr int WheelPause = 400;

    /// Watches the events of the application, which exists already.
    explicit GestureWatcher(QObject* parent = nullptr);
    ~GestureWatcher() override;

    /// Ends the gesture that goes on, as before a command.
    void end();

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    enum class Kind { None, Mouse, Key, Wheel, Text };

    void press(QWidget* widget);
    void keyPress(QWidget* widget, QKeyEvent const& event);
    void keyRelease(QKeyEvent const& event);
    void type(QWidget* field);
    void turnWheel(QWidget* widget);
    bool overrideShortcut(QWidget* widget, QKeyEvent* event);
    void begin(Kind kind, QWidget* target);
    /// Ends the gesture when the event that is about to be delivered was handled.
    void endLater();

    Kind kind_ = Kind::None;
    QPointer<QWidget> target_;
    int key_ = 0;
    bool ending_ = false;
    // Tells the gestures apart.
    unsigned number_ = 0;
    QTimer wheelTimer_;
};

} // namespace Talo

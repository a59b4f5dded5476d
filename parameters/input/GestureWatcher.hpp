#pragma once

#include <lattice/UndoHistory.hpp>
#include <optional>
#include <QKeyEvent>
#include <QKeySequence>
#include <QList>
#include <QMouseEvent>
#include <QObject>
#include <QPointer>
#include <QTimer>
#include <QWidget>
#include <tessera/Export.hpp>

namespace Talo {

/// Makes each gesture of the user one undo step: it opens a macro of the history (UndoHistory) when a gesture begins
/// and closes it when the gesture ends. Gestures are
/// - a mouse button from press to release,
/// - a key from press to release, with all its repetitions,
/// - turns of the wheel over one target, until it rests,
/// - a typed text, from its first key until Return in a single line, until the focus leaves, or until a mouse press
///   elsewhere.
/// Only what happens in a GestureTarget counts, its popups and dialogs included. InputFilter owns the one watcher and
/// passes it the events of the whole application. User-interface thread.
///
/// Escape during a drag of a slider, a dial or a scroll bar undoes what the drag has changed and makes no step.
/// What follows until all buttons are released does nothing.
///
/// In a text field of a target the keys for undo and redo belong to the history; the field itself only undoes a text
/// that was typed and is not written yet.
class TALO_EXPORT GestureWatcher : public QObject {
    Q_OBJECT

public:
    /// How long the wheel rests before its gesture ends, in milliseconds.
    static constexpr int WheelPause = 400;

    /// Watches the events of the application, which exists already.
    explicit GestureWatcher(QObject* parent = nullptr);
    ~GestureWatcher() override;

    /// Ends the gesture that goes on, as before a command.
    void end();
    /// The widget in a row that the mouse has pressed; null for none, and after the release.
    QWidget* pressed() const { return kind_ == Kind::Mouse ? target_.data() : nullptr; }

private:
    friend class InputFilter;
    enum class Kind { None, Mouse, Key, Wheel, Text };

    /// Sees an event before its widget does. True if the event ends here.
    bool filter(QWidget& widget, QEvent& event);
    void press(QWidget* widget);
    void keyPress(QWidget* widget, QKeyEvent const& event);
    void keyRelease(QKeyEvent const& event);
    void type(QWidget* field);
    void turnWheel(QWidget* widget);
    /// Remembers where the mouse is in the target, and which button was pressed.
    void noteMouse(QWidget const& widget, QMouseEvent const& event);
    /// Whether a drag goes on that Escape can take back.
    bool isDrag() const;
    /// Sees the keys for a drag; true if the event ends here.
    bool filterDragKey(QEvent& event);
    /// Lets the dragged control go and undoes what it has changed.
    void cancelDrag();
    /// After a cancelled drag: true for what the mouse does until all buttons are released.
    bool swallowMouse(QEvent const& event);
    bool overrideShortcut(QWidget* widget, QKeyEvent* event);
    void begin(Kind kind, QWidget* target);
    /// Ends the gesture after the current event was delivered.
    void endLater();

    Kind kind_ = Kind::None;
    QPointer<QWidget> target_;
    // The history in which the gesture's macro is open, and the macro; none between gestures.
    Tessera::WeakPtr<Kolt::UndoHistory> history_;
    std::optional<Kolt::UndoHistory::Macro> macro_;
    int key_ = 0;
    bool ending_ = false;
    // A drag was cancelled, and its button is still pressed.
    bool swallowsMouse_ = false;
    // Where the mouse was in the target, and the button of the gesture.
    QPoint place_;
    Qt::MouseButton button_ = Qt::NoButton;
    // Distinguishes the gestures.
    unsigned number_ = 0;
    QTimer wheelTimer_;
    // The platform is asked once, as each key is compared with them.
    QList<QKeySequence> const undoKeys_ = QKeySequence::keyBindings(QKeySequence::Undo);
    QList<QKeySequence> const redoKeys_ = QKeySequence::keyBindings(QKeySequence::Redo);
};

} // namespace Talo

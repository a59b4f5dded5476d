#pragma once

#include <lattice/UndoHistory.hpp>
#include <QWidget>
#include <tessera/Export.hpp>

namespace Talo {

/// A widget in which each gesture of the user is one undo step, as a row with an editor. A class derives from its Qt
/// class first and from this second. User-interface thread.
class TALO_EXPORT GestureTarget {
public:
    GestureTarget() = default;
    virtual ~GestureTarget() = default;
    GestureTarget(GestureTarget const&) = delete;
    GestureTarget& operator=(GestureTarget const&) = delete;

    /// The history that records the edits of this widget.
    virtual Kolt::UndoHistory& history() const = 0;

    /// The nearest widget around `widget` that is a target, or the widget itself; popups and dialogs belong to the
    /// widget that opened them. Null if there is none, and for null.
    static QWidget* around(QWidget* widget) {
        while (widget && !dynamic_cast<GestureTarget*>(widget))
            widget = widget->parentWidget();
        return widget;
    }
};

} // namespace Talo

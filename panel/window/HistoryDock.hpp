#pragma once

#include <parameters/commands/HistoryView.hpp>
#include <QDockWidget>

namespace Panel {

/// The undo steps in a side area, hidden until the view menu shows it. User-interface thread.
class HistoryDock : public QDockWidget {
    Q_OBJECT

public:
    /// The history must outlive the dock.
    explicit HistoryDock(Kolt::UndoHistory& history, QWidget* parent = nullptr);
    ~HistoryDock() override;

    Talo::HistoryView* view() const { return view_; }

private:
    Talo::HistoryView* const view_;
};

} // namespace Panel

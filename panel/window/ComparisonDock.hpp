#pragma once

#include <panel/window/ComparisonView.hpp>
#include <QDockWidget>

namespace Panel {

/// The comparison of two pools as a dock, hidden at first. User-interface thread.
class ComparisonDock : public QDockWidget {
    Q_OBJECT

public:
    explicit ComparisonDock(QWidget* parent = nullptr);
    ~ComparisonDock() override;

    ComparisonView* view() const { return view_; }

private:
    ComparisonView* const view_;
};

} // namespace Panel

#pragma once

#include <panel/window/LookMenu.hpp>
#include <QMenu>

namespace Panel {

class ViewStack;

/// What is shown and what is not. User-interface thread.
class ViewMenu : public QMenu {
    Q_OBJECT

public:
    /// `views` must outlive the menu, which belongs to the parent. `parts` show and hide parts of the window.
    ViewMenu(ViewStack& views, QList<QAction*> const& parts, QWidget* parent);
    ~ViewMenu() override;

    /// Shows and hides the values as the host holds them; checkable.
    QAction* rawValuesAction() const { return rawValues_; }
    /// Shows and hides the parameters that are shown on demand only; checkable.
    QAction* advancedAction() const { return advanced_; }

    /// Colours and sizes of texts.
    LookMenu& look() const { return *look_; }

private:
    QAction* const rawValues_;
    QAction* const advanced_;
    LookMenu* const look_;
};

} // namespace Panel

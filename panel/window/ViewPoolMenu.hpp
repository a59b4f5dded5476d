#pragma once

#include <QMenu>

namespace Panel {

class ViewStack;

/// The pools of the network; each opens a view of the shown object that has this pool as its own. User-interface
/// thread.
class ViewPoolMenu : public QMenu {
    Q_OBJECT

public:
    /// `views` must outlive the menu.
    explicit ViewPoolMenu(ViewStack& views, QWidget* parent = nullptr);
    ~ViewPoolMenu() override;

private:
    void showPools();

    ViewStack& views_;
};

} // namespace Panel

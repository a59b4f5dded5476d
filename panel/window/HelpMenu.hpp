#pragma once

#include <QMenu>

namespace Panel {

/// What there is to read about the program. User-interface thread.
class HelpMenu : public QMenu {
    Q_OBJECT

public:
    /// `window` is the parent of the dialogs, and its keys are listed; it owns the menu.
    explicit HelpMenu(QWidget& window);
    ~HelpMenu() override;

private:
    void showKeys();
    void showAbout();

    QWidget& window_;
};

} // namespace Panel

#pragma once

#include <QObject>
#include <QWidget>

namespace Panel {

/// Works around Qt missing the activation of a window while a popup is open, as after typing into a file dialog with
/// completion: the window has the focus then, and keys do nothing. Belongs to the window. User-interface thread.
class ActivationRepair : public QObject {
    Q_OBJECT

public:
    explicit ActivationRepair(QWidget& window);
    ~ActivationRepair() override;

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void repair();

    QWidget& window_;
};

} // namespace Panel

#pragma once

#include <parameters/input/FocusOutline.hpp>
#include <QObject>
#include <QWidget>
#include <tessera/Export.hpp>

namespace Talo {

/// Makes a control that only knows the mouse usable by keyboard: the Tab key reaches it, and Space or Return press it
/// in its middle. A frame shows that it has the focus, but for a button, which shows that itself. A child of the
/// control.
class TALO_EXPORT KeyboardPress : public QObject {
    Q_OBJECT

public:
    /// A child of the control, which owns it.
    explicit KeyboardPress(QWidget* control);
    ~KeyboardPress() override;

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    QWidget* const control_;
    // Null for a button, which shows its focus itself.
    FocusOutline* const outline_;
};

} // namespace Talo

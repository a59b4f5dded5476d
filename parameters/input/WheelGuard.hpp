#pragma once

#include <QObject>
#include <QWidget>

namespace Talo {

/// Keeps the mouse wheel from an editor that does not have the focus, so that scrolling the panel never changes a
/// value: the wheel goes on to the panel instead, and does not give the editor the focus. Guards the widgets that the
/// editor has now and those that it gets later, but for its windows (lists that fold out, dialogs). A child of the
/// editor. User-interface thread.
class WheelGuard : public QObject {
    Q_OBJECT

public:
    /// A child of the editor, which owns it.
    explicit WheelGuard(QWidget* editor);
    ~WheelGuard() override;
};

} // namespace Talo

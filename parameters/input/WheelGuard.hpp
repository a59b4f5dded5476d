#pragma once

#include <memory>
#include <QObject>
#include <QWidget>
#include <tessera/Export.hpp>

namespace Talo {

class InputFilter;

/// Keeps the mouse wheel from an editor that does not have the focus, so that scrolling a panel never changes a value:
/// the wheel scrolls the panel instead and does not give the editor the focus. Guards the widgets that the editor has
/// now and those that it gets later, but not its windows (drop-down lists, dialogs). A child of the editor.
/// User-interface thread.
class TALO_EXPORT WheelGuard : public QObject {
    Q_OBJECT

public:
    /// A child of the editor, which owns it.
    explicit WheelGuard(QWidget* editor);
    ~WheelGuard() override;

    /// The guarded editor around a widget, or the widget itself; null for none.
    static QWidget* editorAround(QWidget* widget);

private:
    friend class InputFilter;
    /// Sees the events of the whole application before their widgets do: a filter on each widget of an editor would
    /// take more memory than most of them. True if the event ends here.
    static bool filter(QWidget& widget, QEvent& event);

    QWidget const* const editor_;
    std::shared_ptr<InputFilter> const filter_;
};

} // namespace Talo

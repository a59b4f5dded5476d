#pragma once

#include <QObject>
#include <QWidget>

namespace Panel {

/// Makes an editor that knows only the mouse, as a swatch that opens a dialog at a click, usable by keyboard: Tab stops
/// at it, a frame shows that it has the focus, and Space or Return clicks into its middle. A child of the editor.
/// User-interface thread.
class KeyClick : public QObject {
    Q_OBJECT

public:
    explicit KeyClick(QWidget* editor);
    ~KeyClick() override;

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void click();

    QWidget* const editor_;
    QWidget* const frame_;
};

} // namespace Panel

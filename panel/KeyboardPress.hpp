#pragma once

#include <panel/FocusOutline.hpp>
#include <QObject>
#include <QWidget>

namespace Panel {

/// Makes an editor that only knows the mouse usable by keyboard: the Tab key reaches it, a frame shows that it has the
/// focus, and Space or Return press it in its middle. A child of the editor.
class KeyboardPress : public QObject {
    Q_OBJECT

public:
    explicit KeyboardPress(QWidget* editor);
    ~KeyboardPress() override;

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    QWidget* const editor_;
    FocusOutline* const outline_;
};

} // namespace Panel

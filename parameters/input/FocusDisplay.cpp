#include <parameters/input/FocusDisplay.hpp>

#include <parameters/input/WheelGuard.hpp>

namespace Talo {

void displayFocus(QWidget& widget, QEvent const& event) {
    // Qt sets this when Tab is pressed, and styles ask for it.
    if (event.type() == QEvent::FocusIn && WheelGuard::editorAround(&widget))
        widget.window()->setAttribute(Qt::WA_KeyboardFocusChange);
}

} // namespace Talo

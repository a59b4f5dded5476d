#include <parameters/input/EditorToolTip.hpp>

#include <network/PlainText.hpp>
#include <parameters/input/WheelGuard.hpp>
#include <QHelpEvent>
#include <QToolTip>

namespace Talo {

bool showEditorToolTip(QWidget& widget, QEvent& event) {
    if (event.type() != QEvent::ToolTip || widget.toolTip().isEmpty() || !WheelGuard::editorAround(&widget))
        return false;
    QToolTip::showText(static_cast<QHelpEvent&>(event).globalPos(), plainToolTip(widget.toolTip()), &widget, QRect(),
                       widget.toolTipDuration());
    return true;
}

} // namespace Talo

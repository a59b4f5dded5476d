#include <parameters/input/LinkColour.hpp>

#include <parameters/input/GestureTarget.hpp>
#include <QEvent>
#include <QLabel>
#include <QTextDocument>

namespace Talo {

void followLinkColour(QWidget& widget, QEvent const& event) {
    auto* const label = event.type() == QEvent::PaletteChange ? qobject_cast<QLabel*>(&widget) : nullptr;
    if (!label || label->textFormat() == Qt::PlainText || !Qt::mightBeRichText(label->text()) ||
        !GestureTarget::around(label))
        return;
    // Another format reads the text again.
    auto const format = label->textFormat();
    label->setTextFormat(Qt::PlainText);
    label->setTextFormat(format);
}

} // namespace Talo

#include <network/PlainText.hpp>

#include <bramble/HarmlessText.hpp>

namespace Talo {

namespace {

// In characters: more do not fit on a screen.
constexpr int longestToolTip = 2000;

} // namespace

QString plainToolTip(QString const& text) {
    auto const shown = text.size() > longestToolTip ? text.left(longestToolTip) + QChar(0x2026) : text;
    // Only a text with one of these may be rich, and nearly none has.
    bool const mayBeRich = shown.contains(QLatin1Char('<')) || shown.contains(QLatin1Char('&'));
    if (!mayBeRich || !Kolt::isRichText(shown.toStdString()))
        return shown;
    return QStringLiteral("<p style='white-space:pre-wrap'>%1</p>").arg(shown.toHtmlEscaped());
}

} // namespace Talo

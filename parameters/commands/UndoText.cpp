#include <parameters/commands/UndoText.hpp>

#include <algorithm>
#include <bramble/Color.hpp>
#include <bramble/FlagList.hpp>
#include <bramble/MultipleStringSelection.hpp>
#include <cmath>
#include <QColor>
#include <QCoreApplication>
#include <QStringList>

namespace Talo {

namespace {

// In characters.
constexpr int longestText = 28;
// How much is shown before the first difference.
constexpr int leadIn = 8;

struct UndoTexts {
    Q_DECLARE_TR_FUNCTIONS(UndoText)
};

QString flagsText(Kolt::FlagList const& flags) {
    QStringList on;
    for (auto const& [name, isOn] : flags)
        if (isOn)
            on << QString::fromStdString(name);
    return on.join(QLatin1String(", "));
}

QString colourText(Ferro::rgba_float_t const& colour) {
    auto const channel = [](float value) { return qBound(0, qRound(255 * static_cast<double>(value)), 255); };
    auto const name = QColor(channel(colour.red), channel(colour.green), channel(colour.blue)).name();
    return colour.alpha == 1.0F
               ? name
               : UndoTexts::tr("%1, alpha %2").arg(name, QString::number(static_cast<double>(colour.alpha), 'f', 2));
}

bool isNumber(Ferro::rgba_float_t const& colour) {
    return std::isfinite(colour.red) && std::isfinite(colour.green) && std::isfinite(colour.blue);
}

QString wholeText(Kolt::VValueBase const& value) {
    auto const colour = Kolt::valueIn<Ferro::rgba_float_t>(&value);
    if (colour && isNumber(*colour))
        return colourText(*colour);
    if (auto const flags = Kolt::valueIn<Kolt::FlagList>(&value))
        return flagsText(*flags);
    bool const isList = Kolt::typedValue<Kolt::VMultipleStringList>(&value);
    auto text = QString::fromStdString(value.Text());
    return isList ? text.replace(QLatin1Char('\n'), QLatin1String(", ")) : text.simplified();
}

QString shortened(QString const& text, int from) {
    if (text.isEmpty())
        return UndoTexts::tr("(empty)");
    auto part = from > 0 ? QChar(0x2026) + text.mid(from) : text;
    return part.size() > longestText ? part.left(longestText - 1) + QChar(0x2026) : part;
}

QString changeText(Kolt::ValueChange const& change, ParameterNaming const& naming) {
    auto const before = wholeText(*change.before().value);
    auto const after = wholeText(*change.after().value);
    auto const differ = std::mismatch(before.begin(), before.end(), after.begin(), after.end()).first;
    auto const common = static_cast<int>(differ - before.begin());
    bool const isLong = qMax(before.size(), after.size()) > longestText;
    int const from = isLong && common > leadIn ? common - leadIn : 0;

    auto name = naming ? naming(change.parameter()) : QString();
    if (name.isEmpty())
        name = QString::fromStdString(change.parameterName());
    auto const pool = change.pool();
    if (!pool)
        return UndoTexts::tr("%1: %2 → %3").arg(name, shortened(before, from), shortened(after, from));
    return UndoTexts::tr("%1: %2 → %3 (%4)")
        .arg(name, shortened(before, from), shortened(after, from), QString::fromStdString(pool->Name()));
}

} // namespace

QString valueText(Kolt::VValueBase const& value) {
    return shortened(wholeText(value), 0);
}

QString undoText(Kolt::UndoStep const& step, ParameterNaming const& naming) {
    auto const& changes = step.changes();
    if (changes.empty())
        return QString::fromStdString(step.description());
    auto const text = changeText(changes.front(), naming);
    auto const further = static_cast<int>(changes.size()) - 1;
    return further == 0 ? text : UndoTexts::tr("%1, and %n more", nullptr, further).arg(text);
}

} // namespace Talo

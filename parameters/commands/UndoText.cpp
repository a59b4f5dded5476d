#include <parameters/commands/UndoText.hpp>

#include <algorithm>
#include <parameters/commands/ValueTexts.hpp>
#include <QCoreApplication>

namespace Talo {

namespace {

// In characters.
constexpr int longestText = 28;
// How much is shown before the first difference.
constexpr int leadIn = 8;

struct UndoTexts {
    Q_DECLARE_TR_FUNCTIONS(UndoText)
};

/// A text from a place on; `isCut` says that it begins before.
QString shortened(QString const& text, int from, bool isCut = false) {
    bool const isWhole = from == 0 && !isCut;
    if (text.isEmpty() && isWhole)
        return UndoTexts::tr("(empty)");
    auto part = isWhole ? text : QChar(0x2026) + text.mid(from);
    return part.size() > longestText ? part.left(longestText - 1) + QChar(0x2026) : part;
}

DifferingTexts textsOf(Kolt::ValueChange const& change) {
    auto const& before = *change.before().value;
    auto const& after = *change.after().value;
    if (auto parts = differingParts(before, after, leadIn, longestText))
        return *std::move(parts);
    return {wholeText(before), wholeText(after)};
}

QString changeText(Kolt::ValueChange const& change, ParameterNaming const& naming) {
    auto const& [before, after, isCut] = textsOf(change);
    auto const differ = std::mismatch(before.begin(), before.end(), after.begin(), after.end()).first;
    auto const common = static_cast<int>(differ - before.begin());
    bool const isLong = isCut || qMax(before.size(), after.size()) > longestText;
    int const from = isLong && common > leadIn ? common - leadIn : 0;

    auto name = naming ? naming(change.parameter()) : QString();
    if (name.isEmpty())
        name = QString::fromStdString(change.parameterName());
    auto const pool = change.pool();
    if (!pool)
        return UndoTexts::tr("%1: %2 → %3").arg(name, shortened(before, from, isCut), shortened(after, from, isCut));
    return UndoTexts::tr("%1: %2 → %3 (%4)")
        .arg(name, shortened(before, from, isCut), shortened(after, from, isCut), QString::fromStdString(pool->Name()));
}

} // namespace

QString valueText(Kolt::VValueBase const& value) {
    return shortened(startOfText(value, longestText + 1), 0);
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

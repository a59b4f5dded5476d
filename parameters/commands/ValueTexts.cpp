#include <parameters/commands/ValueTexts.hpp>

#include <algorithm>
#include <bramble/Color.hpp>
#include <bramble/FlagList.hpp>
#include <bramble/MultipleStringSelection.hpp>
#include <bramble/TextLines.hpp>
#include <cmath>
#include <cstring>
#include <QColor>
#include <QCoreApplication>
#include <QStringList>

namespace Talo {

namespace {

using Selection = Kolt::VMultipleStringList;

// In bytes. Shorter texts are looked at as a whole.
constexpr std::size_t longText = 4096;
// What is looked at before and behind a difference, in bytes; much more than is shown, as blanks go.
constexpr std::size_t bytesBefore = 256;
constexpr std::size_t bytesBehind = 1024;

struct ColourTexts {
    // The texts were translated as those of undo steps.
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
               : ColourTexts::tr("%1, alpha %2").arg(name, QString::number(static_cast<double>(colour.alpha), 'f', 2));
}

bool isNumber(Ferro::rgba_float_t const& colour) {
    return std::isfinite(colour.red) && std::isfinite(colour.green) && std::isfinite(colour.blue);
}

/// The characters from one byte to another, without half a character.
QString part(std::string const& text, std::size_t begin, std::size_t end) {
    auto const isWithin = [&](std::size_t place) {
        return place > 0 && place < text.size() && (static_cast<unsigned char>(text[place]) & 0xC0U) == 0x80U;
    };
    while (isWithin(begin))
        --begin;
    while (isWithin(end))
        ++end;
    end = std::min(end, text.size());
    return begin < end ? QString::fromUtf8(text.data() + begin, static_cast<int>(end - begin)) : QString();
}

std::size_t firstDifference(std::string const& left, std::string const& right) {
    auto const size = std::min(left.size(), right.size());
    std::size_t place = 0;
    while (place + longText <= size && std::memcmp(left.data() + place, right.data() + place, longText) == 0)
        place += longText;
    while (place < size && left[place] == right[place])
        ++place;
    return place;
}

/// The chosen texts from a place on, with commas, until there are more than so many characters.
QString chosenFrom(Kolt::MultipleStringSelection const& selection, std::size_t place, int characters) {
    QString text;
    for (bool isFirst = true; place < selection.size() && text.size() <= characters; ++place) {
        if (!selection.isChosen(place))
            continue;
        if (!std::exchange(isFirst, false))
            text += QLatin1String(", ");
        text += QString::fromStdString(Kolt::lineOfText(selection.at(place)));
    }
    return text;
}

DifferingTexts differingChoices(Selection const& before, Selection const& after, int characters) {
    auto const difference = before->firstDifference(*after);
    // What is chosen before the difference is the same in both.
    auto start = difference;
    for (int lead = 0; start > 0 && lead <= characters; --start)
        if (before->isChosen(start - 1))
            lead += QString::fromStdString(before->at(start - 1)).size();
    auto const isChosenBefore = [&] {
        for (std::size_t place = 0; place < start; ++place)
            if (before->isChosen(place))
                return true;
        return false;
    };
    int const length = static_cast<int>(longText) + characters;
    return DifferingTexts{chosenFrom(*before, start, length), chosenFrom(*after, start, length), isChosenBefore()};
}

/// Whether a part says as much as the whole text would.
bool isEnough(QString const& text, int common, bool isCutBehind, int characters) {
    return !isCutBehind || (common < text.size() && text.size() - common >= characters);
}

} // namespace

QString wholeText(Kolt::VValueBase const& value) {
    auto const colour = Kolt::valueIn<Ferro::rgba_float_t>(&value);
    if (colour && isNumber(*colour))
        return colourText(*colour);
    if (auto const flags = Kolt::valueIn<Kolt::FlagList>(&value))
        return flagsText(*flags);
    bool const isList = Kolt::typedValue<Selection>(&value);
    auto text = QString::fromStdString(value.Text());
    return isList ? text.replace(QLatin1Char('\n'), QLatin1String(", ")) : text.simplified();
}

QString startOfText(Kolt::VValueBase const& value, int characters) {
    if (auto const selection = Kolt::valueIn<Selection>(&value); selection && *selection)
        return chosenFrom(**selection, 0, characters);
    auto const text = Kolt::sharedValueIn<std::string>(&value);
    if (!text || text->size() <= longText)
        return wholeText(value);
    auto const start = part(*text, 0, longText).simplified();
    return start.size() >= characters ? start : wholeText(value);
}

std::optional<DifferingTexts> differingParts(Kolt::VValueBase const& before, Kolt::VValueBase const& after,
                                             int charactersBefore, int characters) {
    auto const chosenBefore = Kolt::valueIn<Selection>(&before).value_or(Selection());
    auto const chosenAfter = Kolt::valueIn<Selection>(&after).value_or(Selection());
    if (chosenBefore && chosenAfter && chosenBefore->hasSameTexts(*chosenAfter))
        return differingChoices(chosenBefore, chosenAfter, std::max(charactersBefore, characters));
    auto const left = Kolt::sharedValueIn<std::string>(&before);
    auto const right = Kolt::sharedValueIn<std::string>(&after);
    if (!left || !right || std::min(left->size(), right->size()) <= longText)
        return {};
    auto const difference = firstDifference(*left, *right);
    auto const begin = difference > bytesBefore ? difference - bytesBefore : 0;
    auto const end = difference + bytesBehind;
    DifferingTexts parts{part(*left, begin, end).simplified(), part(*right, begin, end).simplified(), begin > 0};
    auto const differ =
        std::mismatch(parts.before.begin(), parts.before.end(), parts.after.begin(), parts.after.end()).first;
    auto const common = static_cast<int>(differ - parts.before.begin());
    bool const hasLead = !parts.isCut || common > charactersBefore;
    if (!hasLead || !isEnough(parts.before, common, end < left->size(), characters) ||
        !isEnough(parts.after, common, end < right->size(), characters))
        return {};
    return parts;
}

} // namespace Talo

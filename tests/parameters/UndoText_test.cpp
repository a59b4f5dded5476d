// Texts of undo steps and raw values of long values: what is shown is what the whole value would give.

#include "support/TaloTest.hpp"

#include <bramble/MultipleStringSelection.hpp>
#include <lattice/UndoHistory.hpp>
#include <parameters/commands/UndoText.hpp>
#include <parameters/PoolSource.hpp>
#include <parameters/rows/RawValueLabel.hpp>
#include <random>

namespace {

class UndoTextTest : public TaloTest, public testing::WithParamInterface<unsigned> {
protected:
    using Choice = Kolt::VMultipleStringList;

    /// The text of a step that changes a parameter "p" from one value to another.
    static QString stepText(Kolt::ValuePtr const& before, Kolt::ValuePtr const& after) {
        Kolt::UndoHistory history;
        Kolt::ParameterPtr const parameter(new Kolt::VParameter("p", after));
        history.record(Kolt::ValueChange(parameter, nullptr, {before, false}, {after, false}));
        return Talo::undoText(*history.nextUndo(), {});
    }
    /// What it is to be, of the whole texts.
    static QString expected(QString const& before, QString const& after) {
        int common = 0;
        while (common < before.size() && common < after.size() && before[common] == after[common])
            ++common;
        int const from = qMax(before.size(), after.size()) > 28 && common > 8 ? common - 8 : 0;
        auto const shortened = [from](QString const& text) {
            if (text.isEmpty())
                return QStringLiteral("(empty)");
            auto const part = from > 0 ? QChar(0x2026) + text.mid(from) : text;
            return part.size() > 28 ? part.left(27) + QChar(0x2026) : part;
        };
        return QStringLiteral("p: %1 \u2192 %2").arg(shortened(before), shortened(after));
    }
    std::size_t below(std::size_t limit) { return random_() % limit; }
    /// Words, some of several bytes a character, with single blanks and long runs of blanks between them.
    std::string randomText(std::size_t size) {
        std::string text;
        while (text.size() < size) {
            text += below(3) ? "word" : "\xC3\xA4\xE6\x97\xA5\xF0\x9F\x8C\x8D";
            text += below(40) ? std::string(1, below(4) ? ' ' : '\n') : std::string(below(800), ' ');
        }
        return text;
    }

    std::mt19937 random_{GetParam()};
};

} // namespace

TEST_P(UndoTextTest, OfLongTextsIsThatOfTheWhole) {
    auto const before = randomText(6000 + below(20'000));
    auto after = before;
    auto const place = below(after.size() + 1);
    switch (below(4)) {
    case 0:
        after.insert(place, "x");
        break;
    case 1:
        after.insert(place, " ");
        break;
    case 2:
        after.erase(place);
        break;
    default:
        after.replace(place, after.size() - place, randomText(8000));
    }
    auto const line = [](std::string const& text) { return QString::fromStdString(text).simplified(); };
    EXPECT_EQ(stepText(Kolt::makeValue(before), Kolt::makeValue(after)), expected(line(before), line(after)));
    EXPECT_EQ(stepText(Kolt::makeValue(after), Kolt::makeValue(before)), expected(line(after), line(before)));
    auto const start = line(before);
    EXPECT_EQ(Talo::valueText(*Kolt::makeValue(before)), start.left(27) + QChar(0x2026));
}

TEST_P(UndoTextTest, OfChoicesIsThatOfTheWhole) {
    std::vector<std::string> texts;
    auto const count = 1 + below(3000);
    for (std::size_t number = 0; number < count; ++number)
        texts.push_back("frame " + std::to_string(number));
    Choice const before(new Kolt::MultipleStringSelection(texts));
    auto const share = 1 + below(below(2) ? 3 : 500);
    for (auto const& text : texts)
        if (below(share) == 0)
            before->add(text);
    auto const after = cloned(before);
    for (auto changes = below(3); changes > 0; --changes)
        after->addOrRemove(texts[below(count)]);
    auto const line = [](Choice const& choice) {
        return QString::fromStdString(Kolt::VValueTrait<Choice>::Text(choice)).replace('\n', QLatin1String(", "));
    };
    EXPECT_EQ(stepText(Kolt::makeValue(before), Kolt::makeValue(after)), expected(line(before), line(after)));
    auto const whole = line(before);
    auto const shown = whole.isEmpty()     ? QStringLiteral("(empty)")
                       : whole.size() > 28 ? whole.left(27) + QChar(0x2026)
                                           : whole;
    EXPECT_EQ(Talo::valueText(*Kolt::makeValue(before)), shown);
}

INSTANTIATE_TEST_SUITE_P(Seeds, UndoTextTest, testing::Range(0U, 100U));

using RawValueTest = TaloTest;

TEST_F(RawValueTest, OfALongTextTheStartIsShown) {
    std::string const start(2000, 'a');
    Kolt::ParameterPtr const parameter(new Kolt::VParameter("p", Kolt::makeValue(start)));
    Talo::PoolSource pools;
    Talo::RawValueLabel raw(parameter, pools);
    EXPECT_EQ(raw.text().toStdString(), start);
    ASSERT_TRUE(parameter->ownValue()->assign(*Kolt::makeValue(start + std::string(1'000'000, 'b'))));
    raw.refresh();
    EXPECT_EQ(raw.text(), QString::fromStdString(start) + QChar(0x2026));
    EXPECT_LT(raw.toolTip().size(), 3000);
    EXPECT_EQ(raw.accessibleDescription().size(), 200);
    EXPECT_GT(raw.grab().width(), 0);
    // Characters of several bytes are not cut in two.
    std::string wide = "x";
    for (int count = 0; count < 5000; ++count)
        wide += "\xF0\x9F\x8C\x8D";
    ASSERT_TRUE(parameter->ownValue()->assign(*Kolt::makeValue(wide)));
    raw.refresh();
    EXPECT_EQ(raw.text().count(QChar(QChar::ReplacementCharacter)), 0);
    EXPECT_FALSE(raw.text().at(raw.text().size() - 2).isHighSurrogate());
}

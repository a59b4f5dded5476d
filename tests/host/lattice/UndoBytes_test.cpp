// How much memory the steps of a history take, and steps of many changes.

#include "EditRecorderTest.hpp"

#include <bramble/MultipleStringSelection.hpp>
#include <bramble/StringSelection.hpp>
#include <random>

namespace {

using Kolt::UndoHistory;
using testing::SizeIs;

class UndoBytesTest : public EditRecorderTest {
protected:
    static std::string megabytes(std::size_t count, char content) { return std::string(count << 20, content); }
    void edit(Kolt::ParameterPtr const& parameter, std::string const& text) {
        SmallInput input{Kolt::ParameterRef(parameter)};
        ASSERT_TRUE(input.edit(text, nullptr));
    }
};

} // namespace

TEST_F(UndoBytesTest, AHistoryForgetsItsOldestStepsWhenTheirValuesTakeTooMuch) {
    auto const parameter = makeParameter(std::string());
    parameter->setHistory(&history);
    auto const recorder = Kolt::EditRecorder::watch(parameter);
    constexpr int edits = 70;
    for (int number = 0; number < edits; ++number)
        edit(parameter, megabytes(1, static_cast<char>('!' + number)));
    EXPECT_LE(history.byteCount(), UndoHistory::ByteCapacity);
    EXPECT_GT(history.byteCount(), UndoHistory::ByteCapacity - (std::size_t{2} << 20));
    EXPECT_EQ(history.steps().size() + history.forgottenSteps(), std::size_t{edits});
    EXPECT_GT(history.forgottenSteps(), 0U);
    while (history.undo())
        ;
    EXPECT_LE(history.byteCount(), UndoHistory::ByteCapacity);
    // What is left leads back to the value before the oldest step that is kept.
    EXPECT_EQ(parameter->ownValue()->Text()[0], static_cast<char>('!' + history.forgottenSteps() - 1));
    history.clear();
    EXPECT_EQ(history.byteCount(), 0U);
    EXPECT_EQ(history.forgottenSteps(), 0U);
}

TEST_F(UndoBytesTest, TheLimitHoldsWhateverIsUndoneRedoneAndDropped) {
    auto const parameter = makeParameter(std::string());
    parameter->setHistory(&history);
    auto const recorder = Kolt::EditRecorder::watch(parameter);
    std::mt19937 random(7);
    char content = '!';
    auto const next = [&] { return content = content == '~' ? '!' : static_cast<char>(content + 1); };
    for (int round = 0; round < 300; ++round) {
        auto const deed = random() % 8;
        if (deed < 4) {
            edit(parameter, megabytes(1 + random() % 5, next()));
        } else if (deed == 4) {
            // A macro that changes nothing gives the undone steps back.
            auto const before = parameter->ownValue()->Text();
            UndoHistory::Macro const macro(history);
            edit(parameter, megabytes(3, next()));
            edit(parameter, before);
        } else if (deed < 7) {
            history.undo();
        } else {
            history.redo();
        }
        ASSERT_TRUE(history.byteCount() <= UndoHistory::ByteCapacity || history.steps().size() <= 1) << round;
    }
    EXPECT_GT(history.forgottenSteps(), 0U);
}

TEST_F(UndoBytesTest, TheLatestStepIsKeptHoweverLargeItIs) {
    auto const parameter = makeParameter(megabytes(70, 'a'));
    parameter->setHistory(&history);
    auto const recorder = Kolt::EditRecorder::watch(parameter);
    edit(parameter, "small");
    ASSERT_THAT(history.steps(), SizeIs(1));
    edit(parameter, "smaller");
    ASSERT_THAT(history.steps(), SizeIs(1));
    EXPECT_TRUE(history.undo());
    EXPECT_EQ(parameter->ownValue()->Text(), "small");
}

TEST_F(UndoBytesTest, AStepOfASelectionDoesNotKeepItsTexts) {
    std::vector<std::string> texts;
    for (int number = 0; number < 10'000; ++number)
        texts.push_back("a text of more than sixteen characters, number " + std::to_string(number));
    Kolt::VStringList const single(new Kolt::StringSelection(texts, texts.front()));
    Kolt::VMultipleStringList const multiple(new Kolt::MultipleStringSelection(texts));
    EXPECT_LT(Kolt::makeValue(single)->byteCount(), 1024U);
    EXPECT_LT(Kolt::makeValue(multiple)->byteCount(), 2048U);
    EXPECT_EQ(&cloned(single)->strings(), &single->strings());
    EXPECT_EQ(&cloned(multiple)->strings(), &multiple->strings());
}

TEST_F(UndoBytesTest, AStepOfManyChangesIsUndoneAsAWhole) {
    constexpr int count = 20'000;
    std::vector<Kolt::ParameterPtr> parameters;
    std::vector<std::shared_ptr<Kolt::EditRecorder>> recorders;
    history.beginMacro();
    for (int round = 0; round < 2; ++round)
        for (int number = 0; number < count; ++number) {
            if (round == 0) {
                parameters.push_back(makeParameter(number));
                parameters.back()->setHistory(&history);
                recorders.push_back(Kolt::EditRecorder::watch(parameters.back()));
            }
            SmallInput input{Kolt::ParameterRef(parameters[static_cast<std::size_t>(number)])};
            ASSERT_TRUE(input.edit(-round - 1, nullptr));
        }
    history.endMacro();
    ASSERT_THAT(history.steps(), SizeIs(1));
    auto const step = history.nextUndo();
    EXPECT_THAT(step->changes(), SizeIs(count));
    EXPECT_TRUE(step->hasChanged(Kolt::ParameterRef(parameters.back())));
    EXPECT_FALSE(step->hasChanged(Kolt::ParameterRef(makeParameter(1))));
    ASSERT_TRUE(history.undo());
    for (int number = 0; number < count; ++number)
        ASSERT_EQ(parameters[static_cast<std::size_t>(number)]->ownValue()->Text(), std::to_string(number));
}

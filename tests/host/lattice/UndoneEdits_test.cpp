#include "host/lattice/EditRecorderTest.hpp"

namespace {

using namespace Kolt;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

} // namespace

TEST_F(WatchedInt, AGestureThatEndsWhereItBeganIsNoStepAndKeepsTheUndoneSteps) {
    input.edit(5, nullptr);
    history.undo();
    history.beginMacro();
    editRecorded(3);
    EXPECT_THAT(names(), ElementsAre("p: 1 → 3"));
    EXPECT_THAT(history.undoneSteps(), IsEmpty());
    editRecorded(1);
    history.endMacro();
    EXPECT_THAT(names(), IsEmpty());
    EXPECT_TRUE(history.redo());
    EXPECT_EQ(text(parameter), "5");
}

TEST_F(WatchedInt, AGestureAroundUndoGoesOnWithANewStep) {
    history.beginMacro();
    input.edit(2, nullptr);
    EXPECT_TRUE(history.undo());
    EXPECT_EQ(text(parameter), "1");
    EXPECT_TRUE(history.isMacroOpen());
    input.edit(3, nullptr);
    history.endMacro();
    history.endMacro();
    EXPECT_THAT(names(), ElementsAre("p: 1 → 3"));
    EXPECT_FALSE(history.redo());
}

TEST_F(WatchedInt, AStepOfAParameterThatIsGoneSaysSoAndIsDropped) {
    input.edit(2, nullptr);
    parameter.reset();
    EXPECT_THAT(names(), ElementsAre("p: 1 → 2"));
    EXPECT_FALSE(history.undo());
    EXPECT_THAT(names(), IsEmpty());
    EXPECT_FALSE(history.redo());
}

TEST_F(WatchedInt, ANewStepForgetsTheUndoneSteps) {
    input.edit(2, nullptr);
    history.undo();
    input.edit(3, nullptr);
    EXPECT_THAT(history.undoneSteps(), IsEmpty());
    EXPECT_FALSE(history.redo());
    EXPECT_EQ(text(parameter), "3");
}

TEST_F(WatchedInt, NeitherUndoNorRedoRunsInsideARedo) {
    for (int const value : {2, 3, 4})
        input.edit(value, nullptr);
    history.undo();
    history.undo();
    std::vector<bool> answers;
    input.answer = [&] {
        input.answer = {};
        answers = {history.undo(), history.redo()};
    };
    EXPECT_TRUE(history.redo());
    EXPECT_THAT(answers, ElementsAre(false, false));
    EXPECT_EQ(text(parameter), "3");
    EXPECT_THAT(names(), ElementsAre("p: 1 → 2", "p: 2 → 3"));
    EXPECT_THAT(history.undoneSteps(), SizeIs(1));
}

TEST_F(WatchedInt, RedoDoesNotRunInsideAnUndo) {
    for (int const value : {2, 3})
        input.edit(value, nullptr);
    history.undo();
    bool redone = true;
    input.answer = [&] {
        input.answer = {};
        redone = history.redo();
    };
    EXPECT_TRUE(history.undo());
    EXPECT_FALSE(redone);
    EXPECT_EQ(text(parameter), "1");
    EXPECT_THAT(history.undoneSteps(), SizeIs(2));
}

TEST_F(WatchedInt, AStepRecordedDuringUndoForgetsWhatCouldBeRedone) {
    for (int const value : {2, 3})
        input.edit(value, nullptr);
    history.undo();
    input.answer = [&] {
        input.answer = {};
        handOverRecord(1);
    };
    EXPECT_TRUE(history.undo());
    EXPECT_THAT(names(), ElementsAre("record"));
    EXPECT_THAT(history.undoneSteps(), IsEmpty());
    EXPECT_FALSE(history.redo());
    EXPECT_EQ(text(parameter), "1");
}

TEST_F(WatchedInt, AStepRecordedDuringRedoForgetsWhatCouldBeRedoneNext) {
    for (int const value : {2, 3})
        input.edit(value, nullptr);
    history.undo();
    history.undo();
    input.answer = [&] {
        input.answer = {};
        handOverRecord(1);
    };
    EXPECT_TRUE(history.redo());
    EXPECT_EQ(text(parameter), "2");
    EXPECT_THAT(names(), ElementsAre("record", "p: 1 → 2"));
    EXPECT_THAT(history.undoneSteps(), IsEmpty());
    EXPECT_FALSE(history.redo());
    EXPECT_EQ(text(parameter), "2");
}

TEST_F(WatchedInt, UndoneStepsAreListedInTheOrderOfRedo) {
    for (int const value : {2, 3, 4})
        input.edit(value, nullptr);
    history.undo();
    history.undo();
    auto const undone = history.undoneSteps();
    ASSERT_THAT(undone, SizeIs(2));
    EXPECT_EQ(undone[0]->description(), "p: 2 → 3");
    EXPECT_EQ(undone[1]->description(), "p: 3 → 4");
    EXPECT_EQ(history.nextRedo(), undone[0]);
    EXPECT_EQ(history.nextUndo()->description(), "p: 1 → 2");
    history.clear();
    EXPECT_EQ(history.nextUndo(), nullptr);
    EXPECT_EQ(history.nextRedo(), nullptr);
}

TEST_F(WatchedInt, EditsAreRecordedInTheHistoryOfTheirParameter) {
    UndoHistory document;
    parameter->setHistory(&document);
    auto const other = makeParameter(10);
    SmallInput otherInput{other};
    auto const otherRecorder = EditRecorder::watch(other);
    editRecorded(2);
    otherInput.edit(11, nullptr);
    EXPECT_THAT(names(), ElementsAre("p: 10 → 11"));
    ASSERT_THAT(document.steps(), SizeIs(1));
    EXPECT_EQ(document.nextUndo()->description(), "p: 1 → 2");
    EXPECT_TRUE(document.undo());
    EXPECT_EQ(text(parameter), "1");
    EXPECT_EQ(text(other), "11");
    EXPECT_TRUE(document.redo());
    EXPECT_EQ(text(parameter), "2");
}

TEST_F(WatchedInt, WhatAnInputWritesDuringAnotherHistorysUndoIsNoStep) {
    UndoHistory document;
    auto const other = makeParameter(10);
    other->setHistory(&document);
    SmallInput otherInput{other};
    auto const otherRecorder = EditRecorder::watch(other);
    input.edit(2, nullptr);
    input.answer = [&] { otherInput.edit(11, nullptr); };
    EXPECT_TRUE(history.undo());
    EXPECT_EQ(text(other), "11");
    EXPECT_THAT(document.steps(), IsEmpty());
    otherInput.edit(12, nullptr);
    ASSERT_THAT(document.steps(), SizeIs(1));
    EXPECT_EQ(document.nextUndo()->description(), "p: 11 → 12");
}

TEST_F(WatchedInt, AParameterMayChangeItsHistoryBetweenEdits) {
    UndoHistory document;
    input.edit(2, nullptr);
    parameter->setHistory(&document);
    input.edit(3, nullptr);
    EXPECT_TRUE(history.undo());
    EXPECT_EQ(text(parameter), "1");
    input.edit(5, nullptr);
    EXPECT_EQ(document.nextUndo()->description(), "p: 1 → 5");
}

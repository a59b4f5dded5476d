#include "host/lattice/EditRecorderTest.hpp"

namespace {

using namespace Kolt;
using Tessera::StrongPtr;
using Tessera::WeakPtr;
using testing::ElementsAre;

} // namespace

TEST_F(WatchedInt, ARecordAndItsChangeAreOneStep) {
    editRecorded(2);
    editRecorded(3);
    EXPECT_THAT(names(), ElementsAre("p: 1 → 2", "p: 2 → 3"));
    EXPECT_TRUE(history.undo());
    EXPECT_EQ(text(parameter), "2");
    EXPECT_EQ(recordsUndone, 1);
    EXPECT_TRUE(history.redo());
    EXPECT_EQ(text(parameter), "3");
    EXPECT_TRUE(history.undo());
    EXPECT_EQ(text(parameter), "2");
    EXPECT_EQ(recordsUndone, 1) << "a record is run once; the change knows the way, too";
    EXPECT_THAT(names(), ElementsAre("p: 1 → 2"));
}

TEST_F(WatchedInt, OfTheRecordsOfAGestureOnlyTheOldestIsRun) {
    history.beginMacro();
    for (int const value : {2, 3, 4})
        editRecorded(value);
    history.endMacro();
    EXPECT_THAT(names(), ElementsAre("p: 1 → 4"));
    EXPECT_TRUE(history.undo());
    EXPECT_EQ(text(parameter), "1");
    EXPECT_EQ(recordsUndone, 1);
    EXPECT_TRUE(history.redo());
    EXPECT_EQ(text(parameter), "4");
}

TEST_F(WatchedInt, AStepWhoseRecordsAreForgottenIsUndoneByItsChange) {
    editRecorded(2);
    history.add(StrongPtr<VUndoAction>(new SmallRecord(WeakPtr<SmallInput, ValueNotifier>(&input), 1, recordsUndone)));
    history.forget([](VUndoAction const&) { return true; });
    EXPECT_THAT(names(), ElementsAre("p: 1 → 2"));
    EXPECT_TRUE(history.undo());
    EXPECT_EQ(text(parameter), "1");
    EXPECT_EQ(recordsUndone, 0);
}

TEST_F(WatchedInt, ARecordWaitsForTheChangeOfItsOwnParameterAlone) {
    auto const other = makeParameter(10);
    SmallInput otherInput{other};
    auto const otherRecorder = EditRecorder::watch(other);
    handOverRecord(1);
    otherInput.edit(11, nullptr);
    EXPECT_THAT(names(), ElementsAre("record", "p: 10 → 11"));
    input.edit(2, nullptr);
    EXPECT_THAT(names(), ElementsAre("record", "p: 10 → 11", "p: 1 → 2")) << "the record is no longer the latest";
}

TEST_F(WatchedInt, ARecordOfAClosedStepWaitsForNoChange) {
    history.beginMacro();
    handOverRecord(1);
    history.endMacro();
    input.edit(2, nullptr);
    EXPECT_THAT(names(), ElementsAre("record", "p: 1 → 2"));
}

TEST_F(WatchedInt, ARecordHandedOverUnwatchedWaitsForNoChange) {
    recorder.reset();
    handOverRecord(1);
    recorder = EditRecorder::watch(parameter);
    input.edit(2, nullptr);
    EXPECT_THAT(names(), ElementsAre("record", "p: 1 → 2"));
}

TEST_F(WatchedInt, ARecordWaitsForOneChange) {
    editRecorded(2);
    input.edit(3, nullptr);
    EXPECT_THAT(names(), ElementsAre("p: 1 → 2", "p: 2 → 3"));
    history.clear();
    handOverRecord(3);
    handOverRecord(3);
    input.edit(4, nullptr);
    EXPECT_THAT(names(), ElementsAre("record", "p: 3 → 4"));
}

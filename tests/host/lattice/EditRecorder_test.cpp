#include "host/lattice/EditRecorderTest.hpp"
#include "host/lattice/Recorder.hpp"
#include <bramble/StringSelection.hpp>

namespace {

using namespace Kolt;
using Tessera::WeakPtr;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

} // namespace

TEST_F(WatchedInt, AnEditIsAStepThatCanBeUndoneAndRedone) {
    EXPECT_TRUE(parameter->isWatched());
    EXPECT_TRUE(input.edit(5, nullptr));
    EXPECT_THAT(names(), ElementsAre("p: 1 → 5"));
    auto const age = parameter->ownValue()->age();
    EXPECT_TRUE(history.undo());
    EXPECT_EQ(text(parameter), "1");
    EXPECT_EQ(input.shown, "1") << "all are notified, the input that edited too";
    EXPECT_GT(parameter->ownValue()->age(), age);
    EXPECT_THAT(names(), IsEmpty());
    EXPECT_THAT(history.undoneSteps(), SizeIs(1));
    EXPECT_TRUE(history.redo());
    EXPECT_EQ(text(parameter), "5");
    EXPECT_EQ(input.shown, "5");
    EXPECT_FALSE(history.redo());
    EXPECT_THAT(names(), ElementsAre("p: 1 → 5"));
}

TEST_F(WatchedInt, WhatTheHostWritesIsNoStep) {
    EXPECT_TRUE(setParameterValue(*parameter, 9, nullptr, std::string(), false, nullptr, nullptr));
    EXPECT_THAT(names(), IsEmpty());
    input.edit(10, nullptr);
    EXPECT_THAT(names(), ElementsAre("p: 9 → 10")) << "the step starts from what the host wrote";
}

TEST_F(WatchedInt, WhatAnInputWritesInAnswerToTheHostIsNoStep) {
    input.answer = [&] {
        input.answer = {};
        input.edit(8, nullptr);
    };
    EXPECT_TRUE(setParameterValue(*parameter, 9, nullptr, std::string(), false, nullptr, nullptr));
    EXPECT_EQ(text(parameter), "8");
    EXPECT_THAT(names(), IsEmpty());
    input.edit(7, nullptr);
    EXPECT_THAT(names(), ElementsAre("p: 8 → 7"));
}

TEST_F(WatchedInt, WhatTheHostAnswersToAnEditIsNoStepOfItsOwn) {
    Recorder host;
    parameter->addNotifier(host.ref());
    host.onNotified = [&] {
        host.onNotified = {};
        EXPECT_TRUE(setParameterValue(*parameter, 100, nullptr, std::string(), false, nullptr, nullptr));
    };
    input.edit(999, nullptr);
    EXPECT_THAT(names(), SizeIs(1));
    input.edit(50, nullptr);
    EXPECT_EQ(names().back(), "p: 100 → 50");
    EXPECT_TRUE(history.undo());
    EXPECT_EQ(text(parameter), "100");
    EXPECT_TRUE(history.undo());
    EXPECT_EQ(text(parameter), "1");
}

TEST_F(WatchedInt, AnEditThatChangesNothingIsNoStep) {
    EXPECT_TRUE(input.edit(1, nullptr));
    EXPECT_THAT(names(), IsEmpty());
}

TEST_F(WatchedInt, APropertyIsNoEdit) {
    parameter->setProperty("max", makeValue(4), WeakPtr<ValueNotifier>(&input), nullptr, nullptr);
    EXPECT_THAT(names(), IsEmpty());
}

TEST_F(WatchedInt, TheRecorderOfTwoViewsStaysWithTheSecond) {
    auto const second = EditRecorder::watch(parameter);
    EXPECT_EQ(second, recorder) << "two views share one";
    recorder.reset();
    input.edit(2, nullptr);
    EXPECT_THAT(names(), SizeIs(1));
}

TEST_F(WatchedInt, AnUnwatchedParameterRecordsNothing) {
    recorder.reset();
    EXPECT_FALSE(parameter->isWatched());
    input.edit(2, nullptr);
    EXPECT_THAT(names(), IsEmpty());
    EXPECT_EQ(EditRecorder::watch(nullptr), nullptr);
}

TEST_F(WatchedInt, AllEditsOfAGestureAreOneStep) {
    history.beginMacro();
    history.beginMacro();
    for (int const value : {2, 3, 4})
        input.edit(value, nullptr);
    history.endMacro();
    input.edit(5, nullptr);
    EXPECT_TRUE(history.isStepOpen());
    history.endMacro();
    EXPECT_FALSE(history.isStepOpen());
    EXPECT_THAT(names(), ElementsAre("p: 1 → 5"));
    history.beginMacro();
    input.edit(6, nullptr);
    history.endMacro();
    EXPECT_THAT(names(), ElementsAre("p: 1 → 5", "p: 5 → 6"));
    EXPECT_TRUE(history.undo());
    EXPECT_EQ(text(parameter), "5");
    EXPECT_TRUE(history.undo());
    EXPECT_EQ(text(parameter), "1");
}

TEST_F(WatchedInt, TheListenerMayDestroyTheParameterWhileItsEditIsNotified) {
    WeakPtr<VParameter, ValueNotifierList> const weak(parameter);
    auto const connection = history.addListener([&] { parameter.reset(); });
    // Only `parameter` owns the object, so that the listener destroys it during the notification.
    auto* const raw = parameter.get();
    auto const value = raw->ownValue();
    dynamic_cast<VValue<int>&>(*value).set(6);
    raw->notifyValueChange(value, nullptr, std::string(), WeakPtr<ValueNotifier>(&input), nullptr, nullptr);
    EXPECT_FALSE(weak.alive());
}

TEST_F(WatchedInt, WhatAnEditBroughtAboutBelongsToItsStep) {
    auto const other = makeParameter(std::string("a"));
    auto const cause = Kolt::ParameterRef(parameter);
    EXPECT_TRUE(input.edit(5, nullptr));
    EXPECT_TRUE(history.store(other, nullptr, {makeValue(std::string("b")), false}, cause));
    ASSERT_THAT(history.steps(), SizeIs(1));
    EXPECT_THAT(history.steps()[0]->changes(), SizeIs(2));
    EXPECT_TRUE(history.undo());
    EXPECT_EQ(text(parameter), "1");
    EXPECT_EQ(text(other), "a");
    EXPECT_TRUE(history.redo());
    EXPECT_EQ(text(parameter), "5");
    EXPECT_EQ(text(other), "b");
}

TEST_F(WatchedInt, WhatALaterStepFollowedIsAStepOfItsOwn) {
    auto const other = makeParameter(std::string("a"));
    auto const cause = Kolt::ParameterRef(parameter);
    EXPECT_TRUE(input.edit(5, nullptr));
    EXPECT_TRUE(history.store(other, nullptr, {makeValue(std::string("b")), false}));
    EXPECT_TRUE(history.store(other, nullptr, {makeValue(std::string("c")), false}, cause));
    EXPECT_THAT(history.steps(), SizeIs(3)) << "the latest step is not the cause's";
    EXPECT_TRUE(history.undo());
    EXPECT_TRUE(history.undo());
    EXPECT_TRUE(history.store(other, nullptr, {makeValue(std::string("d")), false}, cause));
    EXPECT_THAT(history.steps(), SizeIs(1)) << "now it is";
    EXPECT_THAT(history.undoneSteps(), IsEmpty()) << "a new change forgets what was undone";
}

TEST_F(WatchedInt, ACommandOfTheHostIsAStep) {
    EXPECT_TRUE(history.store(parameter, nullptr, {makeValue(12), false}));
    EXPECT_EQ(text(parameter), "12");
    EXPECT_EQ(input.shown, "12");
    EXPECT_THAT(names(), ElementsAre("p: 1 → 12"));
    EXPECT_TRUE(history.store(parameter, nullptr, {makeValue(12), false})) << "holds already";
    EXPECT_FALSE(history.store(parameter, nullptr, {makeValue(std::string("x")), false}));
    EXPECT_FALSE(history.store(nullptr, nullptr, {makeValue(1), false}));
    EXPECT_THAT(names(), SizeIs(1));
    EXPECT_TRUE(history.undo());
    EXPECT_EQ(text(parameter), "1");
}

TEST_F(EditRecorderTest, AStepIsUndoneInThePoolOfTheEdit) {
    auto const parameter = makeParameter(1, VParameter::Values::PerPool);
    parameter->setLocalValue(draft, makeValue(2));
    SmallInput input{parameter};
    auto const recorder = EditRecorder::watch(parameter);
    input.edit(20, draft);
    input.edit(30, final);
    EXPECT_EQ(text(parameter, final), "30");
    EXPECT_TRUE(history.undo());
    EXPECT_EQ(text(parameter, draft), "20");
    EXPECT_EQ(parameter->getLocalValue(final, std::string(), false), nullptr) << "the pool had no value of its own";
    EXPECT_TRUE(history.undo());
    EXPECT_EQ(text(parameter, draft), "2");
    EXPECT_TRUE(history.redo());
    EXPECT_TRUE(history.redo());
    EXPECT_EQ(text(parameter, draft), "20");
    EXPECT_EQ(text(parameter, final), "30");
    EXPECT_EQ(parameter->ownValue()->Text(), "1");
}

TEST_F(EditRecorderTest, AnEditThatOnlyCopiesTheOwnValueIntoThePoolIsUndoneWithTheNextStep) {
    auto const parameter = makeParameter(1, VParameter::Values::PerPool);
    SmallInput input{parameter};
    auto const recorder = EditRecorder::watch(parameter);
    input.edit(1, draft);
    EXPECT_THAT(names(), IsEmpty());
    EXPECT_NE(parameter->getLocalValue(draft, std::string(), false), nullptr);
    input.edit(5, draft);
    EXPECT_TRUE(history.undo());
    EXPECT_EQ(parameter->getLocalValue(draft, std::string(), false), nullptr);

    input.edit(1, draft);
    parameter->ownValue()->setValueFromText("3");
    parameter->notifyValueChange(parameter->ownValue(), final, std::string(), nullptr, nullptr, nullptr);
    input.edit(5, draft);
    EXPECT_TRUE(history.undo());
    EXPECT_EQ(text(parameter, draft), "1") << "the pool kept its copy when the host wrote the own value";
}

TEST_F(EditRecorderTest, AGestureThatEndsWhereItBeganLeavesNoCopyInThePool) {
    auto const parameter = makeParameter(1, VParameter::Values::PerPool);
    SmallInput input{parameter};
    auto const recorder = EditRecorder::watch(parameter);
    history.beginMacro();
    input.edit(5, draft);
    input.edit(1, draft);
    history.endMacro();
    EXPECT_THAT(names(), IsEmpty());
    EXPECT_EQ(parameter->getLocalValue(draft, std::string(), false), nullptr);
    input.edit(5, draft);
    EXPECT_TRUE(history.undo());
    EXPECT_EQ(parameter->getLocalValue(draft, std::string(), false), nullptr);

    // What the host writes during a gesture is kept.
    history.beginMacro();
    input.edit(5, draft);
    input.edit(1, draft);
    parameter->ownValue()->setValueFromText("3");
    history.endMacro();
    EXPECT_EQ(text(parameter, draft), "1");
    EXPECT_THAT(names(), IsEmpty());
}

TEST_F(EditRecorderTest, ACommandThatChangesNothingMakesNoCopyInThePool) {
    auto const parameter = makeParameter(1, VParameter::Values::PerPool);
    auto const recorder = EditRecorder::watch(parameter);
    EXPECT_TRUE(history.store(parameter, draft, {makeValue(1), false}));
    EXPECT_EQ(parameter->getLocalValue(draft, std::string(), false), nullptr);
    EXPECT_FALSE(history.store(parameter, nullptr, {makeValue(1), false})) << "there is no place for it";
    parameter->setLocalValue(draft, makeValue(1));
    EXPECT_TRUE(history.store(parameter, draft, {makeValue(1), true}));
    EXPECT_NE(parameter->getLocalValue(draft, std::string(), false), nullptr);
    EXPECT_THAT(names(), IsEmpty());
}

TEST_F(EditRecorderTest, AStepOfAPoolThatIsGoneIsDropped) {
    auto const parameter = makeParameter(1, VParameter::Values::PerPool);
    SmallInput input{parameter};
    auto const recorder = EditRecorder::watch(parameter);
    PoolPtr third(new ValuePool("third"));
    input.edit(20, third);
    third.reset();
    EXPECT_FALSE(history.undo());
    EXPECT_EQ(text(parameter), "1");
}

TEST_F(EditRecorderTest, AValueOfAnotherTypeThatAPoolHeldComesBack) {
    auto const parameter = makeParameter(1, VParameter::Values::PerPool);
    parameter->setLocalValue(draft, makeValue(std::string("seven")));
    SmallInput input{parameter};
    auto const recorder = EditRecorder::watch(parameter);
    parameter->freshLocalValue(draft);
    input.edit(7, draft);
    EXPECT_EQ(text(parameter, draft), "7");
    EXPECT_TRUE(history.undo());
    EXPECT_EQ(text(parameter, draft), "seven");
    EXPECT_TRUE(history.redo());
    EXPECT_EQ(text(parameter, draft), "7");
}

TEST_F(EditRecorderTest, ASelectionThatIsChangedInPlaceIsNeverSharedWithAStep) {
    VStringList const selection(new StringSelection({"a", "b", "c"}, "a"));
    auto const parameter = makeParameter(selection);
    SmallInput input{parameter};
    auto const recorder = EditRecorder::watch(parameter);
    auto const choose = [&](char const* name) {
        auto const list = valueOr(parameter->ownValue(), VStringList());
        list->select(name);
        input.edit(list, nullptr);
    };
    choose("b");
    choose("c");
    EXPECT_THAT(names(), ElementsAre("p: a → b", "p: b → c"));
    history.undo();
    EXPECT_EQ(text(parameter), "b");
    choose("a");
    EXPECT_THAT(names(), ElementsAre("p: a → b", "p: b → a"));
    history.undo();
    history.undo();
    EXPECT_EQ(text(parameter), "a");
    history.redo();
    EXPECT_EQ(text(parameter), "b");
    history.redo();
    EXPECT_EQ(text(parameter), "a");
}

TEST_F(EditRecorderTest, AGestureOverSeveralParametersIsOneStep) {
    auto const first = makeParameter(1);
    auto const second = makeParameter(std::string("x"));
    SmallInput firstInput{first};
    SmallInput secondInput{second};
    auto const recorders = {EditRecorder::watch(first), EditRecorder::watch(second)};
    EXPECT_THAT(recorders, SizeIs(2));
    history.beginMacro();
    firstInput.edit(2, nullptr);
    secondInput.edit(std::string("y"), nullptr);
    history.endMacro();
    ASSERT_THAT(history.steps(), SizeIs(1));
    EXPECT_THAT(history.steps()[0]->changes(), SizeIs(2));
    history.undo();
    EXPECT_EQ(text(first), "1");
    EXPECT_EQ(text(second), "x");
}

TEST_F(EditRecorderTest, DefaultsAreWhatAParameterHeldInEachPool) {
    auto const parameter = makeParameter(1, VParameter::Values::PerPool);
    parameter->setLocalValue(draft, makeValue(2));
    EXPECT_EQ(parameter->defaults(), nullptr);
    parameter->rememberDefaults();
    EXPECT_TRUE(setParameterValue(*parameter, 20, draft, std::string(), true, nullptr, nullptr));
    EXPECT_TRUE(setParameterValue(*parameter, 1, final, std::string(), true, nullptr, nullptr));
    EXPECT_FALSE(parameter->defaults()->isEffectiveIn(*parameter, draft));
    EXPECT_TRUE(parameter->defaults()->isEffectiveIn(*parameter, final)) << "a value of its own that equals what held";
    EXPECT_TRUE(parameter->defaults()->isOwnValueOf(*parameter));
    EXPECT_TRUE(history.store(parameter, draft, parameter->defaults()->in(draft)));
    EXPECT_EQ(text(parameter, draft), "2");
    EXPECT_TRUE(setParameterValue(*parameter, 30, final, std::string(), true, nullptr, nullptr));
    EXPECT_FALSE(parameter->defaults()->isEffectiveIn(*parameter, final));
    EXPECT_TRUE(history.store(parameter, final, parameter->defaults()->in(final)));
    EXPECT_EQ(parameter->getLocalValue(final, std::string(), false), nullptr);
    EXPECT_FALSE(history.store(parameter, nullptr, parameter->defaults()->in(draft))) << "there is no such place";
}

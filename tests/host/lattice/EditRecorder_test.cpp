#include "host/lattice/EditRecorderTest.hpp"
#include "host/lattice/Recorder.hpp"
#include <bramble/StringSelection.hpp>
#include <random>

namespace {

using namespace Kolt;
using Tessera::StrongPtr;
using Tessera::WeakPtr;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

} // namespace

TEST_F(WatchedInt, AnEditIsAStepThatGoesBackAndForth) {
    EXPECT_TRUE(parameter->isWatched());
    EXPECT_TRUE(input.edit(5, nullptr));
    EXPECT_THAT(names(), ElementsAre("p: 1 → 5"));
    auto const age = parameter->ownValue()->age();
    EXPECT_TRUE(history.undo());
    EXPECT_EQ(text(parameter), "1");
    EXPECT_EQ(input.shown, "1") << "everybody is told, the input that edited too";
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
    host.onTold = [&] {
        host.onTold = {};
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

TEST_F(WatchedInt, TheListenerMayEndTheParameterWhileItsEditIsTold) {
    WeakPtr<VParameter, ValueNotifierList> const weak(parameter);
    auto const connection = history.addListener([&] { parameter.reset(); });
    // Nobody else holds the parameter while it tells.
    auto* const raw = parameter.get();
    auto const value = raw->ownValue();
    dynamic_cast<VValue<int>&>(*value).set(6);
    raw->notifyValueChange(value, nullptr, std::string(), WeakPtr<ValueNotifier>(&input), nullptr, nullptr);
    EXPECT_FALSE(weak.alive());
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

TEST_F(EditRecorderTest, AStepGoesBackInThePoolOfTheEdit) {
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

TEST_F(EditRecorderTest, AnEditThatOnlyCopiesTheOwnValueIntoThePoolGoesBackWithTheNextStep) {
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

    // What the host writes meanwhile stays.
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

/// Edits three parameters at random, in both pools, and takes steps back and makes them again.
class RandomEdits : public EditRecorderTest {
protected:
    RandomEdits() {
        VStringList const selection(new StringSelection({"a", "b", "c"}, "a"));
        parameters_ = {makeParameter(1), makeParameter(1, VParameter::Values::PerPool), makeParameter(selection)};
        for (auto const& parameter : parameters_) {
            inputs_.push_back(std::make_unique<SmallInput>(parameter));
            inputs_.back()->activateNotification();
            recorders_.push_back(EditRecorder::watch(parameter));
        }
    }

    std::string state() const {
        std::string all;
        for (auto const& parameter : parameters_)
            for (auto const& pool : {draft, final})
                all += text(parameter, pool) + ' ';
        return all;
    }

    void step() {
        auto const pool = upTo(2) == 0 ? draft : final;
        auto const way = upTo(9);
        if (way < 2)
            inputs_[0]->edit(upTo(4), pool);
        else if (way == 2)
            inputs_[1]->edit(upTo(4), pool);
        else if (way == 3)
            choose(pool);
        else if (way == 4)
            editWithRecord(pool);
        else if (way == 5)
            history.beginMacro();
        else if (way == 6)
            history.endMacro();
        else if (way == 7)
            history.undo();
        else
            history.redo();
    }

    int recordsUndone = 0;

private:
    int upTo(int limit) { return static_cast<int>(random_() % static_cast<unsigned>(limit)); }
    void choose(PoolPtr const& pool) {
        auto const list = valueOr(parameters_[2]->ownValue(), VStringList());
        list->select(list->at(static_cast<std::size_t>(upTo(3))));
        inputs_[2]->edit(list, pool);
    }
    // As an editor that makes its own undo record.
    void editWithRecord(PoolPtr const& pool) {
        int const next = upTo(4);
        int const previous = valueOr(parameters_[0]->ownValue(), 0);
        if (next == previous)
            return;
        WeakPtr<SmallInput, ValueNotifier> const input(inputs_[0].get());
        parameters_[0]->AddUndoAction(StrongPtr<VUndoAction>(new SmallRecord(input, previous, recordsUndone)), 20);
        inputs_[0]->edit(next, pool);
    }

    std::vector<ParameterPtr> parameters_;
    std::vector<std::unique_ptr<SmallInput>> inputs_;
    std::vector<std::shared_ptr<EditRecorder>> recorders_;
    std::mt19937 random_{20230329};
};

TEST_F(RandomEdits, GoBackToTheStartAndForthAgain) {
    auto const start = state();
    for (int count = 0; count < 20000; ++count) {
        step();
        // Often enough that the history never forgets a step.
        if (count % 200 != 0)
            continue;
        ASSERT_LT(history.steps().size(), UndoHistory::Capacity);
        auto const now = state();
        std::size_t undone = 0;
        while (history.undo())
            ++undone;
        ASSERT_EQ(state(), start) << "after " << count << " edits";
        ASSERT_THAT(history.steps(), IsEmpty());
        for (; undone > 0; --undone)
            ASSERT_TRUE(history.redo());
        ASSERT_EQ(state(), now);
        if (history.steps().size() > UndoHistory::Capacity / 2)
            while (history.undo()) {
            }
    }
    EXPECT_GT(recordsUndone, 0);
}

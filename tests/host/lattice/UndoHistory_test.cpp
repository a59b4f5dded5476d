#include "support/TaloTest.hpp"
#include <lattice/Parameter.hpp>
#include <lattice/UndoHistory.hpp>

namespace {

using Kolt::UndoHistory;
using Kolt::VUndoAction;
using Tessera::StrongPtr;
using testing::ElementsAre;
using testing::IsEmpty;

struct Step : VUndoAction {
    Step(std::string const& name, std::vector<std::string>& undone, bool possible = true)
        : VUndoAction(name), undone_(undone), possible_(possible) {}
    bool undo() override {
        undone_.push_back(description());
        if (during)
            during();
        return possible_;
    }
    std::function<void()> during;
    std::vector<std::string>& undone_;
    bool const possible_;
};

class Undo : public TaloTest {
protected:
    void forgetAll() {
        history_.forget([](VUndoAction const&) { return true; });
    }
    StrongPtr<VUndoAction> step(std::string const& name, bool possible = true) {
        return StrongPtr<VUndoAction>(new Step(name, undone_, possible));
    }
    std::vector<std::string> names() const {
        std::vector<std::string> names;
        for (auto const& action : history_.steps())
            names.push_back(action->description());
        return names;
    }
    UndoHistory history_;
    std::vector<std::string> undone_;
};

TEST_F(Undo, TheLatestStepIsUndoneFirst) {
    history_.add(step("a"));
    history_.add(step("b"));
    EXPECT_THAT(names(), ElementsAre("a", "b"));
    EXPECT_TRUE(history_.undo());
    EXPECT_TRUE(history_.undo());
    EXPECT_FALSE(history_.undo());
    EXPECT_THAT(undone_, ElementsAre("b", "a"));
}

TEST_F(Undo, AParameterThatIsAttachedToNoneUsesTheHistoryOfTheProcess) {
    Kolt::VParameter parameter("p", Kolt::makeValue(1));
    parameter.AddUndoAction(step("a"), 20);
    parameter.AddUndoAction(nullptr, 20);
    ASSERT_THAT(UndoHistory::theHistory().steps(), testing::SizeIs(1));
    EXPECT_EQ(UndoHistory::theHistory().nextUndo()->description(), "a");
    UndoHistory::theHistory().clear();
}

TEST_F(Undo, AStepThatCanNoLongerBeUndoneIsForgotten) {
    history_.add(step("a"));
    history_.add(step("gone", false));
    EXPECT_FALSE(history_.undo());
    EXPECT_THAT(names(), ElementsAre("a"));
}

TEST_F(Undo, StepsRecordedDuringAnUndoAreKept) {
    auto* const first = new Step("first", undone_);
    first->during = [&] { history_.add(step("recorded")); };
    history_.add(StrongPtr<VUndoAction>(first));
    EXPECT_TRUE(history_.undo());
    EXPECT_THAT(names(), ElementsAre("recorded"));
}

TEST_F(Undo, NeitherUndoNorRedoRunsInsideAnUndo) {
    history_.add(step("untouched"));
    auto* const latest = new Step("latest", undone_);
    std::vector<bool> answers;
    latest->during = [&] {
        EXPECT_TRUE(history_.isRestoring());
        answers = {history_.undo(), history_.redo()};
    };
    history_.add(StrongPtr<VUndoAction>(latest));
    EXPECT_TRUE(history_.undo());
    EXPECT_THAT(answers, ElementsAre(false, false));
    EXPECT_THAT(undone_, ElementsAre("latest"));
    EXPECT_THAT(names(), ElementsAre("untouched"));
    EXPECT_FALSE(history_.isRestoring());
}

TEST_F(Undo, ARecordForgottenInAnOpenGestureLeavesNoOpenStep) {
    history_.beginMacro();
    history_.add(step("forgotten"));
    EXPECT_TRUE(history_.isStepOpen());
    forgetAll();
    EXPECT_FALSE(history_.isStepOpen());
    history_.add(step("kept"));
    EXPECT_THAT(names(), ElementsAre("kept"));
    history_.endMacro();
    EXPECT_THAT(names(), ElementsAre("kept"));
    EXPECT_TRUE(history_.undo());
}

TEST_F(Undo, AFullHistoryForgetsItsOldestStep) {
    for (std::size_t number = 0; number < UndoHistory::Capacity; ++number)
        history_.add(step(std::to_string(number)));
    EXPECT_EQ(history_.steps().size(), UndoHistory::Capacity);
    EXPECT_EQ(names().front(), "0");
    history_.add(step("one more"));
    EXPECT_EQ(history_.steps().size(), UndoHistory::Capacity);
    EXPECT_EQ(names().front(), "1");
    EXPECT_EQ(names().back(), "one more");
}

TEST_F(Undo, ForgetsStepsThatMatchACondition) {
    for (auto const* const name : {"a", "b", "c"})
        history_.add(step(name));
    history_.forget([](VUndoAction const& action) { return action.description() == "b"; });
    EXPECT_THAT(names(), ElementsAre("a", "c"));
}

TEST_F(Undo, NotifiesItsListenersOfEachChange) {
    std::vector<std::size_t> sizes;
    std::string order;
    auto first = history_.addListener([&] {
        sizes.push_back(history_.steps().size());
        order += 'a';
    });
    auto const second = history_.addListener([&] { order += 'b'; });
    history_.add(step("a"));
    history_.add(nullptr);
    history_.add(step("b"));
    history_.undo();
    forgetAll();
    EXPECT_FALSE(history_.undo());
    EXPECT_THAT(sizes, ElementsAre(1, 2, 1, 0));
    EXPECT_EQ(order, "abababab");
    EXPECT_TRUE(first.isConnected());
    first.disconnect();
    EXPECT_FALSE(first.isConnected());
    history_.add(step("c"));
    EXPECT_EQ(order, "ababababb");
}

TEST_F(Undo, AListenerMayDisconnectItselfAndOthers) {
    int calls = 0;
    Kolt::Connection first;
    Kolt::Connection second;
    first = history_.addListener([&] {
        ++calls;
        first.disconnect();
        second.disconnect();
    });
    second = history_.addListener([&] { calls += 100; });
    history_.add(step("a"));
    history_.add(step("b"));
    EXPECT_EQ(calls, 1);
}

TEST_F(Undo, ConnectionsAndMacrosMayOutliveTheHistory) {
    auto brief = std::make_unique<UndoHistory>();
    auto connection = brief->addListener([] {});
    UndoHistory::Macro const macro(*brief);
    EXPECT_TRUE(brief->isMacroOpen());
    brief.reset();
    connection.disconnect();
    EXPECT_FALSE(connection.isConnected());
}

TEST_F(Undo, AMacroIsOpenAsLongAsItsObjectLives) {
    {
        UndoHistory::Macro const outer(history_);
        {
            UndoHistory::Macro const inner(history_);
            history_.add(step("a"));
        }
        EXPECT_TRUE(history_.isMacroOpen());
        history_.add(step("b"));
    }
    EXPECT_FALSE(history_.isMacroOpen());
    EXPECT_THAT(history_.steps(), testing::SizeIs(1));
    EXPECT_TRUE(history_.undo());
    EXPECT_THAT(undone_, ElementsAre("b", "a"));
}

TEST_F(Undo, AParameterUsesTheHistoryThatItIsAttachedTo) {
    Kolt::VParameter parameter("p", Kolt::makeValue(1));
    EXPECT_EQ(&parameter.history(), &UndoHistory::theHistory());
    parameter.setHistory(&history_);
    EXPECT_EQ(&parameter.history(), &history_);
    parameter.AddUndoAction(step("a"), 20);
    EXPECT_THAT(names(), ElementsAre("a"));
    EXPECT_THAT(UndoHistory::theHistory().steps(), IsEmpty());
    parameter.setHistory(nullptr);
    EXPECT_EQ(&parameter.history(), &UndoHistory::theHistory());
}

TEST_F(Undo, AParameterWhoseHistoryIsDestroyedIsDetached) {
    Kolt::VParameter parameter("p", Kolt::makeValue(1));
    {
        UndoHistory brief;
        parameter.setHistory(&brief);
    }
    EXPECT_EQ(&parameter.history(), &UndoHistory::theHistory());
    parameter.AddUndoAction(step("a"), 20);
    EXPECT_THAT(UndoHistory::theHistory().steps(), testing::SizeIs(1));
    UndoHistory::theHistory().clear();
}

TEST_F(Undo, ForgetsInEveryLivingHistory) {
    UndoHistory other;
    for (auto* const history : {&history_, &other, &UndoHistory::theHistory()}) {
        history->add(step("gone"));
        history->add(step("kept"));
    }
    // A listener may destroy a history that has not been processed yet.
    auto brief = std::make_unique<UndoHistory>();
    auto const connection = other.addListener([&] { brief.reset(); });
    UndoHistory::forgetEverywhere([](VUndoAction const& action) { return action.description() == "gone"; });
    EXPECT_FALSE(brief);
    for (auto* const history : {&history_, &other, &UndoHistory::theHistory()})
        EXPECT_THAT(history->steps(), testing::SizeIs(1));
    UndoHistory::theHistory().clear();
}

TEST_F(Undo, KnowsTheLivingHistories) {
    EXPECT_THAT(UndoHistory::living(), testing::UnorderedElementsAre(&UndoHistory::theHistory(), &history_));
    EXPECT_FALSE(UndoHistory::isAnyRestoring());
    auto* const latest = new Step("latest", undone_);
    bool own = false;
    bool any = false;
    latest->during = [&] {
        own = UndoHistory::theHistory().isRestoring();
        any = UndoHistory::isAnyRestoring();
    };
    history_.add(StrongPtr<VUndoAction>(latest));
    history_.undo();
    EXPECT_FALSE(own);
    EXPECT_TRUE(any);
}

TEST_F(Undo, TheStepOfAnOpenMacroCanBeCancelled) {
    Kolt::ParameterPtr const parameter(new Kolt::VParameter("p", Kolt::makeValue(1)));
    auto const store = [&](int value) { return history_.store(parameter, nullptr, {Kolt::makeValue(value), false}); };
    ASSERT_TRUE(store(2));
    ASSERT_TRUE(history_.undo());
    history_.beginMacro();
    EXPECT_FALSE(history_.cancelStep()) << "nothing changed yet";
    ASSERT_TRUE(store(3));
    ASSERT_TRUE(store(4));
    EXPECT_TRUE(history_.cancelStep());
    EXPECT_EQ(parameter->ownValue()->Text(), "1");
    EXPECT_THAT(history_.steps(), IsEmpty());
    ASSERT_TRUE(store(5));
    history_.endMacro();
    EXPECT_THAT(names(), ElementsAre("p: 1 → 5"));
    EXPECT_TRUE(history_.undo());
    EXPECT_FALSE(history_.cancelStep()) << "no macro is open";
}

TEST_F(Undo, ACancelledStepLeavesWhatCanBeRedone) {
    Kolt::ParameterPtr const parameter(new Kolt::VParameter("p", Kolt::makeValue(1)));
    ASSERT_TRUE(history_.store(parameter, nullptr, {Kolt::makeValue(2), false}));
    ASSERT_TRUE(history_.undo());
    {
        UndoHistory::Macro const macro(history_);
        ASSERT_TRUE(history_.store(parameter, nullptr, {Kolt::makeValue(3), false}));
        EXPECT_THAT(history_.undoneSteps(), IsEmpty());
        EXPECT_TRUE(history_.cancelStep());
    }
    EXPECT_TRUE(history_.redo());
    EXPECT_EQ(parameter->ownValue()->Text(), "2");
}

} // namespace

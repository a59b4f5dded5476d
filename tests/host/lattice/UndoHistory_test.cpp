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
    void SetUp() override { forgetAll(); }
    void TearDown() override {
        history_.setListener({});
        forgetAll();
    }
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
    UndoHistory& history_ = UndoHistory::theHistory();
    std::vector<std::string> undone_;
};

TEST_F(Undo, TakesTheLatestStepBackFirst) {
    history_.add(step("a"), 1);
    history_.add(step("b"), 1);
    EXPECT_THAT(names(), ElementsAre("a", "b"));
    EXPECT_TRUE(history_.undo());
    EXPECT_TRUE(history_.undo());
    EXPECT_FALSE(history_.undo());
    EXPECT_THAT(undone_, ElementsAre("b", "a"));
}

TEST_F(Undo, AParameterRecordsIntoTheHistory) {
    Kolt::VParameter parameter("p", Kolt::makeValue(1));
    parameter.AddUndoAction(step("a"), 1);
    parameter.AddUndoAction(nullptr, 1);
    EXPECT_THAT(names(), ElementsAre("a"));
}

TEST_F(Undo, AStepThatCanNoLongerBeTakenBackIsForgotten) {
    history_.add(step("a"), 1);
    history_.add(step("gone", false), 1);
    EXPECT_FALSE(history_.undo());
    EXPECT_THAT(names(), ElementsAre("a"));
}

TEST_F(Undo, StepsRecordedWhileOneIsTakenBackAreKept) {
    auto* const first = new Step("first", undone_);
    first->during = [&] { history_.add(step("recorded"), 1); };
    history_.add(StrongPtr<VUndoAction>(first), 1);
    EXPECT_TRUE(history_.undo());
    EXPECT_THAT(names(), ElementsAre("recorded"));
}

TEST_F(Undo, NeitherUndoNorRedoRunsInsideAnUndo) {
    history_.add(step("untouched"), 1);
    auto* const latest = new Step("latest", undone_);
    std::vector<bool> answers;
    latest->during = [&] {
        EXPECT_TRUE(history_.isRestoring());
        answers = {history_.undo(), history_.redo()};
    };
    history_.add(StrongPtr<VUndoAction>(latest), 1);
    EXPECT_TRUE(history_.undo());
    EXPECT_THAT(answers, ElementsAre(false, false));
    EXPECT_THAT(undone_, ElementsAre("latest"));
    EXPECT_THAT(names(), ElementsAre("untouched"));
    EXPECT_FALSE(history_.isRestoring());
}

TEST_F(Undo, ARecordForgottenInAnOpenGestureLeavesNoOpenStep) {
    history_.beginMacro();
    history_.add(step("forgotten"), 1);
    EXPECT_TRUE(history_.isStepOpen());
    forgetAll();
    EXPECT_FALSE(history_.isStepOpen());
    history_.add(step("kept"), 1);
    EXPECT_THAT(names(), ElementsAre("kept"));
    history_.endMacro();
    EXPECT_THAT(names(), ElementsAre("kept"));
    EXPECT_TRUE(history_.undo());
}

TEST_F(Undo, AFullHistoryForgetsTheOldestOfTheLightestSteps) {
    history_.add(step("heavy and oldest"), 5);
    history_.add(step("light"), 1);
    history_.add(step("light, later"), 1);
    for (std::size_t number = 3; number < UndoHistory::Capacity; ++number)
        history_.add(step("filler"), 3);
    EXPECT_EQ(history_.steps().size(), UndoHistory::Capacity);

    history_.add(step("one more"), 5);
    EXPECT_EQ(history_.steps().size(), UndoHistory::Capacity);
    auto const kept = names();
    EXPECT_THAT(kept, testing::Contains("heavy and oldest"));
    EXPECT_THAT(kept, testing::Not(testing::Contains("light")));
    EXPECT_EQ(kept[1], "light, later");
    EXPECT_EQ(kept.back(), "one more");

    history_.add(step("and one more"), 1);
    EXPECT_THAT(names(), testing::Not(testing::Contains("light, later")));
    EXPECT_EQ(names().back(), "and one more");
}

TEST_F(Undo, ForgetsWhatItIsToldTo) {
    for (auto const* const name : {"a", "b", "c"})
        history_.add(step(name), 1);
    history_.forget([](VUndoAction const& action) { return action.description() == "b"; });
    EXPECT_THAT(names(), ElementsAre("a", "c"));
}

TEST_F(Undo, TellsItsListenerOfEachChange) {
    std::vector<std::size_t> sizes;
    history_.setListener([&] { sizes.push_back(history_.steps().size()); });
    history_.add(step("a"), 1);
    history_.add(nullptr, 1);
    history_.add(step("b"), 1);
    history_.undo();
    history_.forget([](VUndoAction const&) { return true; });
    EXPECT_FALSE(history_.undo());
    EXPECT_THAT(sizes, ElementsAre(1, 2, 1, 0));
    history_.setListener({});
    history_.add(step("c"), 1);
    EXPECT_THAT(sizes, testing::SizeIs(4));
}

} // namespace

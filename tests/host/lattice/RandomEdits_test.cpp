#include "host/lattice/EditRecorderTest.hpp"
#include "host/lattice/Recorder.hpp"
#include <bramble/StringSelection.hpp>
#include <random>

namespace {

using namespace Kolt;
using Tessera::StrongPtr;
using Tessera::WeakPtr;
using testing::IsEmpty;

} // namespace

/// Edits three parameters at random, in both pools, and undoes and redoes steps.
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
    // Edits like an editor that records its own undo command.
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

TEST_F(RandomEdits, CanAllBeUndoneAndRedone) {
    auto const start = state();
    for (int count = 0; count < 20000; ++count) {
        step();
        // Check often, so that the history never drops a step.
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

#include <algorithm>
#include <lattice/UndoHistory.hpp>

namespace Kolt {

class UndoHistory::Restoring {
public:
    explicit Restoring(UndoHistory& history) : history_(history) { ++history_.restoring_; }
    ~Restoring() { --history_.restoring_; }
    Restoring(Restoring const&) = delete;
    Restoring& operator=(Restoring const&) = delete;

private:
    UndoHistory& history_;
};

UndoHistory& UndoHistory::theHistory() {
    static Tessera::NoDestructor<UndoHistory> history;
    return *history;
}

void UndoHistory::add(Tessera::StrongPtr<VUndoAction> const& action, int weight, ParameterRef const& parameter) {
    if (!action)
        return;
    auto& step = currentStep();
    step.records_.push_back({action, parameter});
    auto const living = parameter.strong();
    step.awaitsChange_ = living && living->isWatched();
    raiseWeight(step, weight);
    changed();
}

void UndoHistory::record(ValueChange const& change) {
    bool const joins = !open_ && !steps_.empty() && steps_.rbegin()->second->awaitsChangeOf(change);
    auto& step = joins ? *steps_.rbegin()->second : currentStep();
    step.add(change);
    raiseWeight(step, ChangeWeight);
    changed();
}

bool UndoHistory::store(ParameterPtr const& parameter, PoolPtr const& pool, EffectiveValue const& held) {
    if (!parameter)
        return false;
    bool const isStep = !isRestoring();
    auto const living = parameter;
    auto const before = copyEffectiveValue(*living, pool);
    bool const hasPlace = pool || !living->keepsValuesPerPool();
    if (hasPlace && before.equals(held))
        return true;
    {
        Restoring const restoring(*this);
        if (!applyValue(*living, pool, held))
            return false;
    }
    ValueChange const change(living, pool, before, copyEffectiveValue(*living, pool));
    if (isStep && !change.changesNothing())
        record(change);
    return true;
}

void UndoHistory::beginMacro() {
    ++gestures_;
}

void UndoHistory::endMacro() {
    if (gestures_ > 0 && --gestures_ == 0)
        closeStep();
}

void UndoHistory::closeStep() {
    if (!open_)
        return;
    auto const step = std::exchange(open_, nullptr);
    auto const undone = std::exchange(undoneBeforeOpen_, {});
    step->awaitsChange_ = false;
    if (!step->changesNothing())
        return;
    remove(step);
    undone_ = undone;
    {
        Restoring const restoring(*this);
        step->discardLocalValues();
    }
    changed();
}

bool UndoHistory::undo() {
    if (isRestoring())
        return false;
    closeStep();
    if (steps_.empty())
        return false;
    auto const step = steps_.rbegin()->second;
    remove(step);
    auto const lastNumber = lastNumber_;
    bool undone = false;
    {
        Restoring const restoring(*this);
        undone = step->undo();
    }
    if (undone && !step->changes().empty() && lastNumber == lastNumber_)
        undone_.push_back(step);
    changed();
    return undone;
}

bool UndoHistory::redo() {
    if (isRestoring())
        return false;
    closeStep();
    if (undone_.empty())
        return false;
    auto const step = undone_.back();
    undone_.pop_back();
    auto const later = std::exchange(undone_, {});
    auto const lastNumber = lastNumber_;
    bool made = false;
    {
        Restoring const restoring(*this);
        made = step->redo();
    }
    bool const isLatest = lastNumber == lastNumber_;
    if (made)
        insert(step);
    if (isLatest)
        undone_ = later;
    changed();
    return made;
}

std::vector<UndoHistory::Step> UndoHistory::steps() const {
    std::vector<Step> steps;
    steps.reserve(steps_.size());
    for (auto const& numbered : steps_)
        steps.push_back(numbered.second);
    return steps;
}

std::vector<UndoHistory::Step> UndoHistory::undoneSteps() const {
    return {undone_.rbegin(), undone_.rend()};
}

UndoHistory::Step UndoHistory::nextUndo() const {
    return steps_.empty() ? nullptr : steps_.rbegin()->second;
}

UndoHistory::Step UndoHistory::nextRedo() const {
    return undone_.empty() ? nullptr : undone_.back();
}

void UndoHistory::forget(std::function<bool(VUndoAction const&)> const& predicate) {
    auto const steps = steps_;
    for (auto const& [number, step] : steps) {
        auto& records = step->records_;
        records.erase(std::remove_if(records.begin(), records.end(),
                                     [&](auto const& record) { return predicate(*record.action); }),
                      records.end());
        if (records.empty() && step->changes_.empty())
            remove(step);
    }
    if (open_ && steps_.count(open_->number_) == 0)
        open_.reset();
    changed();
}

void UndoHistory::clear() {
    // Only afterwards do they go: a record may do anything as it goes.
    auto const steps = std::exchange(steps_, {});
    auto const undone = std::exchange(undone_, {});
    auto const undoneBeforeOpen = std::exchange(undoneBeforeOpen_, {});
    numbersByWeight_.clear();
    open_.reset();
    changed();
}

void UndoHistory::setListener(std::function<void()> listener) {
    listener_ = std::move(listener);
}

UndoStep& UndoHistory::currentStep() {
    if (open_)
        return *open_;
    auto const step = std::make_shared<UndoStep>();
    if (gestures_ > 0) {
        open_ = step;
        undoneBeforeOpen_ = undone_;
    }
    undone_.clear();
    insert(step);
    return *step;
}

void UndoHistory::insert(OwnStep const& step) {
    if (steps_.size() >= Capacity)
        remove(steps_.at(numbersByWeight_.begin()->second));
    step->number_ = ++lastNumber_;
    steps_.emplace(step->number_, step);
    numbersByWeight_.emplace(step->weight_, step->number_);
}

void UndoHistory::remove(OwnStep const& step) {
    numbersByWeight_.erase({step->weight_, step->number_});
    steps_.erase(step->number_);
}

void UndoHistory::raiseWeight(UndoStep& step, int weight) {
    bool const isFirst = step.records_.size() + step.changes_.size() == 1;
    auto const raised = isFirst ? weight : std::max(step.weight_, weight);
    if (raised == step.weight_)
        return;
    numbersByWeight_.erase({step.weight_, step.number_});
    step.weight_ = raised;
    numbersByWeight_.emplace(raised, step.number_);
}

void UndoHistory::changed() const {
    // A copy, as the listener may replace itself.
    auto const listener = listener_;
    if (listener)
        listener();
}

} // namespace Kolt

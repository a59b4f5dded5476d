#include <lattice/UndoHistory.hpp>

#include <algorithm>
#include <numeric>
#include <tessera/NoDestructor.hpp>

namespace Kolt {

namespace {

// Never destroyed: the default history is not, either.
std::vector<UndoHistory*>& histories() {
    static Tessera::NoDestructor<std::vector<UndoHistory*>> all;
    return *all;
}

template <typename Steps>
std::size_t bytesOf(Steps const& steps) {
    auto const add = [](std::size_t bytes, auto const& step) { return bytes + step->byteCount(); };
    return std::accumulate(steps.begin(), steps.end(), std::size_t{0}, add);
}

} // namespace

class UndoHistory::Restoring {
public:
    explicit Restoring(UndoHistory& history) : history_(history) { ++history_.restoring_; }
    ~Restoring() { --history_.restoring_; }
    Restoring(Restoring const&) = delete;
    Restoring& operator=(Restoring const&) = delete;

private:
    UndoHistory& history_;
};

UndoHistory::Macro::Macro(UndoHistory& history) : history_(&history) {
    history.beginMacro();
}

UndoHistory::Macro::~Macro() {
    if (auto const history = history_.strong())
        history->endMacro();
}

UndoHistory::UndoHistory() {
    histories().push_back(this);
}

UndoHistory::~UndoHistory() {
    auto& all = histories();
    all.erase(std::remove(all.begin(), all.end(), this), all.end());
}

UndoHistory& UndoHistory::theHistory() {
    static Tessera::NoDestructor<UndoHistory> history;
    return *history;
}

std::vector<UndoHistory*> UndoHistory::living() {
    theHistory();
    return histories();
}

bool UndoHistory::isAnyRestoring() {
    auto const& all = histories();
    return std::any_of(all.begin(), all.end(), [](UndoHistory const* history) { return history->isRestoring(); });
}

void UndoHistory::add(Tessera::StrongPtr<VUndoAction> const& action, ParameterRef const& parameter) {
    if (!action)
        return;
    auto& step = currentStep();
    step.records_.push_back({action, parameter});
    auto const living = parameter.strong();
    step.awaitsChange_ = living && living->isWatched();
    changed();
}

void UndoHistory::record(ValueChange const& change) {
    bool const joins = !steps_.empty() && steps_.back()->awaitsChangeOf(change);
    add(change, joins ? *steps_.back() : currentStep());
    changed();
}

UndoStep* UndoHistory::continueStepOf(ParameterRef const& cause) {
    if (steps_.empty() || !cause || !steps_.back()->hasChanged(cause))
        return nullptr;
    undone_.clear();
    return steps_.back().get();
}

bool UndoHistory::store(ParameterPtr const& parameter, PoolPtr const& pool, EffectiveValue const& value,
                        ParameterRef const& cause) {
    if (!parameter)
        return false;
    bool const isStep = !isRestoring();
    auto const living = parameter;
    auto const before = copyEffectiveValue(*living, pool);
    bool const hasPlace = pool || !living->keepsValuesPerPool();
    if (hasPlace && before.equals(value))
        return true;
    {
        Restoring const restoring(*this);
        if (!applyValue(*living, pool, value))
            return false;
    }
    ValueChange const change(living, pool, before, copyEffectiveValue(*living, pool));
    if (!isStep || change.changesNothing())
        return true;
    if (auto* const step = continueStepOf(cause)) {
        add(change, *step);
        changed();
    } else {
        record(change);
    }
    return true;
}

void UndoHistory::beginMacro() {
    ++macros_;
}

void UndoHistory::endMacro() {
    if (macros_ > 0 && --macros_ == 0)
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
    setUndone(undone);
    {
        Restoring const restoring(*this);
        step->discardLocalValues();
    }
    changed();
}

bool UndoHistory::cancelStep() {
    if (!open_ || isRestoring())
        return false;
    auto const step = std::exchange(open_, nullptr);
    auto const undone = std::exchange(undoneBeforeOpen_, {});
    remove(step);
    {
        Restoring const restoring(*this);
        step->undo();
    }
    setUndone(undone);
    changed();
    return true;
}

bool UndoHistory::undo() {
    if (isRestoring())
        return false;
    closeStep();
    if (steps_.empty())
        return false;
    auto const step = steps_.back();
    remove(step);
    auto const inserted = inserted_;
    bool undone = false;
    {
        Restoring const restoring(*this);
        undone = step->undo();
    }
    if (undone && !step->changes().empty() && inserted == inserted_) {
        undone_.push_back(step);
        mostBytes_ += step->byteCount();
    }
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
    auto const inserted = inserted_;
    bool made = false;
    {
        Restoring const restoring(*this);
        made = step->redo();
    }
    bool const isLatest = inserted == inserted_;
    if (made)
        insert(step);
    if (isLatest)
        setUndone(later);
    changed();
    return made;
}

std::vector<UndoHistory::Step> UndoHistory::steps() const {
    return {steps_.begin(), steps_.end()};
}

std::vector<UndoHistory::Step> UndoHistory::undoneSteps() const {
    return {undone_.rbegin(), undone_.rend()};
}

UndoHistory::Step UndoHistory::nextUndo() const {
    return steps_.empty() ? nullptr : steps_.back();
}

UndoHistory::Step UndoHistory::nextRedo() const {
    return undone_.empty() ? nullptr : undone_.back();
}

void UndoHistory::forget(std::function<bool(VUndoAction const&)> const& predicate) {
    auto const steps = steps_;
    for (auto const& step : steps) {
        auto& records = step->records_;
        records.erase(std::remove_if(records.begin(), records.end(),
                                     [&](auto const& record) { return predicate(*record.action); }),
                      records.end());
        if (!records.empty() || !step->changes_.empty())
            continue;
        remove(step);
        if (step == open_)
            open_.reset();
    }
    changed();
}

void UndoHistory::forgetEverywhere(std::function<bool(VUndoAction const&)> const& predicate) {
    std::vector<Tessera::WeakPtr<UndoHistory>> all;
    for (auto* const history : living())
        all.emplace_back(history);
    // A listener of one history may destroy another one.
    for (auto const& each : all) {
        if (auto const history = each.strong())
            history->forget(predicate);
    }
}

void UndoHistory::clear() {
    // Destroyed last: the destructor of a record may do anything.
    auto const steps = std::exchange(steps_, {});
    auto const undone = std::exchange(undone_, {});
    auto const undoneBeforeOpen = std::exchange(undoneBeforeOpen_, {});
    open_.reset();
    forgotten_ = 0;
    changed();
}

Connection UndoHistory::addListener(std::function<void()> listener) {
    listeners_.erase(
        std::remove_if(listeners_.begin(), listeners_.end(), [](auto const& each) { return each.expired(); }),
        listeners_.end());
    auto const subscription = std::make_shared<Listener>(std::move(listener));
    listeners_.push_back(subscription);
    return Connection(subscription);
}

UndoStep& UndoHistory::currentStep() {
    if (open_)
        return *open_;
    auto const step = std::make_shared<UndoStep>();
    if (macros_ > 0) {
        open_ = step;
        undoneBeforeOpen_ = undone_;
    }
    undone_.clear();
    insert(step);
    return *step;
}

void UndoHistory::insert(OwnStep const& step) {
    steps_.push_back(step);
    ++inserted_;
    mostBytes_ += step->byteCount();
    trim();
}

void UndoHistory::setUndone(std::vector<OwnStep> const& steps) {
    undone_ = steps;
    mostBytes_ += bytesOf(steps);
}

void UndoHistory::add(ValueChange const& change, UndoStep& step) {
    auto const before = step.byteCount();
    step.add(change);
    mostBytes_ += step.byteCount() - before;
    trim();
}

void UndoHistory::trim() {
    // Destroyed last: the destructor of a record may do anything.
    std::vector<OwnStep> oldest;
    auto const forgetOldest = [&] {
        oldest.push_back(steps_.front());
        steps_.pop_front();
        ++forgotten_;
    };
    while (steps_.size() > Capacity)
        forgetOldest();
    if (mostBytes_ <= ByteCapacity)
        return;
    mostBytes_ = byteCount();
    for (; mostBytes_ > ByteCapacity && steps_.size() > 1; forgetOldest())
        mostBytes_ -= steps_.front()->byteCount();
}

std::size_t UndoHistory::byteCount() const {
    return bytesOf(steps_) + bytesOf(undone_);
}

void UndoHistory::remove(OwnStep const& step) {
    // Nearly always the last one.
    auto const found = std::find(steps_.rbegin(), steps_.rend(), step);
    if (found != steps_.rend())
        steps_.erase(std::next(found).base());
}

void UndoHistory::changed() const {
    // A copy, as a listener may add and disconnect others.
    auto const listeners = listeners_;
    for (auto const& each : listeners) {
        auto const listener = each.lock();
        if (listener && *listener)
            (*listener)();
    }
}

} // namespace Kolt

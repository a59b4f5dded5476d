#include <lattice/UndoStep.hpp>

#include <algorithm>
#include <unordered_map>

namespace Kolt {

ValueChange::ValueChange(ParameterPtr const& parameter, PoolPtr const& pool, EffectiveValue before,
                         EffectiveValue after)
    : parameter_(parameter),
      parameterName_(parameter->Name()),
      perPool_(parameter->keepsValuesPerPool()),
      before_(std::move(before)),
      after_(std::move(after)) {
    if (perPool_)
        pool_ = pool;
}

ValueChange::~ValueChange() = default;

ValueChange::ValueChange(ValueChange const&) = default;

ValueChange& ValueChange::operator=(ValueChange const&) = default;

bool ValueChange::isPossible() const {
    return parameter_.alive() && (!perPool_ || pool_.alive());
}

bool ValueChange::undo() const {
    return store(before_);
}

bool ValueChange::redo() const {
    return store(after_);
}

void ValueChange::discardLocalValue() const {
    auto const parameter = parameter_.strong();
    auto const pool = pool_.strong();
    if (parameter && before_.isInherited && parameter->ownValue()->equals(*before_.value) &&
        copyEffectiveValue(*parameter, pool).equals(before_))
        static_cast<void>(applyValue(*parameter, pool, before_));
}

bool ValueChange::store(EffectiveValue const& held) const {
    auto const parameter = parameter_.strong();
    return parameter && applyValue(*parameter, pool_.strong(), held);
}

UndoStep::UndoStep() = default;

UndoStep::~UndoStep() = default;

std::string UndoStep::description() const {
    if (!changes_.empty()) {
        auto const& first = changes_.front();
        return first.parameterName() + ": " + first.before().value->Text() + " → " + first.after().value->Text();
    }
    return records_.empty() ? std::string() : records_.front().action->description();
}

bool UndoStep::hasChanged(ParameterRef const& parameter) const {
    if (places_.empty())
        return !changes_.empty() && changes_.front().isOf(parameter);
    auto const found = places_.lower_bound({parameter.identity(), nullptr});
    return found != places_.end() && found->first.first == parameter.identity();
}

std::size_t UndoStep::placeOf(ValueChange const& change) const {
    if (places_.empty())
        return !changes_.empty() && changes_.front().hasSameTarget(change) ? 0 : changes_.size();
    auto const found = places_.find(change.target());
    return found == places_.end() ? changes_.size() : found->second;
}

bool UndoStep::knowsChangeOf(Record const& record) const {
    return hasChanged(record.parameter);
}

void UndoStep::add(ValueChange const& change) {
    awaitsChange_ = false;
    auto const known = placeOf(change);
    if (known < changes_.size()) {
        changes_[known].mergeWith(change);
        return;
    }
    if (changes_.size() == 1)
        places_.emplace(changes_.front().target(), 0);
    if (!changes_.empty())
        places_.emplace(change.target(), known);
    changes_.push_back(change);
    bytes_ += sizeof change + change.before().value->byteCount();
}

bool UndoStep::changesNothing() const {
    return std::all_of(changes_.begin(), changes_.end(), [](auto const& change) { return change.changesNothing(); }) &&
           std::all_of(records_.begin(), records_.end(), [&](auto const& record) { return knowsChangeOf(record); });
}

bool UndoStep::awaitsChangeOf(ValueChange const& change) const {
    return awaitsChange_ && change.isOf(records_.back().parameter);
}

bool UndoStep::undo() {
    bool done = false;
    // Copies, as a notifier may make the history forget the step or its records.
    auto const changes = changes_;
    // A record can be undone once.
    auto const records = std::exchange(records_, {});
    // The oldest record of a value restores the start; the later ones would restore states in between.
    std::unordered_map<void const*, Record const*> oldest;
    for (auto const& record : records)
        oldest.emplace(record.parameter.identity(), &record);
    for (auto change = changes.rbegin(); change != changes.rend(); ++change) {
        if (!change->isPossible())
            continue;
        if (auto const known = oldest.find(change->target().first); known != oldest.end())
            known->second->action->undo();
        // The record may fail, as when its editor was destroyed.
        done = change->undo() || done;
    }
    for (auto record = records.rbegin(); record != records.rend(); ++record) {
        if (!knowsChangeOf(*record))
            done = record->action->undo() || done;
    }
    return done;
}

bool UndoStep::redo() {
    bool done = false;
    auto const changes = changes_;
    for (auto const& change : changes)
        done = (change.isPossible() && change.redo()) || done;
    return done;
}

void UndoStep::discardLocalValues() {
    auto const changes = changes_;
    for (auto const& change : changes)
        change.discardLocalValue();
}

} // namespace Kolt

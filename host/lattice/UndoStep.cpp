#include <lattice/UndoStep.hpp>

#include <algorithm>

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
    return std::any_of(changes_.begin(), changes_.end(), [&](auto const& change) { return change.isOf(parameter); });
}

bool UndoStep::knowsChangeOf(Record const& record) const {
    return hasChanged(record.parameter);
}

void UndoStep::add(ValueChange const& change) {
    auto const known =
        std::find_if(changes_.begin(), changes_.end(), [&](auto const& each) { return each.hasSameTarget(change); });
    if (known == changes_.end())
        changes_.push_back(change);
    else
        known->mergeWith(change);
    awaitsChange_ = false;
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
    for (auto change = changes.rbegin(); change != changes.rend(); ++change) {
        if (!change->isPossible())
            continue;
        // The oldest record of a value restores the start; the later ones would restore states in between.
        auto const oldest = std::find_if(records.begin(), records.end(),
                                         [&](auto const& record) { return change->isOf(record.parameter); });
        if (oldest != records.end())
            oldest->action->undo();
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

#pragma once

#include <lattice/Parameter.hpp>
#include <lattice/ValueSnapshot.hpp>
#include <map>
#include <tessera/Export.hpp>
#include <utility>

namespace Kolt {

/// A change of a parameter's value in a pool, which can be undone and redone. It refers to the parameter and the pool
/// weakly. User-interface thread.
class TALO_EXPORT ValueChange {
public:
    /// REQUIRES: `parameter` is not null, and neither are the values of `before` and `after`.
    ValueChange(ParameterPtr const& parameter, PoolPtr const& pool, EffectiveValue before, EffectiveValue after);
    ~ValueChange();
    ValueChange(ValueChange const&);
    ValueChange& operator=(ValueChange const&);

    /// The changed parameter; null if it was destroyed.
    ParameterPtr parameter() const { return parameter_.strong(); }
    /// The parameter's name, also after it was destroyed.
    std::string const& parameterName() const { return parameterName_; }
    /// The pool of the change; null if the parameter has one value for all pools, and if the pool was destroyed.
    PoolPtr pool() const { return pool_.strong(); }
    /// The value before the change.
    EffectiveValue const& before() const { return before_; }
    /// The value after the change.
    EffectiveValue const& after() const { return after_; }

    /// Whether it is a change of this parameter.
    bool isOf(ParameterRef const& parameter) const { return parameter_ == parameter; }
    /// What the change is of. Only compared: two changes have the same one if they are of the same parameter in the
    /// same pool.
    std::pair<void const*, void const*> target() const { return {parameter_.identity(), pool_.identity()}; }
    /// Whether both change the same parameter in the same pool.
    bool hasSameTarget(ValueChange const& other) const {
        return parameter_ == other.parameter_ && pool_ == other.pool_;
    }
    /// Makes this change end with the other one's value. REQUIRES: hasSameTarget(other).
    void mergeWith(ValueChange const& other) { after_ = other.after_; }
    /// Whether the value before and after the change is the same.
    bool changesNothing() const { return before_.equals(after_); }

    /// Whether parameter and pool still exist.
    bool isPossible() const;
    /// Stores the value before the change, or the one after it (applyValue). False if it cannot be stored.
    bool undo() const;
    /// Applies the value after the change; false if that is impossible.
    bool redo() const;
    /// Removes the pool's value if the pool had none before the change and nothing else was written since. REQUIRES:
    /// changesNothing().
    void discardLocalValue() const;

private:
    bool store(EffectiveValue const& held) const;

    ParameterRef parameter_;
    std::string parameterName_;
    Tessera::WeakPtr<ValuePool> pool_;
    bool perPool_;
    EffectiveValue before_;
    EffectiveValue after_;
};

/// An undo step: changes of values, and records that inputs handed over (VUndoAction). Owned by its history
/// (UndoHistory). User-interface thread.
class TALO_EXPORT UndoStep {
public:
    UndoStep();
    ~UndoStep();
    UndoStep(UndoStep const&) = delete;
    UndoStep& operator=(UndoStep const&) = delete;

    /// The changes of values, one for each value, in the order in which the values first changed.
    std::vector<ValueChange> const& changes() const { return changes_; }
    /// Whether it changed a parameter, in whatever pool.
    bool hasChanged(ParameterRef const& parameter) const;
    /// About how many bytes of memory the step takes. Of each change the value before it counts: the one after it is
    /// that of the parameter, or is counted by the next step.
    std::size_t byteCount() const { return bytes_; }
    /// The step for people, UTF-8: its first change as "iterations: 400 → 500", or the description of its first record.
    std::string description() const;

private:
    friend class UndoHistory;
    struct Record {
        Tessera::StrongPtr<VUndoAction> action;
        ParameterRef parameter;
    };
    bool knowsChangeOf(Record const& record) const;
    /// The place of the change with this target; the number of changes if there is none.
    std::size_t placeOf(ValueChange const& change) const;
    void add(ValueChange const& change);
    /// Whether all values are the same before and after the step.
    bool changesNothing() const;
    /// Whether the step is only a record of an edit whose change is this one.
    bool awaitsChangeOf(ValueChange const& change) const;
    bool undo();
    bool redo();
    /// For a step that changes nothing (ValueChange::discardLocalValue).
    void discardLocalValues();

    std::vector<ValueChange> changes_;
    // The places of the changes by ValueChange::target; empty as long as there is one.
    std::map<std::pair<void const*, void const*>, std::size_t> places_;
    std::size_t bytes_ = 0;
    // In the order in which they were handed over.
    std::vector<Record> records_;
    bool awaitsChange_ = false;
};

} // namespace Kolt

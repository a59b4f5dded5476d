#pragma once

#include <lattice/Parameter.hpp>
#include <lattice/ValueSnapshot.hpp>

namespace Kolt {

/// A change of a parameter's value in a pool, which can be taken back and made again. It refers to the parameter and
/// the pool weakly. User-interface thread.
class ValueChange {
public:
    ValueChange(ParameterPtr const& parameter, PoolPtr const& pool, EffectiveValue before, EffectiveValue after);
    ~ValueChange();
    ValueChange(ValueChange const&);
    ValueChange& operator=(ValueChange const&);

    /// Null when it is gone.
    ParameterPtr parameter() const { return parameter_.strong(); }
    /// The parameter's name, also when it is gone.
    std::string const& parameterName() const { return parameterName_; }
    /// The pool of the change where the parameter keeps values per pool; null elsewhere, and when it is gone.
    PoolPtr pool() const { return pool_.strong(); }
    EffectiveValue const& before() const { return before_; }
    EffectiveValue const& after() const { return after_; }

    bool isOf(ParameterRef const& parameter) const { return parameter_ == parameter; }
    /// Whether both change the same value.
    bool hasSameTarget(ValueChange const& other) const {
        return parameter_ == other.parameter_ && pool_ == other.pool_;
    }
    /// From now on the change leads to where the other one leads.
    void mergeWith(ValueChange const& other) { after_ = other.after_; }
    bool changesNothing() const { return before_.equals(after_); }

    /// Whether the place of the value is still there.
    bool isPossible() const;
    /// Stores the value before the change, or the one after it (applyValue). False when that is impossible.
    bool undo() const;
    bool redo() const;
    /// For a change that changes nothing: has the pool fall back again where it did before and nothing else was written
    /// since.
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

/// What one command takes back: changes of values, and records that inputs handed over (VUndoAction). The history owns
/// it. User-interface thread.
class UndoStep {
public:
    UndoStep();
    ~UndoStep();
    UndoStep(UndoStep const&) = delete;
    UndoStep& operator=(UndoStep const&) = delete;

    /// In the order in which the values first changed; one for each value.
    std::vector<ValueChange> const& changes() const { return changes_; }
    /// For people, UTF-8: the first change as "iterations: 400 → 500", or what the first record says of itself.
    std::string description() const;

private:
    friend class UndoHistory;
    struct Record {
        Tessera::StrongPtr<VUndoAction> action;
        ParameterRef parameter;
    };
    bool knowsChangeOf(Record const& record) const;
    void add(ValueChange const& change);
    /// Whether nothing is different after the step.
    bool changesNothing() const;
    /// Whether the step is only the record of an edit of the parameter whose change is about to be told.
    bool awaitsChangeOf(ValueChange const& change) const;
    bool undo();
    bool redo();
    /// For a step that changes nothing (ValueChange::discardLocalValue).
    void discardLocalValues();

    std::vector<ValueChange> changes_;
    // In the order in which they were handed over.
    std::vector<Record> records_;
    bool awaitsChange_ = false;
};

} // namespace Kolt

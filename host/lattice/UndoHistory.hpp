#pragma once

#include <functional>
#include <lattice/UndoStep.hpp>
#include <map>
#include <memory>
#include <set>
#include <tessera/NoDestructor.hpp>

namespace Kolt {

/// The steps that can be taken back and made again, the latest last. A step is a command of the host, or all that
/// happens in one gesture of the user: the changes of watched parameters (EditRecorder) and the records that inputs
/// hand over. Outside a gesture each change and each record is a step, but for a record that is handed over just before
/// its change: both are one. What changes nothing is no step.
///
/// One for the process, never destroyed; user-interface thread.
class UndoHistory {
public:
    /// How many steps are kept.
    static constexpr std::size_t Capacity = 1000;
    /// How much the change of a value matters (see `add`).
    static constexpr int ChangeWeight = 20;

    using Step = std::shared_ptr<UndoStep const>;

    static UndoHistory& theHistory();

    /// Takes a record over, of an input of `parameter` where one is given; a null record is ignored. `weight` tells how
    /// much its step matters (the larger, the more): where the history is full, the oldest of the lightest steps is
    /// forgotten.
    void add(Tessera::StrongPtr<VUndoAction> const& action, int weight, ParameterRef const& parameter = {});
    /// Records a change that happened.
    void record(ValueChange const& change);
    /// Makes a value hold in a pool, as a command of the host that can be taken back (applyValue). False where it
    /// cannot be stored, and for a null parameter. Where an equal value holds already nothing happens.
    bool store(ParameterPtr const& parameter, PoolPtr const& pool, EffectiveValue const& held);

    /// From here on everything is one step, up to the matching `endMacro`. May be nested; the outermost counts.
    void beginMacro();
    /// Nothing happens where no gesture is open.
    void endMacro();
    bool isMacroOpen() const { return gestures_ > 0; }
    /// Ends the step of the open gesture: what comes next in it is another step.
    void closeStep();
    /// Whether something changed in the open gesture since its step began.
    bool isStepOpen() const { return open_ != nullptr; }

    /// Takes the latest step back, and says whether that worked. What is told meanwhile is no step, but records that
    /// are handed over are. A step of which nothing could be taken back is dropped. False when there is none, and in
    /// the middle of another undo or redo.
    bool undo();
    /// Makes the step again that was taken back last. Like `undo`; steps without a change of a value cannot be made
    /// again. A new step forgets those that were taken back.
    bool redo();
    /// Whether a step is being taken back or made again, or a command stores.
    bool isRestoring() const { return restoring_ > 0; }

    /// The steps, the latest last. That of the open gesture is among them as soon as something changed.
    std::vector<Step> steps() const;
    /// The steps that were taken back and can be made again, the next one first.
    std::vector<Step> undoneSteps() const;
    /// The step that `undo` takes back, or `redo` makes again; null for none.
    Step nextUndo() const;
    Step nextRedo() const;

    /// Forgets the records for which `predicate` holds. A step keeps its changes of values and so can still be taken
    /// back; one that has none goes.
    void forget(std::function<bool(VUndoAction const&)> const& predicate);
    /// Forgets everything, also what can be made again.
    void clear();
    /// Called after each change of the history; an empty function calls nobody.
    void setListener(std::function<void()> listener);

private:
    using OwnStep = std::shared_ptr<UndoStep>;
    class Restoring;

    friend Tessera::NoDestructor<UndoHistory>;
    UndoHistory() = default;
    /// The step that takes what is recorded now: that of the open gesture, or a new one.
    UndoStep& currentStep();
    void insert(OwnStep const& step);
    void remove(OwnStep const& step);
    void raiseWeight(UndoStep& step, int weight);
    void changed() const;

    // By number, so in order.
    std::map<unsigned long, OwnStep> steps_;
    // By weight, as a full history forgets the oldest of the lightest at every further step.
    std::set<std::pair<int, unsigned long>> numbersByWeight_;
    unsigned long lastNumber_ = 0;
    // The last one is made again first.
    std::vector<OwnStep> undone_;
    // What a gesture that ends where it began has not undone after all.
    std::vector<OwnStep> undoneBeforeOpen_;
    OwnStep open_;
    int gestures_ = 0;
    int restoring_ = 0;
    std::function<void()> listener_;
};

} // namespace Kolt

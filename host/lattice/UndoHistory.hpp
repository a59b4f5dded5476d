#pragma once

#include <deque>
#include <functional>
#include <lattice/Connection.hpp>
#include <lattice/UndoStep.hpp>
#include <memory>

namespace Kolt {

/// The undo steps of one document. An undo step is a command of the host, or all that happens in one gesture of the
/// user (a macro): the changes of watched parameters (EditRecorder) and the records that inputs hand over
/// (VParameter::AddUndoAction). Outside a macro each change and each record is a step; a record and the change that
/// follows it are one. What changes nothing is no step.
///
/// A host makes one for each document and attaches the document's parameters (VParameter::setHistory). Parameters that
/// are attached to none use theHistory(). When a history is destroyed, its parameters use theHistory() again; it must
/// not be destroyed inside its own undo(), redo() or store(). User-interface thread.
class TALO_EXPORT UndoHistory : public Tessera::ReferenceBase<UndoHistory> {
public:
    /// How many steps are kept. A full history forgets its oldest step with each new one.
    static constexpr std::size_t Capacity = 1000;
    /// How many bytes the values of the steps may take (byteCount). A history with more forgets its oldest steps, but
    /// never the latest one.
    static constexpr std::size_t ByteCapacity = std::size_t{64} << 20;

    /// A step, which lives as long as somebody refers to it.
    using Step = std::shared_ptr<UndoStep const>;

    UndoHistory();
    ~UndoHistory() override;
    UndoHistory(UndoHistory const&) = delete;
    UndoHistory& operator=(UndoHistory const&) = delete;

    /// The history of all parameters that are attached to none. Never destroyed.
    static UndoHistory& theHistory();
    /// All histories that exist, theHistory() included, in order of construction.
    static std::vector<UndoHistory*> living();

    /// Adds a record, of an input of `parameter` where one is given; a null record is ignored. REQUIRES: `parameter`,
    /// if it is given, uses this history.
    void add(Tessera::StrongPtr<VUndoAction> const& action, ParameterRef const& parameter = {});
    /// Adds a change that was stored already.
    void record(ValueChange const& change);
    /// Applies a value in a pool as a command of the host that can be undone (applyValue). An equal value that is
    /// effective already makes no step. False where the value cannot be stored, and for a null parameter. If `cause` is
    /// given and the latest step changed it, the change belongs to that step: what an edit brings about is undone with
    /// it.
    [[nodiscard]] bool store(ParameterPtr const& parameter, PoolPtr const& pool, EffectiveValue const& value,
                             ParameterRef const& cause = {});

    /// Opens a macro: all that happens up to the matching endMacro() is one step. Macros may be nested; the outermost
    /// counts. Prefer the scope object Macro.
    void beginMacro();
    /// Closes a macro; ignored where none is open.
    void endMacro();
    /// Whether a macro is open.
    bool isMacroOpen() const { return macros_ > 0; }
    /// Ends the current step of the open macro; what follows in the macro is another step.
    void closeStep();
    /// Undoes what the current step of the open macro has changed, and forgets the step; what was undone before can be
    /// redone again. What follows in the macro is another step. False if the step changed nothing, or while a
    /// history is restoring.
    bool cancelStep();
    /// Whether something changed in the open macro since its current step began.
    bool isStepOpen() const { return open_ != nullptr; }

    /// Undoes the latest step; true if anything of it could be undone, else the step is dropped. Stores of the undo are
    /// no steps, but records that are handed over meanwhile are. False when there is no step, and inside another undo
    /// or redo of this history.
    bool undo();
    /// Redoes the step that was undone last; otherwise like undo(). A step without a change of a value cannot be
    /// redone. A new step forgets the undone ones.
    bool redo();
    /// Whether an undo, redo or store() is under way.
    bool isRestoring() const { return restoring_ > 0; }
    /// Whether any history is restoring. What an input writes meanwhile is no edit of the user.
    static bool isAnyRestoring();

    /// The steps that can be undone, the latest last. The step of an open macro is included once something changed.
    std::vector<Step> steps() const;
    /// The steps that can be redone, the next one first.
    std::vector<Step> undoneSteps() const;
    /// The step that the next undo() or redo() takes; null for none.
    Step nextUndo() const;
    /// The step that the next redo() takes; null for none.
    Step nextRedo() const;

    /// About how many bytes of memory the steps take, the undone ones included (UndoStep::byteCount).
    std::size_t byteCount() const;
    /// How many steps were forgotten because the history was full, since it was cleared last.
    std::size_t forgottenSteps() const { return forgotten_; }

    /// Forgets the records for which `predicate` is true. A step keeps its changes of values and can still be undone; a
    /// step without changes is removed with its last record.
    void forget(std::function<bool(VUndoAction const&)> const& predicate);
    /// The same in every history: for a library whose code is about to be unloaded.
    static void forgetEverywhere(std::function<bool(VUndoAction const&)> const& predicate);
    /// Forgets all steps, the undone ones included.
    void clear();

    /// Calls `listener` after each change of the history, as long as the connection lives. Listeners are called in the
    /// order in which they were added.
    [[nodiscard]] Connection addListener(std::function<void()> listener);

    /// A macro that is open as long as the object lives. It may outlive the history.
    class TALO_EXPORT Macro {
    public:
        /// Opens a macro of the history.
        explicit Macro(UndoHistory& history);
        ~Macro();
        Macro(Macro const&) = delete;
        Macro& operator=(Macro const&) = delete;

    private:
        Tessera::WeakPtr<UndoHistory> const history_;
    };

private:
    using OwnStep = std::shared_ptr<UndoStep>;
    using Listener = std::function<void()>;
    class Restoring;

    /// The step that takes what is recorded now: that of the open macro, or a new one.
    UndoStep& currentStep();
    /// The latest step, if it changed the parameter, which then has no undone steps after it; null otherwise.
    UndoStep* continueStepOf(ParameterRef const& cause);
    void insert(OwnStep const& step);
    /// The steps that can be redone from now on, the next one last.
    void setUndone(std::vector<OwnStep> const& steps);
    /// Adds a change to one of the steps.
    void add(ValueChange const& change, UndoStep& step);
    /// Forgets the oldest steps of a history that is full.
    void trim();
    void remove(OwnStep const& step);
    void changed() const;

    std::deque<OwnStep> steps_;
    std::size_t forgotten_ = 0;
    // No less than all steps take: each that comes in adds to it. To count them at each edit would be slow.
    std::size_t mostBytes_ = 0;
    // Counts the steps ever inserted, so that undo and redo notice one that was recorded meanwhile.
    unsigned long inserted_ = 0;
    // The last one is redone first.
    std::vector<OwnStep> undone_;
    // Restored when a macro turns out to change nothing.
    std::vector<OwnStep> undoneBeforeOpen_;
    OwnStep open_;
    int macros_ = 0;
    int restoring_ = 0;
    std::vector<std::weak_ptr<Listener>> listeners_;
};

} // namespace Kolt

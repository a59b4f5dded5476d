#pragma once

#include <deque>
#include <functional>
#include <map>
#include <string>
#include <tessera/Reference.hpp>
#include <vector>

namespace Kolt {

/// One step that can be taken back. The history owns it. User-interface thread.
class VUndoAction : public Tessera::ReferenceBase<VUndoAction> {
public:
    /// `description` is for people: "Set int value to 7". UTF-8.
    explicit VUndoAction(std::string const& description);
    ~VUndoAction() override;

    std::string const& description() const { return description_; }
    /// Takes the step back; false when that is no longer possible.
    virtual bool undo() = 0;

private:
    std::string description_;
};

/// The steps that parameters recorded, the latest last. One for the process; user-interface thread.
class UndoHistory {
public:
    /// How many steps are kept.
    static constexpr std::size_t Capacity = 1000;

    static UndoHistory& theHistory();

    /// Records a step; null is ignored. `weight` tells how much the step matters (the larger, the more): where the
    /// history is full, the oldest of the lightest steps is forgotten.
    void add(Tessera::StrongPtr<VUndoAction> const& action, int weight);
    /// Takes the latest step back and forgets it, and says whether that worked. Steps recorded while it works are
    /// kept. False when there is none.
    bool undo();
    /// The steps, the latest last.
    std::vector<Tessera::StrongPtr<VUndoAction>> steps() const;
    /// Forgets the steps for which `predicate` holds.
    void forget(std::function<bool(VUndoAction const&)> const& predicate);
    /// Called after each change of the history; an empty function calls nobody.
    void setListener(std::function<void()> listener);

private:
    struct Step {
        Tessera::StrongPtr<VUndoAction> action;
        // Tells how late it was recorded.
        unsigned long number;
    };
    UndoHistory() = default;
    void changed() const;

    // By weight, as a full history forgets the oldest of the lightest at every further step. No list is empty.
    std::map<int, std::deque<Step>> steps_;
    std::size_t count_ = 0;
    unsigned long lastNumber_ = 0;
    std::function<void()> listener_;
};

} // namespace Kolt

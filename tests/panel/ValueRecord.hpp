#pragma once

#include <lattice/UndoHistory.hpp>
#include <map>
#include <memory>
#include <network/Network.hpp>
#include <string>
#include <utility>
#include <vector>

/// What each edited value of a network should hold, by a record of its own: an edit that became an undo step changes
/// it, undo and redo of a step move between what was there before and after, and a write of the host replaces it.
class ValueRecord {
public:
    /// Begins with what the network holds. Network and history must outlive the record.
    ValueRecord(Talo::Network const& network, Kolt::UndoHistory& history);
    ~ValueRecord();

    /// Takes over all values as they are, after the host wrote one: what it brought about counts as its own. Returns
    /// the parameters that changed, as "object.parameter".
    std::vector<QString> takeHostWrite();
    /// The values that nothing in the record explains, one a line with the parameter, what it is and what it should be.
    std::vector<std::string> differences(std::string const& when) const;

private:
    /// A parameter, and a pool if it keeps values per pool.
    using Target = std::pair<Kolt::VParameter*, Kolt::ValuePool*>;
    /// Weak, because a step may hold code of a plug-in that is to be unloaded.
    using StepRef = std::weak_ptr<Kolt::UndoStep const>;
    struct Change {
        Kolt::ValuePtr before;
        Kolt::ValuePtr after;
    };
    struct Step {
        bool isDone = true;
        std::map<Target, Change> changes;
    };

    void follow();
    /// Notes the steps that went since the last time.
    void followUndone(std::vector<StepRef> const& steps);
    void followStep(Kolt::UndoHistory::Step const& step);

    Talo::Network const& network_;
    Kolt::UndoHistory& history_;
    std::map<Target, Kolt::ValuePtr> held_;
    // Every step that ever was.
    std::map<StepRef, Step, std::owner_less<StepRef>> steps_;
    // The steps that can be undone, the latest last.
    std::vector<StepRef> done_;
    Kolt::Connection following_;
};

#pragma once

#include <functional>
#include <lattice/Object.hpp>

namespace Kolt {

/// Queues objects that are to run. Scheduling never runs anything itself: whoever owns the event loop calls `runDue`.
/// User-interface thread.
class VScheduler {
public:
    /// Queues an object to run in a pool. `time` is in seconds on the scheduler's clock; what lies in the past, as 0.0
    /// always does, is due at once. The object is held weakly; a null one is ignored.
    static void schedule(ObjectPtr const& object, double time, PoolPtr const& pool);
    /// Runs what is due, in order of time, then of arrival, each once for each time it was scheduled. What is
    /// scheduled meanwhile waits for the next call. Returns how many objects ran.
    static int runDue();
    /// How many entries wait.
    static int waiting();
    /// The seconds since the scheduler was first used.
    static double clock();
    /// When the next entry is due, on the scheduler's clock; a negative number when none waits.
    static double nextTime();
    /// Called after each `schedule`, so that an event loop can arrange for `runDue`. An empty function calls nobody.
    static void setWakeUp(std::function<void()> wakeUp);
};

} // namespace Kolt

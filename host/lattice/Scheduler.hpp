#pragma once

#include <functional>
#include <lattice/Object.hpp>
#include <tessera/Export.hpp>

namespace Kolt {

/// The queue of objects that are to run. Scheduling never runs an object itself: the owner of the event loop calls
/// runDue(), when setWakeUp() asks for it. There is one queue for the process. User-interface thread.
class TALO_EXPORT VScheduler {
public:
    /// Queues an object to run in a pool, which may be null. `time` is in seconds on the scheduler's clock; an object
    /// whose time has passed, as 0.0 always has, is due at once. The object is held weakly, the pool strongly; a null
    /// object is ignored.
    static void schedule(ObjectPtr const& object, double time, PoolPtr const& pool);
    /// Runs the objects that are due, in order of time, then of scheduling; an object that was scheduled several times
    /// runs several times. What is scheduled meanwhile waits for the next call. Returns how many objects ran.
    static int runDue();
    /// How many entries wait.
    static int waiting();
    /// The seconds since the scheduler was first used.
    static double clock();
    /// When the next entry is due, on the scheduler's clock; negative if none waits.
    static double nextTime();
    /// Sets the function that is called after each schedule(), so that an event loop can arrange for runDue(). An empty
    /// function removes it.
    static void setWakeUp(std::function<void()> wakeUp);
};

} // namespace Kolt

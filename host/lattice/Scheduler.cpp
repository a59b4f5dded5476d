#include <lattice/Scheduler.hpp>

#include <algorithm>
#include <chrono>
#include <map>
#include <tessera/NoDestructor.hpp>
#include <vector>

namespace Kolt {

namespace {

struct Waiting {
    Tessera::WeakPtr<VObject, VManagedObjectBase> object;
    PoolPtr pool;
};

struct Queue {
    std::chrono::steady_clock::time_point const start = std::chrono::steady_clock::now();
    // Equal keys stay in order of insertion.
    std::multimap<double, Waiting> entries;
    std::function<void()> wakeUp;
};

// Never destroyed: plug-ins may use it after the statics of this library are gone.
Queue& queue() {
    static Tessera::NoDestructor<Queue> waiting;
    return *waiting;
}

} // namespace

void VScheduler::schedule(ObjectPtr const& object, double time, PoolPtr const& pool) {
    if (!object)
        return;
    // "Not a number" cannot be ordered; it is due at once.
    queue().entries.insert({time == time ? std::max(time, 0.0) : 0.0, {object, pool}});
    auto const wakeUp = queue().wakeUp;
    if (wakeUp)
        wakeUp();
}

int VScheduler::runDue() {
    auto& entries = queue().entries;
    auto const end = entries.upper_bound(clock());
    std::vector<Waiting> due;
    for (auto entry = entries.begin(); entry != end; ++entry)
        due.push_back(entry->second);
    entries.erase(entries.begin(), end);
    int count = 0;
    for (auto const& waiting : due) {
        if (auto const object = waiting.object.strong()) {
            object->run(waiting.pool);
            ++count;
        }
    }
    return count;
}

int VScheduler::waiting() {
    return static_cast<int>(queue().entries.size());
}

double VScheduler::clock() {
    return std::chrono::duration<double>(std::chrono::steady_clock::now() - queue().start).count();
}

double VScheduler::nextTime() {
    auto const& entries = queue().entries;
    return entries.empty() ? -1.0 : entries.begin()->first;
}

void VScheduler::setWakeUp(std::function<void()> wakeUp) {
    queue().wakeUp = std::move(wakeUp);
}

} // namespace Kolt

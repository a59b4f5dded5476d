#include <tessera/LivingObjects.hpp>

#include <algorithm>
#include <limits>
#include <mutex>
#include <tessera/NoDestructor.hpp>
#include <unordered_map>

namespace Tessera {

namespace {

struct LivingObject {
    ReferenceCounted* object;
    std::type_info const* type;
    // How many strong references the library itself has to it.
    int own;
};

struct WatchedObjects {
    std::mutex mutex;
    std::vector<AddressRange> libraries;
    std::unordered_map<ReferenceControl*, LivingObject> objects;

    bool isWatched(std::type_info const& type) const {
        return std::any_of(libraries.begin(), libraries.end(),
                           [&](auto const& range) { return range.contains(&type); });
    }
    void dropOthers() {
        for (auto entry = objects.begin(); entry != objects.end();)
            entry = isWatched(*entry->second.type) ? std::next(entry) : objects.erase(entry);
    }
};

// Never destroyed: objects may die after the statics of this library.
WatchedObjects& watchedObjects() {
    static NoDestructor<WatchedObjects> watched;
    return *watched;
}

std::atomic<int> librariesBeingLoaded{0};
// All watched libraries lie between these addresses. Read without the lock, as every object that is adopted asks.
std::atomic<std::uintptr_t> lowestWatched{std::numeric_limits<std::uintptr_t>::max()};
std::atomic<std::uintptr_t> highestWatched{0};

void updateBounds(std::vector<AddressRange> const& libraries) {
    auto lowest = std::numeric_limits<std::uintptr_t>::max();
    std::uintptr_t highest = 0;
    for (auto const& library : libraries) {
        lowest = std::min(lowest, library.begin);
        highest = std::max(highest, library.end);
    }
    lowestWatched = lowest;
    highestWatched = highest;
}

} // namespace

LivingObjects::Loading::Loading() {
    ++librariesBeingLoaded;
}

LivingObjects::Loading::~Loading() {
    if (--librariesBeingLoaded > 0)
        return;
    auto& watched = watchedObjects();
    std::lock_guard const lock(watched.mutex);
    watched.dropOthers();
}

void LivingObjects::watch(AddressRange const& library) {
    auto& watched = watchedObjects();
    std::lock_guard const lock(watched.mutex);
    auto const isSame = [&](AddressRange const& other) { return other.begin == library.begin; };
    if (std::any_of(watched.libraries.begin(), watched.libraries.end(), isSame))
        return;
    watched.libraries.push_back(library);
    updateBounds(watched.libraries);
    for (auto& [control, living] : watched.objects) {
        if (library.contains(living.type))
            living.own = control->strongCount();
    }
}

std::vector<StrongPtr<ReferenceCounted>> LivingObjects::heldByOthers(AddressRange const& library) {
    auto& watched = watchedObjects();
    std::lock_guard const lock(watched.mutex);
    std::vector<StrongPtr<ReferenceCounted>> held;
    for (auto const& [control, living] : watched.objects) {
        if (!library.contains(living.type) || control->strongCount() <= living.own)
            continue;
        // Null for one that another thread is deleting.
        if (auto object = WeakPtr<ReferenceCounted>(living.object).strong())
            held.push_back(std::move(object));
    }
    return held;
}

int LivingObjects::abandon(AddressRange const& library) {
    auto& watched = watchedObjects();
    std::lock_guard const lock(watched.mutex);
    auto& libraries = watched.libraries;
    libraries.erase(std::remove_if(libraries.begin(), libraries.end(),
                                   [&](auto const& range) { return range.begin == library.begin; }),
                    libraries.end());
    updateBounds(libraries);
    int abandoned = 0;
    for (auto entry = watched.objects.begin(); entry != watched.objects.end();) {
        if (!library.contains(entry->second.type)) {
            ++entry;
            continue;
        }
        // An object has a strong reference, which keeps its counters, or it would have been deleted.
        if (entry->first->alive()) {
            entry->first->abandon();
            ++abandoned;
        }
        entry = watched.objects.erase(entry);
    }
    return abandoned;
}

bool LivingObjects::concerns(std::type_info const& type) noexcept {
    if (librariesBeingLoaded.load(std::memory_order_relaxed) > 0)
        return true;
    auto const address = reinterpret_cast<std::uintptr_t>(&type);
    if (address < lowestWatched.load(std::memory_order_relaxed) ||
        address >= highestWatched.load(std::memory_order_relaxed))
        return false;
    auto& watched = watchedObjects();
    std::lock_guard const lock(watched.mutex);
    return watched.isWatched(type);
}

void LivingObjects::add(ReferenceControl& control, ReferenceCounted* object, std::type_info const& type) {
    auto& watched = watchedObjects();
    std::lock_guard const lock(watched.mutex);
    watched.objects[&control] = {object, &type, 0};
}

void LivingObjects::remove(ReferenceControl& control) noexcept {
    auto& watched = watchedObjects();
    std::lock_guard const lock(watched.mutex);
    watched.objects.erase(&control);
}

} // namespace Tessera

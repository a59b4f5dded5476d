#pragma once

#include <atomic>
#include <tessera/Export.hpp>

namespace Tessera {

/// The base of an object that remembers when it was last changed. Time is counted in changes, not in seconds: a larger
/// stamp is younger. One counter serves the whole process, so the stamps of different objects can be compared. Any
/// thread. Prints nothing.
class TALO_EXPORT Ageable {
public:
    /// The stamp given last, to any object.
    static std::atomic<unsigned long> GlobalTime;

    /// The stamp of the last change; 0 for an object that was never changed.
    unsigned long age() const noexcept { return age_.load(std::memory_order_relaxed); }
    /// Marks the object as changed: gives it the next stamp, `++GlobalTime`.
    void renewAge() noexcept { age_.store(++GlobalTime, std::memory_order_relaxed); }

protected:
    ~Ageable() = default;

private:
    std::atomic<unsigned long> age_{0};
};

} // namespace Tessera

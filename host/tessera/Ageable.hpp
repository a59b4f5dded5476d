#pragma once

#include <atomic>

namespace Tessera {

/// A thing that remembers when it was last changed. Ages are counted, not measured: a larger stamp is younger.
/// May be read and renewed on any thread.
class Ageable {
public:
    /// The stamp given last.
    static std::atomic<unsigned long> GlobalTime;

    /// The stamp of the last change; 0 for a thing that was never changed.
    unsigned long age() const noexcept { return age_.load(std::memory_order_relaxed); }
    /// Takes the next stamp, `++GlobalTime`.
    void renewAge() noexcept { age_.store(++GlobalTime, std::memory_order_relaxed); }

protected:
    ~Ageable() = default;

private:
    std::atomic<unsigned long> age_{0};
};

} // namespace Tessera

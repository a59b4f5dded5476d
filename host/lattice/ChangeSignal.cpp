#include <lattice/ChangeSignal.hpp>

#include <utility>

namespace Kolt {

ChangeSignal::ChangeSignal(std::function<void()> listener) : listener_(std::move(listener)) {}

ChangeSignal::~ChangeSignal() = default;

void ChangeSignal::raise() {
    // Most calls find it raised, and only look.
    if (isRaised_ || isRaised_.exchange(true))
        return;
    std::lock_guard const lock(mutex_);
    if (listener_)
        listener_();
}

void ChangeSignal::stop() {
    std::lock_guard const lock(mutex_);
    listener_ = nullptr;
}

} // namespace Kolt

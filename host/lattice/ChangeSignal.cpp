#include <lattice/ChangeSignal.hpp>

#include <algorithm>
#include <lattice/Parameter.hpp>
#include <utility>

namespace Kolt {

ChangeSignal::ChangeSignal(std::function<void()> listener) : listener_(std::move(listener)) {}

ChangeSignal::~ChangeSignal() = default;

void ChangeSignal::raise(VParameter const& parameter) {
    // A simulation changes thousands, and then only looks.
    if (isFull_)
        return;
    std::lock_guard const lock(mutex_);
    note(Changed(&parameter));
    if (!std::exchange(isRaised_, true) && listener_)
        listener_();
}

void ChangeSignal::note(Changed const& changed) {
    if (std::find(changed_.begin(), changed_.end(), changed) != changed_.end())
        return;
    if (changed_.size() < mostNoted)
        changed_.push_back(changed);
    else
        isFull_ = true;
}

std::optional<std::vector<ChangeSignal::Changed>> ChangeSignal::awaitNext() {
    std::lock_guard const lock(mutex_);
    isRaised_ = false;
    auto noted = std::exchange(changed_, {});
    if (isFull_.exchange(false))
        return std::nullopt;
    return noted;
}

void ChangeSignal::stop() {
    std::lock_guard const lock(mutex_);
    listener_ = nullptr;
}

} // namespace Kolt

#pragma once

#include <atomic>
#include <functional>
#include <mutex>
#include <tessera/Export.hpp>

namespace Kolt {

/// Tells one listener that a value of many parameters has changed (VParameter::setChangeSignal): at the first change,
/// and then no more until it is asked to again. So a change that nobody sees costs a flag, and not a notification.
/// Any thread.
class TALO_EXPORT ChangeSignal {
public:
    /// The listener is called on the thread that changed the value; it must neither change values nor call the signal.
    explicit ChangeSignal(std::function<void()> listener);
    ~ChangeSignal();
    ChangeSignal(ChangeSignal const&) = delete;
    ChangeSignal& operator=(ChangeSignal const&) = delete;

    /// Says that a value has changed. Calls the listener unless that was said since awaitNext().
    void raise();
    /// Has the listener called at the next change again.
    void awaitNext() { isRaised_ = false; }
    /// Forgets the listener. When this returns, it is not running and is never called again.
    void stop();

private:
    std::atomic<bool> isRaised_{false};
    std::mutex mutex_;
    std::function<void()> listener_;
};

} // namespace Kolt

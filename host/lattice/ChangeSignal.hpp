#pragma once

#include <atomic>
#include <functional>
#include <mutex>
#include <optional>
#include <tessera/Export.hpp>
#include <tessera/Reference.hpp>
#include <vector>

namespace Kolt {

class ValueNotifierList;
class VParameter;

/// Tells one listener that a value of many parameters has changed (VParameter::setChangeSignal): at the first change,
/// and then no more until it is asked to again. So a change that nobody sees costs a flag, and not a notification.
/// Notes of which few parameters they were, as one that a person edits. Any thread.
class TALO_EXPORT ChangeSignal {
public:
    /// A parameter whose value has changed; it may be gone.
    using Changed = Tessera::WeakPtr<VParameter const, ValueNotifierList>;
    /// How many parameters are noted at most.
    static constexpr std::size_t mostNoted = 16;

    /// The listener is called on the thread that changed the value; it must neither change values nor call the signal.
    explicit ChangeSignal(std::function<void()> listener);
    ~ChangeSignal();
    ChangeSignal(ChangeSignal const&) = delete;
    ChangeSignal& operator=(ChangeSignal const&) = delete;

    /// Says that a value of the parameter has changed. Calls the listener unless that was said of any since
    /// awaitNext().
    void raise(VParameter const& parameter);
    /// Has the listener called at the next change again. Returns of which parameters it was said since the last call,
    /// each once; nothing if they were more than mostNoted.
    std::optional<std::vector<Changed>> awaitNext();
    /// Forgets the listener. When this returns, it is not running and is never called again.
    void stop();

private:
    void note(Changed const& changed);

    // Whether more parameters have changed than are noted.
    std::atomic<bool> isFull_{false};
    std::mutex mutex_;
    bool isRaised_ = false;
    std::vector<Changed> changed_;
    std::function<void()> listener_;
};

} // namespace Kolt

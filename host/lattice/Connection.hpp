#pragma once

#include <memory>
#include <tessera/Export.hpp>

namespace Kolt {

/// Keeps a subscription: the subscribed function is called as long as the connection lives. It can be moved, not
/// copied; a default-constructed one holds no subscription. It may outlive what it is connected to. User-interface
/// thread.
class TALO_EXPORT Connection {
public:
    Connection() = default;
    /// Takes over what keeps the subscription alive and releases it at the end.
    explicit Connection(std::shared_ptr<void> subscription) : subscription_(std::move(subscription)) {}

    /// Ends the subscription. The function is not called any more, not even by a notification that is under way.
    void disconnect() { subscription_.reset(); }
    /// Whether the connection holds a subscription, also to something that was destroyed.
    bool isConnected() const { return subscription_ != nullptr; }

    /// Takes over what the other one keeps alive.
    Connection(Connection&&) = default;
    /// Ends the subscription that was held before.
    Connection& operator=(Connection&&) = default;
    ~Connection() = default;

private:
    std::shared_ptr<void> subscription_;
};

} // namespace Kolt

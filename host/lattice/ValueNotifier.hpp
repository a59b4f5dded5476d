#pragma once

#include <atomic>
#include <lattice/Context.hpp>
#include <lattice/Value.hpp>
#include <lattice/ValueMap.hpp>
#include <memory>
#include <mutex>
#include <tessera/AddressRange.hpp>
#include <tessera/Export.hpp>
#include <tessera/Intercube.hpp>
#include <vector>

namespace Kolt {

class NotifierGuard;

/// Is notified when a value changes. A notifier is owned by its maker; the lists refer to it weakly.
///
/// Notifications of one notifier exclude each other: one that another thread reports meanwhile follows afterwards. No
/// lock is held while a notifier is notified, so it may notify, change and destroy what it likes, itself included. But
/// it must not wait for a thread that may be destroying it, as its destructor waits for the notification to end.
class TALO_EXPORT ValueNotifier : public Tessera::ReferenceBase<ValueNotifier>, public Tessera::Intercube {
public:
    ValueNotifier();
    ~ValueNotifier() override;
    ValueNotifier(ValueNotifier const&) = delete;
    ValueNotifier& operator=(ValueNotifier const&) = delete;

    /// A value changed. `newValue` is the live value object, which may be null. `context` holds the pool of the change,
    /// if it belongs to one. `properties` is the parameter's property map if properties changed, and null if the value
    /// did. Called on the thread that reports the change, or on the NotificationThread if one is installed. If another
    /// thread is notifying this notifier at that moment, that one calls.
    virtual void onValueChange(ValuePtr const& newValue, VContext const& context, ValueMap const* properties) = 0;

    /// A list that contains the notifier, such as a parameter, is being destroyed: no strong reference to it can be
    /// made any more, but it may still count as alive. Called on the thread that destroys it, which waits for a
    /// notification of this notifier by another thread. Does nothing unless a derived class does. It must not throw.
    virtual void onListGone();

    /// Notifies this notifier alone, as a list that contains it would. The context holds the pool, as above.
    void notify(ValuePtr const& newValue, VContext const& context);

    /// All existing notifiers, in no particular order. A host that unloads a library needs them to know whose code is
    /// still in use.
    /// User-interface thread.
    static std::vector<ValueNotifier*> living();
    /// Forgets the notifiers that lie in a part of the memory that is gone, such as that of an unloaded library. They
    /// are not notified any more, and not used here. User-interface thread.
    static void abandon(Tessera::AddressRange const& range);

protected:
    /// Ends the notifications for good. Waits for a notification by another thread that is under way; one on this
    /// thread continues. A notifier that is notified by other threads must call it first in its destructor; for all
    /// others the base class does.
    void stopNotifications();

private:
    friend class ValueNotifierList;
    std::shared_ptr<NotifierGuard> guard_;
};

/// Notifiers in order of registration. The list refers to them weakly; a destroyed notifier is left out. Notifiers may
/// be added and notified on any thread.
class TALO_EXPORT ValueNotifierList : public Tessera::ReferenceBase<ValueNotifierList> {
public:
    ValueNotifierList();
    /// Calls onListGone() of its notifiers.
    ~ValueNotifierList() override;
    ValueNotifierList(ValueNotifierList const&) = delete;
    ValueNotifierList& operator=(ValueNotifierList const&) = delete;

    /// Adds a notifier at the end. Nothing happens for a destroyed or empty one, and for one that is in the list.
    void addNotifier(Tessera::WeakPtr<ValueNotifier> const& notifier) const;
    /// How many living notifiers the list contains.
    std::size_t size() const;

protected:
    /// How many notifiers the list remembers: the living, and those that died since the last one was added.
    std::size_t remembered() const { return snapshot()->size(); }
    /// Whether a notifier was ever added. Cheap, as simulations change many parameters of which few are shown.
    bool hasListeners() const { return used_.load(std::memory_order_acquire); }
    /// Notifies a snapshot of the list, in order and as ValueNotifier says, except `source` and notifiers that are
    /// destroyed meanwhile; then the members of `alsoNotify` that were not notified yet, the source included. Neither
    /// list is used after the first call of a notifier, so that notifiers may destroy them.
    void notify(Tessera::WeakPtr<ValueNotifier> const& source, ValueNotifierList const* alsoNotify,
                ValuePtr const& value, VContext const& context, ValueMap const* properties) const;

private:
    using Guards = std::vector<std::shared_ptr<NotifierGuard>>;
    std::shared_ptr<Guards const> snapshot() const;

    mutable std::mutex mutex_;
    // Never changed, but replaced, so that a snapshot is no copy: lists are notified far more often than they grow.
    // Null before a notifier is added, as most lists of a large network have none.
    mutable std::shared_ptr<Guards const> guards_;
    mutable std::atomic<bool> used_{false};
};

} // namespace Kolt

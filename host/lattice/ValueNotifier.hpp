#pragma once

#include <atomic>
#include <lattice/Context.hpp>
#include <lattice/Value.hpp>
#include <lattice/ValueMap.hpp>
#include <memory>
#include <tessera/Intercube.hpp>
#include <vector>

namespace Kolt {

/// Something that is told when a value changes. It stays its owner's; the lists that know it only watch it.
class ValueNotifier : public Tessera::ReferenceBase<ValueNotifier>, public Tessera::Intercube {
public:
    ValueNotifier();
    ~ValueNotifier() override;
    ValueNotifier(ValueNotifier const&) = delete;
    ValueNotifier& operator=(ValueNotifier const&) = delete;

    /// A value changed. `newValue` is the live value object, which may be null. `context` names the pool of the
    /// change, if it belongs to one. `properties` is the parameter's property map when properties changed and null
    /// when the value did. Called on the thread that reports the change.
    virtual void onValueChange(ValuePtr const& newValue, VContext const& context, ValueMap const* properties) = 0;

    /// All that live, in no order: a host that unloads a library must know whose code is still in use.
    /// User-interface thread.
    static std::vector<ValueNotifier*> living();

protected:
    /// Ends delivery to this notifier for good. A delivery that another thread is in the middle of is waited for;
    /// one on this thread goes on. A notifier that is told from other threads calls it first thing in its
    /// destructor; for all others the base does it.
    void stopNotifications();

private:
    friend class ValueNotifierList;
    class NotifierGuard;
    std::shared_ptr<NotifierGuard> guard_;
    // The chain of all that live.
    ValueNotifier* previous_ = nullptr;
    ValueNotifier* next_ = nullptr;
};

/// Notifiers in order of registration. It knows them weakly: one that dies leaves by itself.
/// May be extended and walked on any thread.
class ValueNotifierList : public Tessera::ReferenceBase<ValueNotifierList> {
public:
    ValueNotifierList();
    ~ValueNotifierList() override;
    ValueNotifierList(ValueNotifierList const&) = delete;
    ValueNotifierList& operator=(ValueNotifierList const&) = delete;

    /// Adds a notifier at the end. One that is gone, empty or already in the list is not added.
    void addNotifier(Tessera::WeakPtr<ValueNotifier> const& notifier) const;
    /// How many living notifiers the list knows.
    std::size_t size() const;

protected:
    /// Whether a notifier was ever added. Cheap, as a simulation changes many parameters of which few are shown.
    bool hasListeners() const { return used_.load(std::memory_order_acquire); }
    /// Notifies a snapshot of the list, in order, but for `source` and for notifiers that die meanwhile; then the
    /// members of `alsoNotify` that were not notified yet, the source included. Touches neither list after the first
    /// call of a notifier.
    void notify(Tessera::WeakPtr<ValueNotifier> const& source, ValueNotifierList const* alsoNotify,
                ValuePtr const& value, VContext const& context, ValueMap const* properties) const;

private:
    using Guards = std::vector<std::shared_ptr<ValueNotifier::NotifierGuard>>;
    Guards snapshot() const;

    mutable std::mutex mutex_;
    mutable Guards guards_;
    mutable std::atomic<bool> used_{false};
};

} // namespace Kolt

#include <lattice/ValueNotifier.hpp>

#include <algorithm>
#include <lattice/NotifierGuard.hpp>
#include <tessera/NoDestructor.hpp>

namespace Kolt {

namespace {

// Never destroyed: notifiers of other libraries may be destroyed after the statics of this one.
std::mutex& livingMutex() {
    static Tessera::NoDestructor<std::mutex> mutex;
    return *mutex;
}

// The head of the linked list of all notifiers.
ValueNotifier* firstLiving = nullptr;

} // namespace

ValueNotifier::ValueNotifier() : guard_(std::make_shared<NotifierGuard>(this)) {
    std::lock_guard const lock(livingMutex());
    next_ = firstLiving;
    if (next_)
        next_->previous_ = this;
    firstLiving = this;
}

ValueNotifier::~ValueNotifier() {
    stopNotifications();
    std::lock_guard const lock(livingMutex());
    (previous_ ? previous_->next_ : firstLiving) = next_;
    if (next_)
        next_->previous_ = previous_;
}

std::vector<ValueNotifier*> ValueNotifier::living() {
    std::lock_guard const lock(livingMutex());
    std::vector<ValueNotifier*> notifiers;
    for (auto* notifier = firstLiving; notifier; notifier = notifier->next_)
        notifiers.push_back(notifier);
    return notifiers;
}

void ValueNotifier::stopNotifications() {
    guard_->close();
}

void ValueNotifier::notify(ValuePtr const& newValue, VContext const& context) {
    // A notifier may destroy itself.
    auto const guard = guard_;
    guard->deliver({nullptr, newValue, context, nullptr});
}

ValueNotifierList::ValueNotifierList() = default;

ValueNotifierList::~ValueNotifierList() = default;

void ValueNotifierList::addNotifier(Tessera::WeakPtr<ValueNotifier> const& notifier) const {
    auto const living = notifier.strong();
    if (!living)
        return;
    std::lock_guard const lock(mutex_);
    guards_.erase(std::remove_if(guards_.begin(), guards_.end(), [](auto const& guard) { return !guard->notifier(); }),
                  guards_.end());
    if (std::find(guards_.begin(), guards_.end(), living->guard_) == guards_.end())
        guards_.push_back(living->guard_);
    used_.store(true, std::memory_order_release);
}

std::size_t ValueNotifierList::size() const {
    auto const guards = snapshot();
    return static_cast<std::size_t>(
        std::count_if(guards.begin(), guards.end(), [](auto const& guard) { return guard->notifier() != nullptr; }));
}

ValueNotifierList::Guards ValueNotifierList::snapshot() const {
    std::lock_guard const lock(mutex_);
    return guards_;
}

void ValueNotifierList::notify(Tessera::WeakPtr<ValueNotifier> const& source, ValueNotifierList const* alsoNotify,
                               ValuePtr const& value, VContext const& context, ValueMap const* properties) const {
    auto const guards = snapshot();
    auto const further = alsoNotify ? alsoNotify->snapshot() : Guards();
    auto const from = source.strong();
    auto const sourceGuard = from ? from->guard_ : nullptr;
    NotifierGuard::Report const report{this, value, context, properties};
    for (auto const& guard : guards) {
        if (guard != sourceGuard)
            guard->deliver(report);
    }
    for (auto const& guard : further) {
        bool const notified = guard != sourceGuard && std::find(guards.begin(), guards.end(), guard) != guards.end();
        if (!notified)
            guard->deliver(report);
    }
}

} // namespace Kolt

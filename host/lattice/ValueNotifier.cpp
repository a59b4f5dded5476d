#include <lattice/ValueNotifier.hpp>

#include <algorithm>
#include <iterator>
#include <lattice/NotifierGuard.hpp>
#include <tessera/NoDestructor.hpp>
#include <unordered_map>

namespace Kolt {

namespace {

struct LivingNotifiers {
    std::mutex mutex;
    std::unordered_map<ValueNotifier*, std::shared_ptr<NotifierGuard>> guards;
};

// Never destroyed: notifiers of other libraries may be destroyed after the statics of this one.
LivingNotifiers& livingNotifiers() {
    static Tessera::NoDestructor<LivingNotifiers> living;
    return *living;
}

} // namespace

ValueNotifier::ValueNotifier() : guard_(std::make_shared<NotifierGuard>(this)) {
    auto& living = livingNotifiers();
    std::lock_guard const lock(living.mutex);
    living.guards.emplace(this, guard_);
}

ValueNotifier::~ValueNotifier() {
    stopNotifications();
    auto& living = livingNotifiers();
    std::lock_guard const lock(living.mutex);
    living.guards.erase(this);
}

std::vector<ValueNotifier*> ValueNotifier::living() {
    auto& living = livingNotifiers();
    std::lock_guard const lock(living.mutex);
    std::vector<ValueNotifier*> notifiers;
    notifiers.reserve(living.guards.size());
    for (auto const& [notifier, guard] : living.guards)
        notifiers.push_back(notifier);
    return notifiers;
}

void ValueNotifier::abandon(Tessera::AddressRange const& range) {
    auto& living = livingNotifiers();
    std::vector<std::shared_ptr<NotifierGuard>> abandoned;
    {
        std::lock_guard const lock(living.mutex);
        for (auto entry = living.guards.begin(); entry != living.guards.end();) {
            bool const isGone = range.contains(entry->first);
            if (isGone)
                abandoned.push_back(entry->second);
            entry = isGone ? living.guards.erase(entry) : std::next(entry);
        }
    }
    for (auto const& guard : abandoned)
        guard->close();
}

void ValueNotifier::stopNotifications() {
    guard_->close();
}

void ValueNotifier::onListGone() {}

void ValueNotifier::notify(ValuePtr const& newValue, VContext const& context) {
    // A notifier may destroy itself.
    auto const guard = guard_;
    guard->deliver({nullptr, newValue, context, nullptr});
}

ValueNotifierList::ValueNotifierList() = default;

ValueNotifierList::~ValueNotifierList() {
    if (!hasListeners())
        return;
    auto const guards = snapshot();
    for (auto const& guard : *guards)
        guard->reportListGone();
}

void ValueNotifierList::addNotifier(Tessera::WeakPtr<ValueNotifier> const& notifier) const {
    auto const living = notifier.strong();
    if (!living)
        return;
    std::lock_guard const lock(mutex_);
    auto const isAlive = [](auto const& guard) { return guard->notifier() != nullptr; };
    auto guards = std::make_shared<Guards>();
    if (guards_)
        std::copy_if(guards_->begin(), guards_->end(), std::back_inserter(*guards), isAlive);
    if (std::find(guards->begin(), guards->end(), living->guard_) == guards->end())
        guards->push_back(living->guard_);
    guards_ = std::move(guards);
    used_.store(true, std::memory_order_release);
}

std::size_t ValueNotifierList::size() const {
    auto const guards = snapshot();
    return static_cast<std::size_t>(
        std::count_if(guards->begin(), guards->end(), [](auto const& guard) { return guard->notifier() != nullptr; }));
}

std::shared_ptr<ValueNotifierList::Guards const> ValueNotifierList::snapshot() const {
    static Tessera::NoDestructor<std::shared_ptr<Guards const>> none(std::make_shared<Guards>());
    std::lock_guard const lock(mutex_);
    return guards_ ? guards_ : *none;
}

void ValueNotifierList::notify(Tessera::WeakPtr<ValueNotifier> const& source, ValueNotifierList const* alsoNotify,
                               ValuePtr const& value, VContext const& context, ValueMap const* properties) const {
    auto const guards = snapshot();
    auto const further = alsoNotify ? alsoNotify->snapshot() : nullptr;
    auto const from = source.strong();
    auto const sourceGuard = from ? from->guard_ : nullptr;
    NotifierGuard::Report const report{this, value, context, properties};
    for (auto const& guard : *guards) {
        if (guard != sourceGuard)
            guard->deliver(report);
    }
    if (!further)
        return;
    for (auto const& guard : *further) {
        bool const notified = guard != sourceGuard && std::find(guards->begin(), guards->end(), guard) != guards->end();
        if (!notified)
            guard->deliver(report);
    }
}

} // namespace Kolt

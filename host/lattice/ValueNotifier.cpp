#include <algorithm>
#include <lattice/ValueNotifier.hpp>

namespace Kolt {

/// Delivery to a notifier and its leaving exclude each other. Recursive, as a notifier may be told again, or be
/// destroyed, while it is being told.
class ValueNotifier::DeliveryGate {
public:
    explicit DeliveryGate(ValueNotifier* notifier) : notifier_(notifier) {}

    void close() {
        std::lock_guard const lock(mutex_);
        notifier_ = nullptr;
    }
    void deliver(Tessera::StrongPtr<VValueBase> const& value, VContext const& context, ValueMap const* properties) {
        std::lock_guard const lock(mutex_);
        if (auto* const notifier = notifier_.load())
            notifier->onValueChange(value, context, properties);
    }
    ValueNotifier* notifier() const { return notifier_; }

private:
    std::recursive_mutex mutex_;
    std::atomic<ValueNotifier*> notifier_;
};

namespace {

// Immortal: notifiers of a library may go after the statics of this one.
std::mutex& livingMutex() {
    static auto& mutex = *new std::mutex;
    return mutex;
}

// The first of the chain of all that live.
ValueNotifier* firstLiving = nullptr;

} // namespace

ValueNotifier::ValueNotifier() : gate_(std::make_shared<DeliveryGate>(this)) {
    std::lock_guard const lock(livingMutex());
    next_ = firstLiving;
    if (next_)
        next_->previous_ = this;
    firstLiving = this;
}

ValueNotifier::~ValueNotifier() {
    leaveDelivery();
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

void ValueNotifier::leaveDelivery() {
    gate_->close();
}

ValueNotifierList::ValueNotifierList() = default;

ValueNotifierList::~ValueNotifierList() = default;

void ValueNotifierList::addNotifier(Tessera::WeakPtr<ValueNotifier> const& notifier) const {
    auto const living = notifier.strong();
    if (!living)
        return;
    std::lock_guard const lock(mutex_);
    gates_.erase(std::remove_if(gates_.begin(), gates_.end(), [](auto const& gate) { return !gate->notifier(); }),
                 gates_.end());
    if (std::find(gates_.begin(), gates_.end(), living->gate_) == gates_.end())
        gates_.push_back(living->gate_);
    used_.store(true, std::memory_order_release);
}

std::size_t ValueNotifierList::size() const {
    auto const gates = snapshot();
    return static_cast<std::size_t>(
        std::count_if(gates.begin(), gates.end(), [](auto const& gate) { return gate->notifier() != nullptr; }));
}

ValueNotifierList::Gates ValueNotifierList::snapshot() const {
    std::lock_guard const lock(mutex_);
    return gates_;
}

void ValueNotifierList::tell(Tessera::WeakPtr<ValueNotifier> const& source, ValueNotifierList const* alsoNotify,
                             Tessera::StrongPtr<VValueBase> const& value, VContext const& context,
                             ValueMap const* properties) const {
    auto const gates = snapshot();
    auto const further = alsoNotify ? alsoNotify->snapshot() : Gates();
    auto const from = source.strong();
    auto const fromGate = from ? from->gate_ : nullptr;
    for (auto const& gate : gates) {
        if (gate != fromGate)
            gate->deliver(value, context, properties);
    }
    for (auto const& gate : further) {
        bool const told = gate != fromGate && std::find(gates.begin(), gates.end(), gate) != gates.end();
        if (!told)
            gate->deliver(value, context, properties);
    }
}

} // namespace Kolt

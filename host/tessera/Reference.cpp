#include <tessera/Reference.hpp>

#include <tessera/LivingObjects.hpp>
#include <tessera/SpeakPtr.hpp>

namespace Tessera {

std::atomic<unsigned long> PointerID{0};

bool ReferenceControl::tryAddStrong() noexcept {
    if (!alive() || dying_.load(std::memory_order_acquire))
        return false;
    int count = strong_.load(std::memory_order_relaxed);
    do {
        // At zero an adopted object is being deleted; a watched one is simply not in use.
        if (count == 0 && adopted_.load(std::memory_order_acquire))
            return false;
    } while (!strong_.compare_exchange_weak(count, count + 1, std::memory_order_acq_rel, std::memory_order_relaxed));
    if (count == 0)
        addWeak();
    return true;
}

void ReferenceControl::adopt(std::type_info const& type, void const* address) {
    addStrong();
    // The dynamic type grows while constructors run: another type than at the first adoption means that the first
    // one happened in the constructor of a base.
    std::type_info const* first = nullptr;
    bool const isFirst = type_.compare_exchange_strong(first, &type);
    bool const hasGrown = !isFirst && *first != type;
    if (hasGrown) {
        type_ = &type;
        SpeakPtr::theSpeaker().SelfConstruction(type, address, object_.load());
    }
    if (!adopted_.exchange(true, std::memory_order_acq_rel) && strong_.load() > 1)
        SpeakPtr::theSpeaker().WarningUnctionChange(strong_.load(), weakCount(), type);
    // Last, as who finds the object among the living ones may take a further reference at once.
    if ((isFirst || hasGrown) && LivingObjects::concerns(type)) {
        isNoted_.store(true, std::memory_order_release);
        LivingObjects::add(*this, object_.load(), type);
    }
}

void ReferenceControl::lastStrongGone() noexcept {
    auto* const object = object_.load(std::memory_order_acquire);
    if (object && adopted_.load(std::memory_order_acquire) && !dying_.load(std::memory_order_acquire)) {
        // Counted during the hook, so that a reference that the hook takes and drops again is not the last one.
        strong_.fetch_add(1, std::memory_order_acq_rel);
        object->referenceHook();
        // Read before the count is given back: who has taken a reference on another thread may drop it at once, and the
        // counters with it.
        auto const& type = *type_.load();
        int const weak = weakCount();
        if (int const left = strong_.fetch_sub(1, std::memory_order_acq_rel) - 1; left > 0) {
            SpeakPtr::theSpeaker().DestructionCancelled(left, weak, type);
            return;
        }
        dying_ = true;
        delete object;
    }
    releaseWeak();
}

void ReferenceControl::releaseWeak() noexcept {
    if (users_.fetch_sub(1, std::memory_order_acq_rel) == 1)
        delete this;
}

int ReferenceControl::weakCount() const noexcept {
    return users_.load() - (strong_.load() > 0 ? 1 : 0) - 1;
}

void ReferenceControl::abandon() noexcept {
    dying_ = true;
    if (object_.exchange(nullptr))
        releaseWeak();
}

void ReferenceControl::objectGone() {
    if (isNoted_.load(std::memory_order_acquire))
        LivingObjects::remove(*this);
    if (adopted_.load() && strong_.load() > 0)
        SpeakPtr::theSpeaker().DestructionAssertion(strong_.load(), weakCount(), *type_.load());
    // An abandoned object has given its share back.
    abandon();
}

ReferenceCounted::ReferenceCounted() : control_(new ReferenceControl(this)) {}

ReferenceCounted::ReferenceCounted(ReferenceCounted const&) : ReferenceCounted() {}

ReferenceCounted::~ReferenceCounted() {
    control_->objectGone();
}

void ReferenceCounted::referenceHook() {}

} // namespace Tessera

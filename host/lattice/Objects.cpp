#include <algorithm>
#include <chrono>
#include <cstdio>
#include <lattice/ActionNotifier.hpp>
#include <lattice/Object.hpp>
#include <lattice/Scheduler.hpp>
#include <limits>
#include <map>
#include <tessera/NoDestructor.hpp>

namespace Kolt {

namespace {

// The lists below are immortal: plug-ins come and go after the statics of this library.
std::vector<VActionNotifier*>& actionNotifiers() {
    static Tessera::NoDestructor<std::vector<VActionNotifier*>> notifiers;
    return *notifiers;
}

struct Managed {
    std::string domain;
    VManagedObject* object;
};

std::vector<Managed>& managedObjects() {
    static Tessera::NoDestructor<std::vector<Managed>> objects;
    return *objects;
}

struct Waiting {
    Tessera::WeakPtr<VObject, VManagedObjectBase> object;
    PoolPtr pool;
};

struct Queue {
    std::chrono::steady_clock::time_point const start = std::chrono::steady_clock::now();
    // Equal keys stay in order of insertion.
    std::multimap<double, Waiting> entries;
    std::function<void()> wakeUp;
};

Queue& queue() {
    static Tessera::NoDestructor<Queue> waiting;
    return *waiting;
}

} // namespace

VActionNotifier::VActionNotifier() {
    actionNotifiers().push_back(this);
}

VActionNotifier::~VActionNotifier() {
    auto& notifiers = actionNotifiers();
    notifiers.erase(std::remove(notifiers.begin(), notifiers.end(), this), notifiers.end());
}

void VActionNotifier::Warning(std::string const& text) {
    // Notifiers may come and go while they are told, a new one also at the address of one that went.
    std::vector<Tessera::WeakPtr<VActionNotifier>> notifiers;
    for (auto* const notifier : actionNotifiers())
        notifiers.emplace_back(notifier);
    if (notifiers.empty())
        std::fprintf(stderr, "%s\n", text.c_str());
    for (auto const& notifier : notifiers) {
        if (auto const living = notifier.strong())
            living->onWarning(text);
    }
}

VManagedObjectBase::VManagedObjectBase() = default;

VManagedObjectBase::~VManagedObjectBase() = default;

VManagedObjectIterator::~VManagedObjectIterator() = default;

VManagedObject::VManagedObject(std::type_info const& domain, std::string const& name, int priority)
    : MutableName(name), domain_(domain.name()), priority_(priority) {
    managedObjects().push_back({domain_, this});
}

VManagedObject::~VManagedObject() {
    auto& objects = managedObjects();
    objects.erase(
        std::remove_if(objects.begin(), objects.end(), [&](auto const& managed) { return managed.object == this; }),
        objects.end());
}

void VManagedObject::traverse(std::type_info const& domain, VManagedObjectIterator& iterator, int lowestPriority,
                              int highestPriority) {
    std::vector<Tessera::WeakPtr<VManagedObject, VManagedObjectBase>> walked;
    for (auto const& managed : managedObjects()) {
        int const priority = managed.object->priority();
        if (managed.domain == domain.name() && priority >= lowestPriority && priority <= highestPriority)
            walked.emplace_back(managed.object);
    }
    for (auto const& object : walked) {
        auto const living = object.strong();
        if (living && !iterator.visit(*living))
            return;
    }
}

VSlot::VSlot(std::string name, ParameterPtr const& parameter) : name_(std::move(name)), parameter_(parameter) {}

VSlot::~VSlot() = default;

VSlotContainer::~VSlotContainer() = default;

void VSlotContainer::addSlot(Tessera::StrongPtr<VSlot> const& slot) {
    if (slot)
        slots_.push_back(slot);
}

Tessera::StrongPtr<VSlot> VSlotContainer::findSlot(ParameterPtr const& parameter) const {
    if (!parameter)
        return nullptr;
    auto const found =
        std::find_if(slots_.begin(), slots_.end(), [&](auto const& slot) { return slot->parameter() == parameter; });
    return found == slots_.end() ? nullptr : *found;
}

VObject::VObject(std::string const& name) : VManagedDomainObject<VObject>(name) {}

VObject::~VObject() = default;

void VObject::addParameter(ParameterPtr const& parameter) {
    if (parameter)
        parameters_.push_back(parameter);
}

void VObject::removeParameter(ParameterPtr const& parameter) {
    // Held until the list is in order again: the parameter may be told of as it dies.
    auto const held = parameter;
    parameters_.erase(std::remove(parameters_.begin(), parameters_.end(), held), parameters_.end());
}

ParameterPtr VObject::findParameter(std::string const& name) const {
    auto const found = std::find_if(parameters_.begin(), parameters_.end(),
                                    [&](auto const& parameter) { return parameter->Name() == name; });
    return found == parameters_.end() ? nullptr : *found;
}

void VObject::run(PoolPtr const&) {}

void VScheduler::schedule(ObjectPtr const& object, double time, PoolPtr const& pool) {
    if (!object)
        return;
    // Not a number cannot be ordered; it is as due as the past.
    queue().entries.insert({time == time ? std::max(time, 0.0) : 0.0, {object, pool}});
    auto const wakeUp = queue().wakeUp;
    if (wakeUp)
        wakeUp();
}

int VScheduler::runDue() {
    auto& entries = queue().entries;
    auto const end = entries.upper_bound(clock());
    std::vector<Waiting> due;
    for (auto entry = entries.begin(); entry != end; ++entry)
        due.push_back(entry->second);
    entries.erase(entries.begin(), end);
    int count = 0;
    for (auto const& waiting : due) {
        if (auto const object = waiting.object.strong()) {
            object->run(waiting.pool);
            ++count;
        }
    }
    return count;
}

int VScheduler::waiting() {
    return static_cast<int>(queue().entries.size());
}

double VScheduler::clock() {
    return std::chrono::duration<double>(std::chrono::steady_clock::now() - queue().start).count();
}

double VScheduler::nextTime() {
    auto const& entries = queue().entries;
    return entries.empty() ? -1.0 : entries.begin()->first;
}

void VScheduler::setWakeUp(std::function<void()> wakeUp) {
    queue().wakeUp = std::move(wakeUp);
}

} // namespace Kolt

#include <lattice/ManagedObject.hpp>

#include <map>
#include <tessera/MakeStrong.hpp>
#include <tessera/NoDestructor.hpp>
#include <vector>

namespace Kolt {

namespace {

struct Managed {
    std::string domain;
    int priority;
    VManagedObject* object;
    // Empty for one that was abandoned, because its code was unloaded: it must not be used.
    Tessera::WeakPtr<VManagedObject, VManagedObjectBase> reference;
};

struct Registry {
    // By number, so in order of construction.
    std::map<unsigned long, Managed> objects;
    unsigned long lastNumber = 0;
};

// Never destroyed: plug-ins may be unloaded after the statics of this library are gone.
Registry& registry() {
    static Tessera::NoDestructor<Registry> all;
    return *all;
}

} // namespace

VManagedObjectBase::VManagedObjectBase() = default;

VManagedObjectBase::~VManagedObjectBase() = default;

VManagedObjectIterator::~VManagedObjectIterator() = default;

VManagedObject::VManagedObject(std::type_info const& domain, std::string const& name, int priority)
    : MutableName(name), domain_(domain.name()), priority_(priority), number_(++registry().lastNumber) {
    registry().objects.emplace(number_, Managed{domain_, priority_, this, Tessera::watch<VManagedObject>(this)});
}

VManagedObject::~VManagedObject() {
    registry().objects.erase(number_);
}

void VManagedObject::traverse(std::type_info const& domain, VManagedObjectIterator& iterator, int lowestPriority,
                              int highestPriority) {
    std::vector<Tessera::WeakPtr<VManagedObject, VManagedObjectBase>> walked;
    for (auto const& [number, managed] : registry().objects) {
        bool const isInRange = managed.priority >= lowestPriority && managed.priority <= highestPriority;
        if (managed.domain == domain.name() && isInRange)
            walked.push_back(managed.reference);
    }
    for (auto const& object : walked) {
        auto const living = object.strong();
        if (living && !iterator.visit(*living))
            return;
    }
}

std::vector<VManagedObject*> VManagedObject::living() {
    std::vector<VManagedObject*> living;
    for (auto const& [number, managed] : registry().objects) {
        if (managed.reference.alive())
            living.push_back(managed.object);
    }
    return living;
}

} // namespace Kolt

#include <lattice/ManagedObject.hpp>

#include <algorithm>
#include <vector>

namespace Kolt {

namespace {

struct Managed {
    std::string domain;
    VManagedObject* object;
};

// Immortal: plug-ins come and go after the statics of this library.
std::vector<Managed>& managedObjects() {
    static auto& objects = *new std::vector<Managed>;
    return objects;
}

} // namespace

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

} // namespace Kolt

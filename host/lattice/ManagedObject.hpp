#pragma once

#include <string>
#include <tessera/Intercube.hpp>
#include <tessera/MutableName.hpp>
#include <typeinfo>

namespace Kolt {

class VManagedObject;

/// The counters of a managed object.
class VManagedObjectBase : public Tessera::ReferenceBase<VManagedObjectBase> {
public:
    VManagedObjectBase();
    ~VManagedObjectBase() override;
};

/// What a walk over managed objects does with each of them.
class VManagedObjectIterator {
public:
    virtual ~VManagedObjectIterator();
    /// Called once for each object; false ends the walk.
    virtual bool visit(VManagedObject& object) = 0;
};

/// A named object that the host manages and can enumerate. It belongs to a domain, a type by whose name it is found,
/// and has a priority. The order of an object's life is the order of the walk. Loading thread or user-interface
/// thread.
class VManagedObject : public Tessera::Intercube, public Tessera::MutableName, public virtual VManagedObjectBase {
public:
    VManagedObject(std::type_info const& domain, std::string const& name, int priority);
    ~VManagedObject() override;
    VManagedObject(VManagedObject const&) = delete;
    VManagedObject& operator=(VManagedObject const&) = delete;

    int priority() const { return priority_; }

    /// Shows each living object of a domain whose priority lies between both bounds, inclusive, to the iterator. Walks
    /// a snapshot: objects made on the way are not shown, objects that die are left out.
    static void traverse(std::type_info const& domain, VManagedObjectIterator& iterator, int lowestPriority,
                         int highestPriority);

private:
    std::string const domain_;
    int const priority_;
};

/// A managed object of the domain T.
template <typename T>
class VManagedDomainObject : public VManagedObject {
public:
    explicit VManagedDomainObject(std::string const& name, int priority = 0)
        : VManagedObject(typeid(T), name, priority) {}
};

} // namespace Kolt

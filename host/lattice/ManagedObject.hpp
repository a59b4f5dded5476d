#pragma once

#include <string>
#include <tessera/Export.hpp>
#include <tessera/Intercube.hpp>
#include <tessera/MutableName.hpp>
#include <typeinfo>
#include <vector>

namespace Kolt {

class VManagedObject;

/// The reference counters of a managed object: a virtual base, so that there is one set of counters per object.
class TALO_EXPORT VManagedObjectBase : public Tessera::ReferenceBase<VManagedObjectBase> {
public:
    VManagedObjectBase();
    ~VManagedObjectBase() override;
};

/// The visitor of VManagedObject::traverse.
class TALO_EXPORT VManagedObjectIterator {
public:
    virtual ~VManagedObjectIterator();
    /// Called once for each object; false ends the traversal.
    virtual bool visit(VManagedObject& object) = 0;
};

/// A named object that the host manages and can enumerate. It belongs to a domain, which is a type compared by its
/// name, and has a priority. Loading thread or user-interface thread.
class TALO_EXPORT VManagedObject : public Tessera::Intercube,
                                   public Tessera::MutableName,
                                   public virtual VManagedObjectBase {
public:
    /// The name is UTF-8 and need not be unique. The meaning of the priority is the domain's.
    VManagedObject(std::type_info const& domain, std::string const& name, int priority);
    ~VManagedObject() override;
    VManagedObject(VManagedObject const&) = delete;
    VManagedObject& operator=(VManagedObject const&) = delete;

    /// The priority; its meaning is the domain's.
    int priority() const { return priority_; }

    /// Visits each living object of a domain whose priority lies between both bounds, inclusive, in order of
    /// construction. Objects that are made meanwhile are left out, and so are those that are destroyed before their
    /// turn.
    static void traverse(std::type_info const& domain, VManagedObjectIterator& iterator, int lowestPriority,
                         int highestPriority);
    /// All existing managed objects of all domains, in order of construction.
    static std::vector<VManagedObject*> living();

private:
    std::string const domain_;
    int const priority_;
    // The object's key among all managed objects.
    unsigned long const number_;
};

/// A managed object of the domain T.
template <typename T>
class VManagedDomainObject : public VManagedObject {
public:
    /// The name is UTF-8. The meaning of the priority is the domain's.
    explicit VManagedDomainObject(std::string const& name, int priority = 0)
        : VManagedObject(typeid(T), name, priority) {}
};

} // namespace Kolt

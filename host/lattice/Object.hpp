#pragma once

#include <lattice/ManagedObject.hpp>
#include <lattice/Slot.hpp>
#include <tessera/Export.hpp>

namespace Kolt {

/// An object of a network. It owns its parameters and slots, and has work to do when it is scheduled. Owned by strong
/// references (ObjectPtr). User-interface thread.
class TALO_EXPORT VObject : public VManagedDomainObject<VObject>, public VSlotContainer {
public:
    /// The name is UTF-8; networks require that it is unique.
    explicit VObject(std::string const& name);
    ~VObject() override;

    /// Adds a parameter at the end; null is ignored.
    void addParameter(ParameterPtr const& parameter);
    /// Removes a parameter, which is destroyed unless somebody else holds it. Ignored if the object does not have it.
    void removeParameter(ParameterPtr const& parameter);
    /// The first parameter with the name, found in linear time; null if there is none.
    ParameterPtr findParameter(std::string const& name) const;
    /// In the order in which they were added.
    std::vector<ParameterPtr> const& parameters() const { return parameters_; }

    /// The object's work in a pool, which may be null. Called by the scheduler (VScheduler). Does nothing unless it is
    /// overridden.
    virtual void run(PoolPtr const& pool);

private:
    /// The parameter is no longer one of this object.
    void leave(VParameter& parameter) const;

    std::vector<ParameterPtr> parameters_;
};

using ObjectPtr = Tessera::StrongPtr<VObject, VManagedObjectBase>;

} // namespace Kolt

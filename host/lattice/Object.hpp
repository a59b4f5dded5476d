#pragma once

#include <lattice/ManagedObject.hpp>
#include <lattice/Slot.hpp>

namespace Kolt {

/// An object of a network: parameters, which it owns, slots, and work to do when it is scheduled. Owned by strong
/// references. User-interface thread.
class VObject : public VManagedDomainObject<VObject>, public VSlotContainer {
public:
    explicit VObject(std::string const& name);
    ~VObject() override;

    /// Adds a parameter at the end; null is ignored.
    void addParameter(ParameterPtr const& parameter);
    /// Gives a parameter up; it dies unless somebody else holds it.
    void removeParameter(ParameterPtr const& parameter);
    /// A parameter by its name; null when there is none.
    ParameterPtr findParameter(std::string const& name) const;
    std::vector<ParameterPtr> const& parameters() const { return parameters_; }

    /// The object's work, in a pool, which may be null. Called by the scheduler. Does nothing.
    virtual void run(PoolPtr const& pool);

private:
    std::vector<ParameterPtr> parameters_;
};

using ObjectPtr = Tessera::StrongPtr<VObject, VManagedObjectBase>;

} // namespace Kolt

#pragma once

#include <lattice/ManagedObject.hpp>
#include <lattice/Slot.hpp>
#include <memory>
#include <tessera/Export.hpp>
#include <unordered_map>

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
    /// The first parameter with the name; null if there is none. In a long list only the first search after a
    /// parameter was added or removed depends on the number of parameters.
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
    // The first place of each name; null until a long list is searched.
    mutable std::unique_ptr<std::unordered_map<std::string, std::size_t>> places_;
};

using ObjectPtr = Tessera::StrongPtr<VObject, VManagedObjectBase>;

} // namespace Kolt

#pragma once

#include <lattice/ManagedObject.hpp>
#include <lattice/Parameter.hpp>

namespace Kolt {

/// A place of an object that a parameter can be bound to: the object runs when somebody schedules it for the slot.
class VSlot : public Tessera::ReferenceBase<VSlot> {
public:
    /// The slot refers to the parameter weakly.
    VSlot(std::string name, ParameterPtr const& parameter);
    ~VSlot() override;
    std::string const& Name() const { return name_; }
    /// The bound parameter; null when it is gone.
    ParameterPtr parameter() const { return parameter_.strong(); }

private:
    std::string name_;
    ParameterRef parameter_;
};

/// Something with slots, which it owns.
class VSlotContainer {
public:
    virtual ~VSlotContainer();
    void addSlot(Tessera::StrongPtr<VSlot> const& slot);
    /// The first slot bound to the parameter; null when there is none, and for a null parameter.
    Tessera::StrongPtr<VSlot> findSlot(ParameterPtr const& parameter) const;
    std::vector<Tessera::StrongPtr<VSlot>> const& slotList() const { return slots_; }

private:
    std::vector<Tessera::StrongPtr<VSlot>> slots_;
};

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

#pragma once

#include <lattice/Parameter.hpp>
#include <string>
#include <vector>

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

} // namespace Kolt

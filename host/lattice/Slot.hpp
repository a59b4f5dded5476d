#pragma once

#include <lattice/Parameter.hpp>
#include <string>
#include <tessera/Export.hpp>
#include <vector>

namespace Kolt {

/// A binding of an object to one of its parameters. A host that changes the parameter can find the slot and schedule
/// the object to run (VScheduler). User-interface thread.
class TALO_EXPORT VSlot : public Tessera::ReferenceBase<VSlot> {
public:
    /// The slot refers to the parameter weakly. The name is UTF-8.
    VSlot(std::string name, ParameterPtr const& parameter);
    ~VSlot() override;
    /// The name, UTF-8.
    std::string const& Name() const { return name_; }
    /// The bound parameter; null if it was destroyed.
    ParameterPtr parameter() const { return parameter_.strong(); }

private:
    std::string name_;
    ParameterRef parameter_;
};

/// An object with slots, which it owns. User-interface thread.
class TALO_EXPORT VSlotContainer {
public:
    virtual ~VSlotContainer();
    /// Adds a slot at the end; null is ignored.
    void addSlot(Tessera::StrongPtr<VSlot> const& slot);
    /// The first slot that is bound to the parameter; null if there is none, and for a null parameter.
    Tessera::StrongPtr<VSlot> findSlot(ParameterPtr const& parameter) const;
    /// The slots, in the order in which they were added.
    std::vector<Tessera::StrongPtr<VSlot>> const& slotList() const { return slots_; }

private:
    std::vector<Tessera::StrongPtr<VSlot>> slots_;
};

} // namespace Kolt

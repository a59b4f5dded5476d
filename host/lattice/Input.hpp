#pragma once

#include <lattice/Parameter.hpp>
#include <tessera/Export.hpp>

namespace Kolt {

/// The host's side of an input. An input edits one parameter, its owner, and is notified of the owner's changes. It is
/// owned by its maker, usually as a part of a widget. User-interface thread.
class TALO_EXPORT VInputBase : public ValueNotifier {
public:
    /// The owner is held weakly and may be destroyed already.
    explicit VInputBase(ParameterRef const& owner);
    ~VInputBase() override;

    /// Adds the input to the owner's list of notifiers. Call it last in the constructor: changes are delivered from now
    /// on. Nothing happens if the owner was destroyed.
    void activateNotification() const;
    /// The edited parameter, which may be destroyed.
    ParameterRef const& owner() const { return owner_; }

private:
    ParameterRef const owner_;
};

/// An input for values of type T. Pools may be null, which counts as no pool; member names are empty for values that
/// are not compound.
template <typename T>
class VInput : public VInputBase {
public:
    using VInputBase::VInputBase;

    /// Reads the value that the owner has in the pool, without creating one. False if there is none of type T.
    virtual bool fetchValue(PoolPtr const& pool, std::string const& member) = 0;
    /// Writes a value and notifies the owner's other notifiers and those of `alsoNotify`, which may be null. False if
    /// the value was not accepted.
    virtual bool setValue(PoolPtr const& pool, std::string const& member, T const& newValue,
                          ValueNotifierList const* alsoNotify) = 0;
    /// Reads the value that the owner has in the pool, creating it if it is missing. False, and `out` unchanged, if
    /// there is none of type T.
    virtual bool getValue(PoolPtr const& pool, std::string const& member, T& out) = 0;
};

} // namespace Kolt

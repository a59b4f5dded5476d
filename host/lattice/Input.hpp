#pragma once

#include <lattice/Parameter.hpp>

namespace Kolt {

/// The host's side of an input: something that edits one parameter, its owner, and is told of its changes. Whoever
/// made it owns it. User-interface thread.
class VInputBase : public ValueNotifier {
public:
    /// The owner is held weakly and may be gone already.
    explicit VInputBase(ParameterRef const& owner);
    ~VInputBase() override;

    /// From now on the owner's changes are delivered to the input. Nothing happens where the owner is gone.
    void activateNotification() const;
    /// The edited parameter, which may be gone.
    ParameterRef const& owner() const { return owner_; }

private:
    ParameterRef const owner_;
};

/// An input for values of type T.
template <typename T>
class VInput : public VInputBase {
public:
    using VInputBase::VInputBase;

    /// Takes the value that the owner has in the pool, without creating one. False where there is none of type T.
    virtual bool fetchValue(PoolPtr const& pool, std::string const& member) = 0;
    /// Writes a value and tells the owner's other notifiers. False when it was not accepted.
    virtual bool setValue(PoolPtr const& pool, std::string const& member, T const& newValue,
                          ValueNotifierList const* alsoNotify) = 0;
    /// Reads the value that the owner has in the pool, creating it if it is missing. False where there is none of
    /// type T.
    virtual bool getValue(PoolPtr const& pool, std::string const& member, T& out) = 0;
};

} // namespace Kolt

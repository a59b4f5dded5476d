#pragma once

#include <lattice/Value.hpp>
#include <tessera/MakeStrong.hpp>
#include <vector>

namespace Kolt {

/// Makes value objects of one type for a caller that knows only the type's name. Usually a static object of the library
/// that defines the type; the host only watches it. Loading thread or user-interface thread. Prints nothing.
class TALO_EXPORT VValueCreator : public Tessera::ReferenceBase<VValueCreator> {
public:
    VValueCreator();
    ~VValueCreator() override;

    /// A new value object with the type's default value. The caller's reference owns it.
    [[nodiscard]] virtual ValuePtr createValue() const = 0;

    /// Registers a creator under the readable name of its type (Tessera::Typename). The creator stays its owner's and
    /// is forgotten when it is destroyed. Several may be registered under one name; the first that lives is used. An
    /// empty creator is ignored.
    static void registerCreator(Tessera::WeakPtr<VValueCreator> const& creator, std::string const& typeName);
    /// A new value object of the named type; null if no creator is registered for it.
    [[nodiscard]] static ValuePtr create(std::string const& typeName);
    /// How many living creators are registered under the name.
    static int registered(std::string const& typeName);
    /// All living creators that are registered, in order of registration.
    static std::vector<Tessera::StrongPtr<VValueCreator>> living();
};

/// The creator of VValue<T> objects. T must be default constructible.
template <typename T>
class TypedValueCreator : public VValueCreator {
public:
    ValuePtr createValue() const override { return makeValue<T>(T()); }
};

/// Makes a TypedValueCreator<T> and registers it; a second call changes nothing. The creator lives in the library that
/// calls this first and dies with it.
template <typename T>
void registerValueCreatorOnce() {
    static TypedValueCreator<T> creator;
    static bool registered = false;
    if (registered)
        return;
    registered = true;
    VValueCreator::registerCreator(Tessera::watch<VValueCreator>(&creator), Tessera::Typename(typeid(T)));
}

} // namespace Kolt

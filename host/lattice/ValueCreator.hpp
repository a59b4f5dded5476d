#pragma once

#include <lattice/Value.hpp>

namespace Kolt {

/// Makes value objects of one type for whoever knows only the type's name. Loading thread or user-interface thread.
class VValueCreator : public Tessera::ReferenceBase<VValueCreator> {
public:
    VValueCreator();
    ~VValueCreator() override;

    /// A new value object with the type's default value.
    virtual ValuePtr createValue() const = 0;

    /// Makes a creator known under the readable name of its type (Tessera::Typename). The creator stays its
    /// owner's and leaves when it is destroyed. Several may stand under one name; the first that lives is used.
    /// An empty creator is ignored.
    static void registerCreator(Tessera::WeakPtr<VValueCreator> const& creator, std::string const& typeName);
    /// A new value object of the named type; null when no creator for it is known.
    static ValuePtr create(std::string const& typeName);
    /// How many living creators stand under the name.
    static int registered(std::string const& typeName);
};

/// The creator of VValue<T> objects.
template <typename T>
class TypedValueCreator : public VValueCreator {
public:
    ValuePtr createValue() const override { return makeValue<T>(T()); }
};

/// Makes this library's TypedValueCreator<T> and registers it, once, however often it is called. It goes with the
/// library that called first.
template <typename T>
void registerValueCreatorOnce() {
    static TypedValueCreator<T> creator;
    static bool registered = false;
    if (registered)
        return;
    registered = true;
    VValueCreator::registerCreator(Tessera::WeakPtr<VValueCreator>(&creator), Tessera::Typename(typeid(T)));
}

} // namespace Kolt

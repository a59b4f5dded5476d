#include <lattice/EditedValue.hpp>

namespace Kolt {

std::string missingValueType(VParameter const& parameter, PoolPtr const& pool) {
    using OneText = std::array<std::string, 1>;
    auto const value = parameter.effectiveValue(pool);
    bool const isArray =
        typedValue<OneText>(value.get()) && parameter.declaredType() == Tessera::Typename(typeid(OneText));
    return isArray ? Tessera::Typename(typeid(std::string)) : std::string();
}

} // namespace Kolt

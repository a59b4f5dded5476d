// Never unregisters the format of its own type.
#include <lattice/Initialization.hpp>
#include <lattice/ValueFormat.hpp>
#include <tessera/NoDestructor.hpp>

namespace Bad {

struct Left {
    bool operator==(Left const&) const { return true; }
};

} // namespace Bad

template <>
struct Kolt::VValueTrait<Bad::Left> : ValueTraitDefaults<Bad::Left> {
    static std::string Text(Bad::Left const&) { return "left"; }
    static bool setValueFromText(Bad::Left&, std::string const& text) { return text == "left"; }
};

static Tessera::NoDestructor<Kolt::TypedValueFormat<Bad::Left>> format("left");

extern "C" __attribute__((visibility("default"))) bool
TALO_API_2023_MAR_29__leaves_format(Kolt::VInitialization const* host) {
    return host->IsCompatible("TALO_API_VERSION");
}

#pragma once

#include <string>
#include <tessera/Export.hpp>
#include <typeinfo>

namespace Tessera {

/// The readable name of a type, used in messages and as the key of a type: "bool", "std::string",
/// "Tessera::StrongPtr<Kolt::VAction>". Repeated and default template arguments are left out. The name is a copy, so it
/// outlives the library that defined the type. Any thread; prints nothing.
TALO_EXPORT std::string Typename(std::type_info const& type);

} // namespace Tessera

#include <lattice/Initialization.hpp>

#include <lattice/HostObserver.hpp>

namespace Kolt {

VInitialization::VInitialization() = default;

VInitialization::~VInitialization() = default;

char const* VInitialization::apiKey() {
    return "TALO_API_VERSION";
}

void VInitialization::initPlugin(InitPluginReason reason, char const* pluginName, char const* key) {
    HostObserver::theObserver().pluginCalled(reason, pluginName ? pluginName : "", key ? key : "");
}

bool VInitialization::IsCompatible(char const* key) const {
    return key && std::string(key) == apiKey();
}

} // namespace Kolt

#include <lattice/HostObserver.hpp>
#include <tessera/NoDestructor.hpp>

namespace Kolt {

HostObserver::~HostObserver() = default;

void HostObserver::creatorRegistered(std::string const&, VInputCreatorBase const&) {}

void HostObserver::creatorRefused(std::string const&) {}

void HostObserver::creatorUnregistered(std::string const&, VInputCreatorBase const&) {}

void HostObserver::valueCreatorRegistered(std::string const&) {}

void HostObserver::pluginCalled(VInitialization::InitPluginReason, std::string const&, std::string const&) {}

namespace {

HostObserver*& installedObserver() {
    static HostObserver* observer = nullptr;
    return observer;
}

} // namespace

HostObserver& HostObserver::theObserver() {
    static Tessera::NoDestructor<HostObserver> nobody;
    auto* const observer = installedObserver();
    return observer ? *observer : *nobody;
}

void HostObserver::setObserver(HostObserver* observer) {
    installedObserver() = observer;
}

} // namespace Kolt

// Installs what observes the host and reports of references, and leaves both installed.
#include <lattice/HostObserver.hpp>
#include <tessera/NoDestructor.hpp>
#include <tessera/SpeakPtr.hpp>

namespace {

struct Observer : Kolt::HostObserver {};

struct Speaker : Tessera::SpeakPtr {};

} // namespace

static Tessera::NoDestructor<Observer> observer;
static Tessera::NoDestructor<Speaker> speaker;

extern "C" __attribute__((visibility("default"))) bool
TALO_API_2023_MAR_29__leaves_observer(Kolt::VInitialization const* host) {
    Kolt::HostObserver::setObserver(observer.get());
    Tessera::SpeakPtr::setSpeaker(speaker.get());
    return host->IsCompatible("TALO_API_VERSION");
}

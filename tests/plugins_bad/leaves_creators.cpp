// Never unregisters: one creator is in its own memory and one elsewhere; neither is ever destroyed.
#include <lattice/ActionNotifier.hpp>
#include <lattice/Initialization.hpp>
#include <lattice/ValueCreator.hpp>
#include <plugins_bad/EmptyCreator.hpp>
#include <tessera/NoDestructor.hpp>

namespace {

struct OwnType {
    bool operator==(OwnType const&) const { return true; }
};

struct Listener : Kolt::VActionNotifier {
    void onWarning(std::string const&) override {}
};

struct Notifier : Kolt::ValueNotifier {
    void onValueChange(Kolt::ValuePtr const&, Kolt::VContext const&, Kolt::ValueMap const*) override {}
};

} // namespace

static Tessera::NoDestructor<EmptyCreator> inOwnMemory("in its own memory");
static EmptyCreator const* const elsewhere = new EmptyCreator("elsewhere");
static Tessera::NoDestructor<Kolt::TypedValueCreator<OwnType>> values;
static Tessera::NoDestructor<Listener> listener;
static Notifier const tidyNotifier;
static Tessera::NoDestructor<Notifier> notifier;

extern "C" __attribute__((visibility("default"))) bool
TALO_API_2023_MAR_29__leaves_creators(Kolt::VInitialization const* host) {
    Kolt::VValueCreator::registerCreator(Tessera::watch<Kolt::VValueCreator>(values.get()), "OwnType");
    return elsewhere != nullptr && host->IsCompatible("TALO_API_VERSION");
}

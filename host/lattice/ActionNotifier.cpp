#include <lattice/ActionNotifier.hpp>

#include <algorithm>
#include <cstdio>
#include <tessera/NoDestructor.hpp>
#include <tessera/TerminalText.hpp>

namespace Kolt {

namespace {

struct KnownActionNotifier {
    VActionNotifier* address;
    // Empty for one that was abandoned, because its code was unloaded.
    Tessera::WeakPtr<VActionNotifier> reference;
};

// Never destroyed: plug-ins may be unloaded after the statics of this library are gone.
std::vector<KnownActionNotifier>& actionNotifiers() {
    static Tessera::NoDestructor<std::vector<KnownActionNotifier>> notifiers;
    return *notifiers;
}

} // namespace

VActionNotifier::VActionNotifier() {
    actionNotifiers().push_back({this, Tessera::WeakPtr<VActionNotifier>(this)});
}

VActionNotifier::~VActionNotifier() {
    auto& notifiers = actionNotifiers();
    notifiers.erase(
        std::remove_if(notifiers.begin(), notifiers.end(), [this](auto const& known) { return known.address == this; }),
        notifiers.end());
}

std::vector<Tessera::StrongPtr<VActionNotifier>> VActionNotifier::living() {
    std::vector<Tessera::StrongPtr<VActionNotifier>> living;
    for (auto const& known : actionNotifiers()) {
        if (auto notifier = known.reference.strong())
            living.push_back(std::move(notifier));
    }
    return living;
}

void VActionNotifier::Warning(std::string const& text) {
    // Weak references, as a notifier may destroy others and make new ones at the same address.
    std::vector<Tessera::WeakPtr<VActionNotifier>> notifiers;
    for (auto const& known : actionNotifiers()) {
        if (known.reference.alive())
            notifiers.push_back(known.reference);
    }
    if (notifiers.empty())
        std::fprintf(stderr, "%s\n", Tessera::terminalText(text).c_str());
    for (auto const& notifier : notifiers) {
        if (auto const living = notifier.strong())
            living->onWarning(text);
    }
}

} // namespace Kolt

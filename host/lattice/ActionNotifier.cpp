#include <lattice/ActionNotifier.hpp>

#include <algorithm>
#include <cstdio>
#include <tessera/NoDestructor.hpp>
#include <tessera/TerminalText.hpp>
#include <vector>

namespace Kolt {

namespace {

// Never destroyed: plug-ins may be unloaded after the statics of this library are gone.
std::vector<VActionNotifier*>& actionNotifiers() {
    static Tessera::NoDestructor<std::vector<VActionNotifier*>> notifiers;
    return *notifiers;
}

} // namespace

VActionNotifier::VActionNotifier() {
    actionNotifiers().push_back(this);
}

VActionNotifier::~VActionNotifier() {
    auto& notifiers = actionNotifiers();
    notifiers.erase(std::remove(notifiers.begin(), notifiers.end(), this), notifiers.end());
}

void VActionNotifier::Warning(std::string const& text) {
    // Weak references, as a notifier may destroy others and make new ones at the same address.
    std::vector<Tessera::WeakPtr<VActionNotifier>> notifiers;
    for (auto* const notifier : actionNotifiers())
        notifiers.emplace_back(notifier);
    if (notifiers.empty())
        std::fprintf(stderr, "%s\n", Tessera::terminalText(text).c_str());
    for (auto const& notifier : notifiers) {
        if (auto const living = notifier.strong())
            living->onWarning(text);
    }
}

} // namespace Kolt

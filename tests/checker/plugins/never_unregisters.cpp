// It leaves its creator behind.

#include "PlainEditor.hpp"

namespace {

// Never deleted.
auto* const creator = new Kolt::QInputWidgetCreator<int, Opened<PlainEditor>>(
    "never_unregisters", Kolt::PreferencesPtr(new Kolt::VCreationPreferences(std::string("never_unregisters"))));

} // namespace

TALO_PLUGIN(never_unregisters);

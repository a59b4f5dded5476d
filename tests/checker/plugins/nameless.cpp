// Its creator has no name.

#include "PlainEditor.hpp"

namespace {

TALO_STATIC_CREATOR Kolt::QInputWidgetCreator<int, Opened<PlainEditor>> const
    creator("", Kolt::PreferencesPtr(new Kolt::VCreationPreferences(std::string("nameless"))));

} // namespace

TALO_PLUGIN(nameless);

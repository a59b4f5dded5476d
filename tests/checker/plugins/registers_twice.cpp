// It registers the same creator twice.

#include "PlainEditor.hpp"

namespace {

TALO_STATIC_CREATOR Kolt::QInputWidgetCreator<int, Opened<PlainEditor>> const
    second("registers_twice", Kolt::PreferencesPtr(new Kolt::VCreationPreferences(std::string("registers_twice"))));

} // namespace

PLANT(PlainEditor, registers_twice);

// Its creator makes no widgets.

#include "PlainEditor.hpp"

namespace {

class EmptyCreator : public Kolt::VInputCreator<int, Kolt::VInputCreatorBase> {
public:
    EmptyCreator()
        : VInputCreator("no_widgets", 0, Kolt::PreferencesPtr(new Kolt::VCreationPreferences(std::string("QT"))),
                        "TALO_API_VERSION") {}
};
TALO_STATIC_CREATOR EmptyCreator const creator;

} // namespace

TALO_PLUGIN(no_widgets);

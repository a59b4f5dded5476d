// Its creator lacks the preference by which hosts find what makes Qt widgets.

#include "PlainEditor.hpp"

namespace {

class HiddenCreator : public FunctionCreator<decltype(&plainEditor)> {
public:
    HiddenCreator() : FunctionCreator("not_for_qt", &plainEditor) {}
};
class BareCreator : public Kolt::VInputCreator<int, Kolt::VInputCreatorBase> {
public:
    BareCreator()
        : VInputCreator("not_for_qt", 0, Kolt::PreferencesPtr(new Kolt::VCreationPreferences(std::string("bare"))),
                        "TALO_API_VERSION") {
        addInterface(Tessera::StrongPtr<Tessera::InterfaceBase>(new HiddenCreator::Interface(&plainEditor)));
    }
};
TALO_STATIC_CREATOR BareCreator const creator;

} // namespace

TALO_PLUGIN(not_for_qt);

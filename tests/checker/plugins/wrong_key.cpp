// Its creator was built for another interface of the host.

#include "PlainEditor.hpp"

namespace {

class OtherCreator : public Kolt::VInputCreator<int, Kolt::VInputCreatorBase> {
public:
    OtherCreator() : VInputCreator("wrong_key", 0, nullptr, "ANOTHER_VERSION") {}
};
TALO_STATIC_CREATOR OtherCreator const creator;

} // namespace

TALO_PLUGIN(wrong_key);

#include <sorrel/VIcon.hpp>

#include <tessera/NoDestructor.hpp>
#include <unordered_set>

namespace Kolt {

namespace {

// Never destroyed: icons of other libraries may be destroyed after the statics of this one.
std::unordered_set<VIcon*>& livingIcons() {
    static Tessera::NoDestructor<std::unordered_set<VIcon*>> icons;
    return *icons;
}

} // namespace

VIcon::VIcon(Tessera::WeakPtr<VObject, VManagedObjectBase> const& object,
             Tessera::StrongPtr<ValuePoolProvider> const& provider)
    : object_(object), provider_(provider) {
    livingIcons().insert(this);
}

VIcon::~VIcon() {
    livingIcons().erase(this);
}

std::vector<VIcon*> VIcon::living() {
    return {livingIcons().begin(), livingIcons().end()};
}

} // namespace Kolt

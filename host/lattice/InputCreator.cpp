#include <lattice/InputCreator.hpp>

#include <cstdio>
#include <lattice/ActionNotifier.hpp>
#include <lattice/InputRegistry.hpp>

namespace Kolt {

VInputCreatorBase::VInputCreatorBase(std::string const& name, int priority, PreferencesPtr const& prefs,
                                     char const* apiKey)
    : VManagedDomainObject<VInputCreatorBase>(name, priority),
      preferences_(prefs ? prefs : PreferencesPtr(new VCreationPreferences)),
      apiKey_(apiKey ? apiKey : "") {}

VInputCreatorBase::~VInputCreatorBase() = default;

bool VInputCreatorBase::supports(VParameter const&) const {
    return true;
}

std::string VInputCreatorBase::describe() const {
    return "\"" + Name() + "\" " + preferenceText(preferences_->names());
}

bool registerVInput(std::type_info const& valueType, CreatorRef const& creator) {
    return InputRegistry::theRegistry().add(valueType, creator);
}

void unregisterVInput(std::type_info const& valueType, CreatorRef const& creator) {
    InputRegistry::theRegistry().remove(valueType, creator);
}

void reportRefusedRegistration(std::type_info const& creatorClass, std::type_info const& valueType) {
    auto const creatorName = Tessera::Typename(creatorClass);
    auto const typeName = Tessera::Typename(valueType);
    std::printf("WARNING: Could not register %s as input creator for type %s!\n", creatorName.c_str(),
                typeName.c_str());
    std::fflush(stdout);
    VActionNotifier::Warning("Could not register " + creatorName + " as input creator for type " + typeName);
}

} // namespace Kolt

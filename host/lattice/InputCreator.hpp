#pragma once

#include <lattice/CreationPreferences.hpp>
#include <lattice/InterfaceStamp.hpp>
#include <lattice/ManagedObject.hpp>
#include <lattice/Parameter.hpp>
#include <tessera/Export.hpp>

namespace Kolt {

/// A creator of inputs for values of one type. It is usually a static object of a plug-in; the host refers to it
/// weakly. How it makes inputs is said by an interface that it carries (QInputCreator, for instance). Loading thread or
/// user-interface thread.
class TALO_EXPORT VInputCreatorBase : public VManagedDomainObject<VInputCreatorBase> {
public:
    /// `prefs` becomes the creator's own set, it is not copied; null makes an empty one. `apiKey` names the host
    /// interface that the creator was built for; it is copied, null counts as empty.
    VInputCreatorBase(std::string const& name, int priority, PreferencesPtr const& prefs, char const* apiKey);
    ~VInputCreatorBase() override;

    /// The creator's own preference set; never null.
    PreferencesPtr const& preferences() const { return preferences_; }
    /// The interface key with which it was built.
    std::string const& apiKey() const { return apiKey_; }

    /// Whether the creator can serve a parameter of its type. True unless a derived class is selective.
    virtual bool supports(VParameter const& parameter) const;
    /// The creator for people: its name in quotes and its preferences.
    virtual std::string describe() const;

private:
    PreferencesPtr const preferences_;
    std::string const apiKey_;
};

using CreatorRef = Tessera::WeakPtr<VInputCreatorBase, VManagedObjectBase>;

/// Registers a creator for a type of value (InputRegistry). False if the creator was destroyed, if it was built for
/// another host interface, or if a creator of the same type, name and preference set is registered.
[[nodiscard]] TALO_EXPORT bool registerVInput(std::type_info const& valueType, CreatorRef const& creator);
/// Unregisters a creator. Nothing happens if it is not registered for the type.
TALO_EXPORT void unregisterVInput(std::type_info const& valueType, CreatorRef const& creator);
/// Reports a refused registration: one line on standard output and one warning (VActionNotifier::Warning).
TALO_EXPORT void reportRefusedRegistration(std::type_info const& creatorClass, std::type_info const& valueType);

/// A creator for values of type T, which is registered by its constructor and unregistered by its destructor. A refused
/// registration is reported; the creator then exists unregistered.
template <typename T, typename Base>
class VInputCreator : public Base {
public:
    /// Registers with the host for values of type T.
    VInputCreator(std::string const& name, int priority, PreferencesPtr const& prefs, char const* apiKey)
        : Base(name, priority, prefs, apiKey) {
        if (!registerVInput(typeid(T), CreatorRef(this)))
            reportRefusedRegistration(typeid(VInputCreator), typeid(T));
    }
    ~VInputCreator() override { unregisterVInput(typeid(T), CreatorRef(this)); }
};

} // namespace Kolt

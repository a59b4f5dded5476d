#pragma once

#include <lattice/ActionNotifier.hpp>
#include <lattice/CreationPreferences.hpp>
#include <lattice/ManagedObject.hpp>
#include <lattice/Parameter.hpp>

namespace Kolt {

/// Something that can make inputs for values of one type. Usually a static object of a plug-in; the host only watches
/// it. Loading thread or user-interface thread.
class VInputCreatorBase : public VManagedDomainObject<VInputCreatorBase> {
public:
    /// `prefs` is the creator's set from now on, not a copy; null makes an empty one. `apiKey` says which host
    /// interface the creator was built for; it is kept as a copy.
    VInputCreatorBase(std::string const& name, int priority, PreferencesPtr const& prefs, char const* apiKey);
    ~VInputCreatorBase() override;

    /// The creator's own preference set; never null.
    PreferencesPtr const& preferences() const { return preferences_; }
    std::string const& apiKey() const { return apiKey_; }

    /// Whether the creator can serve a parameter of its type. Yes, unless a derived class is choosy.
    virtual bool supports(VParameter const& parameter) const;
    /// The creator in a few words, for people: its name and preferences.
    virtual std::string describe() const;

private:
    PreferencesPtr const preferences_;
    std::string const apiKey_;
};

using CreatorRef = Tessera::WeakPtr<VInputCreatorBase, VManagedObjectBase>;

/// Makes a creator known for a type of value. False when the host refuses: the creator is gone, it was built for
/// another host interface, or a creator of the same type, name and preference set is known already.
bool registerVInput(std::type_info const& valueType, CreatorRef const& creator);
/// Takes a creator back. Nothing happens when it is not known for the type.
void unregisterVInput(std::type_info const& valueType, CreatorRef const& creator);
/// Tells of a refused registration: one line on standard output and one warning to the host.
void reportRefusedRegistration(std::type_info const& creatorClass, std::type_info const& valueType);

/// A creator for values of type T: registered by its constructor, taken back by its destructor.
template <typename T, typename Base>
class VInputCreator : public Base {
public:
    VInputCreator(std::string const& name, int priority, PreferencesPtr const& prefs, char const* apiKey)
        : Base(name, priority, prefs, apiKey) {
        if (!registerVInput(typeid(T), CreatorRef(this)))
            reportRefusedRegistration(typeid(VInputCreator), typeid(T));
    }
    ~VInputCreator() override { unregisterVInput(typeid(T), CreatorRef(this)); }
};

} // namespace Kolt

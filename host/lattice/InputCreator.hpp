#pragma once

#include <lattice/ActionNotifier.hpp>
#include <lattice/CreationPreferences.hpp>
#include <lattice/ManagedObject.hpp>
#include <lattice/Parameter.hpp>
#include <tessera/NoDestructor.hpp>

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

/// A creator that was chosen for a parameter, and why.
struct InputChoice {
    CreatorRef creator;      ///< empty when there is no creator for the type
    std::string explanation; ///< a sentence for people
};

/// The registered creators by the readable name of their value type. The names are copies, so nothing dangles when the
/// library that named a type is unloaded. One for the process, and never destroyed.
class InputRegistry {
public:
    /// A registered creator and the type that it was registered for.
    struct Entry {
        std::string valueType;
        CreatorRef creator;
    };

    static InputRegistry& theRegistry();

    /// All living creators, in order of registration.
    std::vector<Entry> entries() const;

    /// What a parameter asks of its editor: its own creation preferences, or for a text that has none (or an empty
    /// set) the one-line preference; and whatever the front end adds.
    static VCreationPreferences::Names wantedPreferences(VParameter const& parameter,
                                                         VCreationPreferences::Names const& frontEnd);
    /// The best creator for a type and a set of wanted names. Among those whose set holds all of them: the highest
    /// priority, then the smallest set, then the first registered. If there is none, the one that shares most names,
    /// then the same. The order in which libraries were loaded decides only between equals.
    InputChoice choose(std::string const& valueType, VCreationPreferences::Names const& wanted) const;
    /// The best creator for a parameter among those that suit it.
    InputChoice choose(VParameter const& parameter, VCreationPreferences::Names const& frontEnd) const;

private:
    friend bool registerVInput(std::type_info const&, CreatorRef const&);
    friend void unregisterVInput(std::type_info const&, CreatorRef const&);
    struct Registration {
        Entry entry;
        std::string name;
        // The set as it stood at the registration: a creator may add names to it afterwards.
        VCreationPreferences::Names preferences;
    };

    friend Tessera::NoDestructor<InputRegistry>;
    InputRegistry() = default;
    // Null: whatever the parameter.
    InputChoice choose(std::string const& valueType, VCreationPreferences::Names const& wanted,
                       VParameter const* parameter) const;

    std::vector<Registration> registrations_;
};

} // namespace Kolt

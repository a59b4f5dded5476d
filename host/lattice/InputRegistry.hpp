#pragma once

#include <lattice/InputCreator.hpp>
#include <string>
#include <tessera/Export.hpp>
#include <tessera/NoDestructor.hpp>
#include <vector>

namespace Kolt {

/// A creator that was chosen for a parameter, and why.
struct TALO_EXPORT InputChoice {
    CreatorRef creator;      ///< empty when there is no creator for the type
    std::string explanation; ///< a sentence for people, without a full stop
};

/// The registered creators by the readable name of their value type. The names are copies, so nothing dangles when the
/// library that defined a type is unloaded. There is one registry; it is never destroyed, as plug-ins may be unloaded
/// at the end of the process. Loading thread or user-interface thread.
class TALO_EXPORT InputRegistry {
public:
    /// A registered creator and the type that it was registered for.
    struct Entry {
        /// The readable name of the type of its values.
        std::string valueType;
        /// The creator, which is only watched.
        CreatorRef creator;
    };

    /// The registry of the process; never destroyed.
    static InputRegistry& theRegistry();

    /// All living creators by the names of the files that contain them, those of one file in order of registration.
    std::vector<Entry> entries() const;

    /// The names that a parameter wants of its editor: its own creation preferences and those of the front end, and for
    /// a text the one-line preference, if it has no preferences of its own but "UpdateOnEnterOnly".
    static VCreationPreferences::Names wantedPreferences(VParameter const& parameter,
                                                         VCreationPreferences::Names const& frontEnd);
    /// The best creator for a type and a set of wanted names. Among the creators whose set contains all of them: the
    /// highest priority, then the smallest set, then the first of entries(). If there is none, the creator that shares
    /// most names, then the same. The order in which libraries were loaded does not matter.
    InputChoice choose(std::string const& valueType, VCreationPreferences::Names const& wanted) const;
    /// The best creator for a parameter among those that support it.
    InputChoice choose(VParameter const& parameter, VCreationPreferences::Names const& frontEnd) const;

private:
    friend bool registerVInput(std::type_info const&, CreatorRef const&);
    friend void unregisterVInput(std::type_info const&, CreatorRef const&);
    struct Registration {
        Entry entry;
        // Used while the entry's creator is alive: the strong references to one that is being destroyed are empty.
        VInputCreatorBase const* creator;
        std::string name;
        // A copy of the set at the registration: a creator may add names to it afterwards.
        VCreationPreferences::Names preferences;
        // The plug-in, or the program, without folders.
        std::string file;
    };

    friend Tessera::NoDestructor<InputRegistry>;
    InputRegistry() = default;
    bool add(std::type_info const& valueType, CreatorRef const& creator);
    void remove(std::type_info const& valueType, CreatorRef const& creator);
    std::vector<CreatorRef> creatorsOf(std::string const& valueType) const;
    // A null parameter is supported by every creator.
    InputChoice choose(std::string const& valueType, VCreationPreferences::Names const& wanted,
                       VParameter const* parameter) const;

    // By file, those of one file in order of registration.
    std::vector<Registration> registrations_;
};

} // namespace Kolt

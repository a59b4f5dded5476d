#pragma once

#include <lattice/InputCreator.hpp>
#include <string>
#include <vector>

namespace Kolt {

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

    InputRegistry() = default;
    bool add(std::type_info const& valueType, CreatorRef const& creator);
    void remove(std::type_info const& valueType, CreatorRef const& creator);
    std::vector<CreatorRef> creatorsOf(std::string const& valueType) const;
    // Null: whatever the parameter.
    InputChoice choose(std::string const& valueType, VCreationPreferences::Names const& wanted,
                       VParameter const* parameter) const;

    std::vector<Registration> registrations_;
};

} // namespace Kolt

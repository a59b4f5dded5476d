#pragma once

#include <set>
#include <string>
#include <tessera/Export.hpp>
#include <tessera/Interface.hpp>

namespace Kolt {

/// A set of preference names ("dial", "periodic", "editable", "QT"). The names choose an editor and configure it.
///
/// Sets are shared by strong references: all holders of a set see the names that are added later. Loading thread or
/// user-interface thread.
class TALO_EXPORT VCreationPreferences : public Tessera::Interface<VCreationPreferences> {
public:
    /// Names in alphabetical order.
    using Names = std::set<std::string>;

    /// The empty set, and sets of one and two names. Write two std::string arguments: braces around two string
    /// literals would select an iterator constructor of std::string.
    VCreationPreferences();
    /// One name.
    explicit VCreationPreferences(std::string const& name);
    /// Two names.
    VCreationPreferences(std::string const& first, std::string const& second);
    /// The union of both sets, which are not changed.
    VCreationPreferences(VCreationPreferences const& left, VCreationPreferences const& right);
    /// A copy of a shared set; null gives the empty set.
    explicit VCreationPreferences(Tessera::StrongPtr<VCreationPreferences, Tessera::InterfaceBase> const& shared);
    /// These names; equal ones count once.
    explicit VCreationPreferences(Names names);
    ~VCreationPreferences() override;

    /// Adds a name, for all holders of the set. A name that the set contains changes nothing.
    VCreationPreferences& operator+=(std::string const& name);
    /// Whether the set contains the name; upper and lower case differ.
    bool contains(std::string const& name) const;
    /// All names.
    Names const& names() const { return names_; }

private:
    Names names_;
};

using PreferencesPtr = Tessera::StrongPtr<VCreationPreferences, Tessera::InterfaceBase>;

/// The effective set of an editor: a new union if both are given, the other set if only one is given, null if none is.
TALO_EXPORT PreferencesPtr mergePreferences(PreferencesPtr const& given, PreferencesPtr const& own);

/// The names for people, in alphabetical order: "{dial, periodic}".
TALO_EXPORT std::string preferenceText(VCreationPreferences::Names const& names);

} // namespace Kolt

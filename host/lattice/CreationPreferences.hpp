#pragma once

#include <set>
#include <string>
#include <tessera/Interface.hpp>

namespace Kolt {

/// A set of preference names ("dial", "periodic", "editable", "QT"), by which an editor is chosen and told how to
/// look. Shared by strong references; whoever shares a set sees what is added to it. Loading thread or
/// user-interface thread.
class VCreationPreferences : public Tessera::Interface<VCreationPreferences> {
public:
    using Names = std::set<std::string>;

    VCreationPreferences();
    explicit VCreationPreferences(std::string const& name);
    VCreationPreferences(std::string const& first, std::string const& second);
    /// The union of both sets, which stay as they are.
    VCreationPreferences(VCreationPreferences const& left, VCreationPreferences const& right);
    /// A copy of a shared set; null gives the empty set.
    explicit VCreationPreferences(Tessera::StrongPtr<VCreationPreferences, Tessera::InterfaceBase> const& shared);
    explicit VCreationPreferences(Names names);
    ~VCreationPreferences() override;

    /// Adds one name; a name that is in the set changes nothing.
    VCreationPreferences& operator+=(std::string const& name);
    bool contains(std::string const& name) const;
    Names const& names() const { return names_; }

private:
    Names names_;
};

using PreferencesPtr = Tessera::StrongPtr<VCreationPreferences, Tessera::InterfaceBase>;

/// The set that holds for an editor: the union of both when both are given, else the one that is, else null.
PreferencesPtr mergePreferences(PreferencesPtr const& given, PreferencesPtr const& own);

/// The names as "{dial, periodic}".
std::string preferenceText(VCreationPreferences::Names const& names);

} // namespace Kolt

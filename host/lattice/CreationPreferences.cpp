#include <lattice/CreationPreferences.hpp>

namespace Kolt {

VCreationPreferences::VCreationPreferences() = default;

VCreationPreferences::VCreationPreferences(std::string const& name) : names_{name} {}

VCreationPreferences::VCreationPreferences(std::string const& first, std::string const& second)
    : names_{first, second} {}

VCreationPreferences::VCreationPreferences(VCreationPreferences const& left, VCreationPreferences const& right)
    : names_(left.names_) {
    names_.insert(right.names_.begin(), right.names_.end());
}

VCreationPreferences::VCreationPreferences(
    Tessera::StrongPtr<VCreationPreferences, Tessera::InterfaceBase> const& shared)
    : names_(shared ? shared->names_ : Names()) {}

VCreationPreferences::VCreationPreferences(Names names) : names_(std::move(names)) {}

VCreationPreferences::~VCreationPreferences() = default;

VCreationPreferences& VCreationPreferences::operator+=(std::string const& name) {
    names_.insert(name);
    return *this;
}

bool VCreationPreferences::contains(std::string const& name) const {
    return names_.count(name) > 0;
}

PreferencesPtr mergePreferences(PreferencesPtr const& given, PreferencesPtr const& own) {
    if (given && own)
        return PreferencesPtr(new VCreationPreferences(*given, *own));
    return given ? given : own;
}

std::string preferenceText(VCreationPreferences::Names const& names) {
    std::string text("{");
    for (auto const& name : names) {
        if (text.size() > 1)
            text += ", ";
        text += name;
    }
    text += '}';
    return text;
}

} // namespace Kolt

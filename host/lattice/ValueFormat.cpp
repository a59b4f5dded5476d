#include <lattice/ValueFormat.hpp>

#include <algorithm>
#include <lattice/ActionNotifier.hpp>
#include <tessera/NoDestructor.hpp>

namespace Kolt {

namespace {

// Immortal: a plug-in may still come and go after the statics of this library.
std::vector<VValueFormat const*>& registeredFormats() {
    static Tessera::NoDestructor<std::vector<VValueFormat const*>> formats;
    return *formats;
}

template <typename Matches>
VValueFormat const* findFormat(Matches const& matches) {
    auto const& formats = registeredFormats();
    auto const found = std::find_if(formats.begin(), formats.end(), [&](auto const* each) { return matches(*each); });
    return found == formats.end() ? nullptr : *found;
}

/// Why a format cannot be registered; empty if it can.
std::string objectionTo(VValueFormat const& format) {
    if (format.key().empty())
        return "it has no key";
    if (auto const* const other = VValueFormat::ofKey(format.key()))
        return "the key is that of the type " + other->typeName();
    if (auto const* const other = VValueFormat::ofType(format.typeName()))
        return "the type has the format \"" + other->key() + '"';
    return {};
}

} // namespace

VValueFormat::VValueFormat(std::string key, std::string typeName, Notation notation)
    : key_(std::move(key)), typeName_(std::move(typeName)), notation_(notation) {
    auto const objection = objectionTo(*this);
    if (objection.empty())
        registeredFormats().push_back(this);
    else
        VActionNotifier::Warning("The format \"" + key_ + "\" of the type " + typeName_ +
                                 " is not registered: " + objection);
}

VValueFormat::~VValueFormat() {
    unregister(this);
}

VValueFormat const* VValueFormat::ofKey(std::string const& key) {
    return findFormat([&](VValueFormat const& format) { return format.key() == key; });
}

VValueFormat const* VValueFormat::ofType(std::string const& typeName) {
    return findFormat([&](VValueFormat const& format) { return format.typeName() == typeName; });
}

std::vector<VValueFormat const*> VValueFormat::all() {
    return registeredFormats();
}

bool VValueFormat::unregister(VValueFormat const* format) {
    auto& formats = registeredFormats();
    auto const found = std::find(formats.begin(), formats.end(), format);
    bool const isRegistered = found != formats.end();
    if (isRegistered)
        formats.erase(found);
    return isRegistered;
}

} // namespace Kolt

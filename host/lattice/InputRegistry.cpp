#include <lattice/InputRegistry.hpp>

#include <algorithm>
#include <lattice/ActionNotifier.hpp>
#include <lattice/HostObserver.hpp>
#include <lattice/InputFaults.hpp>
#include <tessera/NoDestructor.hpp>
#include <tuple>

namespace Kolt {

namespace {

// Larger is better: how many wanted names the set holds, the priority, how small the set is.
using Rank = std::tuple<std::size_t, int, std::ptrdiff_t>;

Rank rankOf(VInputCreatorBase const& creator, VCreationPreferences::Names const& wanted) {
    auto const& preferences = *creator.preferences();
    auto const shared = static_cast<std::size_t>(
        std::count_if(wanted.begin(), wanted.end(), [&](auto const& name) { return preferences.contains(name); }));
    return {shared, creator.priority(), -static_cast<std::ptrdiff_t>(preferences.names().size())};
}

/// Whether the creator can serve the parameter. One that throws cannot.
bool supports(VInputCreatorBase const& creator, VParameter const& parameter) {
    try {
        return creator.supports(parameter);
    } catch (...) {
        VActionNotifier::Warning("The creator " + creator.describe() + ", asked for the parameter \"" +
                                 parameter.fullName() + "\", " + InputFaults::describeCurrent());
        return false;
    }
}

} // namespace

InputRegistry& InputRegistry::theRegistry() {
    static Tessera::NoDestructor<InputRegistry> registry;
    return *registry;
}

bool InputRegistry::add(std::type_info const& valueType, CreatorRef const& creator) {
    // A creator whose code was unloaded is dead and was never removed.
    registrations_.erase(std::remove_if(registrations_.begin(), registrations_.end(),
                                        [](auto const& registration) { return !registration.entry.creator.alive(); }),
                         registrations_.end());
    auto const typeName = Tessera::Typename(valueType);
    auto const living = creator.strong();
    bool const known =
        living && std::any_of(registrations_.begin(), registrations_.end(), [&](auto const& registration) {
            return registration.entry.valueType == typeName && registration.name == living->Name() &&
                   registration.preferences == living->preferences()->names();
        });
    if (!living || known || living->apiKey() != VInitialization::apiKey()) {
        HostObserver::theObserver().creatorRefused(typeName);
        return false;
    }
    auto const& object = *living;
    Registration const registration{{typeName, creator},
                                    living.get(),
                                    living->Name(),
                                    living->preferences()->names(),
                                    fileDefining(typeid(object))};
    // Between equals the first one edits, which shall not depend on the order in which files were loaded.
    auto const place = std::upper_bound(registrations_.begin(), registrations_.end(), registration,
                                        [](auto const& left, auto const& right) { return left.file < right.file; });
    registrations_.insert(place, registration);
    HostObserver::theObserver().creatorRegistered(typeName, *living);
    return true;
}

void InputRegistry::remove(std::type_info const& valueType, CreatorRef const& creator) {
    auto const typeName = Tessera::Typename(valueType);
    auto const found = std::find_if(registrations_.begin(), registrations_.end(), [&](auto const& registration) {
        return registration.entry.valueType == typeName && registration.entry.creator == creator;
    });
    if (found == registrations_.end())
        return;
    auto const* const leaving = found->creator;
    registrations_.erase(found);
    if (creator.alive())
        HostObserver::theObserver().creatorUnregistered(typeName, *leaving);
}

std::vector<InputRegistry::Entry> InputRegistry::entries() const {
    std::vector<Entry> entries;
    for (auto const& registration : registrations_) {
        if (registration.entry.creator.alive())
            entries.push_back(registration.entry);
    }
    return entries;
}

VCreationPreferences::Names InputRegistry::wantedPreferences(VParameter const& parameter,
                                                             VCreationPreferences::Names const& frontEnd) {
    static Tessera::NoDestructor<std::string const> textType(Tessera::Typename(typeid(std::string)));
    auto wanted = frontEnd;
    auto const& set = parameter.creationPreferences();
    auto const own = set ? set->names() : VCreationPreferences::Names();
    wanted.insert(own.begin(), own.end());
    // A name that configures an editor chooses none.
    bool const namesEditor = own.size() > own.count("UpdateOnEnterOnly");
    if (!namesEditor && parameter.declaredType() == *textType)
        wanted.insert(VValueTrait<std::string>::OneLine());
    return wanted;
}

InputChoice InputRegistry::choose(std::string const& valueType, VCreationPreferences::Names const& wanted) const {
    return choose(valueType, wanted, nullptr);
}

InputChoice InputRegistry::choose(VParameter const& parameter, VCreationPreferences::Names const& frontEnd) const {
    return choose(parameter.declaredType(), wantedPreferences(parameter, frontEnd), &parameter);
}

std::vector<CreatorRef> InputRegistry::creatorsOf(std::string const& valueType) const {
    // References alone, without copies of names, as this runs for every editor.
    std::vector<CreatorRef> creators;
    for (auto const& registration : registrations_) {
        if (registration.entry.valueType == valueType && registration.entry.creator.alive())
            creators.push_back(registration.entry.creator);
    }
    return creators;
}

InputChoice InputRegistry::choose(std::string const& valueType, VCreationPreferences::Names const& wanted,
                                  VParameter const* parameter) const {
    Tessera::StrongPtr<VInputCreatorBase, VManagedObjectBase> best;
    Rank bestRank;
    int count = 0;
    for (auto const& candidate : creatorsOf(valueType)) {
        auto const creator = candidate.strong();
        if (!creator || (parameter && !supports(*creator, *parameter)))
            continue;
        auto const rank = rankOf(*creator, wanted);
        // Of equals the first stays.
        if (count++ == 0 || rank > bestRank) {
            best = creator;
            bestRank = rank;
        }
    }
    if (!best)
        return {{}, "no creator is registered for " + valueType};
    bool const holdsAll = std::get<0>(bestRank) == wanted.size();
    // Concatenated in one place, as it is made for every editor.
    auto explanation = best->describe();
    explanation.reserve(explanation.size() + valueType.size() + 128);
    explanation += holdsAll ? " holds all of the wanted " : " shares most with the wanted ";
    explanation += preferenceText(wanted);
    explanation += ", of " + std::to_string(count) + (count == 1 ? " creator for " : " creators for ");
    explanation += valueType;
    return {best, std::move(explanation)};
}

} // namespace Kolt

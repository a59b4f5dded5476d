#include <algorithm>
#include <cstdio>
#include <lattice/Initialization.hpp>
#include <lattice/Input.hpp>
#include <lattice/InputCreator.hpp>
#include <lattice/ValueCreator.hpp>
#include <tessera/NoDestructor.hpp>
#include <tuple>

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

VInputBase::VInputBase(ParameterRef const& owner) : owner_(owner) {}

VInputBase::~VInputBase() = default;

void VInputBase::activateNotification() const {
    if (auto const parameter = owner_.strong())
        parameter->addNotifier(Tessera::WeakPtr<ValueNotifier>(const_cast<VInputBase*>(this)));
}

VInputCreatorBase::VInputCreatorBase(std::string const& name, int priority, PreferencesPtr const& prefs,
                                     char const* apiKey)
    : VManagedDomainObject<VInputCreatorBase>(name, priority),
      preferences_(prefs ? prefs : PreferencesPtr(new VCreationPreferences)),
      apiKey_(apiKey ? apiKey : "") {}

VInputCreatorBase::~VInputCreatorBase() = default;

bool VInputCreatorBase::supports(VParameter const&) const {
    return true;
}

std::string VInputCreatorBase::describe() const {
    return "\"" + Name() + "\" " + preferenceText(preferences_->names());
}

bool registerVInput(std::type_info const& valueType, CreatorRef const& creator) {
    auto& registrations = InputRegistry::theRegistry().registrations_;
    auto const typeName = Tessera::Typename(valueType);
    auto const living = creator.strong();
    bool const known = living && std::any_of(registrations.begin(), registrations.end(), [&](auto const& registration) {
                           return registration.entry.valueType == typeName && registration.name == living->Name() &&
                                  registration.preferences == living->preferences()->names();
                       });
    if (!living || known || living->apiKey() != VInitialization::apiKey()) {
        HostObserver::theObserver().creatorRefused(typeName);
        return false;
    }
    registrations.push_back({{typeName, creator}, living->Name(), living->preferences()->names()});
    HostObserver::theObserver().creatorRegistered(typeName, *living);
    return true;
}

void unregisterVInput(std::type_info const& valueType, CreatorRef const& creator) {
    auto& registrations = InputRegistry::theRegistry().registrations_;
    auto const typeName = Tessera::Typename(valueType);
    auto const found = std::find_if(registrations.begin(), registrations.end(), [&](auto const& registration) {
        return registration.entry.valueType == typeName && registration.entry.creator == creator;
    });
    if (found == registrations.end())
        return;
    registrations.erase(found);
    if (auto const living = creator.strong())
        HostObserver::theObserver().creatorUnregistered(typeName, *living);
}

void reportRefusedRegistration(std::type_info const& creatorClass, std::type_info const& valueType) {
    auto const creatorName = Tessera::Typename(creatorClass);
    auto const typeName = Tessera::Typename(valueType);
    std::printf("WARNING: Could not register %s as input creator for type %s!\n", creatorName.c_str(),
                typeName.c_str());
    std::fflush(stdout);
    VActionNotifier::Warning("Could not register " + creatorName + " as input creator for type " + typeName);
}

InputRegistry& InputRegistry::theRegistry() {
    static Tessera::NoDestructor<InputRegistry> registry;
    return *registry;
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
    auto const& own = parameter.creationPreferences();
    if (own && !own->names().empty())
        wanted.insert(own->names().begin(), own->names().end());
    else if (parameter.declaredType() == *textType)
        wanted.insert(VValueTrait<std::string>::OneLine());
    return wanted;
}

InputChoice InputRegistry::choose(std::string const& valueType, VCreationPreferences::Names const& wanted) const {
    return choose(valueType, wanted, nullptr);
}

InputChoice InputRegistry::choose(VParameter const& parameter, VCreationPreferences::Names const& frontEnd) const {
    return choose(parameter.declaredType(), wantedPreferences(parameter, frontEnd), &parameter);
}

InputChoice InputRegistry::choose(std::string const& valueType, VCreationPreferences::Names const& wanted,
                                  VParameter const* parameter) const {
    // References to the candidates alone: this runs for every editor, and creators of other types are many.
    std::vector<CreatorRef> candidates;
    for (auto const& registration : registrations_) {
        if (registration.entry.valueType == valueType && registration.entry.creator.alive())
            candidates.push_back(registration.entry.creator);
    }
    CreatorRef best;
    // Larger is better: how many wanted names the set holds, the priority, how small the set is. Of equals the first
    // registered stays.
    std::tuple<std::size_t, int, std::ptrdiff_t> bestRank;
    int count = 0;
    for (auto const& candidate : candidates) {
        auto const creator = candidate.strong();
        if (!creator || (parameter && !creator->supports(*parameter)))
            continue;
        auto const& preferences = *creator->preferences();
        auto const shared = static_cast<std::size_t>(
            std::count_if(wanted.begin(), wanted.end(), [&](auto const& name) { return preferences.contains(name); }));
        auto const rank =
            std::make_tuple(shared, creator->priority(), -static_cast<std::ptrdiff_t>(preferences.names().size()));
        if (count++ == 0 || rank > bestRank) {
            best = candidate;
            bestRank = rank;
        }
    }
    auto const creator = best.strong();
    if (!creator)
        return {best, "no creator is registered for " + valueType};
    bool const holdsAll = std::get<0>(bestRank) == wanted.size();
    // Put together in one place, as it is made for every editor.
    auto explanation = creator->describe();
    explanation.reserve(explanation.size() + valueType.size() + 128);
    explanation += holdsAll ? " holds all of the wanted " : " shares most with the wanted ";
    explanation += preferenceText(wanted);
    explanation += ", of " + std::to_string(count) + (count == 1 ? " creator for " : " creators for ");
    explanation += valueType;
    return {best, std::move(explanation)};
}

VInitialization::VInitialization() = default;

VInitialization::~VInitialization() = default;

char const* VInitialization::apiKey() {
    return "TALO_API_VERSION";
}

void VInitialization::initPlugin(InitPluginReason reason, char const* pluginName, char const* key) {
    HostObserver::theObserver().pluginCalled(reason, pluginName ? pluginName : "", key ? key : "");
}

bool VInitialization::IsCompatible(char const* key) const {
    return key && std::string(key) == apiKey();
}

HostObserver::~HostObserver() = default;

void HostObserver::creatorRegistered(std::string const&, VInputCreatorBase const&) {}

void HostObserver::creatorRefused(std::string const&) {}

void HostObserver::creatorUnregistered(std::string const&, VInputCreatorBase const&) {}

void HostObserver::valueCreatorRegistered(std::string const&) {}

void HostObserver::pluginCalled(VInitialization::InitPluginReason, std::string const&, std::string const&) {}

namespace {

HostObserver*& installedObserver() {
    static HostObserver* observer = nullptr;
    return observer;
}

} // namespace

HostObserver& HostObserver::theObserver() {
    static Tessera::NoDestructor<HostObserver> nobody;
    auto* const observer = installedObserver();
    return observer ? *observer : *nobody;
}

void HostObserver::setObserver(HostObserver* observer) {
    installedObserver() = observer;
}

} // namespace Kolt

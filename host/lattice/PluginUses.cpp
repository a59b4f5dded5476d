#include <lattice/PluginUses.hpp>

#include <algorithm>
#include <lattice/InputCreator.hpp>
#include <lattice/UndoAction.hpp>
#include <lattice/ValueCreator.hpp>
#include <lattice/ValueHolders.hpp>
#include <lattice/ValueNotifier.hpp>
#include <map>
#include <optional>
#include <tessera/LivingObjects.hpp>
#include <tessera/NoDestructor.hpp>

namespace Kolt {

namespace {

// Never destroyed: plug-ins may be unloaded after the statics of this library are gone.
std::vector<PluginUses::Lister>& listers() {
    static Tessera::NoDestructor<std::vector<PluginUses::Lister>> all;
    return *all;
}

std::string kindOf(Tessera::ReferenceCounted const& object) {
    if (dynamic_cast<VValueBase const*>(&object))
        return "value";
    if (dynamic_cast<VUndoAction const*>(&object))
        return "undo record";
    if (dynamic_cast<Tessera::InterfaceBase const*>(&object))
        return "interface";
    if (dynamic_cast<VInputCreatorBase const*>(&object))
        return "creator";
    return dynamic_cast<VValueCreator const*>(&object) ? "value creator" : "object";
}

/// Counts the objects of each kind and type.
class Tally {
public:
    void addKind(std::string const& kind) { ++groups_[{kind, {}}].count; }
    void addObject(Tessera::ReferenceCounted const& object) {
        auto& group = groups_[{kindOf(object), " of type " + Tessera::Typename(typeid(object))}];
        ++group.count;
        auto const* const value = dynamic_cast<VValueBase const*>(&object);
        if (!value)
            return;
        if (!holders_)
            holders_.emplace();
        auto const holder = holders_->nameOf(value);
        auto& names = group.holders;
        if (!holder.empty() && std::find(names.begin(), names.end(), holder) == names.end())
            names.push_back(holder);
    }
    std::vector<std::string> texts() const {
        std::vector<std::string> texts;
        for (auto const& [key, group] : groups_)
            texts.push_back(std::to_string(group.count) + " " + key.first + (group.count == 1 ? "" : "s") + key.second +
                            inBrackets(group.holders));
        return texts;
    }

private:
    struct Group {
        int count = 0;
        std::vector<std::string> holders;
    };
    // A few are enough to know where to look.
    static std::string inBrackets(std::vector<std::string> holders) {
        constexpr std::size_t most = 3;
        if (holders.empty())
            return {};
        // In a fixed order, as the objects come in none.
        std::sort(holders.begin(), holders.end());
        std::string text = " (" + holders.front();
        for (std::size_t index = 1; index < std::min(holders.size(), most); ++index)
            text += "; " + holders[index];
        return text + (holders.size() > most ? "; and others)" : ")");
    }

    // By kind and type.
    std::map<std::pair<std::string, std::string>, Group> groups_;
    std::optional<ValueHolders> holders_;
};

} // namespace

PluginUses::Listing::Listing(Lister lister) : lister_(lister) {
    listers().push_back(lister_);
}

PluginUses::Listing::~Listing() {
    auto& all = listers();
    all.erase(std::find(all.begin(), all.end(), lister_));
}

int PluginUses::notifiers(PluginLibrary const& library) {
    auto const notifiers = ValueNotifier::living();
    return static_cast<int>(std::count_if(notifiers.begin(), notifiers.end(), [&](ValueNotifier const* notifier) {
        // Its static ones end with it.
        return library.defines(typeid(*notifier)) && !library.range().contains(notifier);
    }));
}

std::vector<std::string> PluginUses::of(PluginLibrary const& library, Records records) {
    Tally tally;
    for (int count = notifiers(library); count > 0; --count)
        tally.addKind("editor");
    for (auto const lister : listers()) {
        for (auto const& use : lister()) {
            if (library.defines(*use.type))
                tally.addKind(use.kind);
        }
    }
    for (auto const& object : Tessera::LivingObjects::heldByOthers(library.range())) {
        bool const isIgnored = records == Records::Ignored && dynamic_cast<VUndoAction const*>(object.get());
        // Notifiers were counted above.
        if (!isIgnored && !dynamic_cast<ValueNotifier const*>(object.get()))
            tally.addObject(*object);
    }
    return tally.texts();
}

} // namespace Kolt

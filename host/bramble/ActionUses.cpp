#include <bramble/ActionUses.hpp>

#include <bramble/Action.hpp>
#include <lattice/Object.hpp>

namespace Kolt {

namespace {

PluginUses::Listing const actionListing(actionUses);

void addUse(ValuePtr const& value, std::vector<PluginUses::Use>& uses) {
    auto const action = valueOr<Tessera::StrongPtr<VAction>>(value, nullptr);
    if (action)
        uses.push_back({&action->handlerType(), "action"});
}

} // namespace

std::vector<PluginUses::Use> actionUses() {
    std::vector<PluginUses::Use> uses;
    for (auto* const managed : VManagedObject::living()) {
        auto const* const object = dynamic_cast<VObject const*>(managed);
        if (!object)
            continue;
        for (auto const& parameter : object->parameters()) {
            addUse(parameter->ownValue(), uses);
            for (auto const& pool : parameter->poolsWithValue())
                addUse(parameter->getLocalValue(pool, {}, false), uses);
        }
    }
    return uses;
}

} // namespace Kolt

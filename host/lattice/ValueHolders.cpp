#include <lattice/ValueHolders.hpp>

#include <lattice/UndoHistory.hpp>

namespace Kolt {

ValueHolders::ValueHolders() {
    for (auto* const managed : VManagedObject::living()) {
        if (auto const* const object = dynamic_cast<VObject const*>(managed)) {
            for (auto const& parameter : object->parameters())
                addParameter(*parameter);
        }
    }
    for (auto const* const history : UndoHistory::living())
        addHistory(*history);
}

std::string ValueHolders::nameOf(VValueBase const* value) const {
    auto const found = holders_.find(value);
    return found == holders_.end() ? std::string() : found->second;
}

void ValueHolders::addParameter(VParameter const& parameter) {
    auto const name = parameter.fullName();
    add(parameter.ownValue(), name);
    auto pools = parameter.poolsWithValue();
    for (auto const& pool : pools)
        add(parameter.getLocalValue(pool, {}, false), name);
    if (auto const* const properties = parameter.properties()) {
        for (auto const& [property, value] : *properties)
            add(value, std::string(name).append(", property ").append(property));
    }
    // Without a pool the default is that of the parameter itself.
    pools.emplace_back();
    for (auto const& pool : pools) {
        if (auto const* const defaults = parameter.defaults())
            add(defaults->in(pool).value, name + ", default");
    }
}

void ValueHolders::addHistory(UndoHistory const& history) {
    for (auto const& steps : {history.steps(), history.undoneSteps()}) {
        for (auto const& step : steps) {
            for (auto const& change : step->changes()) {
                add(change.before().value, change.parameterName() + ", undo history");
                add(change.after().value, change.parameterName() + ", undo history");
            }
        }
    }
}

void ValueHolders::add(ValuePtr const& value, std::string const& holder) {
    holders_.emplace(value.get(), holder);
}

} // namespace Kolt

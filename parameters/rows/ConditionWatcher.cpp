#include <parameters/rows/ConditionWatcher.hpp>

#include <map>
#include <parameters/rows/ParameterDescription.hpp>

namespace Talo {

ConditionWatcher::ConditionWatcher(std::vector<Kolt::ParameterPtr> const& parameters, QObject* parent)
    : QObject(parent) {
    std::map<std::string, Kolt::ParameterPtr> byName;
    auto const watch = [&](Kolt::VParameter const& parameter, char const* property) -> std::optional<Watched> {
        auto const condition = findProperty(parameter, property) ? Condition::of(parameter, property) : std::nullopt;
        // Most objects have no condition.
        if (condition && byName.empty())
            for (auto const& each : parameters)
                byName.insert({each->Name(), each});
        auto const other = condition ? byName.find(condition->parameterName()) : byName.end();
        if (other == byName.end())
            return std::nullopt;
        other->second->addNotifier(Tessera::WeakPtr<Kolt::ValueNotifier>(this));
        return Watched{*condition, other->second};
    };
    for (auto const& each : parameters) {
        auto const& parameter = *each;
        // Most parameters have none.
        if (!findProperty(parameter, Condition::Properties[0]) && !findProperty(parameter, Condition::Properties[1]))
            continue;
        Conditions own{watch(parameter, Condition::Properties[0]), watch(parameter, Condition::Properties[1])};
        if (own.visible || own.enabled)
            conditions_.insert({&parameter, std::move(own)});
    }
}

ConditionWatcher::~ConditionWatcher() {
    stopNotifications();
}

void ConditionWatcher::onValueChange(Kolt::ValuePtr const&, Kolt::VContext const&, Kolt::ValueMap const* properties) {
    // Later: rows must not go while one of their editors is being notified.
    if (!properties && !signalWaits_.exchange(true))
        QMetaObject::invokeMethod(this, &ConditionWatcher::emitChanged, Qt::QueuedConnection);
}

void ConditionWatcher::emitChanged() {
    signalWaits_ = false;
    emit changed();
}

bool ConditionWatcher::holds(std::optional<Watched> Conditions::*which, Kolt::VParameter const& parameter,
                             Kolt::PoolPtr const& pool) const {
    auto const own = conditions_.find(&parameter);
    if (own == conditions_.end() || !(own->second.*which))
        return true;
    auto const& watched = *(own->second.*which);
    auto const other = watched.other.strong();
    return !other || watched.condition.holds(*other, pool);
}

bool ConditionWatcher::isVisible(Kolt::VParameter const& parameter, Kolt::PoolPtr const& pool) const {
    return holds(&Conditions::visible, parameter, pool);
}

bool ConditionWatcher::isEnabled(Kolt::VParameter const& parameter, Kolt::PoolPtr const& pool) const {
    return holds(&Conditions::enabled, parameter, pool);
}

} // namespace Talo

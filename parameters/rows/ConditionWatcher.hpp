#pragma once

#include <atomic>
#include <lattice/Object.hpp>
#include <network/Condition.hpp>
#include <QObject>
#include <tessera/Export.hpp>
#include <unordered_map>

namespace Talo {

/// Watches the conditions of an object's parameters, "visibleWhen" and "enabledWhen", which are read once. A condition
/// on a parameter that does not exist holds. Made and asked on the user-interface thread; values may change on any.
class TALO_EXPORT ConditionWatcher : public QObject, private Kolt::ValueNotifier {
    Q_OBJECT

public:
    /// Watches the conditions of these parameters on each other, which are those of one object.
    explicit ConditionWatcher(std::vector<Kolt::ParameterPtr> const& parameters, QObject* parent = nullptr);
    ~ConditionWatcher() override;

    /// Whether any parameter has a condition.
    bool hasConditions() const { return !conditions_.empty(); }
    /// Whether the parameter's condition "visibleWhen" holds in the pool.
    bool isVisible(Kolt::VParameter const& parameter, Kolt::PoolPtr const& pool) const;
    /// Whether the parameter's condition "enabledWhen" holds in the pool.
    bool isEnabled(Kolt::VParameter const& parameter, Kolt::PoolPtr const& pool) const;

signals:
    /// Conditions may have changed, in whatever pool: once for all changes until the next event.
    void changed();

private:
    struct Watched {
        Condition condition;
        Kolt::ParameterRef other;
    };
    /// Those of one parameter.
    struct Conditions {
        std::optional<Watched> visible;
        std::optional<Watched> enabled;
    };
    void onValueChange(Kolt::ValuePtr const& newValue, Kolt::VContext const& context,
                       Kolt::ValueMap const* properties) override;
    void emitChanged();
    bool holds(std::optional<Watched> Conditions::*which, Kolt::VParameter const& parameter,
               Kolt::PoolPtr const& pool) const;

    std::unordered_map<Kolt::VParameter const*, Conditions> conditions_;
    std::atomic<bool> signalWaits_{false};
};

} // namespace Talo

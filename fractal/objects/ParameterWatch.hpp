#pragma once

#include <atomic>
#include <lattice/Parameter.hpp>
#include <QObject>

namespace Fractal {

/// Hears of changes of any number of parameters and tells of them once for each round of the event loop, however many
/// there were. Made and destroyed on the user-interface thread; the parameters may change on any thread.
class ParameterWatch : public QObject, private Kolt::ValueNotifier {
    Q_OBJECT

public:
    explicit ParameterWatch(QObject* parent = nullptr);
    ~ParameterWatch() override;

    /// From now on changes of the parameter, its properties included, are signalled. Null is ignored.
    void watch(Kolt::ParameterPtr const& parameter);
    /// Whether a change is still to be told.
    bool isWaiting() const { return isWaiting_; }

signals:
    /// Something changed, in whatever pool. Emitted on the user-interface thread.
    void changed();

private:
    void onValueChange(Kolt::ValuePtr const& newValue, Kolt::VContext const& context,
                       Kolt::ValueMap const* properties) override;
    void notify();

    std::atomic<bool> isWaiting_{false};
};

} // namespace Fractal

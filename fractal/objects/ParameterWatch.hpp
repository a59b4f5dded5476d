#pragma once

#include <atomic>
#include <lattice/Parameter.hpp>
#include <QObject>

namespace Fractal {

/// Signals changes of any number of parameters, at most once for each pass of the event loop. Construct and destroy it
/// on the user-interface thread; the parameters may change on any thread.
class ParameterWatch : public QObject, private Kolt::ValueNotifier {
    Q_OBJECT

public:
    explicit ParameterWatch(QObject* parent = nullptr);
    ~ParameterWatch() override;

    /// Signals changes of the parameter and its properties from now on. Null is ignored.
    void watch(Kolt::ParameterPtr const& parameter);
    /// Whether a change was not signalled yet.
    bool isWaiting() const { return isWaiting_; }

signals:
    /// A parameter changed, in any pool. Emitted on the user-interface thread.
    void changed();

private:
    void onValueChange(Kolt::ValuePtr const& newValue, Kolt::VContext const& context,
                       Kolt::ValueMap const* properties) override;
    void notify();

    std::atomic<bool> isWaiting_{false};
};

} // namespace Fractal

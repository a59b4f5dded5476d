#pragma once

#include <atomic>
#include <lattice/Parameter.hpp>
#include <QLabel>

namespace Panel {

/// Counts the notifications of a parameter since this was made. Made on the user-interface thread; changes may be
/// reported on any thread.
class NotificationCounter : public QLabel, private Kolt::ValueNotifier {
    Q_OBJECT

public:
    explicit NotificationCounter(Kolt::ParameterPtr const& parameter, QWidget* parent = nullptr);
    ~NotificationCounter() override;

    int count() const { return count_; }

private:
    void onValueChange(Kolt::ValuePtr const& newValue, Kolt::VContext const& context,
                       Kolt::ValueMap const* properties) override;
    void showCount();

    QString const parameterName_;
    std::atomic<int> count_{0};
};

} // namespace Panel

#pragma once

#include <functional>
#include <lattice/ActionNotifier.hpp>
#include <lattice/ValueNotifier.hpp>
#include <string>
#include <vector>

namespace Checker {

/// Records a parameter's notifications, as any other part of a host receives them.
class RecordingNotifier : public Kolt::ValueNotifier {
public:
    void onValueChange(Kolt::ValuePtr const& newValue, Kolt::VContext const& context,
                       Kolt::ValueMap const* properties) override {
        if (properties) {
            ++propertyChanges;
        } else {
            values.push_back(newValue ? newValue->Text() : std::string());
            pools.push_back(context.pool());
        }
        if (reaction)
            reaction();
    }

    /// The text of each notified value.
    std::vector<std::string> values;
    /// The pool of each notification of a value.
    std::vector<Kolt::PoolPtr> pools;
    /// How many notifications were about properties.
    int propertyChanges = 0;
    /// Called for each notification; may be empty.
    std::function<void()> reaction;
};

/// Records the host's warnings.
class RecordedWarnings : public Kolt::VActionNotifier {
public:
    void onWarning(std::string const& text) override { texts.push_back(text); }
    /// The warnings, in order.
    std::vector<std::string> texts;
};

} // namespace Checker

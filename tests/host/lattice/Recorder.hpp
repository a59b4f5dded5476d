#pragma once

#include <functional>
#include <lattice/Parameter.hpp>
#include <string>
#include <vector>

/// A notifier that records its notifications and then calls a function of the test.
struct Recorder : Kolt::ValueNotifier {
    explicit Recorder(std::string recorderName = {}, std::vector<std::string>* notifications = nullptr)
        : name(std::move(recorderName)), log(notifications) {}
    ~Recorder() override { stopNotifications(); }

    void onValueChange(Kolt::ValuePtr const& newValue, Kolt::VContext const& context,
                       Kolt::ValueMap const* map) override {
        ++count;
        value = newValue;
        pool = context.pool();
        properties = map;
        if (log)
            log->push_back(name);
        // A copy, as the action may destroy this recorder.
        if (auto const action = onNotified)
            action();
    }

    Tessera::WeakPtr<Kolt::ValueNotifier> ref() { return Tessera::WeakPtr<Kolt::ValueNotifier>(this); }

    std::string name;
    std::vector<std::string>* log;
    std::function<void()> onNotified;
    int count = 0;
    Kolt::ValuePtr value;
    Kolt::PoolPtr pool;
    Kolt::ValueMap const* properties = nullptr;
};

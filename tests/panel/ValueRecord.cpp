#include "ValueRecord.hpp"

#include <lattice/ValueSnapshot.hpp>
#include <set>

ValueRecord::ValueRecord(Talo::Network const& network, Kolt::UndoHistory& history)
    : network_(network), history_(history), following_(history.addListener([this] { follow(); })) {
    takeHostWrite();
}

ValueRecord::~ValueRecord() = default;

std::vector<QString> ValueRecord::takeHostWrite() {
    std::vector<QString> changed;
    for (auto const& object : network_.objects()) {
        for (auto const& parameter : object->parameters()) {
            if (!parameter->isEdited())
                continue;
            for (auto const& pool : network_.pools()) {
                auto* const ownPool = parameter->keepsValuesPerPool() ? pool.get() : nullptr;
                auto& held = held_[{parameter.get(), ownPool}];
                if (held && held->equals(*parameter->effectiveValue(pool)))
                    continue;
                held = Kolt::copyEffectiveValue(*parameter, pool).value;
                changed.push_back(network_.nameOf(parameter));
            }
        }
    }
    return changed;
}

void ValueRecord::follow() {
    auto const steps = history_.steps();
    std::vector<StepRef> const done(steps.begin(), steps.end());
    followUndone(done);
    for (auto const& step : steps) {
        auto const known = steps_.find(step);
        // Only a new step, the latest one, and one that was redone can have changed something.
        if (known == steps_.end() || step == steps.back() || !known->second.isDone)
            followStep(step);
    }
    done_ = done;
}

void ValueRecord::followUndone(std::vector<StepRef> const& steps) {
    std::set<StepRef, std::owner_less<StepRef>> const staying(steps.begin(), steps.end());
    for (auto step = done_.rbegin(); step != done_.rend(); ++step) {
        if (staying.count(*step) > 0)
            // What went before the last step that stayed was not undone: a full history forgets its oldest steps.
            return;
        auto& known = steps_[*step];
        known.isDone = false;
        for (auto const& [target, change] : known.changes)
            held_[target] = change.before;
    }
}

void ValueRecord::followStep(Kolt::UndoHistory::Step const& step) {
    auto& known = steps_[step];
    bool const isRedone = !std::exchange(known.isDone, true);
    for (auto const& each : step->changes()) {
        auto const parameter = each.parameter();
        if (!parameter)
            continue;
        Target const target{parameter.get(), each.pool().get()};
        auto& change = known.changes[target];
        auto const after = each.after().value;
        bool const isNew = !change.after;
        if (isNew)
            change.before = held_[target];
        if (isNew || isRedone || !change.after->equals(*after))
            held_[target] = change.after = after;
    }
}

std::vector<std::string> ValueRecord::differences(std::string const& when) const {
    std::vector<std::string> all;
    for (auto const& object : network_.objects()) {
        for (auto const& parameter : object->parameters()) {
            for (auto const& pool : network_.pools()) {
                auto const held = held_.find({parameter.get(), parameter->keepsValuesPerPool() ? pool.get() : nullptr});
                if (held == held_.end() || held->second->equals(*parameter->effectiveValue(pool)))
                    continue;
                all.push_back(network_.nameOf(parameter).toStdString() + " is \"" +
                              parameter->effectiveValue(pool)->Text() + "\" " + when + ", not \"" +
                              held->second->Text() + "\"");
                if (!parameter->keepsValuesPerPool())
                    break;
            }
        }
    }
    return all;
}

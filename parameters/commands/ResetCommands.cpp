#include <parameters/commands/ResetCommands.hpp>

#include <algorithm>
#include <deque>
#include <lattice/UndoHistory.hpp>
#include <parameters/commands/RowCommands.hpp>
#include <parameters/commands/SharedEdits.hpp>
#include <parameters/input/InputFilter.hpp>
#include <parameters/rows/ParameterDescription.hpp>
#include <set>

namespace Talo {

void resetToDefaults(std::vector<Kolt::ParameterPtr> const& parameters, Kolt::PoolPtr const& pool) {
    InputFilter::shared()->gestures().end();
    std::vector<Kolt::ParameterPtr> changed;
    std::copy_if(parameters.begin(), parameters.end(), std::back_inserter(changed),
                 [](auto const& parameter) { return parameter && parameter->defaults() && isChangeable(*parameter); });
    std::set<Kolt::UndoHistory*> histories;
    for (auto const& parameter : changed)
        histories.insert(&parameter->history());
    std::deque<Kolt::UndoHistory::Macro> macros;
    for (auto* const history : histories)
        macros.emplace_back(*history);
    SharedEdits::Pause const pause;
    // What a parameter without a place for a value refuses is not reported: the others are reset all the same.
    for (auto const& parameter : changed)
        (void)resetToDefault(parameter, pool);
}

std::vector<Kolt::ParameterPtr> parametersInSection(Kolt::VObject const& object, QString const& title) {
    std::vector<Kolt::ParameterPtr> found;
    auto const& all = object.parameters();
    std::copy_if(all.begin(), all.end(), std::back_inserter(found),
                 [&](auto const& parameter) { return ParameterDescription(*parameter).section == title; });
    return found;
}

} // namespace Talo

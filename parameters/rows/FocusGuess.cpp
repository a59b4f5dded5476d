#include <parameters/rows/FocusGuess.hpp>

#include <parameters/EditorChoice.hpp>
#include <parameters/rows/ParameterDescription.hpp>
#include <parameters/rows/ParameterRow.hpp>
#include <parameters/rows/TabStops.hpp>

namespace Talo {

namespace {

/// Whether a person chose an editor for the parameter.
bool hasChoice(Kolt::VParameter const& parameter, QWidget const& form) {
    auto const* const choice = EditorChoice::around(&form);
    return choice && choice->creatorFor(parameter).alive();
}

} // namespace

void FocusGuess::learn(ParameterRow const& row, std::size_t heightClass) {
    auto const parameter = row.parameter();
    // What people edit may have a mark that takes the focus.
    if (!parameter || parameter->isEdited() || withoutFocus_.count(heightClass) != 0 || hasChoice(*parameter, row))
        return;
    if (row.editor() && row.editor()->isEnabled() && !row.cover() && tabStopsIn(row).empty())
        withoutFocus_.insert(heightClass);
}

bool FocusGuess::mayTakeFocus(Kolt::VParameter const& parameter, std::size_t heightClass, Kolt::PoolPtr const& pool,
                              QWidget const& form) const {
    if (!parameter.isEdited())
        return withoutFocus_.count(heightClass) == 0 || hasChoice(parameter, form);
    // The editor of a read-only one is disabled, but what marks another value than the default is not.
    auto const* const defaults = parameter.defaults();
    return isChangeable(parameter) || (defaults && !defaults->isEffectiveIn(parameter, pool));
}

} // namespace Talo

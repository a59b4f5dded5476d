#pragma once

#include <lattice/InputRegistry.hpp>
#include <sorrel/QInputCreator.hpp>
#include <tessera/Export.hpp>

namespace Kolt {

/// An editor that makeEditor made for a parameter.
struct TALO_EXPORT Editor {
    QPointer<QWidget> widget; ///< null if no editor could be made, and after the widget was destroyed
    InputRef input;           ///< lives as long as the widget
    InputChoice choice;       ///< which creator was chosen, and why
};

/// Makes the editor for a parameter: chooses a creator among those that make Qt widgets (the preference "QT" is wanted
/// besides the parameter's own), lets it create the widget, and shows the value of the current pool if the parameter
/// keeps values per pool. `parent` owns the widget; null leaves it to the caller. The source is not owned; if it is
/// destroyed before the editor, the editor has no pool from then on.
///
/// If no creator is registered for the type, or the parameter is null, the widget is null and the choice's explanation
/// says why. From the first call on, changes that other threads report reach all notifiers on the user-interface thread
/// (EventLoopDelivery). An editor without a pool drops every edit; the explanation says so, and for a null source a
/// warning as well (VActionNotifier::Warning). User-interface thread.
[[nodiscard]] TALO_EXPORT Editor makeEditor(ParameterPtr const& parameter, QWidget* parent,
                                            ValuePoolSource* poolSource);

/// The same, with a creator that somebody chose, of the parameter's type; an empty one counts as none.
[[nodiscard]] TALO_EXPORT Editor makeEditor(ParameterPtr const& parameter, QWidget* parent, ValuePoolSource* poolSource,
                                            CreatorRef const& chosen);

/// Shows in an editor the value that is effective in the source's current pool: the pool's value, else the parameter's
/// own. For an editor that shows something else meanwhile, such as that its user is choosing. Nothing is written, as
/// with showPoolValue. Nothing happens for a null parameter or a destroyed editor. User-interface thread.
TALO_EXPORT void showValue(Editor const& editor, ParameterPtr const& parameter, ValuePoolSource const* poolSource);

/// Shows in an editor the value that is effective in the source's current pool. To be called after the pool was
/// switched. Nothing is written: a copy of the own value that the editor stores when it is shown the value is removed
/// again. A parameter with one value shows the same in every pool, so nothing happens for it, nor for a null parameter
/// or a destroyed editor. User-interface thread.
TALO_EXPORT void showPoolValue(Editor const& editor, ParameterPtr const& parameter, ValuePoolSource const* poolSource);

} // namespace Kolt

#pragma once

#include <lattice/InputRegistry.hpp>
#include <sorrel/QInputCreator.hpp>

namespace Kolt {

/// An editor that was made for a parameter.
struct Editor {
    QPointer<QWidget> widget; ///< null when no editor could be made
    InputRef input;           ///< lives as long as the widget
    InputChoice choice;       ///< which creator was taken, and why
};

/// Makes the editor for a parameter: chooses a creator among those that make Qt widgets ("QT" is wanted besides the
/// parameter's own preferences), lets it create the widget, and shows what the current pool holds where the parameter
/// keeps values per pool. The widget belongs to `parent`. The source is not owned; when it is destroyed before the
/// editor, the editor has no pool from then on.
///
/// Where no creator is registered for the type, or the parameter is null, the widget is null and the choice's
/// explanation says why. An editor without a pool drops every edit; the explanation says so, and for a null source a
/// warning as well (VActionNotifier::Warning). User-interface thread.
Editor makeEditor(ParameterPtr const& parameter, QWidget* parent, ValuePoolSource* poolSource);

/// Shows in an editor what the source's current pool holds of a parameter that keeps values per pool, as after making
/// the editor or switching the pool: the pool's value, else the parameter's own. Nothing is written. Other parameters
/// show the same in every pool and are left alone.
void showPoolValue(Editor const& editor, ParameterPtr const& parameter, ValuePoolSource const* poolSource);

} // namespace Kolt

#pragma once

#include <lattice/Parameter.hpp>
#include <tessera/Export.hpp>

class QMenu;

namespace Talo {

class EditorChoice;

/// Fills a menu by which a person chooses the creator that edits a parameter: this one, or all of its type. What the
/// menu had goes. A null parameter leaves the commands out of use. `choice` must outlive the menu's actions.
/// User-interface thread.
TALO_EXPORT void fillEditorMenu(QMenu& menu, Kolt::ParameterPtr const& parameter, EditorChoice& choice);

} // namespace Talo

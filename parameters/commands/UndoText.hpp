#pragma once

#include <functional>
#include <lattice/UndoHistory.hpp>
#include <QString>
#include <tessera/Export.hpp>

namespace Talo {

/// A value in one short line: the chosen texts and the flags that are on with commas between them, a text without its
/// line ends. Nothing at all reads "(empty)".
TALO_EXPORT QString valueText(Kolt::VValueBase const& value);

/// Names a parameter for people, as "object.parameter". Called with a living parameter or with null; an empty text has
/// the caller use the parameter's own name.
using ParameterNaming = std::function<QString(Kolt::ParameterPtr const&)>;

/// An undo step in one line: "formula.iterations: 400 → 500 (draft)", or the description of its undo command. Of long
/// texts only the start of what differs is shown. `naming` may be empty.
TALO_EXPORT QString undoText(Kolt::UndoStep const& step, ParameterNaming const& naming);

} // namespace Talo

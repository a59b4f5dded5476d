#pragma once

#include <lattice/UndoHistory.hpp>
#include <panel/network/Network.hpp>
#include <QString>

namespace Panel {

/// A value in one short line: the chosen texts and the flags that are on with commas between them, a text without its
/// line ends. Nothing at all reads "(empty)".
QString valueText(Kolt::VValueBase const& value);

/// A step in one line: "formula.iterations: 400 → 500 (draft)", or what its record says. Of long texts only the
/// beginning of what differs is shown. `network` knows the names of objects and may be null.
QString stepText(Kolt::UndoStep const& step, Network const* network);

} // namespace Panel

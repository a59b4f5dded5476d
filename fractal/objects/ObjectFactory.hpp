#pragma once

#include <lattice/Object.hpp>
#include <QString>

namespace Fractal {

/// Makes an object of a kind of a network file: "formula", "colouring", "layers", "titles", "exporter" or
/// "render"; for any other kind one that does nothing. User-interface thread.
Kolt::ObjectPtr makeObject(QString const& kind, QString const& name);

} // namespace Fractal

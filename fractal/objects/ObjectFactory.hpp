#pragma once

#include <lattice/Object.hpp>
#include <QString>

namespace Fractal {

/// Makes the object that a kind of a network file stands for: "formula", "colouring", "layers", "titles", "exporter" or
/// "render"; for any other kind one that does nothing. User-interface thread.
Kolt::ObjectPtr makeObject(QString const& kind, QString const& name);

} // namespace Fractal

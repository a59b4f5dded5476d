#pragma once

#include <lattice/Object.hpp>
#include <QString>

namespace Fractal {

/// Makes an object for a kind in a network file: "formula", "colouring", "layers", "titles", "exporter" or "render";
/// for any other kind, a plain object that computes nothing. User-interface thread.
Kolt::ObjectPtr makeObject(QString const& kind, QString const& name);

} // namespace Fractal

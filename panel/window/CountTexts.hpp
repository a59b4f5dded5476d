#pragma once

#include <QString>

namespace Panel {

/// "12 parameters", for people.
QString parameterCountText(int count);
/// "12 objects".
QString objectCountText(int count);
/// "12 parameters found".
QString parametersFoundText(int count);

} // namespace Panel

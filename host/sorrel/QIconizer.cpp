#include <sorrel/QIconizer.hpp>

namespace Kolt {

QIconizer::QIconizer() = default;

QIconizer::~QIconizer() = default;

} // namespace Kolt

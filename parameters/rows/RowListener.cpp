#include <parameters/rows/RowListener.hpp>

namespace Talo {

RowListener::~RowListener() = default;

} // namespace Talo

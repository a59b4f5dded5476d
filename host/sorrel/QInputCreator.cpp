#include <sorrel/QInputCreator.hpp>

namespace Kolt {

QInputCreator::QInputCreator() = default;

QInputCreator::~QInputCreator() = default;

QString QInputCreator::hint() const {
    return {};
}

} // namespace Kolt

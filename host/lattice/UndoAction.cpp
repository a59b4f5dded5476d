#include <lattice/UndoAction.hpp>

namespace Kolt {

VUndoAction::VUndoAction(std::string const& description) : description_(description) {}

VUndoAction::~VUndoAction() = default;

} // namespace Kolt

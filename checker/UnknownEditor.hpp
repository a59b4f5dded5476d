#pragma once

#include <checker/EditorCase.hpp>
#include <checker/Findings.hpp>
#include <lattice/InputRegistry.hpp>

namespace Checker {

/// Describes an editor of which only its creator is known: values of its type, what it shows by comparison with an
/// editor that is opened on the value, and an edit that is found by trying. Faults that make a description impossible
/// are added to the findings; `makeValue` is empty then. User-interface thread.
EditorCase unknownEditor(Kolt::InputRegistry::Entry const& entry, Findings& findings);

/// What the findings call the editor of a creator: 'the editor "spin" for int: '.
std::string editorName(Kolt::InputRegistry::Entry const& entry);

} // namespace Checker

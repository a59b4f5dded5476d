#include "EditorCase.hpp"

void addSelectionEditors(std::vector<EditorCase>&) {}

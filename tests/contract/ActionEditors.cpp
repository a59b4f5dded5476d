#include "EditorCase.hpp"

void addActionEditors(std::vector<EditorCase>&) {}

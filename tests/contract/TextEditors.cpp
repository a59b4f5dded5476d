#include "EditorCase.hpp"

void addTextEditors(std::vector<EditorCase>&) {}

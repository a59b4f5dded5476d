#pragma once

#include <checker/EditorCase.hpp>
#include <vector>

using Checker::EditorCase;

/// All editors of the plug-in qtalo_inputs, by family.
std::vector<EditorCase> const& editorCases();
/// All editors of the plug-in more_inputs.
std::vector<EditorCase> const& moreEditorCases();

// One function for each family, in its own file.
void addBooleanEditors(std::vector<EditorCase>& cases);
void addNumberEditors(std::vector<EditorCase>& cases);
void addSelectionEditors(std::vector<EditorCase>& cases);
void addTextEditors(std::vector<EditorCase>& cases);
void addActionEditors(std::vector<EditorCase>& cases);
void addMoreEditors(std::vector<EditorCase>& cases);

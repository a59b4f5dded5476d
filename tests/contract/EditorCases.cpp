#include "EditorCases.hpp"

namespace {

/// Fills in what the cases leave out.
std::vector<EditorCase> completed(std::vector<EditorCase> cases) {
    for (auto& editor : cases)
        Checker::complete(editor);
    return cases;
}

} // namespace

std::vector<EditorCase> const& moreEditorCases() {
    static auto const cases = [] {
        std::vector<EditorCase> all;
        addMoreEditors(all);
        return completed(std::move(all));
    }();
    return cases;
}

std::vector<EditorCase> const& editorCases() {
    static auto const cases = [] {
        std::vector<EditorCase> all;
        addBooleanEditors(all);
        addNumberEditors(all);
        addSelectionEditors(all);
        addTextEditors(all);
        addActionEditors(all);
        return completed(std::move(all));
    }();
    return cases;
}

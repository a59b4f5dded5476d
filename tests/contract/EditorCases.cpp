#include "EditorCase.hpp"

std::vector<EditorCase> const& editorCases() {
    static auto const cases = [] {
        std::vector<EditorCase> all;
        addBooleanEditors(all);
        addNumberEditors(all);
        addSelectionEditors(all);
        addTextEditors(all);
        addActionEditors(all);
        for (auto& editor : all) {
            if (!editor.change)
                editor.change = [make = editor.makeValue](Kolt::VValueBase& value, int n) {
                    value.setValueFromText(make(n)->Text());
                };
            if (!editor.expected)
                editor.expected = [](Kolt::VValueBase const& value) { return value.Text(); };
        }
        return all;
    }();
    return cases;
}

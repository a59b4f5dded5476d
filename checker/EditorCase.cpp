#include <checker/EditorCase.hpp>

namespace Checker {

void complete(EditorCase& editor) {
    if (!editor.change)
        editor.change = [make = editor.makeValue](Kolt::VValueBase& value, int n) {
            value.setValueFromText(make(n)->Text());
        };
    if (!editor.expected)
        editor.expected = [](Kolt::VValueBase const& value) { return value.Text(); };
}

} // namespace Checker

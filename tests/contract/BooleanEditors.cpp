#include "EditorCases.hpp"

#include <QCheckBox>
#include <QTest>

void addBooleanEditors(std::vector<EditorCase>& cases) {
    EditorCase boolean;
    boolean.name = "boolean";
    boolean.creator = "boolean";
    boolean.makeValue = [](int n) { return Kolt::makeValue(n == 1); };
    boolean.shown = [](QWidget& editor) {
        return Kolt::VValueTrait<bool>::Text(editor.findChild<QCheckBox*>()->isChecked());
    };
    boolean.edit = [](QWidget& editor) { QTest::mouseClick(editor.findChild<QCheckBox*>(), Qt::LeftButton); };
    cases.push_back(boolean);
}

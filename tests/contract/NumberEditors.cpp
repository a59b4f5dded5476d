#include "EditorCases.hpp"

#include "support/WheelTurn.hpp"
#include <QDial>
#include <QLineEdit>
#include <QSlider>
#include <QTest>

namespace {

std::string lineEditText(QWidget& editor) {
    return editor.findChild<QLineEdit*>()->text().toStdString();
}

void stepSlider(QWidget& editor) {
    QTest::keyClick(editor.findChild<QSlider*>(), Qt::Key_Right);
}

void turnDial(QWidget& editor) {
    turnWheel(*editor.findChild<QDial*>(), 1);
}

EditorCase integer(std::string const& name, std::string const& creator, std::vector<std::string> const& preferences) {
    EditorCase editor;
    editor.name = name;
    editor.creator = creator;
    editor.preferences = preferences;
    editor.makeValue = [](int n) { return Kolt::makeValue(std::array{7, 40, 12}[static_cast<std::size_t>(n)]); };
    editor.shown = lineEditText;
    editor.edit = preferences.empty() ? stepSlider : turnDial;
    editor.warningsWithoutOwner = {"QInteger created for non-integer parameter."};
    editor.warningsForOtherType = {"QInteger could not initialize value."};
    editor.addedProperties = {"min", "max"};
    return editor;
}

EditorCase floating(std::string const& name, std::string const& creator, std::vector<std::string> const& preferences) {
    EditorCase editor;
    editor.name = name;
    editor.creator = creator;
    editor.preferences = preferences;
    editor.makeValue = [](int n) {
        return Kolt::makeValue(std::array{0.25, 0.5, 0.0625}[static_cast<std::size_t>(n)]);
    };
    editor.shown = lineEditText;
    editor.expected = [](Kolt::VValueBase const& value) {
        return QString::number(std::stod(value.Text()), 'f', 6).toStdString();
    };
    editor.edit = preferences.empty() ? stepSlider : turnDial;
    editor.warningsWithoutOwner = {"QFloat created for non-integer parameter."};
    editor.warningsForOtherType = {"qVinputs/basics/QFloat.cpp -- QFloat could not initialize value."};
    editor.addedProperties = {"min", "max"};
    return editor;
}

} // namespace

void addNumberEditors(std::vector<EditorCase>& cases) {
    cases.push_back(integer("integerSlider", "int", {}));
    cases.push_back(integer("integerDial", "intDial", {"dial"}));
    cases.push_back(integer("periodicIntegerDial", "intDialPeriodic", {"dial", "periodic"}));
    cases.push_back(floating("floatingSlider", "double", {}));
    cases.push_back(floating("floatingDial", "FltDial", {"dial"}));
    cases.push_back(floating("periodicFloatingDial", "Periodic FltDial", {"dial", "periodic"}));
}

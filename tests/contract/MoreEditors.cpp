#include "EditorCases.hpp"

#include <bramble/Enum.hpp>
#include <bramble/EnumSelection.hpp>
#include <bramble/MultipleStringSelection.hpp>
#include <bramble/StringSelection.hpp>
#include <QCheckBox>
#include <QComboBox>
#include <QLineEdit>
#include <QTest>

// The editors of the plug-in more_inputs.
namespace {

std::vector<std::string> const colours = {"red", "green", "blue"};

EditorCase withPreference(std::string const& name, std::string const& preference) {
    EditorCase editor;
    editor.name = name;
    editor.creator = preference;
    editor.preferences = {preference};
    return editor;
}

EditorCase numbers(std::string const& name, std::string const& preference) {
    auto editor = withPreference(name, preference);
    editor.shown = [](QWidget& widget) { return widget.findChild<QLineEdit*>()->text().toStdString(); };
    editor.edit = [](QWidget& widget) { QTest::keyClick(&widget, Qt::Key_Up); };
    return editor;
}

EditorCase wholeNumber(std::string const& name, std::string const& preference) {
    auto editor = numbers(name, preference);
    editor.makeValue = [](int n) { return Kolt::makeValue(std::array{7, 40, 12}[static_cast<std::size_t>(n)]); };
    return editor;
}

EditorCase floatingNumber(std::string const& name, std::string const& preference) {
    auto editor = numbers(name, preference);
    editor.makeValue = [](int n) {
        return Kolt::makeValue(std::array{0.25, 0.5, 0.0625}[static_cast<std::size_t>(n)]);
    };
    editor.expected = [](Kolt::VValueBase const& value) {
        return QString::number(std::stod(value.Text()), 'g', QLocale::FloatingPointShortest).toStdString();
    };
    return editor;
}

EditorCase switchOfBool() {
    auto editor = withPreference("switch", "switch");
    editor.makeValue = [](int n) { return Kolt::makeValue(n == 1); };
    editor.shown = [](QWidget& widget) {
        return Kolt::VValueTrait<bool>::Text(widget.findChild<QCheckBox*>()->isChecked());
    };
    editor.edit = [](QWidget& widget) { QTest::keyClick(widget.findChild<QCheckBox*>(), Qt::Key_Space); };
    return editor;
}

EditorCase dropdown(std::string const& name) {
    auto editor = withPreference(name, "dropdown");
    editor.shown = [](QWidget& widget) { return widget.findChild<QComboBox*>()->currentText().toStdString(); };
    editor.edit = [](QWidget& widget) {
        auto* const box = widget.findChild<QComboBox*>();
        QTest::keyClick(box, box->currentIndex() == 0 ? Qt::Key_Down : Qt::Key_Up);
    };
    editor.editableWithoutOwner = false;
    return editor;
}

EditorCase enumDropdown() {
    auto editor = dropdown("enumDropdown");
    editor.makeValue = [](int n) {
        Tessera::StrongPtr<Kolt::VEnumSelection, Tessera::StringList> const names(new Kolt::VEnumSelection(colours));
        names->select(static_cast<unsigned>(n));
        return Kolt::makeValue(Kolt::Enum(names));
    };
    return editor;
}

EditorCase textDropdown() {
    auto editor = dropdown("textDropdown");
    editor.makeValue = [](int n) {
        return Kolt::makeValue(
            Kolt::VStringList(new Kolt::StringSelection(colours, colours[static_cast<std::size_t>(n)])));
    };
    return editor;
}

EditorCase checkList() {
    auto editor = withPreference("textList", "text list");
    editor.makeValue = [](int n) {
        Kolt::VMultipleStringList const selection(new Kolt::MultipleStringSelection(colours));
        selection->add(colours[static_cast<std::size_t>(n)]);
        return Kolt::makeValue(selection);
    };
    editor.shown = [](QWidget& widget) {
        std::string shown;
        for (auto const* const box : widget.findChildren<QCheckBox*>())
            if (box->isChecked())
                shown += (shown.empty() ? "" : "\n") + box->text().toStdString();
        return shown;
    };
    editor.edit = [](QWidget& widget) {
        if (auto* const box = widget.findChild<QCheckBox*>())
            QTest::keyClick(box, Qt::Key_Space);
    };
    editor.editableWithoutOwner = false;
    return editor;
}

} // namespace

void addMoreEditors(std::vector<EditorCase>& cases) {
    cases.push_back(wholeNumber("integerSpin", "spin"));
    cases.push_back(wholeNumber("integerField", "field"));
    cases.push_back(floatingNumber("floatingSpin", "spin"));
    cases.push_back(floatingNumber("floatingField", "field"));
    cases.push_back(switchOfBool());
    cases.push_back(enumDropdown());
    cases.push_back(textDropdown());
    cases.push_back(checkList());
}

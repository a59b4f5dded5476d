#include "EditorCases.hpp"

#include <bramble/Enum.hpp>
#include <bramble/EnumSelection.hpp>
#include <bramble/FlagList.hpp>
#include <bramble/MultipleStringSelection.hpp>
#include <bramble/StringSelection.hpp>
#include <QCheckBox>
#include <QComboBox>
#include <QListWidget>
#include <QPushButton>
#include <QRadioButton>
#include <QTest>

namespace {

std::vector<std::string> const texts = {"sine", "noise", "spiral"};

EditorCase enumeration() {
    EditorCase editor;
    editor.name = "enumeration";
    editor.creator = "enum";
    editor.makeValue = [](int n) {
        Tessera::StrongPtr<Kolt::VEnumSelection, Tessera::StringList> const names(new Kolt::VEnumSelection(texts));
        names->select(static_cast<unsigned>(n));
        return Kolt::makeValue(Kolt::Enum(names));
    };
    editor.shown = [](QWidget& widget) {
        for (auto const* const button : widget.findChildren<QRadioButton*>()) {
            if (button->isChecked())
                return button->text().toStdString();
        }
        return std::string();
    };
    editor.edit = [](QWidget& widget) {
        for (auto* const button : widget.findChildren<QRadioButton*>()) {
            if (!button->isChecked()) {
                QTest::keyClick(button, Qt::Key_Space);
                return;
            }
        }
    };
    editor.notificationsWithTwoEditors = 2;
    editor.changesInPlace = true;
    editor.reportsMissingOwnerWithoutPool = true;
    editor.editableWithoutOwner = false;
    editor.commitsWhatItShows = true;
    return editor;
}

EditorCase flagList() {
    EditorCase editor;
    editor.name = "flagList";
    editor.creator = "checkboxes";
    editor.makeValue = [](int n) {
        return Kolt::makeValue(Kolt::FlagList{{"grid", n == 0}, {"axes", n == 1}, {"legend", n == 2}});
    };
    editor.shown = [](QWidget& widget) {
        Kolt::FlagList flags;
        for (auto const* const box : widget.findChildren<QCheckBox*>())
            flags[box->text().toStdString()] = box->isChecked();
        return Kolt::VValueTrait<Kolt::FlagList>::Text(flags);
    };
    editor.edit = [](QWidget& widget) {
        if (auto* const box = widget.findChild<QCheckBox*>())
            QTest::keyClick(box, Qt::Key_Space);
    };
    editor.reportsMissingOwnerWithoutPool = true;
    editor.editableWithoutOwner = false;
    return editor;
}

EditorCase stringList(std::string const& name, std::vector<std::string> const& preferences) {
    EditorCase editor;
    editor.name = name;
    editor.creator = "selection";
    editor.preferences = preferences;
    editor.makeValue = [](int n) {
        return Kolt::makeValue(Kolt::VStringList(new Kolt::StringSelection(texts, texts[static_cast<std::size_t>(n)])));
    };
    editor.shown = [](QWidget& widget) { return widget.findChild<QComboBox*>()->currentText().toStdString(); };
    editor.edit = [](QWidget& widget) {
        auto* const box = widget.findChild<QComboBox*>();
        QTest::keyClick(box, box->currentIndex() == 0 ? Qt::Key_Down : Qt::Key_Up);
    };
    editor.changesInPlace = true;
    editor.reportsMissingOwnerWithoutPool = true;
    editor.editableWithoutOwner = false;
    return editor;
}

EditorCase multipleStringList(std::string const& name, std::vector<std::string> const& preferences) {
    EditorCase editor;
    editor.name = name;
    editor.creator = "selection";
    editor.preferences = preferences;
    editor.makeValue = [](int n) {
        Kolt::VMultipleStringList const selection(new Kolt::MultipleStringSelection(texts));
        selection->add(texts[static_cast<std::size_t>(n)]);
        return Kolt::makeValue(selection);
    };
    editor.shown = [](QWidget& widget) {
        std::string shown;
        auto const* const list = widget.findChild<QListWidget*>();
        for (int row = 0; row < list->count(); ++row) {
            if (list->item(row)->isSelected())
                shown += (shown.empty() ? "" : "\n") + list->item(row)->text().toStdString();
        }
        return shown;
    };
    editor.edit = [](QWidget& widget) {
        for (auto* const button : widget.findChildren<QPushButton*>()) {
            if (button->text() == QLatin1String("Inverse"))
                QTest::mouseClick(button, Qt::LeftButton);
        }
    };
    editor.changesInPlace = true;
    editor.reportsMissingOwnerWithoutPool = true;
    editor.trace = "calling getSeletion from valueChanged";
    return editor;
}

} // namespace

void addSelectionEditors(std::vector<EditorCase>& cases) {
    cases.push_back(enumeration());
    cases.push_back(flagList());
    cases.push_back(multipleStringList("multipleSelection", {}));
    cases.push_back(multipleStringList("editableMultipleSelection", {"editable"}));
    cases.push_back(stringList("selection", {}));
    cases.push_back(stringList("editableSelection", {"editable"}));
}

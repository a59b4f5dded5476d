#include "PanelCheck.hpp"
#include "contract/EditorCases.hpp"

#include <algorithm>
#include <bramble/FlagList.hpp>
#include <lattice/InputRegistry.hpp>
#include <map>
#include <network/JsonFormat.hpp>
#include <parameters/EditorChoice.hpp>
#include <parameters/rows/PlaceholderEditor.hpp>
#include <QAbstractSlider>
#include <QAccessible>
#include <QComboBox>
#include <QDial>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

namespace {

using Creator = Kolt::VInputCreatorBase const*;

Creator chosen(Kolt::VParameter const& parameter) {
    return Kolt::InputRegistry::theRegistry().choose(parameter, {"QT"}).creator.strong().get();
}

/// The creator of the row's editor: one that a person chose, or the usual one.
Creator creatorOf(Talo::ParameterRow const& row) {
    auto const* const choice = Talo::EditorChoice::around(row.editor());
    auto const byPerson = choice ? choice->creatorFor(*row.parameter()).strong() : nullptr;
    return byPerson ? byPerson.get() : chosen(*row.parameter());
}

/// Maps each creator to the contract case that can read its editors.
std::map<Creator, EditorCase const*> casesByCreator() {
    std::map<Creator, EditorCase const*> cases;
    for (auto const& editor : editorCases()) {
        Kolt::ParameterPtr const parameter(
            new Kolt::VParameter("value", editor.makeValue(0), Kolt::VParameter::Values::Shared, editor.declaredType));
        if (!editor.preferences.empty())
            parameter->setCreationPreferences(Kolt::PreferencesPtr(new Kolt::VCreationPreferences(
                Kolt::VCreationPreferences::Names(editor.preferences.begin(), editor.preferences.end()))));
        cases[chosen(*parameter)] = &editor;
    }
    return cases;
}

int precision(Kolt::VParameter const& parameter) {
    constexpr int usual = 6;
    auto const* const properties = parameter.properties();
    return properties ? Kolt::valueOr(properties->getValue("precision"), usual) : usual;
}

std::string expectedText(EditorCase const& editor, Talo::ParameterRow& row, Kolt::VValueBase const& value) {
    auto const& parameter = *row.parameter();
    // A field with an input mask shows what the mask accepts, whatever was pasted.
    auto const* const field = qobject_cast<QLineEdit const*>(row.editor());
    if (field && !field->inputMask().isEmpty()) {
        QLineEdit masked;
        masked.setInputMask(field->inputMask());
        masked.setText(QString::fromStdString(value.Text()));
        return masked.text().toStdString();
    }
    // The contract's numbers have no precision property.
    if (auto const* const number = dynamic_cast<Kolt::VValue<double> const*>(&value)) {
        double real = 0;
        number->get(real);
        return QString::number(real, 'f', precision(parameter)).toStdString();
    }
    return editor.expected(value);
}

/// The text that the editor shows. In a row, the tool tip of a file button also contains the caption, so the accessible
/// value is read instead.
std::string shownText(EditorCase const& editor, QWidget& widget) {
    return qobject_cast<QPushButton*>(&widget)
               ? QAccessible::queryAccessibleInterface(&widget)->text(QAccessible::Value).toStdString()
               : editor.shown(widget);
}

/// Whether the editor shows no value: a half-filled field, a colour that is being picked, or a typed text that is not
/// an entry of the list and was not accepted.
bool showsNoValue(QWidget& editor, Kolt::ValuePtr const& value) {
    auto const* const field = qobject_cast<QLineEdit*>(&editor);
    auto const* const label = qobject_cast<QLabel*>(&editor);
    auto const* const list = editor.findChild<QComboBox*>();
    auto const* const entries = Talo::entriesOf(value);
    return (field && !field->hasAcceptableInput()) || (label && label->text() == QLatin1String(" picking")) ||
           (list && list->isEditable() && entries &&
            std::find(entries->begin(), entries->end(), list->currentText().toStdString()) == entries->end());
}

/// Where the handle for an integer should be: a wrapping dial continues from the other end, other handles stop at their
/// end.
int placeOf(int number, QAbstractSlider const& handle) {
    auto const* const dial = qobject_cast<QDial const*>(&handle);
    if (!dial || !dial->wrapping() || (number >= handle.minimum() && number <= handle.maximum()))
        return qBound(handle.minimum(), number, handle.maximum());
    auto const turn = static_cast<qint64>(handle.maximum()) - handle.minimum();
    auto const rest = (static_cast<qint64>(number) - handle.minimum()) % turn;
    return static_cast<int>(handle.minimum() + (rest < 0 ? rest + turn : rest));
}

std::string misplacedHandle(QWidget& editor, Kolt::VValueBase const& value) {
    auto const* const handle = editor.findChild<QAbstractSlider*>();
    auto const* const number = dynamic_cast<Kolt::VValue<int> const*>(&value);
    int held = 0;
    if (!handle || !number || !number->get(held))
        return {};
    int const place = placeOf(held, *handle);
    return handle->value() == place
               ? std::string()
               : "a handle at " + std::to_string(handle->value()) + ", not " + std::to_string(place);
}

std::string disagreement(Talo::ParameterRow& row, std::map<Creator, EditorCase const*> const& cases, int& compared) {
    auto const parameter = row.parameter();
    if (!parameter || !row.editor() || qobject_cast<Talo::PlaceholderEditor*>(row.editor()))
        return {};
    auto const found = cases.find(creatorOf(row));
    if (found == cases.end())
        return "an editor that nobody can read";
    auto const& editor = *found->second;
    auto const value = parameter->effectiveValue(row.pool());
    if (!editor.showsValue || showsNoValue(*row.editor(), value))
        return {};
    ++compared;
    auto const expected = expectedText(editor, row, *value);
    auto const shown = shownText(editor, *row.editor());
    if (shown != expected)
        return "shows \"" + shown + "\", not \"" + expected + "\"";
    return misplacedHandle(*row.editor(), *value);
}

} // namespace

std::vector<std::string> disagreements(Panel::MainWindow& window, int* compared) {
    std::vector<std::string> all;
    auto const cases = casesByCreator();
    int count = 0;
    auto const views = window.findChildren<Panel::ObjectView*>();
    for (auto const* const view : views) {
        for (auto* const row : view->rows()) {
            auto const problem = disagreement(*row, cases, count);
            if (!problem.empty())
                all.push_back(view->object()->Name() + "." + row->parameterName().toStdString() + " " + problem);
        }
    }
    if (compared)
        *compared = count;
    return all;
}

#pragma once

#include <functional>
#include <lattice/Value.hpp>
#include <QWidget>
#include <string>
#include <vector>

/// One editor of the contract: how to open it, read what it shows, and edit as a user does. Every editor that the
/// plug-in registers has one, and passes the same tests.
struct EditorCase {
    using Value = Kolt::ValuePtr;

    /// Names the tests: letters and digits alone.
    std::string name;
    /// The creator that must be chosen for the parameter.
    std::string creator;
    /// The parameter's own creation preferences; empty for none.
    std::vector<std::string> preferences;
    /// The parameter's declared type where it is not that of its value.
    std::string declaredType;

    /// The n-th of three different values, 0 to 2. Values that refer to an object (a selection) refer to one of their
    /// own with the same texts.
    std::function<Value(int)> makeValue;
    /// Turns `value` into the n-th value, as another editor or the host would. By default through the value's text.
    std::function<void(Kolt::VValueBase&, int)> change;
    /// What the editor shows, as text.
    std::function<std::string(QWidget&)> shown;
    /// What an editor must show for a value, in the same form. By default the value's text.
    std::function<std::string(Kolt::VValueBase const&)> expected;
    /// Whether the editor shows its value at all; a button that fires an action does not.
    bool showsValue = true;

    /// One edit by real events that leads away from each of the three values; nothing for a display.
    std::function<void(QWidget&)> edit;
    /// Whether an edit writes a value; a button that fires an action does not.
    bool writes = true;
    /// How often an edit notifies with two editors on one parameter. With one it notifies once.
    int notificationsWithTwoEditors = 1;
    /// Whether an edit has changed the value's object already when the store is refused.
    bool changesInPlace = false;
    /// Whether an editor that was opened for a parameter that is gone has anything to edit; one without entries has
    /// not.
    bool editableWithoutOwner = true;
    /// Whether a change from elsewhere is committed once more where it moves what is shown.
    bool commitsWhatItShows = false;
    /// Whether an edit without a pool gets as far as the missing parameter.
    bool reportsMissingOwnerWithoutPool = false;

    /// Warnings that the host gets when the editor is opened for a parameter that is gone, and for one whose value is
    /// of another type.
    std::vector<std::string> warningsWithoutOwner;
    std::vector<std::string> warningsForOtherType;
    /// Properties that opening the editor adds where they are missing.
    std::vector<std::string> addedProperties;
    /// A line that the editor prints whenever it shows a value; it may stand anywhere in the output.
    std::string trace;
};

/// All editors, in the order of their families.
std::vector<EditorCase> const& editorCases();

// One function for each family, in a file of its own.
void addBooleanEditors(std::vector<EditorCase>& cases);
void addNumberEditors(std::vector<EditorCase>& cases);
void addSelectionEditors(std::vector<EditorCase>& cases);
void addTextEditors(std::vector<EditorCase>& cases);
void addActionEditors(std::vector<EditorCase>& cases);

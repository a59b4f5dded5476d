#pragma once

#include <functional>
#include <lattice/InputCreator.hpp>
#include <QWidget>
#include <string>
#include <vector>

namespace Checker {

/// One editor of the contract: how to open it, read what it shows, and edit as a user does. All editors must pass the
/// same checks (EditorContract).
struct EditorCase {
    using Value = Kolt::ValuePtr;

    /// The name of its tests: only letters and digits.
    std::string name;
    /// The name of the creator that must be chosen for the parameter.
    std::string creator;
    /// The creator itself, if the choice is not a part of the contract.
    Kolt::CreatorRef chosen;
    /// The parameter's creation preferences; empty for none.
    std::vector<std::string> preferences;
    /// The parameter's declared type, if it differs from the type of the value.
    std::string declaredType;

    /// Creates the n-th of three different values, 0 to 2. Values that refer to an object (a selection) each refer to
    /// their own object with the same texts.
    std::function<Value(int)> makeValue;
    /// Changes `value` to the n-th value, as another editor or the host would; by default through its text.
    std::function<void(Kolt::VValueBase&, int)> change;
    /// Returns what the editor shows, as text.
    std::function<std::string(QWidget&)> shown;
    /// Returns what an editor must show for a value, in the same form; by default the value's text.
    std::function<std::string(Kolt::VValueBase const&)> expected;
    /// Whether the editor shows its value; a button that fires an action does not.
    bool showsValue = true;

    /// Makes one edit by real events that changes each of the three values; empty for a display.
    std::function<void(QWidget&)> edit;
    /// Whether an edit writes a value; a button that fires an action does not.
    bool writes = true;
    /// The number of notifications of an edit with two editors of one parameter; with one there is one.
    int notificationsWithTwoEditors = 1;
    /// Whether an edit changes the value object before the store, so even if the store is refused.
    bool changesInPlace = false;
    /// Whether an editor that was opened for a destroyed parameter can be edited; one without entries cannot.
    bool editableWithoutOwner = true;
    /// Whether a change from elsewhere that changes what is shown is committed once more.
    bool commitsWhatItShows = false;
    /// Whether an edit without a pool still reports a missing parameter.
    bool reportsMissingOwnerWithoutPool = false;

    /// Whether the editor is known so well that its output, its warnings and the properties that it adds are as below;
    /// of others they are not looked at.
    bool isKnown = true;
    /// Warnings to the host when the editor is opened for a destroyed parameter, and for one with a value of another
    /// type.
    std::vector<std::string> warningsWithoutOwner;
    std::vector<std::string> warningsForOtherType;
    /// Properties that the editor adds when it is opened, if they are missing.
    std::vector<std::string> addedProperties;
    /// A line that the editor prints whenever it shows a value, anywhere in the output.
    std::string trace;
};

/// Fills in what a case leaves out: how to change a value and what is expected to be shown.
void complete(EditorCase& editor);

} // namespace Checker

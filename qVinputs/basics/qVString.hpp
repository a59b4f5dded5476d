#pragma once

#include <plugin/VInputValue.hpp>
#include <qVinputs/basics/Text.hpp>

#include <lattice/CreationPreferences.hpp>
#include <QTextEdit>

namespace Kolt {

/// Edits a text of several lines, plain text. The whole text is written, also where it is unchanged, when the focus
/// leaves, when the mouse leaves, and before each key takes effect: every key is offered as a shortcut first. What is
/// being typed when the editor is destroyed is not written: whoever closes it hides it first, and the focus leaves.
///
/// What the document gives back is what is written: line ends are "\n" alone (a carriage return and U+2028 become
/// that), a no-break space becomes a blank, and bytes that are no UTF-8 become U+FFFD.
///
/// The text is shown in bold "DejaVu Sans Mono" of 8 points where that can be had exactly. The preferences are not
/// looked at. Where the parameter is gone the text starts empty, and each commit prints the owner-fault line.
class qVString : public QTextEdit, public VInputValue<string> {
    Q_OBJECT

public:
    qVString(ParameterRef const& parameter, QWidget* parent, ValuePoolSource* poolSource,
             PreferencesPtr const& preferences);
    ~qVString() override;

    /// Shows a text; any other value is ignored. Cursor and selection stay where the text is the shown one.
    void onValueChange(ValuePtr const& newValue, VContext const& context, ValueMap const* properties) override;

public slots:
    /// Commits the text of the document.
    void newText();

protected:
    bool event(QEvent* event) override;

private:
    // The state of the document that was committed last.
    int committedRevision_ = -1;
    bool destroying_ = false;
};

} // namespace Kolt

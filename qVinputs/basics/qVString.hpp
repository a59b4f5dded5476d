#pragma once

#include <plugin/VInputValue.hpp>
#include <qVinputs/basics/Text.hpp>

#include <lattice/CreationPreferences.hpp>
#include <QTextEdit>

namespace Kolt {

/// Edits a multi-line text, plain text. The whole text is written, also an unchanged one, when the focus leaves, when
/// the mouse leaves, and before each key takes effect, as every key is offered as a shortcut first. Text that is being
/// typed when the editor is destroyed is not written: close the editor by hiding it first, so that the focus leaves.
///
/// The text is written as the document returns it: line ends are "\n" alone (a carriage return and U+2028 become that),
/// a no-break space becomes a space, and bytes that are not UTF-8 become U+FFFD.
///
/// The font is bold "DejaVu Sans Mono" of 8 points if exactly that is available. If the parameter was deleted, the text
/// starts empty, and each commit prints the owner-fault line. User-interface thread.
class qVString : public QTextEdit, public VInputValue<string> {
    Q_OBJECT

public:
    /// Makes an editor of `parameter` on `parent`, which owns it and may be null. The editor refers to the parameter
    /// weakly. It asks `poolSource` for the pool at each use; the source must outlive it, and null means that there is
    /// no pool. `preferences` is not read.
    qVString(ParameterRef const& parameter, QWidget* parent, ValuePoolSource* poolSource,
             PreferencesPtr const& preferences);
    ~qVString() override;

    /// Shows a text; any other value is ignored. Cursor and selection stay where the text is the shown one.
    void onValueChange(ValuePtr const& newValue, VContext const& context, ValueMap const* properties) override;

public slots:
    /// Commits the text of the document.
    void newText();

protected:
    /// Commits before the events listed above. The editor may be deleted meanwhile.
    bool event(QEvent* event) override;

private:
    // The state of the document that was committed last.
    int committedRevision_ = -1;
    bool destroying_ = false;
};

} // namespace Kolt

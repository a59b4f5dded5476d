#pragma once

#include <plugin/VInputValue.hpp>
#include <qVinputs/basics/Text.hpp>

#include <lattice/CreationPreferences.hpp>
#include <QLineEdit>

namespace Kolt {

/// Edits a text of any length in one line. Every keystroke, paste or deletion is written at once; with the preference
/// "UpdateOnEnterOnly" the text is written as a whole when Return is pressed or the focus leaves. If the parameter has
/// preferences of its own, they decide this instead of the creator's.
///
/// The property "inputmask", read once, restricts what can be typed; the mask's separators are written with
/// the text. The font is bold "DejaVu Sans Mono" of 8 points if exactly that is available, else the inherited one.
///
/// It also serves parameters of the array type with one text. If the value object is a text, it is edited like any
/// other; if it is an array, the field starts empty and nothing is written.
///
/// User-interface thread. If the parameter was deleted, the field starts empty, and each commit prints the owner-fault
/// line.
class qVStringInput : public QLineEdit, public VInputValue<string> {
    Q_OBJECT

public:
    /// `preferences` may be null.
    qVStringInput(ParameterRef const& parameter, QWidget* parent, ValuePoolSource* poolSource,
                  PreferencesPtr const& preferences);
    ~qVStringInput() override;

    /// Shows a text; any other value is ignored. Cursor and selection stay where the text is the shown one.
    void onValueChange(ValuePtr const& newValue, VContext const& context, ValueMap const* properties) override;

public slots:
    /// Commits the text in the field.
    void newText();
    /// Commits a text.
    void inputText(QString const& text);
};

} // namespace Kolt

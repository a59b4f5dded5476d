#pragma once

#include <plugin/VInputValue.hpp>
#include <qVinputs/basics/Text.hpp>

#include <lattice/CreationPreferences.hpp>
#include <QPushButton>
#include <QString>

namespace Kolt {

/// Edits a text that names a file, with a button that opens a file dialog. The chosen name is written, also the empty
/// one of a cancelled dialog. A name that is not empty schedules every object with a slot bound to the parameter, at
/// once and in the current pool.
///
/// With the preference "FileInput" an existing file is chosen: the button shows the file's base name and the whole name
/// as its tool tip, and the property "Extension", read at every click, is the dialog's filter. Otherwise a file to
/// write is chosen: the button says "Save as", or with the preference "Save as PDF" that, and offers PDF files alone.
/// The creator's preferences decide, not the parameter's. A value from elsewhere is shown by its base name and tool tip
/// in every mode.
///
/// The font is bold "Arial" of 8 points if exactly that is available. If the parameter was deleted, a commit prints the
/// owner-fault line and schedules nothing. The button may be destroyed while its dialog is open: the dialog is
/// rejected, and nothing is written.
class VQStringFileNameInput : public QPushButton, public VInputValue<string> {
    Q_OBJECT

public:
    /// `preferences` may be null, which chooses a file to write.
    VQStringFileNameInput(ParameterRef const& parameter, QWidget* parent, ValuePoolSource* poolSource,
                          PreferencesPtr const& preferences);
    ~VQStringFileNameInput() override;

    /// Shows the base name of a text; any other value is ignored.
    void onValueChange(ValuePtr const& newValue, VContext const& context, ValueMap const* properties) override;

public slots:
    /// Runs the dialog and commits what was chosen.
    void myFileNameGui();

private:
    QString chooseName();
    void showName(QString const& name);

    QString filter_;
    bool isOpenDialog_ = false;
};

} // namespace Kolt

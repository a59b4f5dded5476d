#pragma once

#include <plugin/VInputValue.hpp>

#include <bramble/StringSelection.hpp>
#include <lattice/CreationPreferences.hpp>
#include <QComboBox>
#include <QFrame>
#include <QHBoxLayout>
#include <QPointer>
#include <qVinputs/basics/FilledTexts.hpp>

namespace Kolt {

/// Edits the choice of one text out of a list with a combo box. Choosing an entry, also the current one, selects its
/// text in the list in place and commits the value. With the preference "editable" a text can be typed as well.
///
/// A text that the list refuses, and any choice if the value refers to no list, prints "FAILED selecting element" and
/// commits nothing. On a change of the value from elsewhere the box is filled anew if it has other texts, and shows the
/// chosen one; a text that is being typed stays. If no text is selected, it shows the first entry; of equal texts it
/// shows the last one. If the parameter was deleted, it is empty. User-interface thread.
class qVStringList : public QFrame, public VInputValue<VStringList> {
    Q_OBJECT

public:
    /// Makes an editor of `parameter` on `parent`, which owns it and may be null. The editor refers to the parameter
    /// weakly. It asks `poolSource` for the pool at each use; the source must outlive it, and null means that there is
    /// no pool. `preferences` may be null.
    qVStringList(ParameterRef const& parameter, QWidget* parent, ValuePoolSource* poolSource,
                 PreferencesPtr const& preferences);
    ~qVStringList() override;

    /// Fills the box with the list of the editor's pool; writes nothing. Any other value is ignored.
    void onValueChange(ValuePtr const& newValue, VContext const& context, ValueMap const* properties) override;

public slots:
    /// The user chose or typed a text: selects it and commits. The editor may be deleted meanwhile.
    void selectItem(QString const& what);

private:
    /// Shows the texts of the cached list, which is not null, and the selected one.
    void fill();
    /// Fills the box with the texts of the cached list.
    void fillEntries();
    /// Does so, but a text that is being typed stays.
    void refill();

    // The layout and the box are children. The box is null if it was deleted.
    QHBoxLayout* layout_;
    QPointer<QComboBox> comboBox_;
    FilledTexts filled_;
};

} // namespace Kolt

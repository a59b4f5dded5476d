#pragma once

#include <plugin/VInputValue.hpp>

#include <bramble/StringSelection.hpp>
#include <lattice/CreationPreferences.hpp>
#include <QComboBox>
#include <QFrame>
#include <QHBoxLayout>
#include <QPointer>

namespace Kolt {

/// Edits the choice of one text out of a list with a combo box. Choosing an entry, also the current one, selects its
/// text in the list in place and commits the value. With the preference "editable" a text can be typed as well.
///
/// A text that the list refuses, and any choice where the value refers to no list, prints "FAILED selecting element"
/// and commits nothing. The box is filled anew on every change from elsewhere; without a selected text it shows the
/// first entry, and of equal ones the last. Where the parameter is gone it is empty.
class qVStringList : public QFrame, public VInputValue<VStringList> {
    Q_OBJECT

public:
    qVStringList(ParameterRef const& parameter, QWidget* parent, ValuePoolSource* poolSource,
                 PreferencesPtr const& preferences);
    ~qVStringList() override;

    void onValueChange(ValuePtr const& newValue, VContext const& context, ValueMap const* properties) override;

public slots:
    /// The user chose or typed a text.
    void selectItem(QString const& what);

private:
    void fill();

    QHBoxLayout* layout_;
    QPointer<QComboBox> comboBox_;
};

} // namespace Kolt

#pragma once

#include <plugin/VInputValue.hpp>

#include <bramble/FlagList.hpp>
#include <lattice/CreationPreferences.hpp>
#include <QCheckBox>
#include <QFrame>
#include <QPointer>
#include <QVBoxLayout>

namespace Kolt {

/// Edits a list of named switches with check boxes, one for each switch, in a column in the order of the names. A
/// toggle writes the state of all boxes.
///
/// A switch that first appears in a later value gets its box then, at the place of its name. A box is never removed: if
/// a later value lacks its switch, the box keeps its state, and the next toggle adds the switch again. If the parameter
/// was deleted, there are no boxes. User-interface thread.
class qVFlagList : public QFrame, public VInputValue<Options> {
    Q_OBJECT

public:
    /// Makes an editor of `parameter` on `parent`, which owns it and may be null. The editor refers to the parameter
    /// weakly. It asks `poolSource` for the pool at each use; the source must outlive it, and null means that there is
    /// no pool. `preferences` is not read.
    qVFlagList(ParameterRef const& parameter, QWidget* parent, ValuePoolSource* poolSource,
               PreferencesPtr const& preferences);
    ~qVFlagList() override;

    /// Shows the switches of the editor's pool; writes nothing. Any other value is ignored.
    void onValueChange(ValuePtr const& newValue, VContext const& context, ValueMap const* properties) override;

public slots:
    /// The user toggled a box: writes the state of all of them, whatever `state` is. The editor may be deleted
    /// meanwhile.
    void GotABoxChanged(int state);

private:
    /// Shows switches without writing them; nothing for any other value.
    void showValue(ValuePtr const& value);
    /// Makes boxes for the cached switches that have none, and puts them and the order of the Tab key in place.
    void makeMissingBoxes();

    struct Box {
        // Null if it was deleted.
        QPointer<QCheckBox> widget;
        // Its signal's connection to GotABoxChanged.
        QMetaObject::Connection edit;
    };

    // Null if it was deleted; then no box is added.
    QPointer<QVBoxLayout> layout_;
    // By the names of the switches.
    std::map<std::string, Box> boxes_;
};

} // namespace Kolt

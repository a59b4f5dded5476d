#pragma once

#include <atomic>
#include <bramble/ObjectStatus.hpp>
#include <lattice/CreationPreferences.hpp>
#include <plugin/VInputValue.hpp>
#include <QLabel>

namespace Kolt {

/// Shows the status message of an object in a label and never writes. The text can be selected with the mouse. A link
/// in a rich text emits `linkActivated` and opens nothing. If the parameter was deleted, the label is empty.
///
/// A status may be reported on any thread: the label changes on the user-interface thread, in the order of the reports.
/// A report that arrives while the display is being destroyed is dropped.
class qVObjectStatus : public QLabel, public VInputValue<VObjectStatus> {
    Q_OBJECT

public:
    /// Makes an editor of `parameter` on `parent`, which owns it and may be null. The editor refers to the parameter
    /// weakly. It asks `poolSource` for the pool at each use; the source must outlive it, and null means that there is
    /// no pool. `preferences` is not read.
    qVObjectStatus(ParameterRef const& parameter, QWidget* parent, ValuePoolSource* poolSource,
                   PreferencesPtr const& preferences);
    ~qVObjectStatus() override;

    /// Passes the text of a status on to the label; any other value is ignored. Any thread, one at a time: the host's
    /// deliveries to one notifier exclude each other.
    void onValueChange(ValuePtr const& newValue, VContext const& context, ValueMap const* properties) override;

signals:
    /// The label is to show this text.
    void myUpdateLabelText(QString const& text);

private:
    /// Whether a change concerns another pool than the one shown. Any thread.
    bool isForOtherPool(ValuePtr const& newValue, VContext const& context);

    // The pool that the display shows; compared, never dereferenced.
    std::atomic<ValuePool const*> shownPool_;
};

} // namespace Kolt

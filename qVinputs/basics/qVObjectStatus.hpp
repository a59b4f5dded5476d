#pragma once

#include <bramble/ObjectStatus.hpp>
#include <lattice/CreationPreferences.hpp>
#include <mutex>
#include <plugin/VInputValue.hpp>
#include <QLabel>

namespace Kolt {

/// Shows the status message of an object in a label and never writes. The text can be selected with the mouse, and
/// links in a rich text report `linkActivated`; nothing is opened. The preferences are not looked at. Where the
/// parameter is gone the label is empty.
///
/// A status may be reported on any thread: the label changes on the user-interface thread, in the order of the reports.
/// One that is reported while the display is being destroyed is dropped.
class qVObjectStatus : public QLabel, public VInputValue<VObjectStatus> {
    Q_OBJECT

public:
    qVObjectStatus(ParameterRef const& parameter, QWidget* parent, ValuePoolSource* poolSource,
                   PreferencesPtr const& preferences);
    ~qVObjectStatus() override;

    /// Passes the text of a status on to the label; any other value is ignored. Any thread.
    void onValueChange(ValuePtr const& newValue, VContext const& context, ValueMap const* properties) override;

signals:
    /// The label is to show this text.
    void myUpdateLabelText(QString const& text);

private:
    bool isForeign(ValuePtr const& newValue, VContext const& context);

    // The front end and a worker may both report at one moment.
    std::mutex mutex_;
    // Tells the pool in which the display works; never followed.
    std::atomic<ValuePool const*> shownPool_;
};

} // namespace Kolt

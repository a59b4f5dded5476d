#include <qVinputs/basics/qVObjectStatus.hpp>

#include <plugin/QInputWidgetCreator.hpp>
#include <QThread>

namespace Kolt {

qVObjectStatus::qVObjectStatus(ParameterRef const& parameter, QWidget* parent, ValuePoolSource* poolSource,
                               PreferencesPtr const&)
    : QLabel(parent), VInputValue<VObjectStatus>(parameter, poolSource), shownPool_(pool().get()) {
    setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::LinksAccessibleByMouse);
    readOwnValue();
    setText(QString::fromStdString(cached_.text()));
    connect(this, &qVObjectStatus::myUpdateLabelText, this, &QLabel::setText);
    activateNotification();
}

qVObjectStatus::~qVObjectStatus() {
    // A worker may be in the middle of a report, which works on the members below.
    stopNotifications();
}

void qVObjectStatus::onValueChange(ValuePtr const& newValue, VContext const& context, ValueMap const* properties) {
    if (!isForOtherPool(newValue, context) && take(newValue, properties))
        emit myUpdateLabelText(QString::fromStdString(cached_.text()));
}

bool qVObjectStatus::isForOtherPool(ValuePtr const& newValue, VContext const& context) {
    auto const parameter = owner().strong();
    if (!parameter || !parameter->keepsValuesPerPool())
        return false;
    if (QThread::currentThread() == thread()) {
        shownPool_ = pool().get();
        return arrivalOf(newValue, context) == Arrival::OtherPool;
    }
    // The pool source and the parameter's pools may be asked on the user-interface thread alone. The front end reports
    // there when it switches the pool, so the one seen last is the current one.
    return context.pool() && context.pool().get() != shownPool_;
}

namespace {

TALO_STATIC_CREATOR QInputWidgetCreator<VObjectStatus, qVObjectStatus> const statusCreator("StatusDisplay", nullptr);

} // namespace

} // namespace Kolt

#include <qVinputs/basics/qVInfo.hpp>

#include <plugin/QInputWidgetCreator.hpp>

namespace Kolt {

qVInfo::qVInfo(ParameterRef const& parameter, QWidget* parent, ValuePoolSource* poolSource, PreferencesPtr const&)
    : QLabel(parent), VInputValue<info>(parameter, poolSource) {
    readOwnValue();
    setText(QString::fromStdString(cached_.text));
    activateNotification();
}

qVInfo::~qVInfo() = default;

void qVInfo::onValueChange(ValuePtr const& newValue, VContext const& context, ValueMap const* properties) {
    if (arrivalOf(newValue, context) != Arrival::OtherPool && take(newValue, properties))
        setText(QString::fromStdString(cached_.text));
}

namespace {

TALO_STATIC_CREATOR QInputWidgetCreator<info, qVInfo> const informationCreator("InformationDisplay", nullptr);

} // namespace

} // namespace Kolt

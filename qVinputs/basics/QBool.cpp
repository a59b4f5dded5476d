#include <qVinputs/basics/QBool.hpp>

#include <plugin/QInputWidgetCreator.hpp>
#include <QHBoxLayout>

namespace Kolt {

QBool::QBool(ParameterRef const& parameter, QWidget* parent, ValuePoolSource* poolSource, PreferencesPtr const&)
    : QFrame(parent), VInputValue<bool>(parameter, poolSource), checkBox_(new QCheckBox) {
    auto* const layout = new QHBoxLayout;
    layout->addWidget(checkBox_);
    layout->setAlignment(checkBox_, Qt::AlignLeft | Qt::AlignVCenter);
    layout->setContentsMargins(3, 3, 3, 3);
    setLayout(layout);

    showValue(ownValue());
    connect(checkBox_, &QCheckBox::clicked, this, &QBool::clicked);
    activateNotification();
}

QBool::~QBool() = default;

void QBool::onValueChange(ValuePtr const& newValue, VContext const& context, ValueMap const*) {
    if (arrivalOf(newValue, context) != Arrival::OtherPool)
        showValue(newValue);
}

void QBool::showValue(ValuePtr const& value) {
    if (cacheStored(value) && checkBox_)
        checkBox_->setChecked(cached_);
}

void QBool::clicked(bool checked) {
    commit(checked);
}

namespace {

TALO_STATIC_CREATOR QInputWidgetCreator<bool, QBool> const booleanCreator("boolean", nullptr);

} // namespace

} // namespace Kolt

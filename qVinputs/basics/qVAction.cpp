#include <qVinputs/basics/qVAction.hpp>

#include <plugin/QInputWidgetCreator.hpp>
#include <QIcon>
#include <QPixmap>
#include <QPointer>
#include <qVinputs/basics/IconFile.hpp>
#include <qVinputs/basics/Text.hpp>

namespace Kolt {

namespace {

QString labelOf(ParameterPtr const& parameter) {
    if (!parameter)
        return QLatin1String("[doit]");
    auto const name = parameter->Name();
    return literalCaption(QString::fromStdString(name.substr(name.rfind('.') + 1)));
}

} // namespace

qVAction::qVAction(ParameterRef const& parameter, QWidget* parent, ValuePoolSource* poolSource, PreferencesPtr const&)
    : QPushButton(parent),
      VInputValue<Tessera::StrongPtr<VAction>>(parameter, poolSource),
      pool_(pool()),
      action_(valueOr(ownValue(), Tessera::StrongPtr<VAction>())) {
    setText(labelOf(owner().strong()));
    connect(this, &qVAction::clicked, this, &qVAction::activated);
    activateNotification();
    showDecoration();
}

qVAction::~qVAction() = default;

void qVAction::onValueChange(ValuePtr const&, VContext const&, ValueMap const*) {
    showDecoration();
}

void qVAction::showDecoration() {
    auto const parameter = owner().strong();
    auto const* const properties = parameter ? parameter->properties() : nullptr;
    if (!properties)
        return;
    if (auto const icon = properties->getValue("icon")) {
        auto const pixmap = readIconFile(QString::fromStdString(valueOr(icon, std::string())));
        if (!pixmap.isNull())
            setIcon(pixmap);
    }
    auto const toolTip = properties->getValue("tooltip");
    if (auto const* const text = typedValue<std::string>(toolTip.get()))
        setToolTip(QString::fromStdString(text->Text()));
}

void qVAction::activated(bool) {
    auto const found = pool();
    if (!found)
        return;
    pool_ = found;
    // Copies: the action may delete this button.
    auto const owner = this->owner();
    auto const action = action_;
    QPointer<qVAction> const self(this);
    {
        auto const parameter = owner.strong();
        if (!parameter) {
            reportMissingOwner();
            return;
        }
        VContext const context(found, nullptr);
        Tessera::StrongPtr<VAction> current;
        getValue(context.pool(), std::string(), current);
        if (action)
            action->emitAction(context.pool(), parameter);
    }
    // A button that was deleted with its parameter reports nothing.
    if (self && !owner)
        reportMissingOwner();
}

namespace {

TALO_STATIC_CREATOR QInputWidgetCreator<Tessera::StrongPtr<VAction>, qVAction> const actionCreator("action", nullptr);

} // namespace

} // namespace Kolt

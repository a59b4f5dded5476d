#include <qVinputs/basics/qVStringInput.hpp>

#include <array>
#include <limits>
#include <plugin/QInputWidgetCreator.hpp>

namespace Kolt {

qVStringInput::qVStringInput(ParameterRef const& parameter, QWidget* parent, ValuePoolSource* poolSource,
                             PreferencesPtr const& preferences)
    : QLineEdit(parent), VInputValue<string>(parameter, poolSource) {
    readOwnValue();
    if (auto const font = smallBoldFont("DejaVu Sans Mono"))
        setFont(*font);
    // Qt cuts texts at 32767 characters, and the next keystroke would write the rest away.
    setMaxLength(std::numeric_limits<int>::max());
    setText(QString::fromStdString(cached_));
    auto const living = parameter.strong();
    setInputMask(QString::fromStdString(textProperty(living, "inputmask")));
    activateNotification();

    bool updateOnEnterOnly = preferences && preferences->contains("UpdateOnEnterOnly");
    if (living && living->creationPreferences())
        updateOnEnterOnly = living->creationPreferences()->contains("UpdateOnEnterOnly");
    if (updateOnEnterOnly)
        connect(this, &QLineEdit::editingFinished, this, &qVStringInput::newText);
    else
        connect(this, &QLineEdit::textEdited, this, &qVStringInput::inputText);
}

qVStringInput::~qVStringInput() = default;

void qVStringInput::onValueChange(ValuePtr const& newValue, VContext const& context, ValueMap const* properties) {
    if (arrivalOf(newValue, context) == Arrival::OtherPool || !take(newValue, properties))
        return;
    // Qt moves the cursor to the end for an equal text, too.
    auto const shown = QString::fromStdString(cached_);
    if (text() != shown)
        setText(shown);
}

void qVStringInput::newText() {
    inputText(text());
}

void qVStringInput::inputText(QString const& text) {
    cached_ = text.toStdString();
    commit(cached_, WithoutPool::Try);
}

namespace {

TALO_STATIC_CREATOR QInputWidgetCreator<std::string, qVStringInput> const
    oneLineCreator("simplestring", PreferencesPtr(new VCreationPreferences(VValueTrait<std::string>::OneLine())));
TALO_STATIC_CREATOR QInputWidgetCreator<std::array<std::string, 1>, qVStringInput> const
    arrayCreator("singlelinestring", nullptr);

} // namespace

} // namespace Kolt

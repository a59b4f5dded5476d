#include <qVinputs/basics/qVColor.hpp>

#include <algorithm>
#include <plugin/QInputWidgetCreator.hpp>
#include <QCloseEvent>
#include <QSignalBlocker>

namespace Kolt {

namespace {

/// What QColor takes: a double in Qt 5, a float in Qt 6.
using Channel = decltype(QColor().redF());

/// A channel as Qt can show it.
Channel shownChannel(float channel) {
    // Not a number compares false with everything.
    return static_cast<Channel>(channel > 0.0F ? std::min(channel, 1.0F) : 0.0F);
}

QColor shownColour(Ferro::rgba_float_t const& colour) {
    return QColor::fromRgbF(shownChannel(colour.red), shownChannel(colour.green), shownChannel(colour.blue),
                            shownChannel(colour.alpha));
}

} // namespace

MyColorDialog::MyColorDialog(QWidget* parent) : QColorDialog(parent) {}

MyColorDialog::~MyColorDialog() = default;

void MyColorDialog::closeEvent(QCloseEvent* event) {
    event->ignore();
    hide();
}

qVColorInput::qVColorInput(ParameterRef const& parameter, QWidget* parent, ValuePoolSource* poolSource,
                           PreferencesPtr const&)
    : VInputValue<Ferro::rgba_float_t>(parameter, poolSource), label_(new qVColor(*this, parent)) {
    if (fetchValue(pool(), std::string()) || !showValue(ownValue()))
        label_->showColour(cached_);
    activateNotification();
}

qVColorInput::~qVColorInput() = default;

void qVColorInput::onValueChange(ValuePtr const& newValue, VContext const& context, ValueMap const*) {
    if (arrivalOf(newValue, context) != Arrival::OtherPool)
        showValue(newValue);
}

bool qVColorInput::showValue(ValuePtr const& value) {
    if (!cacheStored(value))
        return false;
    if (label_)
        label_->showColour(cached_);
    return true;
}

void qVColorInput::choose(Ferro::rgba_float_t const& colour) {
    cached_ = colour;
    // The input lives as long as its label.
    QPointer<qVColor> const label(label_);
    if (commit(colour) && label)
        label->showColour(cached_);
}

qVColorInputKeeper::qVColorInputKeeper(std::unique_ptr<qVColorInput> input, QObject* label)
    : QObject(label), input_(std::move(input)) {}

qVColorInputKeeper::~qVColorInputKeeper() = default;

qVColor::qVColor(qVColorInput& input, QWidget* parent)
    : QLabel(parent), input_(&input), dialog_(new MyColorDialog(this)) {
    dialog_->setAttribute(Qt::WA_DeleteOnClose, false);
    dialog_->setOption(QColorDialog::NoButtons);
    connect(dialog_, &QColorDialog::currentColorChanged, this, &qVColor::colorChange);
}

qVColor::~qVColor() = default;

void qVColor::showColour(Ferro::rgba_float_t const& colour) {
    setAutoFillBackground(true);
    // To set a frame lays out the label, also if it is the same.
    if (frameStyle() != QFrame::Box)
        setFrameStyle(QFrame::Box);
    setLineWidth(1);

    auto const window = shownColour(colour);
    bool const light = std::min({window.redF(), window.greenF(), window.blueF()}) >= Channel(0.5);
    QColor text(light ? Qt::black : Qt::white);
    text.setAlphaF(window.alphaF());
    QPalette shown(palette());
    shown.setBrush(QPalette::All, QPalette::Window, QBrush(window, Qt::SolidPattern));
    shown.setColor(QPalette::All, QPalette::WindowText, text);
    setPalette(shown);

    setText(QString(QLatin1String(" %1 ")).arg(static_cast<double>(colour.alpha), 0, 'f', 2, QLatin1Char(' ')));
}

void qVColor::mousePressEvent(QMouseEvent*) {
    setText(QLatin1String(" picking"));
    auto const input = input_.strong();
    if (!dialog_ || !input)
        return;
    auto const shown = shownColour(input->colour());
    {
        // To show a colour is no choice of the user's.
        QSignalBlocker const blocker(dialog_);
        dialog_->setCurrentColor(shown);
        if (!dialog_->testOption(QColorDialog::ShowAlphaChannel)) {
            dialog_->setOption(QColorDialog::ShowAlphaChannel);
            // Again, as without the alpha channel the dialog dropped the alpha value.
            dialog_->setCurrentColor(shown);
        }
    }
    dialog_->show();
    dialog_->raise();
    dialog_->activateWindow();
}

void qVColor::colorChange(QColor const& color) {
    auto const input = input_.strong();
    if (!input || !color.isValid())
        return;
    input->choose({static_cast<float>(color.redF()), static_cast<float>(color.greenF()),
                   static_cast<float>(color.blueF()), static_cast<float>(color.alphaF())});
}

MyqVColorCreator::MyqVColorCreator()
    : VInputCreator("ColorDisplay", 0, PreferencesPtr(new VCreationPreferences("QT")), "TALO_API_VERSION") {
    addInterface(Tessera::StrongPtr<Tessera::InterfaceBase>(new MyQCreator(*this)));
}

MyqVColorCreator::~MyqVColorCreator() = default;

MyqVColorCreator::MyQCreator::MyQCreator(MyqVColorCreator& creator) : creator_(creator) {}

MyqVColorCreator::MyQCreator::~MyQCreator() = default;

std::pair<QPointer<QWidget>, InputRef>
MyqVColorCreator::MyQCreator::create(ParameterRef const& parameter, QWidget* parent, ValuePoolSource* poolSource) {
    auto const preferences = mergePreferences(nullptr, creator_.preferences());
    auto input = std::make_unique<qVColorInput>(parameter, parent, poolSource, preferences);
    InputRef const reference(input.get());
    auto* const label = input->label();
    new qVColorInputKeeper(std::move(input), label);
    return {label, reference};
}

namespace {

TALO_STATIC_CREATOR MyqVColorCreator const colorDisplayCreator;

} // namespace

} // namespace Kolt

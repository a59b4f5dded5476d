#include <qVinputs/basics/vQEnum.hpp>

#include <algorithm>
#include <plugin/QInputWidgetCreator.hpp>
#include <QGridLayout>
#include <qVinputs/basics/Text.hpp>

namespace Kolt {

namespace {

constexpr int defaultColumnCount = 3;

} // namespace

vQEnum::vQEnum(ParameterRef const& parameter, QWidget* parent, ValuePoolSource* poolSource, PreferencesPtr const&)
    : QGroupBox(parent), VInputValue<Enum>(parameter, poolSource) {
    auto* const layout = new QGridLayout;
    layout->setContentsMargins(0, 0, 0, 0);
    setLayout(layout);
    setFlat(false);

    cached_ = valueOr(firstValue(), Enum());
    if (auto const* const names = selection()) {
        int const columns = columnCount();
        int row = 0;
        int column = 0;
        int x = 3;
        for (auto const& name : *names) {
            auto* const button = new QRadioButton(literalCaption(QString::fromStdString(name)), this);
            layout->addWidget(button, row, column);
            if (names->selectedNumber() == static_cast<int>(buttons_.size()))
                button->setChecked(true);
            buttons_.emplace_back(button);
            connect(button, &QRadioButton::toggled, this, &vQEnum::changeState);
            button->move(x, 3);
            button->resize(button->sizeHint());
            button->show();
            x += button->width() + 5;
            if (++column % columns == 0) {
                ++row;
                column = 0;
            }
        }
    }
    activateNotification();
}

vQEnum::~vQEnum() = default;

VEnumSelection* vQEnum::selection() const {
    return dynamic_cast<VEnumSelection*>(cached_.names().get());
}

int vQEnum::columnCount() const {
    auto const parameter = owner().strong();
    auto const* const properties = parameter ? parameter->properties() : nullptr;
    int const wrap = properties ? valueOr(properties->getValue("wrap"), defaultColumnCount) : defaultColumnCount;
    return wrap < 1 ? defaultColumnCount : wrap;
}

void vQEnum::onValueChange(ValuePtr const& newValue, VContext const& context, ValueMap const*) {
    if (arrivalOf(newValue, context) == Arrival::OtherPool)
        return;
    if (!cacheStored(newValue))
        return;
    auto const* const names = selection();
    if (!names)
        return;
    auto const number = static_cast<unsigned>(names->selectedNumber());
    if (number >= buttons_.size()) {
        std::puts("Qt ENUM: INVALID SELECTION");
        std::fflush(stdout);
        return;
    }
    // This marks the button and so commits, which may delete the widget.
    if (auto* const button = buttons_[number].data())
        button->setChecked(true);
}

void vQEnum::changeState(bool on) {
    if (!on)
        return;
    cachePoolValue();
    auto const marked = std::find_if(buttons_.begin(), buttons_.end(),
                                     [](auto const& button) { return button && button->isChecked(); });
    auto* const names = selection();
    if (names && marked != buttons_.end())
        names->select(static_cast<unsigned>(marked - buttons_.begin()));
    commit(cached_, WithoutPool::Try);
}

namespace {

TALO_STATIC_CREATOR QInputWidgetCreator<Enum, vQEnum> const enumCreator("enum", nullptr);

} // namespace

} // namespace Kolt

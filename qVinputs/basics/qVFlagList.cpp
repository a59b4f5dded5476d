#include <qVinputs/basics/qVFlagList.hpp>

#include <plugin/QInputWidgetCreator.hpp>
#include <qVinputs/basics/Text.hpp>

namespace Kolt {

qVFlagList::qVFlagList(ParameterRef const& parameter, QWidget* parent, ValuePoolSource* poolSource,
                       PreferencesPtr const&)
    : QFrame(parent), VInputValue<Options>(parameter, poolSource), layout_(new QVBoxLayout) {
    setLayout(layout_);
    layout_->setContentsMargins(1, 1, 1, 1);
    setFrameStyle(int{QFrame::Panel} | int{QFrame::Plain});

    showValue(firstValue());
    activateNotification();
}

qVFlagList::~qVFlagList() = default;

void qVFlagList::onValueChange(ValuePtr const& newValue, VContext const& context, ValueMap const*) {
    if (arrivalOf(newValue, context) != Arrival::OtherPool)
        showValue(newValue);
}

void qVFlagList::showValue(ValuePtr const& value) {
    if (!cacheStored(value))
        return;
    makeMissingBoxes();
    for (auto const& [name, on] : cached_) {
        auto* const box = boxes_[name].data();
        if (!box)
            continue;
        // What the program sets is no edit.
        disconnect(box, &QCheckBox::stateChanged, this, &qVFlagList::GotABoxChanged);
        box->setChecked(on);
    }
    for (auto const& [name, box] : boxes_) {
        if (box)
            connect(box, &QCheckBox::stateChanged, this, &qVFlagList::GotABoxChanged, Qt::UniqueConnection);
    }
}

void qVFlagList::makeMissingBoxes() {
    if (!layout_)
        return;
    bool made = false;
    for (auto const& [name, on] : cached_) {
        auto& box = boxes_[name];
        made = made || !box;
        if (!box)
            box = new QCheckBox(literalCaption(QString::fromStdString(name)));
    }
    if (!made)
        return;
    int place = 0;
    QWidget* previous = nullptr;
    for (auto const& [name, box] : boxes_) {
        if (!box)
            continue;
        if (!box->parent())
            layout_->insertWidget(place, box);
        // The Tab key follows the order of the boxes.
        if (previous)
            setTabOrder(previous, box);
        previous = box;
        ++place;
    }
}

void qVFlagList::GotABoxChanged(int) {
    for (auto const& [name, box] : boxes_) {
        if (box)
            cached_[name] = box->isChecked();
    }
    commit(cached_, WithoutPool::Try);
}

namespace {

TALO_STATIC_CREATOR QInputWidgetCreator<Options, qVFlagList> const checkboxesCreator("checkboxes", nullptr);

} // namespace

} // namespace Kolt

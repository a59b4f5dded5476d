#include <qVinputs/basics/qVFlagList.hpp>

#include <plugin/QInputWidgetCreator.hpp>
#include <qVinputs/basics/Text.hpp>
#include <utility>

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
        auto const found = boxes_.find(name);
        auto* const box = found == boxes_.end() ? nullptr : found->second.widget.data();
        if (!box)
            continue;
        // What the program sets is no edit, nor is what others set meanwhile in a box that was shown before.
        disconnect(std::exchange(found->second.edit, {}));
        box->setChecked(on);
    }
    for (auto& [name, box] : boxes_) {
        if (box.widget && !box.edit)
            box.edit = connect(box.widget, &QCheckBox::stateChanged, this, &qVFlagList::GotABoxChanged);
    }
}

void qVFlagList::makeMissingBoxes() {
    if (!layout_)
        return;
    bool made = false;
    for (auto const& [name, on] : cached_) {
        auto& box = boxes_[name].widget;
        made = made || !box;
        if (!box)
            box = new QCheckBox(literalCaption(QString::fromStdString(name)));
    }
    if (!made)
        return;
    int place = 0;
    QWidget* previous = nullptr;
    for (auto const& [name, known] : boxes_) {
        auto const& box = known.widget;
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
        if (box.widget)
            cached_[name] = box.widget->isChecked();
    }
    commit(cached_, WithoutPool::Try);
}

namespace {

TALO_STATIC_CREATOR QInputWidgetCreator<Options, qVFlagList> const checkboxesCreator("checkboxes", nullptr);

} // namespace

} // namespace Kolt

#include "CheckList.hpp"

#include <plugin/QInputWidgetCreator.hpp>
#include <QPointer>

namespace MoreInputs {

namespace {

/// A caption that is shown as it is: an ampersand is no mark of a key.
QString captionOf(std::string const& text) {
    return QString::fromStdString(text).replace(QLatin1Char('&'), QLatin1String("&&"));
}

} // namespace

CheckList::CheckList(Kolt::ParameterRef const& parameter, QWidget* parent, Kolt::ValuePoolSource* poolSource,
                     Kolt::PreferencesPtr const&)
    : QWidget(parent),
      Kolt::VInputValue<Kolt::VMultipleStringList>(parameter, poolSource),
      layout_(new QVBoxLayout(this)) {
    layout_->setContentsMargins(0, 0, 0, 0);
    layout_->setSpacing(2);
    showStored(firstValue());
    activateNotification();
}

CheckList::~CheckList() = default;

void CheckList::onValueChange(Kolt::ValuePtr const& newValue, Kolt::VContext const& context, Kolt::ValueMap const*) {
    if (arrivalOf(newValue, context) != Arrival::OtherPool)
        showStored(newValue);
}

void CheckList::showStored(Kolt::ValuePtr const& value) {
    if (!cacheStored(value))
        return;
    if (!Tessera::sameTexts(cached_.get(), shown_.get()))
        makeBoxes();
    shown_ = cached_;
    showChoice();
}

void CheckList::makeBoxes() {
    for (auto* const box : boxes_) {
        // It may be the one that is being clicked.
        box->hide();
        box->disconnect(this);
        layout_->removeWidget(box);
        box->deleteLater();
    }
    boxes_.clear();
    auto const count = cached_ ? cached_->size() : 0;
    for (std::size_t place = 0; place < count; ++place) {
        auto* const box = new QCheckBox(captionOf(cached_->at(place)), this);
        layout_->addWidget(box);
        connect(box, &QCheckBox::clicked, this, [this, place](bool isChosen) { write(place, isChosen); });
        boxes_.push_back(box);
        // A child of a widget that is shown already is hidden at first.
        box->show();
    }
    setFocusProxy(boxes_.empty() ? nullptr : boxes_.front());
}

void CheckList::showChoice() {
    for (std::size_t place = 0; place < boxes_.size(); ++place)
        boxes_[place]->setChecked(cached_->isInSelection(cached_->at(place)));
}

void CheckList::write(std::size_t place, bool isChosen) {
    QPointer<CheckList> const self(this);
    // A selection is changed in place, so that all that refer to it see the change; without a pool nothing may change.
    if (pool())
        cachePoolValue();
    if (pool() && cached_ && place < cached_->size()) {
        auto const text = cached_->at(place);
        if (isChosen)
            cached_->add(text);
        else
            cached_->removeFromSelection(text);
        commit(cached_);
    }
    // An equal text was chosen as well, or nothing was.
    if (self)
        showStored(firstValue());
}

namespace {

/// Leaves long lists to other editors.
class CheckListCreator : public Kolt::QInputWidgetCreator<Kolt::VMultipleStringList, CheckList> {
public:
    CheckListCreator()
        : QInputWidgetCreator("text list",
                              Kolt::PreferencesPtr(new Kolt::VCreationPreferences(std::string("text list")))) {}

    bool supports(Kolt::VParameter const& parameter) const override {
        auto const list = Kolt::valueOr(parameter.ownValue(), Kolt::VMultipleStringList());
        return !list || list->size() <= CheckList::MostTexts;
    }
};

TALO_STATIC_CREATOR CheckListCreator const checkListCreator;

} // namespace

} // namespace MoreInputs

#include <qVinputs/basics/qVStringList.hpp>

#include <plugin/QInputWidgetCreator.hpp>
#include <QLineEdit>

namespace Kolt {

qVStringList::qVStringList(ParameterRef const& parameter, QWidget* parent, ValuePoolSource* poolSource,
                           PreferencesPtr const& preferences)
    : QFrame(parent),
      VInputValue<VStringList>(parameter, poolSource),
      layout_(new QHBoxLayout),
      comboBox_(new QComboBox(this)) {
    setLineWidth(0);
    setLayout(layout_);
    layout_->addWidget(comboBox_);
    comboBox_->setSizeAdjustPolicy(QComboBox::AdjustToContents);
    layout_->setSpacing(0);
    layout_->setContentsMargins(0, 0, 0, 0);
    if (preferences && preferences->contains("editable"))
        comboBox_->setEditable(true);

    cached_ = valueOr(firstValue(), VStringList());
    if (cached_)
        fill();
    // By name, as the compiler warns of the signal with a text, which every Qt 5 has, and Qt 6 knows by another name.
    bool const isQt5 = comboBox_->metaObject()->indexOfSignal("activated(QString)") >= 0;
    auto const* const chosen = isQt5 ? SIGNAL(activated(QString)) : SIGNAL(textActivated(QString));
    connect(comboBox_, chosen, this, SLOT(selectItem(QString))); // clazy:exclude=old-style-connect
    comboBox_->show();
    activateNotification();
}

qVStringList::~qVStringList() = default;

void qVStringList::fill() {
    if (!comboBox_)
        return;
    auto const selected = cached_->selected();
    bool const isFilled = filled_.hold(comboBox_->model(), *cached_);
    if (!isFilled)
        fillEntries();
    auto const place = cached_->findLast(selected);
    comboBox_->setCurrentIndex(place < cached_->size() ? static_cast<int>(place) : 0);
    // A box that is filled anew loses what a person has typed; one that stays filled must lose it, too.
    if (auto* const field = isFilled ? comboBox_->lineEdit() : nullptr)
        field->setText(comboBox_->currentText());
}

void qVStringList::fillEntries() {
    filled_.forget();
    comboBox_->clear();
    int index = 0;
    for (auto const& text : *cached_)
        comboBox_->insertItem(index++, QString::fromStdString(text));
    filled_.remember(comboBox_->model(), cached_);
}

void qVStringList::onValueChange(ValuePtr const& newValue, VContext const& context, ValueMap const* properties) {
    if (arrivalOf(newValue, context) == Arrival::OtherPool)
        return;
    auto const shown = cached_;
    if (!cacheStored(newValue) || !cached_)
        return;
    // A property is not shown, and a text that is being typed must stay.
    if (properties && VValueTrait<VStringList>::Equal(shown, cached_))
        return;
    refill();
}

void qVStringList::refill() {
    auto* const field = comboBox_ ? comboBox_->lineEdit() : nullptr;
    bool const isTyped = field && field->hasFocus() && field->text() != comboBox_->itemText(comboBox_->currentIndex());
    auto const typed = isTyped ? field->text() : QString();
    int const cursor = isTyped ? field->cursorPosition() : 0;
    // Qt completes a text by characters that are selected behind the cursor; a person selects either way.
    int const start = isTyped ? field->selectionStart() : -1;
    int const selected = isTyped ? field->selectionLength() : 0;
    fill();
    if (!isTyped)
        return;
    field->setText(typed);
    field->setCursorPosition(cursor);
    if (selected > 0 && cursor == start)
        field->setSelection(start + selected, -selected);
    else if (selected > 0)
        field->setSelection(start, selected);
}

void qVStringList::selectItem(QString const& what) {
    cachePoolValue();
    if (!cached_ || !cached_->select(what.toStdString())) {
        std::puts("FAILED selecting element");
        std::fflush(stdout);
        return;
    }
    commit(cached_, WithoutPool::Try);
}

namespace {

TALO_STATIC_CREATOR QInputWidgetCreator<VStringList, qVStringList> const selectionCreator("selection", nullptr);
TALO_STATIC_CREATOR QInputWidgetCreator<VStringList, qVStringList> const
    editableSelectionCreator("selection", PreferencesPtr(new VCreationPreferences("editable")));

} // namespace

} // namespace Kolt

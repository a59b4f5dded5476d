#include <qVinputs/basics/qVMultipleStringList.hpp>

#include <algorithm>
#include <plugin/QInputWidgetCreator.hpp>
#include <QFontMetrics>
#include <QItemSelection>
#include <QMouseEvent>
#include <QRegularExpression>
#include <qVinputs/basics/NumberSelection.hpp>

namespace Kolt {

namespace {

/// Keeps a widget from drawing itself for a while. A view that may draw works out the region of every range of rows
/// that is selected or no longer is, each time.
class DrawingPause {
public:
    explicit DrawingPause(QWidget* widget)
        : widget_(widget), wasPaused_(widget->testAttribute(Qt::WA_ForceUpdatesDisabled)) {
        widget_->setUpdatesEnabled(false);
    }
    ~DrawingPause() {
        if (widget_)
            widget_->setUpdatesEnabled(!wasPaused_);
    }
    DrawingPause(DrawingPause const&) = delete;
    DrawingPause& operator=(DrawingPause const&) = delete;

private:
    QPointer<QWidget> widget_;
    bool wasPaused_;
};

/// The rows as ranges that are as long as possible.
QItemSelection maximalRuns(std::vector<bool> const& rows, QAbstractItemModel const& model) {
    QItemSelection runs;
    auto const row = [&](auto const& place) { return model.index(static_cast<int>(place - rows.begin()), 0); };
    for (auto begin = rows.begin(); (begin = std::find(begin, rows.end(), true)) != rows.end();) {
        auto const end = std::find(begin, rows.end(), false);
        runs.append(QItemSelectionRange(row(begin), row(end - 1)));
        begin = end;
    }
    return runs;
}

/// The number of the last chosen row; -1 for none.
int lastOf(std::vector<bool> const& rows) {
    return static_cast<int>(rows.rend() - std::find(rows.rbegin(), rows.rend(), true)) - 1;
}

std::string rowText(QListWidgetItem const& item) {
    return item.data(Qt::DisplayRole).toString().toStdString();
}

} // namespace

qVMultipleStringList::qVMultipleStringList(ParameterRef const& parameter, QWidget* parent, ValuePoolSource* poolSource,
                                           PreferencesPtr const&)
    : QFrame(parent),
      VInputValue<VMultipleStringList>(parameter, poolSource),
      layout_(new QHBoxLayout(this)),
      buttonColumn_(new QVBoxLayout) {
    list_ = new MyQListWidget(this);
    list_->owner = this;
    allButton_ = new AllButton(QLatin1String("All"), this);
    allButton_->owner = this;
    noneButton_ = new NoneButton(QLatin1String("None"), this);
    noneButton_->owner = this;
    inverseButton_ = new InverseButton(QLatin1String("Inverse"), this);
    inverseButton_->owner = this;
    wildcardEdit_ = new QLineEdit(this);
    auto* const wildcardLabel = new QLabel(QLatin1String("Wildcard:"), this);
    numberEdit_ = new QLineEdit(this);
    auto* const numberLabel = new QLabel(QLatin1String("By Number:"), this);
    removeBox_ = new QCheckBox(QLatin1String("remove"), this);

    setToolTips(*wildcardLabel, *numberLabel);
    for (QWidget* const widget :
         std::initializer_list<QWidget*>{allButton_, noneButton_, inverseButton_, removeBox_, wildcardLabel,
                                         wildcardEdit_, numberLabel, numberEdit_})
        buttonColumn_->addWidget(widget);
    layout_->addLayout(buttonColumn_);
    layout_->addWidget(list_);

    list_->setMovement(QListView::Static);
    list_->setSelectionMode(QAbstractItemView::MultiSelection);

    showValue(firstValue());
    connect(wildcardEdit_, &QLineEdit::returnPressed, this, &qVMultipleStringList::wildSelect);
    connect(numberEdit_, &QLineEdit::returnPressed, this, &qVMultipleStringList::numberSelect);
    list_->show();
    activateNotification();
}

qVMultipleStringList::~qVMultipleStringList() = default;

void qVMultipleStringList::setToolTips(QLabel& wildcardLabel, QLabel& numberLabel) {
    removeBox_->setToolTip(tr("Removes selections specified by Wildcard of by Numbers if checked. "));
    auto const wildcardTip = tr("Use a common wildcard for selection: e.g. *foo*004*. Enter triggers the selection.");
    wildcardEdit_->setToolTip(wildcardTip);
    wildcardLabel.setToolTip(wildcardTip);
    auto const numberTip =
        tr("Use numbers of items for selection. e.g. 0-5,9 selects the range from 0 to 5 and item number 9. Also use "
           "2nd, 3rd, 4th, etc to select every 2nd and so on. This can be shifted by adding a number: e.g. 4th+2 "
           "selects every forth item and starting with the 3rd. Enter triggers the selection.");
    numberEdit_->setToolTip(numberTip);
    numberLabel.setToolTip(numberTip);
}

void qVMultipleStringList::onValueChange(ValuePtr const& newValue, VContext const& context, ValueMap const*) {
    if (arrivalOf(newValue, context) != Arrival::OtherPool)
        showValue(newValue);
}

void qVMultipleStringList::showValue(ValuePtr const& value) {
    if (!cacheStored(value) || !cached_)
        return;
    std::puts("calling getSeletion from valueChanged");
    std::fflush(stdout);
    if (!list_)
        return;

    DrawingPause const pause(list_);
    bool const isFilledAnew = fillRows();
    Rows chosen;
    chosen.reserve(cached_->size());
    for (auto const& text : *cached_)
        chosen.push_back(cached_->isInSelection(text));
    int const lastChosen = lastOf(chosen);
    if (isFilledAnew || chosen != selectedRows()) {
        // Of rows that are filled in one by one, the next row ends the selection of the one before.
        bool const isLastRow = lastChosen != NoRow && lastChosen == rowCount() - 1;
        if (isLastRow)
            chosen.back() = false;
        showRows(chosen, isLastRow ? lastChosen : NoRow, true);
    }

    auto const hint = list_->sizeHint();
    int const width = std::min(std::max(widthOfTexts(), hint.width()), QWIDGETSIZE_MAX);
    int const height = static_cast<int>(hint.height() * 1.3);
    list_->resize(width, height);
    // To become current by itself would toggle the row.
    if (lastChosen != NoRow)
        list_->setCurrentRow(lastChosen, QItemSelectionModel::NoUpdate);
    resize(width, height);
    setFixedSize(width, height);
    if (auto* const parent = parentWidget())
        parent->adjustSize();
}

bool qVMultipleStringList::fillRows() {
    if (!list_->wasUsed && filled_.hold(list_->model(), *cached_)) {
        // No row is current after a list was filled.
        list_->selectionModel()->clearCurrentIndex();
        return false;
    }
    filled_.forget();
    list_->clear();
    QStringList texts;
    texts.reserve(static_cast<int>(cached_->size()));
    for (auto const& text : *cached_)
        texts.append(QString::fromStdString(text));
    list_->insertItems(0, texts);
    // A move of the held mouse chooses rows by what was filled in last.
    list_->wasUsed = list_->isHeld;
    filled_.remember(list_->model(), cached_);
    return true;
}

int qVMultipleStringList::widthOfTexts() {
    bool const sameTexts = measured_ && measured_->hasSameTexts(*cached_);
    if (!sameTexts || measuredFont_ != list_->font()) {
        measuredFont_ = list_->font();
        measuredWidth_ = 0;
        QFontMetrics const metrics(measuredFont_);
        for (auto const& text : *cached_)
            measuredWidth_ =
                std::max(measuredWidth_, metrics.horizontalAdvance(QString::fromStdString(text)) * 15 / 10);
    }
    measured_ = cached_;
    return measuredWidth_;
}

int qVMultipleStringList::rowCount() const {
    return list_ ? list_->count() : 0;
}

qVMultipleStringList::Rows qVMultipleStringList::selectedRows() const {
    Rows rows(static_cast<std::size_t>(rowCount()));
    if (!list_)
        return rows;
    for (auto const& range : list_->selectionModel()->selection())
        std::fill(rows.begin() + range.top(), rows.begin() + range.bottom() + 1, true);
    return rows;
}

void qVMultipleStringList::showRows(Rows const& rows, int last, bool chosen) {
    if (!list_)
        return;
    DrawingPause const pause(list_);
    // A selection of many ranges on top of another one would compare each range with each.
    list_->selectionModel()->clearSelection();
    list_->selectionModel()->select(maximalRuns(rows, *list_->model()), QItemSelectionModel::Select);
    // This ends the selection of the ranges.
    list_->selectionModel()->select(list_->model()->index(last, 0),
                                    chosen ? QItemSelectionModel::Select : QItemSelectionModel::Deselect);
}

void qVMultipleStringList::commitChoice() {
    commit(cached_, WithoutPool::Try);
}

void qVMultipleStringList::chooseSelectedRows() {
    if (!pool())
        return;
    cachePoolValue();
    if (!cached_)
        return;
    cached_->removeAll();
    auto const rows = selectedRows();
    for (int row = 0; row < rowCount(); ++row) {
        if (rows[static_cast<std::size_t>(row)])
            cached_->add(rowText(*list_->item(row)));
    }
    commitChoice();
}

void qVMultipleStringList::chooseAll() {
    cachePoolValue();
    Rows rows(static_cast<std::size_t>(rowCount()), true);
    if (!rows.empty())
        rows.back() = selectedRows().back();
    showRows(rows, rowCount() - 1, true);
    if (cached_)
        cached_->addAll();
    commitChoice();
}

void qVMultipleStringList::chooseNone() {
    cachePoolValue();
    auto const selected = list_ ? list_->selectedItems() : QList<QListWidgetItem*>();
    if (!selected.isEmpty()) {
        int const last = list_->row(selected.last());
        Rows rows(static_cast<std::size_t>(rowCount()));
        rows[static_cast<std::size_t>(last)] = true;
        showRows(rows, last, false);
    }
    if (cached_)
        cached_->removeAll();
    commitChoice();
}

void qVMultipleStringList::invertChoice() {
    cachePoolValue();
    auto rows = selectedRows();
    bool const wasLastChosen = !rows.empty() && rows.back();
    rows.flip();
    if (!rows.empty())
        rows.back() = wasLastChosen;
    showRows(rows, rowCount() - 1, !wasLastChosen);
    if (cached_)
        cached_->invertAll();
    commitChoice();
}

void qVMultipleStringList::addOrRemoveRows(AppliedRows const& series) {
    cachePoolValue();
    bool const add = !removeBox_ || !removeBox_->isChecked();
    auto selected = selectedRows();
    for (int row = 0; row < rowCount(); ++row) {
        auto const place = static_cast<std::size_t>(row);
        if (series.rows[place])
            selected[place] = add;
        if (!cached_ || (!series.rows[place] && row != series.last))
            continue;
        auto const text = rowText(*list_->item(row));
        if (add)
            cached_->add(text);
        else
            cached_->removeFromSelection(text);
    }
    if (series.last != NoRow)
        showRows(selected, series.last, add);
    commitChoice();
}

void qVMultipleStringList::updateSelection() {}

void qVMultipleStringList::updateSelectionA(QListWidgetItem* i) {
    if (!i)
        return;
    std::puts("qVMultipleStringList::updateSelectionA");
    auto const text = rowText(*i);
    std::fwrite(text.data(), 1, text.size(), stdout);
    std::puts("");
    std::fflush(stdout);
    cachePoolValue();
    if (cached_)
        cached_->addOrRemove(text);
    commitChoice();
}

void qVMultipleStringList::wildSelect() {
    // What QListWidget::findItems does for a wildcard, but that compiles the pattern for every row.
    QRegularExpression const pattern(
        QRegularExpression::wildcardToRegularExpression(wildcardEdit_ ? wildcardEdit_->text() : QString()),
        QRegularExpression::CaseInsensitiveOption);
    AppliedRows matching{Rows(static_cast<std::size_t>(rowCount()))};
    for (int row = 0; pattern.isValid() && row < rowCount(); ++row) {
        if (pattern.match(list_->item(row)->text()).hasMatch())
            matching.append(static_cast<std::size_t>(row));
    }
    addOrRemoveRows(matching);
}

void qVMultipleStringList::numberSelect() {
    AppliedRows named{Rows(static_cast<std::size_t>(rowCount()))};
    for (auto const& series :
         rowsByNumber(numberEdit_ ? numberEdit_->text().toStdString() : std::string(), named.rows.size())) {
        for (auto row = series.first; row < series.end; row += series.step)
            named.append(row);
    }
    addOrRemoveRows(named);
}

void qVMultipleStringList::AllButton::mousePressEvent(QMouseEvent* event) {
    QPushButton::mousePressEvent(event);
    owner->chooseAll();
}

void qVMultipleStringList::NoneButton::mousePressEvent(QMouseEvent* event) {
    QPushButton::mousePressEvent(event);
    owner->chooseNone();
}

void qVMultipleStringList::InverseButton::mousePressEvent(QMouseEvent* event) {
    QPushButton::mousePressEvent(event);
    owner->invertChoice();
}

void qVMultipleStringList::MyQListWidget::mousePressEvent(QMouseEvent* event) {
    wasUsed = isHeld = true;
    QListWidget::mousePressEvent(event);
}

void qVMultipleStringList::MyQListWidget::keyPressEvent(QKeyEvent* event) {
    wasUsed = true;
    QListWidget::keyPressEvent(event);
}

void qVMultipleStringList::MyQListWidget::mouseReleaseEvent(QMouseEvent* event) {
    isHeld = event->buttons() != Qt::NoButton;
    QListWidget::mouseReleaseEvent(event);
    owner->chooseSelectedRows();
}

namespace {

TALO_STATIC_CREATOR QInputWidgetCreator<VMultipleStringList, qVMultipleStringList> const
    multipleSelectionCreator("selection", nullptr);
TALO_STATIC_CREATOR QInputWidgetCreator<VMultipleStringList, qVMultipleStringList> const
    editableMultipleSelectionCreator("selection", PreferencesPtr(new VCreationPreferences("editable")));

} // namespace

} // namespace Kolt

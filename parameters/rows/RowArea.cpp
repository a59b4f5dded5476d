#include <parameters/rows/RowArea.hpp>

#include <algorithm>
#include <parameters/input/InputFilter.hpp>
#include <parameters/rows/FormPlan.hpp>
#include <parameters/rows/RowTabs.hpp>
#include <parameters/rows/SectionBox.hpp>
#include <parameters/rows/SharedRow.hpp>
#include <parameters/rows/TabStops.hpp>
#include <QApplication>
#include <QEvent>
#include <QKeyEvent>
#include <QScopedValueRollback>
#include <QScrollBar>
#include <QStyle>
#include <utility>

namespace Talo {

namespace {

// In pixels.
constexpr QMargins contentMargins(12, 6, 12, 12);

// In characters, so that two forms fit into a small window; enough for a short name and a number.
constexpr int leastFormWidth = 20;

constexpr RowLayout::Spacing spacing{contentMargins.top(), contentMargins.bottom(), 12, 6, 36};

// How many rows out of sight are kept, so that scrolling a little to and fro makes no rows.
constexpr std::size_t keptRows = 60;

} // namespace

RowArea::RowArea(QString const& objectName, std::vector<Kolt::ParameterPtr> const& parameters,
                 PoolSourceRef const& pools, QWidget* parent)
    : ContentArea(parent),
      objectName_(objectName),
      pools_(pools),
      content_(new QWidget),
      layout_(spacing),
      vectors_(layout_, [this](auto place) { return entries_[place].row; }),
      sizes_(layout_, vectors_, made_, [this](auto place) { return entries_[place].row; }) {
    addEntries(FormPlan(parameters));
    connect(sections_, &FormSections::foldChanged, this, &RowArea::showFolding);
    connect(sections_, &FormSections::foldChanged, this, &RowArea::foldChanged);
    setWidget(content_);
    setAccessibleName(objectName);
    arrange();
}

void RowArea::addEntries(FormPlan const& plan) {
    entries_.reserve(plan.rows.size());
    layout_.reserve(plan.rows.size());
    for (auto const& [parameter, section, heightClass] : plan.rows) {
        while (layout_.sectionCount() <= section)
            layout_.addSection();
        layout_.addRow(heightClass);
        entries_.emplace_back(parameter);
    }
    vectors_.setVectors(plan.vectors);
    sections_ = new FormSections(*content_, layout_, plan.sectionTitles, this);
    longestLabel_ = plan.longestLabel;
    sizes_.setNameWidth(fontMetrics().horizontalAdvance(longestLabel_));
}

RowArea::~RowArea() {
    // While the form still lives: a row may refuse a number and tell the form. Nothing is arranged meanwhile.
    making_ = true;
    made_.clear();
    entries_.clear();
    delete content_;
}

std::vector<ParameterRow*> RowArea::rows() const {
    std::vector<ParameterRow*> rows;
    rows.reserve(made_.size());
    for (auto const place : made_)
        rows.push_back(entries_[place].row);
    return rows;
}

ParameterRow* RowArea::row(QString const& parameterName) {
    auto const name = parameterName.toStdString();
    auto const entry = std::find_if(entries_.begin(), entries_.end(), [&](auto const& each) {
        auto const parameter = each.parameter.strong();
        return parameter ? parameter->Name() == name : each.row && each.row->parameterName() == parameterName;
    });
    if (entry == entries_.end())
        return nullptr;
    if (!entry->row) {
        make(*entry);
        arrangeInPlace();
    }
    return entry->row;
}

void RowArea::showRow(QString const& parameterName) {
    auto* const found = row(parameterName);
    if (found && found->isVisible())
        ensureWidgetVisible(found);
}

void RowArea::openEditors() {
    editorsOpen_ = true;
    focusGuess_.forget();
    // A copy, and a look at each row: a receiver of the signal may scroll, which makes and deletes rows.
    for (auto const place : std::set<std::size_t>(made_)) {
        if (!entries_[place].row)
            continue;
        entries_[place].row->openEditor();
        emitEditorOpened(*entries_[place].row);
    }
    measureAll();
}

void RowArea::closeEditors() {
    editorsOpen_ = false;
    for (auto* const row : rows())
        row->closeEditor();
}

void RowArea::showPool() {
    // Another editor may have been chosen.
    focusGuess_.forget();
    for (auto* const row : rows())
        row->showPool();
    measureAll();
}

void RowArea::showDefaults() {
    for (auto* const row : rows())
        row->showDefault();
}

void RowArea::setRawValuesShown(bool shown) {
    rawValuesShown_ = shown;
    for (auto* const row : rows())
        row->setRawValueShown(shown);
    measureAll();
}

void RowArea::setFilter(std::function<bool(Kolt::VParameter const&)> const& filter) {
    // Most forms never have one.
    bool const wasFiltered = std::exchange(isFiltered_, static_cast<bool>(filter));
    for (std::size_t place = 0; place < entries_.size() && (filter || wasFiltered); ++place) {
        auto const parameter = filter ? entries_[place].parameter.strong() : nullptr;
        layout_.setShown(place, !filter || (parameter && filter(*parameter)));
        if (auto* const row = entries_[place].row)
            row->setVisible(layout_.isShown(place));
    }
    for (auto const place : vectors_.join())
        sizes_.measure(place, rowWidth());
    arrangeInPlace();
    makeVisibleRows();
}

void RowArea::setEnabledWhen(std::function<bool(Kolt::VParameter const&)> const& predicate) {
    isEnabled_ = predicate;
    for (auto* const row : rows()) {
        auto const parameter = row->parameter();
        row->setEditorEnabled(!isEnabled_ || !parameter || isEnabled_(*parameter));
    }
}

void RowArea::setOthers(std::function<std::vector<SharedParameter>(Kolt::VParameter const&)> const& othersOf) {
    othersOf_ = othersOf;
}

void RowArea::setFoldedSections(QStringList const& titles) {
    sections_->setFolded(titles);
    showFolding();
}

void RowArea::setAllSectionsOpen(bool open) {
    if (sections_->setAllOpen(open))
        showFolding();
}

void RowArea::showFolding() {
    for (auto const place : made_)
        entries_[place].row->setVisible(layout_.isShown(place));
    arrangeInPlace();
    makeVisibleRows();
}

RowArea::Entry* RowArea::entryOf(QWidget const* widget) {
    for (auto const place : made_)
        if (entries_[place].row == widget || entries_[place].row->isAncestorOf(widget))
            return &entries_[place];
    return nullptr;
}

int RowArea::rowWidth() const {
    auto const& box = sections_->margins();
    return content_->width() - contentMargins.left() - contentMargins.right() - box.left() - box.right();
}

void RowArea::make(Entry& entry) {
    auto const place = placeOf(entry);
    auto const parameter = entry.parameter.strong();
    if (!parameter) {
        layout_.setShown(place, false);
        return;
    }
    entry.row = new ParameterRow(objectName_, parameter, pools_, *this, sections_->box(layout_.sectionOf(place)));
    made_.insert(place);
    vectors_.showNames(place);
    if (auto others = othersOf_ ? othersOf_(*parameter) : std::vector<SharedParameter>(); !others.empty())
        new SharedRow(objectName_, std::move(others), *entry.row);
    entry.row->setRawValueShown(rawValuesShown_);
    entry.row->setEditorEnabled(!isEnabled_ || isEnabled_(*parameter));
    if (editorsOpen_)
        entry.row->openEditor();
    entry.row->follow();
    entry.row->setVisible(layout_.isShown(place));
    sizes_.measure(place, rowWidth());
    if (!editorsOpen_)
        return;
    focusGuess_.learn(*entry.row, layout_.heightClassOf(place));
    emitEditorOpened(*entry.row);
}

void RowArea::emitEditorOpened(ParameterRow const& row) {
    auto const parameter = row.parameter();
    if (parameter && row.editor())
        emit editorOpened(parameter, row.editor());
}

void RowArea::measureAll() {
    for (auto const place : made_)
        sizes_.measure(place, rowWidth());
    arrangeInPlace();
    makeVisibleRows();
}

void RowArea::arrange() {
    layout_.arrange();
    resizeContent();
    placeSections();
    for (auto const place : made_) {
        int const top = layout_.top(place) - layout_.sectionTop(layout_.sectionOf(place));
        auto const [left, width] = vectors_.span(place, rowWidth(), sizes_.nameColumn(rowWidth()));
        QRect const line(sections_->margins().left(), top, rowWidth(), layout_.height(place));
        QRect const part(line.left() + left, top, width, line.height());
        entries_[place].row->setGeometry(QStyle::visualRect(layoutDirection(), line, part));
    }
}

void RowArea::placeSections() {
    int const width = content_->width() - contentMargins.left() - contentMargins.right();
    sections_->arrange(contentMargins.left(), width, visibleTop(), visibleBottom());
}

void RowArea::resizeContent() {
    if (content_->minimumHeight() == layout_.totalHeight())
        return;
    content_->setMinimumHeight(layout_.totalHeight());
    // At once, as the scroll bar's range depends on it.
    content_->resize(viewport()->size().expandedTo(content_->minimumSize()));
}

QSize RowArea::minimumSizeHint() const {
    int const row = leastFormWidth * fontMetrics().averageCharWidth();
    int const margins =
        contentMargins.left() + contentMargins.right() + sections_->margins().left() + sections_->margins().right();
    return {row + margins + verticalScrollBar()->sizeHint().width(), ContentArea::minimumSizeHint().height()};
}

void RowArea::arrangeInPlace() {
    auto const seen = std::find_if(made_.begin(), made_.end(), [this](auto const place) {
        return layout_.isShown(place) && layout_.bottom(place) > visibleTop();
    });
    int const before = seen == made_.end() ? 0 : layout_.top(*seen);
    bool const isVisibleRow = seen != made_.end() && before < visibleBottom();
    arrange();
    if (isVisibleRow && layout_.top(*seen) != before)
        verticalScrollBar()->setValue(verticalScrollBar()->value() + layout_.top(*seen) - before);
}

int RowArea::visibleBottom() const {
    return visibleTop() + viewport()->height();
}

void RowArea::makeVisibleRows() {
    if (making_ || !isVisible())
        return;
    QScopedValueRollback const guard(making_, true);
    placeSections();
    while (makeSeenRows())
        arrangeInPlace();
    dropFarRows();
}

bool RowArea::makeSeenRows() {
    bool made = false;
    int grown = 0;
    for (auto place = layout_.firstRowBelow(visibleTop());
         place < entries_.size() && layout_.top(place) + grown < visibleBottom(); ++place) {
        if (entries_[place].row || !layout_.isShown(place))
            continue;
        int const estimate = layout_.ownHeight(place);
        make(entries_[place]);
        grown += layout_.ownHeight(place) - estimate;
        made = true;
    }
    return made;
}

void RowArea::dropFarRows() {
    // A handle that the mouse holds may be moving.
    auto* const pressed = InputFilter::shared()->gestures().pressed();
    for (auto const place : layout_.farRows(made_, visibleTop(), visibleBottom(), keptRows)) {
        auto& entry = entries_[place];
        if (isInUse(*entry.row) || (pressed && ParameterRow::rowOf(pressed) == entry.row))
            continue;
        entry.row->closeEditor();
        entry.row->hide();
        entry.row->deleteLater();
        entry.row = nullptr;
        layout_.dropHeight(place);
        made_.erase(place);
    }
}

bool RowArea::eventFilter(QObject* watched, QEvent* event) {
    // A row in a box was laid out. Most were so without another size.
    if (event->type() == QEvent::LayoutRequest && watched != content_ && watched->parent() == content_ &&
        sizes_.measureChanged(rowWidth())) {
        arrangeInPlace();
        makeVisibleRows();
    }
    return ContentArea::eventFilter(watched, event);
}

void RowArea::resizeEvent(QResizeEvent* event) {
    ContentArea::resizeEvent(event);
    measureAll();
}

void RowArea::showEvent(QShowEvent* event) {
    ContentArea::showEvent(event);
    measureAll();
}

void RowArea::changeEvent(QEvent* event) {
    ContentArea::changeEvent(event);
    if (event->type() == QEvent::LayoutDirectionChange)
        arrange();
    if (event->type() != QEvent::StyleChange && event->type() != QEvent::FontChange)
        return;
    layout_.forgetEstimates();
    sizes_.setNameWidth(fontMetrics().horizontalAdvance(longestLabel_));
    sections_->measure();
    measureAll();
}

void RowArea::scrollContentsBy(int dx, int dy) {
    ContentArea::scrollContentsBy(dx, dy);
    makeVisibleRows();
}

ParameterRow* RowArea::focusRow(std::size_t place) {
    auto& entry = entries_[place];
    if (!layout_.isShown(place))
        return nullptr;
    auto const parameter = entry.row || othersOf_ ? nullptr : entry.parameter.strong();
    if (parameter && !focusGuess_.mayTakeFocus(*parameter, layout_.heightClassOf(place), pools_.pool(), *this))
        return nullptr;
    if (!entry.row) {
        make(entry);
        arrangeInPlace();
    }
    return entry.row;
}

bool RowArea::focusFirstControl() {
    return RowTabs(*this, entries_.size(), [this](auto place) { return focusRow(place); }).focusFirstEditor();
}

bool RowArea::focusNextPrevChild(bool next) {
    auto* const focus = QApplication::focusWidget();
    auto const* const current = focus ? entryOf(focus) : nullptr;
    if (!current)
        return ContentArea::focusNextPrevChild(next);
    RowTabs const tabs(*this, entries_.size(), [this](auto place) { return focusRow(place); });
    return tabs.focusNext(*focus, placeOf(*current), next);
}

void RowArea::keyPressEvent(QKeyEvent* event) {
    bool const next = event->key() == Qt::Key_Tab;
    bool const isTab = next || event->key() == Qt::Key_Backtab;
    if (!isTab || !event->modifiers().testFlag(Qt::ControlModifier) || !focusNextPrevChild(next))
        ContentArea::keyPressEvent(event);
}

} // namespace Talo

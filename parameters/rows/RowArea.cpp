#include <algorithm>
#include <map>
#include <parameters/rows/RowArea.hpp>
#include <QApplication>
#include <QEvent>
#include <QGroupBox>
#include <QKeyEvent>
#include <QScopedValueRollback>
#include <QScrollBar>

namespace Talo {

namespace {

// In pixels.
constexpr QMargins contentMargins(12, 6, 12, 12);
constexpr QMargins groupMargins(12, 8, 12, 8);
constexpr int groupSpacing = 12;
constexpr int rowSpacing = 6;
// Of a row that nothing is known of.
constexpr int usualHeight = 36;

// So many rows out of sight are kept: who scrolls a little to and fro does not wait for them.
constexpr std::size_t keptRows = 60;

QString groupOf(QString const& parameterName) {
    return parameterName.left(qMax(0, parameterName.lastIndexOf(QLatin1Char('.'))));
}

std::string sortOf(Kolt::VParameter const& parameter) {
    auto sort = parameter.declaredType();
    if (auto const& preferences = parameter.creationPreferences())
        sort += ' ' + Kolt::preferenceText(preferences->names());
    return sort;
}

QMargins boxMargins(QString const& title) {
    QGroupBox box(title);
    box.ensurePolished();
    return box.contentsMargins() + groupMargins;
}

/// The controls of a row that Tab stops at, in their order.
std::vector<QWidget*> tabStops(QWidget const& row) {
    std::vector<QWidget*> stops;
    auto const all = row.findChildren<QWidget*>();
    for (auto* const widget : all) {
        if ((widget->focusPolicy() & Qt::TabFocus) == Qt::TabFocus && !widget->focusProxy() && widget->isEnabled() &&
            widget->window() == row.window() && widget->isVisibleTo(&row))
            stops.push_back(widget);
    }
    return stops;
}

/// Whether the user is at work in the row: it has the focus, or a dialog or a list of it is open.
bool isInUse(QWidget const& row) {
    if (auto const* const focus = QApplication::focusWidget())
        if (row.isAncestorOf(focus))
            return true;
    auto const all = row.findChildren<QWidget*>();
    return std::any_of(all.begin(), all.end(), [](auto const* each) { return each->isWindow() && each->isVisible(); });
}

} // namespace

RowArea::RowArea(QString const& objectName, std::vector<Kolt::ParameterPtr> const& parameters, PoolSource& pools,
                 QWidget* parent)
    : ContentArea(parent), objectName_(objectName), pools_(pools), content_(new QWidget) {
    std::map<QString, std::size_t> known;
    std::map<std::string, std::size_t> sorts;
    QString longestName;
    for (auto const& parameter : parameters) {
        Entry entry;
        entry.name = QString::fromStdString(parameter->Name());
        entry.parameter = parameter;
        entry.sort = sorts.insert({sortOf(*parameter), sorts.size()}).first->second;
        auto const title = groupOf(entry.name);
        auto const [place, isNew] = known.insert({title, groups_.size()});
        if (isNew)
            groups_.push_back({title});
        entry.group = place->second;
        entry.height = usualHeight;
        if (entry.name.size() - title.size() > longestName.size())
            longestName = entry.name.mid(title.isEmpty() ? 0 : title.size() + 1);
        entries_.push_back(std::move(entry));
    }
    heights_.resize(sorts.size());
    std::stable_sort(entries_.begin(), entries_.end(),
                     [](auto const& left, auto const& right) { return left.group < right.group; });
    // Most names are narrower than the one with the most letters; a row that needs more widens the column.
    nameWidth_ = fontMetrics().horizontalAdvance(longestName);
    measureBoxes();
    setWidget(content_);
    setAccessibleName(objectName);
    arrange();
}

RowArea::~RowArea() = default;

std::vector<ParameterRow*> RowArea::rows() const {
    std::vector<ParameterRow*> rows;
    rows.reserve(made_.size());
    for (auto const place : made_)
        rows.push_back(entries_[place].row);
    return rows;
}

ParameterRow* RowArea::row(QString const& parameterName) {
    auto const entry =
        std::find_if(entries_.begin(), entries_.end(), [&](auto const& each) { return each.name == parameterName; });
    if (entry == entries_.end())
        return nullptr;
    if (!entry->row) {
        make(*entry);
        arrangeInPlace();
    }
    return entry->row;
}

void RowArea::openEditors() {
    editorsOpen_ = true;
    for (auto* const row : rows()) {
        row->openEditor();
        emit editorOpened(row);
    }
    measureAll();
}

void RowArea::closeEditors() {
    editorsOpen_ = false;
    for (auto* const row : rows())
        row->closeEditor();
}

void RowArea::showPool() {
    for (auto* const row : rows())
        row->showPool();
    measureAll();
}

void RowArea::checkParameters() {
    for (auto* const row : rows())
        row->checkParameter();
}

void RowArea::setRawValuesShown(bool shown) {
    rawValuesShown_ = shown;
    for (auto* const row : rows())
        row->setRawValueShown(shown);
    measureAll();
}

void RowArea::setFilter(std::function<bool(Kolt::VParameter const&)> const& filter) {
    for (auto& entry : entries_) {
        auto const parameter = entry.parameter.strong();
        entry.shown = !filter || (parameter ? filter(*parameter) : false);
        if (entry.row)
            entry.row->setVisible(entry.shown);
    }
    arrange();
    verticalScrollBar()->setValue(0);
    makeVisibleRows();
}

int RowArea::shownCount() const {
    return static_cast<int>(std::count_if(entries_.begin(), entries_.end(), [](auto const& each) { //
        return each.shown;
    }));
}

void RowArea::measureBoxes() {
    titledBox_ = boxMargins(QStringLiteral("X"));
    plainBox_ = boxMargins(QString());
}

RowArea::Entry* RowArea::entryOf(QWidget const* widget) {
    for (auto const place : made_)
        if (entries_[place].row == widget || entries_[place].row->isAncestorOf(widget))
            return &entries_[place];
    return nullptr;
}

int RowArea::rowWidth() const {
    auto const& box = titledBox_;
    return content_->width() - contentMargins.left() - contentMargins.right() - box.left() - box.right();
}

void RowArea::make(Entry& entry) {
    auto const parameter = entry.parameter.strong();
    if (!parameter) {
        entry.shown = false;
        return;
    }
    auto& group = groups_[entry.group];
    if (!group.box) {
        group.box = new QGroupBox(group.title, content_);
        group.box->installEventFilter(this);
        group.box->show();
    }
    entry.row = new ParameterRow(objectName_, parameter, pools_, group.box);
    made_.insert(static_cast<std::size_t>(&entry - entries_.data()));
    entry.row->setRawValueShown(rawValuesShown_);
    if (editorsOpen_)
        entry.row->openEditor();
    entry.row->setVisible(entry.shown);
    measure(entry);
    if (editorsOpen_)
        emit editorOpened(entry.row);
}

bool RowArea::measure(Entry& entry) {
    if (entry.row->nameWidth() > nameWidth_) {
        nameWidth_ = entry.row->nameWidth();
        for (auto* const row : rows())
            row->setNameWidth(nameWidth_);
    }
    entry.row->setNameWidth(nameWidth_);
    auto const least = entry.row->minimumSizeHint();
    leastRowWidth_ = qMax(leastRowWidth_, least.width());
    int const wanted =
        entry.row->hasHeightForWidth() ? entry.row->heightForWidth(rowWidth()) : entry.row->sizeHint().height();
    int const height = qMax(wanted, least.height());
    heights_[entry.sort] = height;
    return std::exchange(entry.height, height) != height;
}

void RowArea::measureAll() {
    for (auto const place : made_)
        measure(entries_[place]);
    arrangeInPlace();
    makeVisibleRows();
}

void RowArea::arrange() {
    int top = contentMargins.top();
    auto entry = entries_.begin();
    for (std::size_t index = 0; index < groups_.size(); ++index) {
        auto& group = groups_[index];
        auto const& margins = group.title.isEmpty() ? plainBox_ : titledBox_;
        group.top = top;
        int bottom = top + margins.top();
        bool isEmpty = true;
        for (; entry != entries_.end() && entry->group == index; ++entry) {
            entry->top = bottom;
            if (!entry->shown)
                continue;
            if (!entry->row && heights_[entry->sort] > 0)
                entry->height = heights_[entry->sort];
            bottom += entry->height + rowSpacing;
            isEmpty = false;
        }
        group.height = isEmpty ? 0 : bottom - rowSpacing + margins.bottom() - top;
        if (!isEmpty)
            top += group.height + groupSpacing;
    }
    int const height = top - groupSpacing + contentMargins.bottom();
    int const leastWidth =
        leastRowWidth_ + contentMargins.left() + contentMargins.right() + titledBox_.left() + titledBox_.right();
    if (content_->minimumSize() != QSize(leastWidth, height)) {
        bool const wider = content_->minimumWidth() != leastWidth;
        content_->setMinimumSize(leastWidth, height);
        // At once, as the scroll bar must know how far it goes.
        content_->resize(viewport()->size().expandedTo(content_->minimumSize()));
        if (wider)
            updateGeometry();
    }

    int const width = content_->width() - contentMargins.left() - contentMargins.right();
    for (auto const& group : groups_) {
        if (!group.box)
            continue;
        group.box->setVisible(group.height > 0);
        group.box->setGeometry(contentMargins.left(), group.top, width, group.height);
    }
    for (auto const place : made_) {
        auto const& made = entries_[place];
        made.row->setGeometry(titledBox_.left(), made.top - groups_[made.group].top, rowWidth(), made.height);
    }
}

void RowArea::arrangeInPlace() {
    auto const seen = std::find_if(made_.begin(), made_.end(), [this](auto const place) {
        return entries_[place].shown && entries_[place].top + entries_[place].height > visibleTop();
    });
    auto const* const kept = seen == made_.end() ? nullptr : &entries_[*seen];
    int const before = kept ? kept->top : 0;
    bool const inSight = kept && before < visibleBottom();
    arrange();
    if (inSight && kept->top != before)
        verticalScrollBar()->setValue(verticalScrollBar()->value() + kept->top - before);
}

int RowArea::visibleTop() const {
    return -content_->y();
}

int RowArea::visibleBottom() const {
    return visibleTop() + viewport()->height();
}

void RowArea::makeVisibleRows() {
    if (making_ || !isVisible())
        return;
    QScopedValueRollback const guard(making_, true);
    for (bool made = true; made;) {
        made = false;
        auto const first =
            std::partition_point(entries_.begin(), entries_.end(),
                                 [top = visibleTop()](auto const& each) { return each.top + each.height <= top; });
        for (auto entry = first; entry != entries_.end() && entry->top < visibleBottom() && !made; ++entry) {
            if (entry->row || !entry->shown)
                continue;
            make(*entry);
            arrangeInPlace();
            made = true;
        }
    }
    dropFarRows();
}

void RowArea::dropFarRows() {
    // While a button is held somebody may be moving a handle.
    if (QApplication::mouseButtons() != Qt::NoButton)
        return;
    auto const distance = [this](std::size_t place) {
        auto const& entry = entries_[place];
        return qMax(visibleTop() - entry.top - entry.height, entry.top - visibleBottom());
    };
    std::vector<std::size_t> outOfSight;
    std::copy_if(made_.begin(), made_.end(), std::back_inserter(outOfSight),
                 [&](auto const place) { return distance(place) > 0; });
    std::sort(outOfSight.begin(), outOfSight.end(),
              [&](auto const left, auto const right) { return distance(left) < distance(right); });
    for (std::size_t index = keptRows; index < outOfSight.size(); ++index) {
        auto& entry = entries_[outOfSight[index]];
        if (isInUse(*entry.row))
            continue;
        entry.row->closeEditor();
        entry.row->hide();
        entry.row->deleteLater();
        entry.row = nullptr;
        made_.erase(outOfSight[index]);
    }
}

bool RowArea::eventFilter(QObject* watched, QEvent* event) {
    // A row in a box wants another size.
    if (event->type() == QEvent::LayoutRequest && watched != content_ && watched->parent() == content_)
        measureAll();
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
    if (event->type() != QEvent::StyleChange && event->type() != QEvent::FontChange)
        return;
    std::fill(heights_.begin(), heights_.end(), 0);
    measureBoxes();
    measureAll();
}

void RowArea::scrollContentsBy(int dx, int dy) {
    ContentArea::scrollContentsBy(dx, dy);
    makeVisibleRows();
}

bool RowArea::focusControl(Entry const& entry, bool first, bool ofEditor) {
    auto stops = tabStops(*entry.row);
    if (ofEditor)
        stops.erase(std::remove(stops.begin(), stops.end(), entry.row->defaultMarker()), stops.end());
    if (stops.empty())
        return false;
    auto* const stop = first ? stops.front() : stops.back();
    stop->setFocus(first ? Qt::TabFocusReason : Qt::BacktabFocusReason);
    ensureWidgetVisible(stop);
    return true;
}

bool RowArea::focusOutside(QWidget const* from, bool next) {
    auto* widget = next ? from->nextInFocusChain() : from->previousInFocusChain();
    for (; widget != from; widget = next ? widget->nextInFocusChain() : widget->previousInFocusChain()) {
        if (isAncestorOf(widget) || widget == this || (widget->focusPolicy() & Qt::TabFocus) != Qt::TabFocus ||
            widget->focusProxy() || !widget->isEnabled() || !widget->isVisible())
            continue;
        widget->setFocus(next ? Qt::TabFocusReason : Qt::BacktabFocusReason);
        return true;
    }
    return false;
}

bool RowArea::focusFrom(std::ptrdiff_t place, bool next, bool toEditor) {
    for (; place >= 0 && place < static_cast<std::ptrdiff_t>(entries_.size()); place += next ? 1 : -1) {
        auto& entry = entries_[static_cast<std::size_t>(place)];
        if (!entry.shown)
            continue;
        if (!entry.row) {
            make(entry);
            arrangeInPlace();
        }
        if (entry.row && focusControl(entry, next, toEditor))
            return true;
    }
    return false;
}

bool RowArea::focusFirstControl() {
    return focusFrom(0, true, true);
}

bool RowArea::focusNextPrevChild(bool next) {
    auto const* const focus = QApplication::focusWidget();
    auto const* const current = focus ? entryOf(focus) : nullptr;
    if (!current)
        return ContentArea::focusNextPrevChild(next);
    auto const stops = tabStops(*current->row);
    auto const stop = std::find(stops.begin(), stops.end(), focus);
    if (stop != stops.end() && (next ? stop + 1 != stops.end() : stop != stops.begin())) {
        auto* const neighbour = next ? *(stop + 1) : *(stop - 1);
        neighbour->setFocus(next ? Qt::TabFocusReason : Qt::BacktabFocusReason);
        ensureWidgetVisible(neighbour);
        return true;
    }
    if (focusFrom(current - entries_.data() + (next ? 1 : -1), next, false))
        return true;
    return focusOutside(focus, next);
}

void RowArea::keyPressEvent(QKeyEvent* event) {
    bool const next = event->key() == Qt::Key_Tab;
    bool const isTab = next || event->key() == Qt::Key_Backtab;
    if (!isTab || !event->modifiers().testFlag(Qt::ControlModifier) || !focusNextPrevChild(next))
        ContentArea::keyPressEvent(event);
}

} // namespace Talo

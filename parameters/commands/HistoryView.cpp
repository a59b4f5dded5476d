#include <parameters/commands/HistoryView.hpp>

#include <algorithm>
#include <network/PlainText.hpp>
#include <parameters/commands/UndoText.hpp>
#include <parameters/rows/MutedLabel.hpp>
#include <parameters/rows/TextDirectionDelegate.hpp>
#include <QEvent>

namespace Talo {

namespace {

// From here on the list says how much memory the steps take.
constexpr qint64 notableBytes = 1 << 20;

} // namespace

HistoryView::HistoryView(Kolt::UndoHistory& history, QWidget* parent) : QListWidget(parent), history_(history) {
    setObjectName(QStringLiteral("history"));
    showName();
    setItemDelegate(new TextDirectionDelegate(this));
    setUniformItemSizes(true);
    setTextElideMode(Qt::ElideMiddle);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    addItem(QString());
    showStart();
    setCurrentRow(0);
    auto const choose = [this](QListWidgetItem* chosen) { emit stateChosen(row(chosen)); };
    connect(this, &QListWidget::itemClicked, this, choose);
    connect(this, &QListWidget::itemActivated, this, choose);
    connection_ = history_.addListener([this] { historyChanged(); });
}

HistoryView::~HistoryView() = default;

void HistoryView::setNaming(ParameterNaming naming) {
    naming_ = std::move(naming);
    shown_.clear();
    historyChanged();
}

void HistoryView::historyChanged() {
    if (!isVisible() || refreshWaits_)
        return;
    // Later, as the row that asked for another state is still at work.
    refreshWaits_ = true;
    QMetaObject::invokeMethod(this, &HistoryView::refresh, Qt::QueuedConnection);
}

void HistoryView::showEvent(QShowEvent* event) {
    QListWidget::showEvent(event);
    refresh();
}

void HistoryView::changeEvent(QEvent* event) {
    QListWidget::changeEvent(event);
    bool const isOtherLanguage = event->type() == QEvent::LanguageChange;
    if (isOtherLanguage)
        showName();
    if (isOtherLanguage || event->type() == QEvent::PaletteChange || event->type() == QEvent::FontChange) {
        shown_.clear();
        historyChanged();
    }
}

void HistoryView::showName() {
    setAccessibleName(tr("History"));
    setAccessibleDescription(tr("The undo steps. Return goes to the state after the chosen step."));
}

void HistoryView::refresh() {
    refreshWaits_ = false;
    auto steps = history_.steps();
    auto const done = static_cast<int>(steps.size());
    auto const undone = history_.undoneSteps();
    steps.insert(steps.end(), undone.begin(), undone.end());

    // Rows of known steps stay, but for the step of an open macro and the border of what was undone.
    int const border = std::max(std::min({shownDone_, done, static_cast<int>(shown_.size())}) - 1, 0);
    auto const differs = std::mismatch(shown_.begin(), shown_.begin() + border, steps.begin(), steps.end()).first;
    auto const kept = static_cast<int>(differs - shown_.begin());
    while (count() - 1 > static_cast<int>(steps.size()))
        delete takeItem(count() - 1);
    for (int index = kept; index < static_cast<int>(steps.size()); ++index)
        showStep(index + 1, *steps[static_cast<std::size_t>(index)], index >= done);
    showStart();
    shown_ = std::move(steps);
    shownDone_ = done;
    setCurrentRow(done);
    scrollToItem(item(done));
}

void HistoryView::showStart() {
    bool const isWhole = history_.forgottenSteps() == 0;
    auto const start = isWhole ? tr("Start") : tr("Oldest state that is kept");
    auto const bytes = static_cast<qint64>(history_.byteCount());
    auto const used = locale().formattedDataSize(bytes, 0);
    auto const most = locale().formattedDataSize(qint64{Kolt::UndoHistory::ByteCapacity}, 0);
    item(0)->setText(bytes < notableBytes ? start : tr("%1 (%2 of %3)", "start, memory").arg(start, used, most));
    item(0)->setToolTip(isWhole ? tr("Before all steps") : tr("Older steps were forgotten, as the history was full."));
}

void HistoryView::showStep(int row, Kolt::UndoStep const& step, bool undone) {
    if (row == count())
        addItem(QString());
    auto* const shown = item(row);
    auto const text = undoText(step, naming_);
    shown->setText(text);
    shown->setToolTip(plainToolTip(text));
    auto itemFont = font();
    itemFont.setItalic(undone);
    shown->setFont(itemFont);
    shown->setForeground(undone ? QBrush(mutedText(palette())) : QBrush());
    shown->setData(Qt::AccessibleTextRole, undone ? tr("%1, undone").arg(text) : text);
}

} // namespace Talo

#include <panel/window/MessageList.hpp>

#include <memory>
#include <parameters/rows/MutedLabel.hpp>
#include <parameters/rows/TextDirectionDelegate.hpp>
#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QEvent>
#include <QHeaderView>
#include <QScrollBar>
#include <QStyle>
#include <QTime>
#include <utility>

namespace Panel {

namespace {

constexpr int timeColumn = 0;
constexpr int sourceColumn = 1;
constexpr int textColumn = 2;
constexpr int sourceRole = Qt::UserRole;

QString sourceName(MessageList::Source source) {
    switch (source) {
    case MessageList::Source::Output:
        return MessageList::tr("output");
    case MessageList::Source::Warning:
        return MessageList::tr("warning");
    case MessageList::Source::Error:
        return MessageList::tr("error");
    case MessageList::Source::Panel:
        break;
    }
    return MessageList::tr("panel");
}

} // namespace

MessageList::MessageList(QWidget* parent) : QTreeWidget(parent) {
    setHeaderLabels({tr("Time"), tr("From"), tr("Message")});
    setRootIsDecorated(false);
    setUniformRowHeights(true);
    setAlternatingRowColors(true);
    setFrameShape(QFrame::NoFrame);
    setAccessibleName(tr("Messages"));
    setItemDelegate(new Talo::TextDirectionDelegate(this));
    setColumnWidths();

    auto* const clearAction = new QAction(tr("Clear"), this);
    connect(clearAction, &QAction::triggered, this, &QTreeWidget::clear);
    auto* const copyAction = new QAction(tr("Copy"), this);
    copyAction->setShortcut(QKeySequence::Copy);
    copyAction->setShortcutContext(Qt::WidgetShortcut);
    connect(copyAction, &QAction::triggered, this, [this] {
        if (auto const* const item = currentItem())
            QApplication::clipboard()->setText(item->text(textColumn));
    });
    addActions({copyAction, clearAction});
    setContextMenuPolicy(Qt::ActionsContextMenu);
    // The list was cleared.
    connect(model(), &QAbstractItemModel::modelReset, this, [this] { countOutput(0); });
}

void MessageList::setColumnWidths() {
    // Of fixed width: to measure all rows at each message costs more with each.
    int const margin = 4 * style()->pixelMetric(QStyle::PM_FocusFrameHMargin, nullptr, this) + 8;
    header()->resizeSection(timeColumn, fontMetrics().horizontalAdvance(QStringLiteral("00:00:00")) + margin);
    auto bold = font();
    bold.setBold(true);
    int widest = 0;
    for (auto const source : {Source::Panel, Source::Output, Source::Warning, Source::Error})
        widest = qMax(widest, QFontMetrics(bold).horizontalAdvance(sourceName(source)));
    header()->resizeSection(sourceColumn, widest + margin);
}

void MessageList::setItemLook(QTreeWidgetItem& item) const {
    item.setForeground(timeColumn, Talo::mutedText(palette()));
    auto const source = static_cast<Source>(item.data(sourceColumn, sourceRole).toInt());
    if (source != Source::Warning && source != Source::Error)
        return;
    auto bold = font();
    bold.setBold(true);
    item.setFont(sourceColumn, bold);
}

void MessageList::changeEvent(QEvent* event) {
    QTreeWidget::changeEvent(event);
    if (event->type() != QEvent::PaletteChange && event->type() != QEvent::FontChange)
        return;
    setColumnWidths();
    for (int index = 0; index < topLevelItemCount(); ++index)
        setItemLook(*topLevelItem(index));
}

MessageList::~MessageList() {
    // The base clears its model when there is no list of messages any more.
    model()->disconnect(this);
}

void MessageList::add(Source source, QString const& text) {
    scrollToNewEnd();
    auto* const item =
        new QTreeWidgetItem({QTime::currentTime().toString(QStringLiteral("HH:mm:ss")), sourceName(source), text});
    item->setData(sourceColumn, sourceRole, static_cast<int>(source));
    item->setToolTip(textColumn, QStringLiteral("<p>%1</p>").arg(text.toHtmlEscaped()));
    setItemLook(*item);
    addTopLevelItem(item);
    if (source == Source::Output) {
        item->setHidden(!outputShown_);
        countOutput(outputCount_ + 1);
    }
    if (topLevelItemCount() > Capacity)
        removeOldest();
}

void MessageList::scrollToNewEnd() {
    bool const atEnd = verticalScrollBar()->value() == verticalScrollBar()->maximum();
    // Later, and once for many messages: scrolling lays the rows out.
    if (!atEnd || scrollWaits_)
        return;
    scrollWaits_ = true;
    QMetaObject::invokeMethod(
        this,
        [this] {
            scrollWaits_ = false;
            scrollToBottom();
        },
        Qt::QueuedConnection);
}

void MessageList::removeOldest() {
    std::unique_ptr<QTreeWidgetItem> const oldest(takeTopLevelItem(0));
    if (isOutput(*oldest))
        countOutput(outputCount_ - 1);
}

bool MessageList::isOutput(QTreeWidgetItem const& item) {
    return item.data(sourceColumn, sourceRole).toInt() == static_cast<int>(Source::Output);
}

void MessageList::countOutput(int count) {
    if (std::exchange(outputCount_, count) != count)
        emit outputCounted(count);
}

void MessageList::setOutputShown(bool shown) {
    outputShown_ = shown;
    for (int index = 0; index < topLevelItemCount(); ++index) {
        auto* const item = topLevelItem(index);
        if (isOutput(*item))
            item->setHidden(!shown);
    }
}

QStringList MessageList::texts() const {
    QStringList texts;
    for (int index = 0; index < topLevelItemCount(); ++index)
        texts << topLevelItem(index)->text(textColumn);
    return texts;
}

QStringList MessageList::texts(Source source) const {
    QStringList texts;
    for (int index = 0; index < topLevelItemCount(); ++index) {
        if (topLevelItem(index)->data(sourceColumn, sourceRole).toInt() == static_cast<int>(source))
            texts << topLevelItem(index)->text(textColumn);
    }
    return texts;
}

} // namespace Panel

#include <panel/window/ComparisonView.hpp>

#include <panel/window/DifferenceOrder.hpp>
#include <parameters/rows/MutedLabel.hpp>
#include <parameters/rows/TextDirectionDelegate.hpp>
#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QSignalBlocker>
#include <QToolButton>

namespace Panel {

namespace {

// Edits that follow each other are compared together. In milliseconds.
constexpr int compareDelay = 200;

} // namespace

ComparisonView::ComparisonView(QWidget* parent)
    : QWidget(parent),
      differences_(new PoolDifferences(this)),
      sorted_(new DifferenceOrder(this)),
      table_(new QTreeView),
      first_(new QComboBox),
      second_(new QComboBox),
      count_(new Talo::MutedLabel),
      head_(new QWidget) {
    makeHead();
    makeTable();
    auto* const layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(head_);
    layout->addWidget(table_, 1);
    timer_.setSingleShot(true);
    timer_.setInterval(compareDelay);
    connect(&timer_, &QTimer::timeout, this, &ComparisonView::compare);
}

ComparisonView::~ComparisonView() = default;

void ComparisonView::makeHead() {
    first_->setObjectName(QStringLiteral("firstPool"));
    first_->setAccessibleName(tr("First pool"));
    second_->setObjectName(QStringLiteral("secondPool"));
    second_->setAccessibleName(tr("Second pool"));
    count_->setObjectName(QStringLiteral("differenceCount"));
    auto* const refresh = new QToolButton;
    refresh->setObjectName(QStringLiteral("refreshComparison"));
    refresh->setText(tr("Refresh"));
    refresh->setToolTip(tr("Compares the values of now"));
    auto* const layout = new QHBoxLayout(head_);
    for (auto* const selector : {first_, second_}) {
        selector->setSizeAdjustPolicy(QComboBox::AdjustToContents);
        layout->addWidget(selector);
        connect(selector, qOverload<int>(&QComboBox::currentIndexChanged), this, &ComparisonView::compare);
    }
    layout->addWidget(refresh);
    layout->addWidget(count_, 1);
    connect(refresh, &QToolButton::clicked, this, &ComparisonView::compare);
}

void ComparisonView::makeTable() {
    sorted_->setSourceModel(differences_);
    table_->setModel(sorted_);
    table_->setObjectName(QStringLiteral("differences"));
    table_->setAccessibleName(tr("Parameters that differ"));
    table_->setRootIsDecorated(false);
    table_->setUniformRowHeights(true);
    table_->setAlternatingRowColors(true);
    table_->setFrameShape(QFrame::NoFrame);
    table_->setSelectionMode(QTreeView::ExtendedSelection);
    table_->setItemDelegate(new Talo::TextDirectionDelegate(table_));
    table_->header()->setSectionResizeMode(QHeaderView::Stretch);
    table_->setSortingEnabled(true);
    // As in the file until a column is clicked.
    table_->sortByColumn(-1, Qt::AscendingOrder);
    auto* const copyAction = new QAction(tr("Copy"), table_);
    copyAction->setObjectName(QStringLiteral("copyDifferences"));
    copyAction->setShortcut(QKeySequence::Copy);
    copyAction->setShortcutContext(Qt::WidgetShortcut);
    connect(copyAction, &QAction::triggered, this, &ComparisonView::copy);
    table_->addAction(copyAction);
    table_->setContextMenuPolicy(Qt::ActionsContextMenu);
    connect(table_, &QTreeView::activated, this, [this](QModelIndex const& index) {
        auto const text = [&](int column) { return index.siblingAtColumn(column).data().toString(); };
        emit parameterChosen(text(PoolDifferences::Object), text(PoolDifferences::Parameter));
    });
}

void ComparisonView::showNetwork(Talo::Network const* network) {
    network_ = network;
    for (auto* const selector : {first_, second_}) {
        QSignalBlocker const blocker(selector);
        selector->clear();
        if (!network)
            continue;
        for (auto const& pool : network->pools())
            selector->addItem(QString::fromStdString(pool->Name()));
        if (selector == second_)
            selector->setCurrentIndex(qMin(1, selector->count() - 1));
    }
    compare();
}

Kolt::PoolPtr ComparisonView::chosenPool(QComboBox const& selector) const {
    return network_ && selector.currentIndex() >= 0
               ? network_->pools().at(static_cast<std::size_t>(selector.currentIndex()))
               : nullptr;
}

void ComparisonView::compareLater() {
    if (isVisible())
        timer_.start();
}

void ComparisonView::showEvent(QShowEvent* event) {
    QWidget::showEvent(event);
    compare();
}

void ComparisonView::compare() {
    timer_.stop();
    // To compare all values of a large network takes a while.
    if (network_ && !isVisible())
        return;
    differences_->compare(network_, chosenPool(*first_), chosenPool(*second_));
    int const count = differences_->rowCount();
    count_->setText(count == 1 ? tr("1 parameter differs.") : tr("%n parameters differ.", nullptr, count));
}

void ComparisonView::copy() const {
    QStringList lines{differences_->headerText()};
    auto const* const selection = table_->selectionModel();
    for (int row = 0; row < sorted_->rowCount(); ++row)
        if (!selection->hasSelection() || selection->isRowSelected(row, {}))
            lines << differences_->rowText(sorted_->mapToSource(sorted_->index(row, 0)).row());
    QApplication::clipboard()->setText(lines.join(QLatin1Char('\n')) + QLatin1Char('\n'));
}

} // namespace Panel

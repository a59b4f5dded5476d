#include <panel/window/KeysDialog.hpp>

#include <QApplication>
#include <QClipboard>
#include <QDialogButtonBox>
#include <QGuiApplication>
#include <QHeaderView>
#include <QPushButton>
#include <QScreen>
#include <QScrollBar>
#include <QVBoxLayout>

namespace Panel {

namespace {

// In lines of text; the table scrolls.
constexpr int shownLines = 40;

} // namespace

KeysDialog::KeysDialog(QVector<KeyGroup> const& groups, QWidget* parent)
    : QDialog(parent), groups_(groups), table_(new QTableWidget(0, 2)) {
    setWindowTitle(tr("Keys"));
    setObjectName(QStringLiteral("keys"));
    table_->setHorizontalHeaderLabels({tr("Command"), tr("Keys")});
    table_->setAccessibleName(tr("Keys"));
    table_->verticalHeader()->hide();
    table_->setEditTriggers(QAbstractItemView::NoEditTriggers);
    table_->setSelectionBehavior(QAbstractItemView::SelectRows);
    table_->setTabKeyNavigation(false);
    table_->setShowGrid(false);
    for (auto const& group : groups) {
        addTitle(group.title);
        for (auto const& entry : group.entries)
            addRow(entry.command, entry.keys);
    }
    table_->setWordWrap(false);
    table_->resizeColumnsToContents();
    table_->resizeRowsToContents();
    table_->horizontalHeader()->setStretchLastSection(true);
    table_->horizontalHeader()->setDefaultAlignment(Qt::AlignLeading | Qt::AlignVCenter);

    auto* const buttons = new QDialogButtonBox(QDialogButtonBox::Close);
    auto* const copyButton = buttons->addButton(tr("&Copy as text"), QDialogButtonBox::ActionRole);
    copyButton->setObjectName(QStringLiteral("copyKeys"));
    connect(copyButton, &QPushButton::clicked, this, [this] { QApplication::clipboard()->setText(text()); });
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    auto* const layout = new QVBoxLayout(this);
    layout->addWidget(table_);
    layout->addWidget(buttons);
    int const columns = table_->horizontalHeader()->length() + 2 * table_->frameWidth();
    int const bar = table_->verticalScrollBar()->sizeHint().width();
    auto const margins = layout->contentsMargins();
    // The table scrolls where the screen is smaller.
    resize(QSize(columns + bar + margins.left() + margins.right(), shownLines * fontMetrics().lineSpacing())
               .boundedTo(QGuiApplication::primaryScreen()->availableSize()));
}

KeysDialog::~KeysDialog() = default;

void KeysDialog::addRow(QString const& command, QString const& keys) {
    int const row = table_->rowCount();
    table_->insertRow(row);
    table_->setItem(row, 0, new QTableWidgetItem(command));
    table_->setItem(row, 1, new QTableWidgetItem(keys));
}

void KeysDialog::addTitle(QString const& title) {
    addRow(title, QString());
    int const row = table_->rowCount() - 1;
    auto* const item = table_->item(row, 0);
    auto bold = item->font();
    bold.setBold(true);
    item->setFont(bold);
    table_->setSpan(row, 0, 1, 2);
}

QString KeysDialog::text() const {
    QString text;
    for (auto const& group : groups_) {
        text += (text.isEmpty() ? QString() : QStringLiteral("\n")) + group.title + QLatin1Char('\n');
        for (auto const& entry : group.entries)
            text += entry.command + QLatin1Char('\t') + entry.keys + QLatin1Char('\n');
    }
    return text;
}

} // namespace Panel

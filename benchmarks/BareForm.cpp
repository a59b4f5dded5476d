#include "BareForm.hpp"

#include "BenchmarkCase.hpp"

#include <algorithm>
#include <QCoreApplication>
#include <QHBoxLayout>
#include <QLabel>
#include <QMainWindow>
#include <QMenu>
#include <QMenuBar>
#include <QSplitter>

namespace {

// In pixels.
constexpr int margin = 24;
constexpr int distance = 6;

// As many as the panel keeps.
constexpr int keptRows = 60;
constexpr std::size_t keptSteps = 1000;

BenchmarkCase const& caseOf(int kind) {
    return benchmarkCases().at(static_cast<std::size_t>(kind));
}

/// The height of a row by its kind. A program knows it before a form is opened.
int rowHeight(int kind) {
    static auto const heights = [] {
        std::vector<int> all;
        QWidget parent;
        for (auto const& each : benchmarkCases()) {
            auto* const editor = each.makeBare(&parent)->widget();
            all.push_back(std::max(20, std::max(editor->sizeHint().height(), editor->minimumHeight())));
        }
        return all;
    }();
    return heights.at(static_cast<std::size_t>(kind));
}

class QtSide : public PanelSide {
public:
    QtSide(Kinds const& kinds, int count, int numbers)
        : values_(static_cast<std::size_t>(count)), numbers_(static_cast<std::size_t>(numbers)) {
        for (std::size_t number = 0; number < values_.size(); ++number) {
            values_[number].name = QStringLiteral("parameter");
            values_[number].kind = kinds[number % kinds.size()];
            rowHeight(values_[number].kind);
        }
    }
    ~QtSide() override { close(); }

    void open(QSize const& size) override {
        window_ = std::make_unique<QMainWindow>();
        form_ = new BareForm(values_, history_);
        secondForm_ = nullptr;
        views_ = new QSplitter;
        views_->addWidget(form_);
        window_->setCentralWidget(views_);
        window_->menuBar()->addMenu(QStringLiteral("Edit"))->addAction(history_.makeAction(window_.get()));
        window_->resize(size);
        window_->show();
        window_->activateWindow();
        QCoreApplication::processEvents();
    }
    void close() override {
        window_.reset();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }
    QScrollBar* scrollBar() override { return form_->verticalScrollBar(); }
    int rowCount() override { return form_->rowCount(); }
    QWidget* editor(int number) override { return form_->editor(number); }
    void change(int number, int n) override {
        values_[static_cast<std::size_t>(number)].n = n;
        form_->showValue(number);
        if (secondForm_)
            secondForm_->showValue(number);
    }
    void changeNumbers(double number) override {
        for (auto& each : numbers_)
            each.number = number;
    }
    void filter(QString const& text) override { form_->filter(text); }
    void rememberDefaults() override {
        for (int number = 0; number < static_cast<int>(values_.size()); ++number) {
            values_[static_cast<std::size_t>(number)].defaultN = values_[static_cast<std::size_t>(number)].n;
            form_->showDot(number);
        }
    }
    void showRawValues() override { form_->showRawValues(); }
    void openSecondView() override {
        secondForm_ = new BareForm(values_, history_);
        views_->addWidget(secondForm_);
        QCoreApplication::processEvents();
    }
    void switchPool(int n) override {
        for (int number = 0; number < static_cast<int>(values_.size()); ++number)
            change(number, n);
    }

private:
    std::vector<BareValue> values_;
    std::vector<BareValue> numbers_;
    BareHistory history_;
    std::unique_ptr<QMainWindow> window_;
    QSplitter* views_ = nullptr;
    BareForm* form_ = nullptr;
    BareForm* secondForm_ = nullptr;
};

} // namespace

void BareHistory::record(QString const& name, QString const& text) {
    steps_.push_back({name, steps_.empty() ? QString() : steps_.back().after, text});
    if (steps_.size() > keptSteps)
        steps_.pop_front();
    auto const shown = QStringLiteral("%1: %2 → %3").arg(name, steps_.back().before.left(28), text.left(28));
    action_->setText(QStringLiteral("Undo: ") + shown);
    action_->setToolTip(shown);
}

QAction* BareHistory::makeAction(QObject* parent) {
    action_ = new QAction(QStringLiteral("Undo"), parent);
    return action_;
}

BareForm::BareForm(std::vector<BareValue>& values, BareHistory& history)
    : values_(values), history_(history), shown_(values.size(), true), content_(new QFrame) {
    content_->setFrameShape(QFrame::StyledPanel);
    setWidgetResizable(true);
    setFrameShape(NoFrame);
    for (auto const& value : values_)
        nameWidth_ = std::max(nameWidth_, static_cast<int>(value.name.size()));
    nameWidth_ *= fontMetrics().averageCharWidth();
    placeRows();
    setWidget(content_);
}

QWidget* BareForm::editor(int number) const {
    return rows_.at(number).editor->widget();
}

void BareForm::showValue(int number) {
    auto const row = rows_.find(number);
    if (row == rows_.end())
        return;
    row->second.editor->change(values_[static_cast<std::size_t>(number)].n);
    showRawValue(row->second, number);
    showDot(number);
}

void BareForm::showRawValues() {
    for (auto& [number, row] : rows_) {
        row.rawValue = new QLabel;
        row.widget->layout()->addWidget(row.rawValue);
        showRawValue(row, number);
    }
}

void BareForm::showRawValue(Row const& row, int number) const {
    if (row.rawValue)
        row.rawValue->setText(QStringLiteral("value %1").arg(values_[static_cast<std::size_t>(number)].n));
}

void BareForm::showDot(int number) {
    auto const& value = values_[static_cast<std::size_t>(number)];
    if (auto const row = rows_.find(number); row != rows_.end())
        row->second.dot->setVisible(value.n != value.defaultN);
}

void BareForm::filter(QString const& text) {
    for (std::size_t number = 0; number < values_.size(); ++number)
        shown_[number] = values_[number].name.contains(text, Qt::CaseInsensitive);
    for (auto row = rows_.begin(); row != rows_.end();) {
        auto const next = std::next(row);
        if (!shown_[static_cast<std::size_t>(row->first)])
            drop(row);
        row = next;
    }
    placeRows();
    for (auto const& [number, row] : rows_)
        row.widget->move(margin / 2, tops_[static_cast<std::size_t>(number)]);
    makeVisibleRows();
}

void BareForm::placeRows() {
    tops_.assign(1, 0);
    tops_.reserve(values_.size() + 1);
    for (std::size_t number = 0; number < values_.size(); ++number)
        tops_.push_back(tops_.back() + (shown_[number] ? rowHeight(values_[number].kind) + distance : 0));
    content_->setMinimumHeight(tops_.back());
}

void BareForm::resizeEvent(QResizeEvent* event) {
    QScrollArea::resizeEvent(event);
    makeVisibleRows();
}

void BareForm::showEvent(QShowEvent* event) {
    QScrollArea::showEvent(event);
    makeVisibleRows();
}

void BareForm::scrollContentsBy(int dx, int dy) {
    QScrollArea::scrollContentsBy(dx, dy);
    makeVisibleRows();
}

void BareForm::makeVisibleRows() {
    if (!isVisible() || values_.empty())
        return;
    auto const place = [this](int y) {
        return static_cast<int>(std::upper_bound(tops_.begin(), tops_.end(), y) - tops_.begin()) - 1;
    };
    int const first = std::max(0, place(-content_->y()));
    int const last = std::min(static_cast<int>(values_.size()) - 1, place(-content_->y() + viewport()->height()));
    for (int number = first; number <= last; ++number)
        if (rows_.count(number) == 0 && shown_[static_cast<std::size_t>(number)]) {
            rows_[number] = makeRow(number);
            showDot(number);
        }
    while (rowCount() > last - first + 1 + keptRows)
        drop(first - rows_.begin()->first > rows_.rbegin()->first - last ? rows_.begin() : std::prev(rows_.end()));
}

void BareForm::drop(std::map<int, Row>::iterator row) {
    row->second.widget->hide();
    row->second.widget->deleteLater();
    rows_.erase(row);
}

BareForm::Row BareForm::makeRow(int number) {
    auto& value = values_[static_cast<std::size_t>(number)];
    Row row;
    row.widget = new QWidget(content_);
    auto* const layout = new QHBoxLayout(row.widget);
    layout->setContentsMargins(0, 0, 0, 0);
    auto* const name = new QLabel(value.name);
    name->setMinimumWidth(nameWidth_);
    layout->addWidget(name);
    row.dot = new QLabel(QStringLiteral("●"));
    auto policy = row.dot->sizePolicy();
    policy.setRetainSizeWhenHidden(true);
    row.dot->setSizePolicy(policy);
    layout->addWidget(row.dot);
    row.editor = caseOf(value.kind).makeBare(row.widget);
    layout->addWidget(row.editor->widget(), 1);
    name->setBuddy(row.editor->widget());
    row.editor->widget()->setAccessibleName(value.name);
    row.editor->change(value.n);
    row.editor->edited = [this, number](QString const& text) {
        history_.record(values_[static_cast<std::size_t>(number)].name, text);
        // The edits of the jobs go to and fro, so every second one leads back to the default.
        auto* const dot = rows_.at(number).dot;
        dot->setVisible(!dot->isVisible());
    };
    int const top = tops_[static_cast<std::size_t>(number)];
    row.widget->setGeometry(margin / 2, top, content_->width() - margin, rowHeight(value.kind));
    row.widget->show();
    return row;
}

std::unique_ptr<PanelSide> makeBareSide(Kinds const& kinds, int count, int numbers) {
    return std::make_unique<QtSide>(kinds, count, numbers);
}

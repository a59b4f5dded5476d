#include <algorithm>
#include <map>
#include <panel/ContentArea.hpp>
#include <panel/Look.hpp>
#include <panel/ObjectView.hpp>
#include <QGroupBox>
#include <QLabel>
#include <QVBoxLayout>

namespace Panel {

namespace {

// Nobody tells of a deleted parameter, so a view looks. In milliseconds.
constexpr int checkInterval = 250;

QString groupOf(QString const& parameterName) {
    return parameterName.left(qMax(0, parameterName.lastIndexOf(QLatin1Char('.'))));
}

QWidget* makeHeader(QString const& name, QString const& kind) {
    auto* const header = new QWidget;
    auto* const layout = new QHBoxLayout(header);
    layout->setContentsMargins(12, 8, 12, 4);
    layout->setSpacing(10);
    auto* const title = new QLabel(name);
    title->setTextFormat(Qt::PlainText);
    auto font = title->font();
    font.setBold(true);
    if (font.pointSizeF() > 0)
        font.setPointSizeF(font.pointSizeF() * 1.3);
    title->setFont(font);
    layout->addWidget(title);
    // Many an object is named after what it is.
    auto* const kindLabel = new QLabel(kind == name ? QString() : kind);
    kindLabel->setTextFormat(Qt::PlainText);
    kindLabel->setWordWrap(true);
    showMuted(*kindLabel);
    layout->addWidget(kindLabel, 1, Qt::AlignBottom);
    return header;
}

} // namespace

ObjectView::ObjectView(Kolt::ObjectPtr const& object, QString const& kind, PoolSource& pools, QWidget* parent)
    : QWidget(parent), object_(object) {
    auto* const content = new QWidget;
    auto* const groups = new QVBoxLayout(content);
    groups->setContentsMargins(12, 6, 12, 12);
    groups->setSpacing(12);

    std::map<QString, QVBoxLayout*> layouts;
    for (auto const& parameter : object->parameters()) {
        auto* const row = new ParameterRow(parameter, pools);
        auto const group = groupOf(row->parameterName());
        auto& layout = layouts[group];
        if (!layout) {
            auto* const box = new QGroupBox(group);
            layout = new QVBoxLayout(box);
            layout->setContentsMargins(12, 8, 12, 8);
            layout->setSpacing(6);
            groups->addWidget(box);
        }
        layout->addWidget(row);
        rows_.push_back(row);
    }
    groups->addStretch(1);

    auto* const scrollArea = new ContentArea;
    scrollArea->setWidget(content);

    auto* const layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(makeHeader(QString::fromStdString(object->Name()), kind));
    layout->addWidget(scrollArea, 1);

    checkTimer_.setInterval(checkInterval);
    connect(&checkTimer_, &QTimer::timeout, this, &ObjectView::checkParameters);
    openEditors();
    alignNames();
}

ObjectView::~ObjectView() = default;

ParameterRow* ObjectView::row(QString const& parameterName) const {
    auto const found = std::find_if(rows_.begin(), rows_.end(),
                                    [&](auto const* row) { return row->parameterName() == parameterName; });
    return found == rows_.end() ? nullptr : *found;
}

void ObjectView::openEditors() {
    for (auto* const row : rows_)
        row->openEditor();
}

void ObjectView::closeEditors() {
    for (auto* const row : rows_)
        row->closeEditor();
}

void ObjectView::showPool() {
    for (auto* const row : rows_)
        row->showPool();
    alignNames();
}

void ObjectView::setRawValuesShown(bool shown) {
    for (auto* const row : rows_)
        row->setRawValueShown(shown);
}

void ObjectView::showEvent(QShowEvent* event) {
    QWidget::showEvent(event);
    checkParameters();
    checkTimer_.start();
}

void ObjectView::hideEvent(QHideEvent* event) {
    QWidget::hideEvent(event);
    checkTimer_.stop();
}

void ObjectView::checkParameters() {
    for (auto* const row : rows_)
        row->checkParameter();
}

void ObjectView::alignNames() {
    for (auto const* const row : rows_)
        nameWidth_ = qMax(nameWidth_, row->nameWidth());
    for (auto* const row : rows_)
        row->setNameWidth(nameWidth_);
}

} // namespace Panel

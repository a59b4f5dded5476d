#include <panel/window/ObjectView.hpp>
#include <parameters/rows/MutedLabel.hpp>
#include <QLabel>
#include <QVBoxLayout>

namespace Panel {

namespace {

// Nobody tells of a deleted parameter, so a view looks. In milliseconds.
constexpr int checkInterval = 250;

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
    auto* const kindLabel = new Talo::MutedLabel(kind == name ? QString() : kind);
    kindLabel->setTextFormat(Qt::PlainText);
    kindLabel->setWordWrap(true);
    layout->addWidget(kindLabel, 1, Qt::AlignBottom);
    return header;
}

} // namespace

ObjectView::ObjectView(Kolt::ObjectPtr const& object, QString const& kind, Talo::PoolSource& pools, QWidget* parent)
    : QWidget(parent),
      object_(object),
      pools_(pools),
      rows_(new Talo::RowArea(QString::fromStdString(object->Name()), object->parameters(), pools)),
      emptyNote_(new Talo::MutedLabel(tr("No parameter of this object is found by the filter."))) {
    auto* const layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(makeHeader(QString::fromStdString(object->Name()), kind));
    layout->addWidget(rows_, 1);
    layout->addWidget(emptyNote_, 1, Qt::AlignTop);
    emptyNote_->setMargin(12);
    emptyNote_->setWordWrap(true);
    emptyNote_->hide();

    checkTimer_.setInterval(checkInterval);
    connect(rows_, &Talo::RowArea::editorOpened, this, &ObjectView::editorOpened);
    connect(&checkTimer_, &QTimer::timeout, rows_, &Talo::RowArea::checkParameters);
}

ObjectView::~ObjectView() = default;

void ObjectView::setFilter(Talo::ParameterFilter const& filter) {
    auto const object = object_.strong();
    if (!object || filter.isEmpty())
        rows_->setFilter({});
    else
        rows_->setFilter([&](auto const& parameter) { return filter.finds(*object, parameter, pools_.pool()); });
    bool const nothing = !filter.isEmpty() && rows_->shownCount() == 0;
    rows_->setVisible(!nothing);
    emptyNote_->setVisible(nothing);
}

void ObjectView::showEvent(QShowEvent* event) {
    QWidget::showEvent(event);
    rows_->checkParameters();
    checkTimer_.start();
}

void ObjectView::hideEvent(QHideEvent* event) {
    QWidget::hideEvent(event);
    checkTimer_.stop();
}

} // namespace Panel

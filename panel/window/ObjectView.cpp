#include <panel/window/ObjectView.hpp>

#include <panel/look/TitleLabel.hpp>
#include <parameters/rows/MutedLabel.hpp>
#include <QVBoxLayout>

namespace Panel {

namespace {

// Of the usual size.
constexpr double titleScale = 1.3;

QWidget* makeHeader(QString const& name, QString const& kind) {
    auto* const header = new QWidget;
    auto* const line = new QHBoxLayout(header);
    line->setContentsMargins(12, 8, 12, 4);
    // Of their own, so that both texts stand on one line beside a higher widget.
    auto* const texts = new QWidget;
    line->addWidget(texts, 1, Qt::AlignVCenter);
    auto* const layout = new QHBoxLayout(texts);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(10);
    layout->addWidget(new TitleLabel(name, titleScale));
    // Some objects have the name of their kind.
    auto* const kindLabel = new Talo::MutedLabel(kind == name ? QString() : kind);
    kindLabel->setTextFormat(Qt::PlainText);
    kindLabel->setWordWrap(true);
    layout->addWidget(kindLabel, 1, Qt::AlignBottom);
    return header;
}

} // namespace

ObjectView::ObjectView(Kolt::ObjectPtr const& object, QString const& kind, Kolt::ValuePoolSource& pools,
                       QWidget* parent)
    : QWidget(parent),
      kind_(kind),
      head_(makeHeader(QString::fromStdString(object->Name()), kind)),
      panel_(new Talo::ParameterPanel(object, pools)) {
    auto* const layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(head_);
    layout->addWidget(panel_, 1);
}

ObjectView::~ObjectView() = default;

void ObjectView::addToHead(QWidget* widget) {
    static_cast<QHBoxLayout*>(head_->layout())->addWidget(widget);
}

} // namespace Panel

#include <panel/window/ObjectView.hpp>

#include <parameters/rows/MutedLabel.hpp>
#include <QLabel>
#include <QVBoxLayout>

namespace Panel {

namespace {

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
    : QWidget(parent), kind_(kind), panel_(new Talo::ParameterPanel(object, pools)) {
    auto* const layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(makeHeader(QString::fromStdString(object->Name()), kind));
    layout->addWidget(panel_, 1);
}

ObjectView::~ObjectView() = default;

} // namespace Panel

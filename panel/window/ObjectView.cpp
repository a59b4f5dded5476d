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
    auto* const layout = new QHBoxLayout(header);
    layout->setContentsMargins(12, 8, 12, 4);
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
    : QWidget(parent), kind_(kind), panel_(new Talo::ParameterPanel(object, pools)) {
    auto* const layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(makeHeader(QString::fromStdString(object->Name()), kind));
    layout->addWidget(panel_, 1);
}

ObjectView::~ObjectView() = default;

} // namespace Panel

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

QStringList namesOf(std::vector<Kolt::ObjectPtr> const& objects) {
    QStringList names;
    for (auto const& object : objects)
        names << QString::fromStdString(object->Name());
    return names;
}

QString titleOf(std::vector<Kolt::ObjectPtr> const& objects) {
    auto const first = QString::fromStdString(objects.front()->Name());
    auto const further = static_cast<int>(objects.size()) - 1;
    return further == 0 ? first : ObjectView::tr("%1 and %n more", nullptr, further).arg(first);
}

} // namespace

ObjectView::ObjectView(std::vector<Kolt::ObjectPtr> const& objects, QString const& kind, Kolt::ValuePoolSource& pools,
                       QWidget* parent)
    : QWidget(parent),
      kind_(kind),
      showsSeveral_(objects.size() > 1),
      head_(makeHeader(titleOf(objects), kind)),
      panel_(new Talo::ParameterPanel(objects, pools)) {
    if (showsSeveral_)
        head_->setToolTip(namesOf(objects).join(QLatin1Char('\n')));
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

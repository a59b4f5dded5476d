#include "DropdownFrame.hpp"

#include "FindingList.hpp"

#include <QHBoxLayout>
#include <QKeyEvent>
#include <QSignalBlocker>
#include <QStringListModel>

namespace MoreInputs {

namespace {

// In characters: longer texts are shortened in the box, so that one of them does not make a form wide.
constexpr int leastBoxLength = 8;

} // namespace

DropdownBox::DropdownBox(QWidget* parent) : QComboBox(parent) {
    setView(new FindingList);
    // The width of ten thousand texts takes long to find out.
    setSizeAdjustPolicy(AdjustToMinimumContentsLengthWithIcon);
    setMinimumContentsLength(leastBoxLength);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
}

DropdownBox::~DropdownBox() = default;

void DropdownBox::keyPressEvent(QKeyEvent* event) {
    auto const text = event->text();
    bool const isTyped = !text.isEmpty() && text.at(0).isPrint() && text != QLatin1String(" ") &&
                         !(event->modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier));
    if (!isTyped) {
        QComboBox::keyPressEvent(event);
        return;
    }
    event->accept();
    if (count() == 0)
        return;
    showPopup();
    view()->keyboardSearch(text);
}

DropdownFrame::DropdownFrame(QWidget* parent) : QWidget(parent), box_(new DropdownBox(this)) {
    auto* const layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(box_);
    setFocusProxy(box_);
    connect(box_, QOverload<int>::of(&QComboBox::activated), this, &DropdownFrame::chosen);
}

DropdownFrame::~DropdownFrame() = default;

void DropdownFrame::showTexts(std::vector<std::string> const& texts, int current) {
    QStringList list;
    list.reserve(static_cast<int>(texts.size()));
    for (auto const& text : texts)
        list << QString::fromStdString(text);
    {
        QSignalBlocker const blocker(box_);
        // The box deletes the model that it had, as that is its child.
        box_->setModel(new QStringListModel(list, box_));
    }
    showCurrent(current);
}

void DropdownFrame::showCurrent(int current) {
    QSignalBlocker const blocker(box_);
    box_->setCurrentIndex(current);
}

} // namespace MoreInputs

#include <panel/window/IconPlace.hpp>

#include <QHBoxLayout>

namespace Panel {

IconPlace::IconPlace() {
    setAttribute(Qt::WA_TransparentForMouseEvents);
    auto* const layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 3, 6, 3);
    layout->addStretch(1);
}

IconPlace::~IconPlace() = default;

void IconPlace::setIcon(QWidget* icon) {
    icon_ = icon;
    layout()->addWidget(icon);
}

} // namespace Panel

#include <parameters/rows/ParentLook.hpp>

#include <QApplication>
#include <QEvent>

namespace Talo {

ParentLook::ParentLook(QWidget& widget) : QObject(&widget), widget_(widget) {
    widget.installEventFilter(this);
    watchParent();
}

ParentLook::~ParentLook() = default;

QPalette ParentLook::palette() const {
    return parent_ ? parent_->palette() : QApplication::palette(&widget_);
}

QFont ParentLook::font() const {
    return parent_ ? parent_->font() : QApplication::font(&widget_);
}

QFont ParentLook::scaledFont(double factor) const {
    auto scaled = font();
    if (scaled.pointSizeF() > 0)
        scaled.setPointSizeF(scaled.pointSizeF() * factor);
    else
        scaled.setPixelSize(qMax(1, qRound(scaled.pixelSize() * factor)));
    return scaled;
}

void ParentLook::watchParent() {
    auto* const parent = widget_.parentWidget();
    if (parent == parent_)
        return;
    if (parent_)
        parent_->removeEventFilter(this);
    parent_ = parent;
    if (parent_)
        parent_->installEventFilter(this);
}

bool ParentLook::eventFilter(QObject* watched, QEvent* event) {
    bool const isOwnParent = parent_ ? watched == parent_ : watched == &widget_;
    auto const type = event->type();
    if (watched == &widget_ && type == QEvent::ParentChange) {
        watchParent();
        emit changed();
    } else if (isOwnParent && (type == QEvent::PaletteChange || type == QEvent::FontChange)) {
        emit changed();
    }
    return QObject::eventFilter(watched, event);
}

} // namespace Talo

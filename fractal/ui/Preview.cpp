#include <fractal/ui/Preview.hpp>

#include <QEvent>
#include <QPainter>
#include <QResizeEvent>

namespace Fractal {

namespace {

constexpr int margin = 8;
// The aspect ratio of every picture.
constexpr QSize proportions(4, 3);

/// A chequered pattern that distinguishes transparent parts from white ones.
QBrush transparency() {
    QPixmap tile(16, 16);
    tile.fill(QColor(204, 204, 204));
    QPainter painter(&tile);
    painter.fillRect(0, 0, 8, 8, QColor(152, 152, 152));
    painter.fillRect(8, 8, 8, 8, QColor(152, 152, 152));
    return {tile};
}

} // namespace

Preview::Preview(QWidget* parent) : QWidget(parent) {
    setAccessibleName(tr("Preview"));
    QSizePolicy policy(QSizePolicy::Preferred, QSizePolicy::Preferred);
    setSizePolicy(policy);
}

Preview::~Preview() = default;

void Preview::showPicture(QImage const& image, QString const& text) {
    bool const textChanges = text != text_;
    image_ = image;
    if (textChanges) {
        text_ = text;
        setAccessibleDescription(text);
        emit pictureSizeChanged();
    }
    update();
}

QSize Preview::pictureSize() const {
    return isVisible() ? pictureRect().size() * devicePixelRatioF() : QSize();
}

QRect Preview::room() const {
    return rect().adjusted(margin, margin, -margin, -margin);
}

QRect Preview::pictureRect() const {
    auto const whole = room();
    QSize left = whole.size();
    if (!text_.isEmpty()) {
        int const needed = fontMetrics().boundingRect(whole, Qt::TextWordWrap, text_).height();
        left.rheight() -= qMin(needed, whole.height() / 2) + margin;
    }
    QRect picture(QPoint(), proportions.scaled(left, Qt::KeepAspectRatio));
    picture.moveCenter(whole.center());
    picture.moveTop(whole.top());
    return picture;
}

QSize Preview::sizeHint() const {
    return {380, 300};
}

QSize Preview::minimumSizeHint() const {
    return {140, 100};
}

void Preview::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    if (image_.isNull()) {
        painter.drawText(room(), static_cast<int>(Qt::AlignCenter) | Qt::TextWordWrap, text_);
        return;
    }
    auto const picture = pictureRect();
    auto text = room();
    text.setTop(picture.bottom() + margin);
    painter.drawText(text, Qt::TextWordWrap, text_);
    painter.setBrushOrigin(picture.topLeft());
    if (image_.hasAlphaChannel())
        painter.fillRect(picture, transparency());
    painter.setRenderHint(QPainter::SmoothPixmapTransform, image_.size() != picture.size() * devicePixelRatioF());
    painter.drawImage(picture, image_);
}

void Preview::resizeEvent(QResizeEvent* event) {
    QWidget::resizeEvent(event);
    emit pictureSizeChanged();
}

void Preview::showEvent(QShowEvent* event) {
    QWidget::showEvent(event);
    emit pictureSizeChanged();
}

void Preview::changeEvent(QEvent* event) {
    QWidget::changeEvent(event);
    // The text below the picture has another height.
    if (event->type() == QEvent::FontChange)
        emit pictureSizeChanged();
}

void Preview::hideEvent(QHideEvent* event) {
    QWidget::hideEvent(event);
    emit pictureSizeChanged();
}

} // namespace Fractal

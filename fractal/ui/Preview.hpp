#pragma once

#include <QImage>
#include <QWidget>

namespace Fractal {

/// Shows a picture as large as fits, with an aspect ratio of 4:3, and below it a message to the user. Transparent parts
/// show a chequered pattern. User-interface thread.
class Preview : public QWidget {
    Q_OBJECT

public:
    explicit Preview(QWidget* parent = nullptr);
    ~Preview() override;

    /// Shows a picture; one of the size `pictureSize` is shown unscaled. A null image shows the text alone.
    void showPicture(QImage const& image, QString const& text);
    QImage const& image() const { return image_; }
    QString const& text() const { return text_; }
    /// The size of a picture that fits, in device pixels; empty while the widget is hidden.
    QSize pictureSize() const;

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

signals:
    /// pictureSize() may have changed.
    void pictureSizeChanged();

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void showEvent(QShowEvent* event) override;
    void hideEvent(QHideEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    /// The area for picture and text: the widget without its margins.
    QRect room() const;
    /// The place of the picture in the widget.
    QRect pictureRect() const;

    QImage image_;
    QString text_;
};

} // namespace Fractal

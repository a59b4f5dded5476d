#pragma once

#include <QImage>
#include <QWidget>

namespace Fractal {

/// Shows a picture as large as it can be shown whole, with its proportions, and below it what the user should know
/// about it. What is transparent in the picture shows a pattern. User-interface thread.
class Preview : public QWidget {
    Q_OBJECT

public:
    explicit Preview(QWidget* parent = nullptr);
    ~Preview() override;

    /// Shows a picture; one of the size `pictureSize` is shown point by point. Null shows the text alone.
    void showPicture(QImage const& image, QString const& text);
    QImage const& image() const { return image_; }
    QString const& text() const { return text_; }
    /// The size of a picture that fits, in points of the device; none while the widget is hidden.
    QSize pictureSize() const;

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

signals:
    /// Another size fits.
    void pictureSizeChanged();

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void showEvent(QShowEvent* event) override;
    void hideEvent(QHideEvent* event) override;

private:
    /// Where picture and text stand.
    QRect room() const;
    /// The place of the picture in the widget.
    QRect pictureRect() const;

    QImage image_;
    QString text_;
};

} // namespace Fractal

#include "support/TaloTest.hpp"

#include <fractal/ui/Preview.hpp>

namespace {

class PreviewTest : public TaloTest {
protected:
    PreviewTest() { preview.resize(416, 400); }

    static QImage filled(QSize const& size, QColor const& colour) {
        QImage image(size, QImage::Format_ARGB32_Premultiplied);
        image.fill(colour);
        return image;
    }

    Fractal::Preview preview;
};

} // namespace

TEST_F(PreviewTest, HasNoPictureSizeWhileHidden) {
    EXPECT_TRUE(preview.pictureSize().isEmpty());
    preview.show();
    EXPECT_EQ(preview.pictureSize(), QSize(400, 300));
    preview.hide();
    EXPECT_TRUE(preview.pictureSize().isEmpty());
}

TEST_F(PreviewTest, KeepsTheProportionsOfThePicture) {
    preview.show();
    QSignalSpy const changes(&preview, &Fractal::Preview::pictureSizeChanged);
    preview.resize(416, 166);
    EXPECT_TRUE(waitUntil([&] { return !changes.isEmpty(); }));
    EXPECT_EQ(preview.pictureSize(), QSize(200, 150));
}

TEST_F(PreviewTest, ShowsAPictureThatFitsPointByPoint) {
    preview.show();
    auto image = filled(preview.pictureSize(), Qt::darkRed);
    image.setPixelColor(17, 30, Qt::yellow);
    preview.showPicture(image, QString());
    auto const shown = preview.grab().toImage();
    EXPECT_EQ(shown.pixelColor(8 + 17, 8 + 30), QColor(Qt::yellow));
    EXPECT_EQ(shown.pixelColor(8 + 18, 8 + 30), QColor(Qt::darkRed));
    EXPECT_EQ(shown.pixelColor(8 + 399, 8 + 299), QColor(Qt::darkRed));
    EXPECT_NE(shown.pixelColor(8 + 400, 8 + 299), QColor(Qt::darkRed));
}

TEST_F(PreviewTest, StretchesACoarsePicture) {
    preview.show();
    preview.showPicture(filled({40, 30}, Qt::darkRed), QString());
    auto const shown = preview.grab().toImage();
    EXPECT_EQ(shown.pixelColor(8 + 399, 8 + 299), QColor(Qt::darkRed));
}

TEST_F(PreviewTest, WhatIsTransparentShowsAPattern) {
    preview.show();
    preview.showPicture(filled({400, 300}, Qt::transparent), QString());
    auto const shown = preview.grab().toImage();
    EXPECT_NE(shown.pixelColor(8 + 4, 8 + 4), shown.pixelColor(8 + 12, 8 + 4));
}

TEST_F(PreviewTest, MakesRoomForItsText) {
    preview.show();
    preview.resize(416, 320);
    auto const whole = preview.pictureSize();
    QSignalSpy const changes(&preview, &Fractal::Preview::pictureSizeChanged);
    preview.showPicture(filled({400, 300}, Qt::darkRed), QStringLiteral("The palette cannot be read."));
    EXPECT_EQ(changes.size(), 1);
    EXPECT_LT(preview.pictureSize().height(), whole.height());
    EXPECT_EQ(preview.accessibleDescription(), QStringLiteral("The palette cannot be read."));
    preview.showPicture({}, QStringLiteral("Nothing."));
    EXPECT_FALSE(preview.grab().isNull());
}

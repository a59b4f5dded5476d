#include "Rendering.hpp"
#include "support/FullDisk.hpp"
#include "support/TaloTest.hpp"

#include <functional>
#include <QTemporaryDir>
#include <random>

using Fractal::FractalSettings;
using Rendering::picture;
using Rendering::quick;
using testing::HasSubstr;
using testing::StartsWith;

namespace {

class PictureTest : public TaloTest {
protected:
    static QImage with(std::function<void(FractalSettings&)> const& change) {
        auto settings = quick();
        change(settings);
        return picture(settings);
    }
    /// The bounding box of the pixels in which two pictures differ.
    static QRect difference(QImage const& left, QImage const& right) {
        QRect rect;
        for (int y = 0; y < left.height(); ++y) {
            for (int x = 0; x < left.width(); ++x) {
                if (left.pixel(x, y) != right.pixel(x, y))
                    rect |= QRect(x, y, 1, 1);
            }
        }
        return rect;
    }

    QImage const usual = picture(quick());
    QTemporaryDir folder;
};

} // namespace

TEST_F(PictureTest, EachOverlayIsDrawn) {
    for (auto const overlay :
         {&FractalSettings::axes, &FractalSettings::grid, &FractalSettings::orbit, &FractalSettings::legend})
        EXPECT_NE(with([&](FractalSettings& settings) { settings.*overlay = true; }), usual);
    auto const circle = [](bool isDrawn) {
        return with([&](FractalSettings& settings) {
            settings.escapeCircle = isDrawn;
            settings.zoom = -1;
        });
    };
    EXPECT_NE(circle(true), circle(false));
}

TEST_F(PictureTest, TheAxesAreWhereTheNumbersAreZero) {
    auto const image = with([](FractalSettings& settings) { settings.axes = true; });
    // The real axis crosses the whole picture through its centre.
    auto const changed = difference(image, usual);
    EXPECT_EQ(changed.width(), 160);
    EXPECT_EQ(changed.height(), 120);
    EXPECT_NE(image.pixel(10, 60), usual.pixel(10, 60));
    EXPECT_EQ(image.pixel(10, 40), usual.pixel(10, 40));
    // At this magnification both axes are outside the picture.
    auto const near = [](bool axes) {
        return with([&](FractalSettings& settings) {
            settings.axes = axes;
            settings.zoom = 30;
        });
    };
    EXPECT_EQ(near(true), near(false));
}

TEST_F(PictureTest, AContourIsDrawnWhereTheCountCrossesItsLevel) {
    auto const contour = [](int level) {
        return with([&](FractalSettings& settings) { settings.contours = {level}; });
    };
    EXPECT_NE(contour(10), usual);
    EXPECT_NE(contour(10), contour(5));
    // A level that no count crosses has no line.
    EXPECT_EQ(contour(0), usual);
    EXPECT_EQ(contour(-5), usual);
    // Points that stay are above all levels, so this is the edge of the set.
    EXPECT_NE(contour(1000), usual);
}

TEST_F(PictureTest, EachTitleIsWritten) {
    auto const titled = [&](QString FractalSettings::*title, char const* text) {
        return with([&](FractalSettings& settings) { settings.*title = QString::fromUtf8(text); });
    };
    for (auto const title : {&FractalSettings::heading, &FractalSettings::author}) {
        auto const changed = difference(titled(title, "Title"), usual);
        EXPECT_EQ(changed.top(), 0);
        EXPECT_LT(changed.bottom(), 20);
        EXPECT_NE(titled(title, "Title"), titled(title, "Other"));
        EXPECT_EQ(titled(title, ""), usual);
    }
    for (auto const title : {&FractalSettings::caption, &FractalSettings::date}) {
        auto const changed = difference(titled(title, "Title"), usual);
        EXPECT_GT(changed.top(), 100);
        EXPECT_EQ(changed.bottom(), 119);
        EXPECT_NE(titled(title, "Title"), titled(title, "Other"));
        EXPECT_EQ(titled(title, ""), usual);
    }
}

TEST_F(PictureTest, TheTextOfTheLegendStandsInTheLegend) {
    auto const legend = [&](char const* text, bool isDrawn) {
        return with([&](FractalSettings& settings) {
            settings.legend = isDrawn;
            settings.legendText = QString::fromUtf8(text);
        });
    };
    EXPECT_NE(legend("Dark: it stays.", true), legend("", true));
    EXPECT_EQ(legend("Dark: it stays.", false), usual);
}

TEST_F(PictureTest, APictureWithoutTextsHasTheRest) {
    auto settings = quick();
    settings.legend = settings.axes = true;
    auto const bare = picture(settings);
    settings.heading = settings.author = settings.caption = settings.date = settings.legendText =
        QStringLiteral("Text");
    std::atomic<bool> const cancelled{false};
    Fractal::Picture::RenderRequest const request{settings, usual.size(), false, 1};
    EXPECT_EQ(Fractal::Picture::compute(request, Fractal::FractalRenderer(1), cancelled).value().image, bare);
    EXPECT_NE(picture(settings), bare);
}

TEST_F(PictureTest, TextsOfAnyLengthAreDrawn) {
    auto const image = with([](FractalSettings& settings) {
        settings.heading = QString(10000, QLatin1Char('m'));
        settings.author = QString(10000, QLatin1Char('w'));
        settings.caption = QStringLiteral("<b>&amp;</b>\n\tone\u2028two");
        settings.legend = true;
        settings.legendText = QString(10000, QLatin1Char('\n'));
    });
    EXPECT_EQ(image.size(), usual.size());
    EXPECT_NE(image, usual);
}

TEST_F(PictureTest, ACoarsePictureHasTheSameSizeAndLooksAlike) {
    auto settings = quick();
    settings.heading = QStringLiteral("Title");
    auto const fine = picture(settings, {162, 121});
    auto const coarse = picture(settings, {162, 121}, 4);
    ASSERT_EQ(coarse.size(), fine.size());
    EXPECT_NE(coarse, fine);
    EXPECT_EQ(coarse.pixel(81, 60), fine.pixel(81, 60));
    EXPECT_EQ(picture(settings, {162, 121}, 0), fine);
}

TEST_F(PictureTest, IsWrittenAsPng) {
    auto const file = folder.filePath(QStringLiteral("picture.png"));
    EXPECT_EQ(Fractal::Picture::writePng(usual, file), QString());
    QImage read(file);
    EXPECT_EQ(read.convertToFormat(usual.format()), usual);
    // A name without a suffix is used unchanged.
    EXPECT_EQ(Fractal::Picture::writePng(usual, folder.filePath(QStringLiteral("picture"))), QString());
    EXPECT_EQ(QImage(folder.filePath(QStringLiteral("picture")), "png").size(), usual.size());
}

TEST_F(PictureTest, IsWrittenAsAPageWithItsTitles) {
    auto const page = [&](FractalSettings const& settings, char const* name) {
        auto const file = folder.filePath(QString::fromUtf8(name));
        EXPECT_EQ(Fractal::Picture::writePdf(usual, settings, file), QString());
        QFile written(file);
        EXPECT_TRUE(written.open(QIODevice::ReadOnly));
        return written.readAll();
    };
    auto settings = quick();
    auto const bare = page(settings, "bare.pdf");
    EXPECT_TRUE(bare.startsWith("%PDF-"));
    EXPECT_TRUE(bare.contains("/Image"));
    EXPECT_FALSE(bare.contains("/Type /Font"));
    settings.heading = QStringLiteral("Title");
    settings.caption = QStringLiteral("Caption");
    settings.legendText = QString(1000, QLatin1Char('\n'));
    auto const titled = page(settings, "titled.pdf");
    EXPECT_TRUE(titled.contains("/Type /Font"));
}

TEST_F(PictureTest, AFullDiskIsReportedAndKeepsTheOldFile) {
    auto const png = folder.filePath(QStringLiteral("kept.png"));
    auto const pdf = folder.filePath(QStringLiteral("kept.pdf"));
    QImage small(2, 2, QImage::Format_RGB32);
    small.fill(Qt::red);
    ASSERT_EQ(Fractal::Picture::writePng(small, png), QString());
    ASSERT_EQ(Fractal::Picture::writePdf(small, quick(), pdf), QString());
    auto const pdfSize = QFileInfo(pdf).size();
    // Noise does not compress: the rest that the last flush writes exceeds the limit.
    std::minstd_rand random;
    QImage noise(40, 30, QImage::Format_RGB32);
    for (int y = 0; y < noise.height(); ++y)
        for (int x = 0; x < noise.width(); ++x)
            noise.setPixel(x, y, static_cast<uint>(random()));
    {
        FullDisk const disk(1000);
        EXPECT_THAT(Fractal::Picture::writePng(noise, png).toStdString(), StartsWith(png.toStdString() + ": "));
        EXPECT_THAT(Fractal::Picture::writePdf(noise, quick(), pdf).toStdString(),
                    StartsWith(pdf.toStdString() + ": "));
    }
    EXPECT_EQ(QImage(png), small);
    EXPECT_EQ(QFileInfo(pdf).size(), pdfSize);
}

TEST_F(PictureTest, WhatCannotBeWrittenIsSaidAndNothingIsLost) {
    auto const missing = folder.filePath(QStringLiteral("missing/picture"));
    EXPECT_THAT(Fractal::Picture::writePng(usual, missing).toStdString(), StartsWith(missing.toStdString() + ": "));
    EXPECT_THAT(Fractal::Picture::writePdf(usual, quick(), missing).toStdString(),
                StartsWith(missing.toStdString() + ": "));
    EXPECT_THAT(Fractal::Picture::writePng(usual, folder.path()).toStdString(), HasSubstr(folder.path().toStdString()));

    auto const file = folder.filePath(QStringLiteral("kept.png"));
    ASSERT_EQ(Fractal::Picture::writePng(usual, file), QString());
    EXPECT_NE(Fractal::Picture::writePng(QImage(), file), QString());
    EXPECT_EQ(QImage(file).size(), usual.size());
}

#include "support/TaloTest.hpp"

#include <panel/look/Look.hpp>
#include <panel/look/PanelStyle.hpp>
#include <parameters/PoolSource.hpp>
#include <parameters/rows/MutedLabel.hpp>
#include <parameters/rows/RawValueLabel.hpp>
#include <parameters/rows/TextDirectionDelegate.hpp>
#include <QDial>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>

namespace {

/// The bounding box of the pixels whose colour differs from the corner's; null if there are none.
QRect inkIn(QImage const& picture) {
    QRect ink;
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x) {
            if (picture.pixel(x, y) != picture.pixel(0, 0))
                ink |= QRect(x, y, 1, 1);
        }
    }
    return ink;
}

/// The widget as drawn, without transparency.
QImage pictureOf(QWidget& widget) {
    return widget.grab().toImage().convertToFormat(QImage::Format_RGB32);
}

class LookTest : public TaloTest {
protected:
    void TearDown() override {
        QApplication::setLayoutDirection(Qt::LeftToRight);
        TaloTest::TearDown();
    }

    Kolt::ParameterPtr parameter{new Kolt::VParameter("name", Kolt::makeValue(std::string("0.5 of 12.")))};
    Talo::PoolSource pools;
    Panel::PanelStyle style;
};

} // namespace

TEST_F(LookTest, ARawValueReadsTheSameInAPanelFromRightToLeftButStandsAtItsEnd) {
    auto const firstLine = [&](Qt::LayoutDirection direction) {
        Talo::RawValueLabel raw(parameter, pools);
        raw.setLayoutDirection(direction);
        // Letters that look the same at every position.
        QFont font(QStringLiteral("DejaVu Sans"), 9);
        font.setHintingPreference(QFont::PreferFullHinting);
        font.setStyleStrategy(QFont::NoAntialias);
        raw.setFont(font);
        raw.resize(300, raw.sizeHint().height());
        auto const picture = pictureOf(raw);
        return picture.copy(0, 0, picture.width(), picture.height() / 2);
    };
    auto const usual = firstLine(Qt::LeftToRight);
    auto const mirrored = firstLine(Qt::RightToLeft);
    EXPECT_LT(inkIn(usual).right(), 150);
    EXPECT_GT(inkIn(mirrored).left(), 150);
    EXPECT_TRUE(usual.copy(inkIn(usual)) == mirrored.copy(inkIn(mirrored)));
}

TEST_F(LookTest, ALabelStandsWhereLinesBegin) {
    auto const ink = [](Qt::LayoutDirection direction) {
        QLabel label(QStringLiteral("name"));
        label.setLayoutDirection(direction);
        Talo::alignWithLayout(label);
        label.resize(300, 30);
        return inkIn(pictureOf(label));
    };
    EXPECT_LT(ink(Qt::LeftToRight).right(), 150);
    EXPECT_GT(ink(Qt::RightToLeft).left(), 150);
}

TEST_F(LookTest, TheCaptionOfAButtonStaysBesideItsIcon) {
    for (auto const direction : {Qt::LeftToRight, Qt::RightToLeft}) {
        // Painters use the application's layout direction.
        QApplication::setLayoutDirection(direction);
        QPixmap icon(16, 16);
        icon.fill(Qt::red);
        QPushButton button(icon, QStringLiteral("start"));
        button.setStyle(&style);
        button.setFlat(true);
        button.resize(400, 40);
        auto const ink = inkIn(pictureOf(button));
        EXPECT_GT(ink.width(), 20);
        EXPECT_LT(ink.width(), 100);
    }
}

TEST_F(LookTest, TheNotchesOfADialCanBeSeenOnEveryGround) {
    for (auto const theme : {Panel::Theme::Light, Panel::Theme::Dark}) {
        QDial dial;
        dial.setStyle(&style);
        dial.setPalette(Panel::themePalette(theme));
        dial.resize(64, 64);
        auto const plain = pictureOf(dial);
        dial.setNotchesVisible(true);
        auto const notched = pictureOf(dial);
        int contrast = 0;
        for (int y = 0; y < 64; ++y) {
            for (int x = 0; x < 64; ++x)
                contrast = qMax(contrast, qAbs(qGray(plain.pixel(x, y)) - qGray(notched.pixel(x, y))));
        }
        EXPECT_GT(contrast, 50);
    }
}

TEST_F(LookTest, DocksStandAtTheSideThatLinesEndAt) {
    EXPECT_EQ(Panel::trailingDockArea(Qt::LeftToRight), Qt::RightDockWidgetArea);
    EXPECT_EQ(Panel::trailingDockArea(Qt::RightToLeft), Qt::LeftDockWidgetArea);
}

TEST_F(LookTest, ATextInAListReadsTheSameInAPanelFromRightToLeftButStandsAtItsEnd) {
    auto const line = [](Qt::LayoutDirection direction) {
        QListWidget list;
        list.setLayoutDirection(direction);
        list.setFrameShape(QFrame::NoFrame);
        QFont font(QStringLiteral("DejaVu Sans"), 9);
        font.setHintingPreference(QFont::PreferFullHinting);
        font.setStyleStrategy(QFont::NoAntialias);
        list.setFont(font);
        list.setItemDelegate(new Talo::TextDirectionDelegate(&list));
        list.addItem(QStringLiteral("done (twice)."));
        list.resize(300, 30);
        return pictureOf(list);
    };
    auto const usual = line(Qt::LeftToRight);
    auto const mirrored = line(Qt::RightToLeft);
    EXPECT_LT(inkIn(usual).right(), 150);
    EXPECT_GT(inkIn(mirrored).left(), 150);
    EXPECT_TRUE(usual.copy(inkIn(usual)) == mirrored.copy(inkIn(mirrored)));
}

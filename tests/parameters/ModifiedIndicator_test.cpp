#include "support/TaloTest.hpp"

#include <parameters/rows/ModifiedIndicator.hpp>
#include <QImage>

namespace {

class ModifiedIndicatorTest : public TaloTest {
protected:
    Talo::ModifiedIndicator mark;
};

} // namespace

TEST_F(ModifiedIndicatorTest, SaysWhatItResetsAndToWhichDefault) {
    mark.setDefault(QStringLiteral("width"), QStringLiteral("a < b"));
    EXPECT_EQ(mark.accessibleName(), QStringLiteral("Reset width to its default"));
    EXPECT_EQ(mark.accessibleDescription(), QStringLiteral("Default: a < b"));
    EXPECT_EQ(mark.toolTip(), QStringLiteral("<p>Default: a &lt; b<br>Click to reset the value.</p>"));
    mark.setDefault(QStringLiteral("width"), QStringLiteral("7"));
    EXPECT_EQ(mark.accessibleDescription(), QStringLiteral("Default: 7"));
    EXPECT_TRUE(mark.toolTip().contains(QStringLiteral("Default: 7")));
}

TEST_F(ModifiedIndicatorTest, IsAsHighAsTheTextBesideItInEveryFont) {
    auto font = mark.font();
    font.setPixelSize(20);
    mark.setFont(font);
    int const side = QFontMetrics(font).height();
    EXPECT_EQ(mark.sizeHint(), QSize(side, side));
}

TEST_F(ModifiedIndicatorTest, IsADotInItsMiddle) {
    mark.resize(21, 21);
    auto const picture = mark.grab().toImage();
    EXPECT_NE(picture.pixelColor(10, 10), picture.pixelColor(1, 1));
    EXPECT_EQ(picture.pixelColor(19, 1), picture.pixelColor(1, 1));
}

TEST_F(ModifiedIndicatorTest, IsReachedByTabAndNotByAClick) {
    EXPECT_EQ(mark.focusPolicy(), Qt::TabFocus);
}

#include "MoreInputsTest.hpp"

#include <QAccessible>
#include <QCheckBox>
#include <QImage>

namespace {

class SwitchTest : public MoreInputsTest {
protected:
    QCheckBox* box() const { return control<QCheckBox>(); }
    QImage picture() const { return box()->grab().toImage(); }
    /// The colour of the knob where it is when the switch is on, and when it is off.
    QColor at(bool isRight) const {
        auto const image = picture();
        int const middle = image.height() / 2;
        return image.pixelColor(isRight ? image.width() - middle : middle, middle);
    }
};

double luminance(QColor const& colour) {
    return (0.2126 * colour.red() + 0.7152 * colour.green() + 0.0722 * colour.blue()) / 255;
}

} // namespace

TEST_F(SwitchTest, SpaceAndClickSwitchInOneStepEach) {
    show(Kolt::makeValue(false), "switch");
    box()->setFocus();
    QTest::keyClick(box(), Qt::Key_Space);
    endGesture();
    EXPECT_EQ(text(), "true");
    QTest::mouseClick(box(), Qt::LeftButton, {}, {box()->width() - 3, box()->height() / 2});
    endGesture();
    EXPECT_EQ(text(), "false");
    EXPECT_EQ(recorder.values.size(), 2U);
    EXPECT_EQ(steps(), 2U);
    undo();
    EXPECT_TRUE(box()->isChecked());
}

TEST_F(SwitchTest, TheKnobIsAtTheEndOfTheReadingDirectionWhenOn) {
    show(Kolt::makeValue(true), "switch");
    auto const knob = box()->palette().color(QPalette::HighlightedText);
    auto const track = box()->palette().color(QPalette::Highlight);
    EXPECT_EQ(at(true), knob);
    EXPECT_EQ(at(false), track);
    parent->setLayoutDirection(Qt::RightToLeft);
    EXPECT_EQ(at(false), knob);
    EXPECT_EQ(at(true), track);
}

TEST_F(SwitchTest, ItIsDrawnInTheColoursOfThePalette) {
    show(Kolt::makeValue(false), "switch");
    QPalette contrast;
    contrast.setColor(QPalette::Window, Qt::black);
    contrast.setColor(QPalette::WindowText, Qt::yellow);
    contrast.setColor(QPalette::Base, Qt::black);
    contrast.setColor(QPalette::Highlight, Qt::white);
    contrast.setColor(QPalette::HighlightedText, Qt::black);
    parent->setPalette(contrast);
    EXPECT_EQ(at(false), QColor(Qt::yellow));
    EXPECT_GT(std::abs(luminance(at(false)) - luminance(at(true))), 0.5);
    QTest::mouseClick(box(), Qt::LeftButton, {}, box()->rect().center());
    EXPECT_EQ(at(true), QColor(Qt::black));
    EXPECT_GT(std::abs(luminance(at(false)) - luminance(at(true))), 0.5);
}

TEST_F(SwitchTest, TheFocusIsShown) {
    show(Kolt::makeValue(true), "switch");
    box()->clearFocus();
    auto const without = picture();
    box()->setFocus();
    EXPECT_NE(picture(), without);
}

TEST_F(SwitchTest, ScreenReadersFindACheckBox) {
    show(Kolt::makeValue(true), "switch");
    auto* const accessible = QAccessible::queryAccessibleInterface(box());
    EXPECT_EQ(accessible->role(), QAccessible::CheckBox);
    EXPECT_EQ(accessible->text(QAccessible::Name), QStringLiteral("value"));
    EXPECT_TRUE(accessible->state().checked);
}

TEST_F(SwitchTest, WithoutAPoolItSwitchesBack) {
    show(Kolt::makeValue(false), "switch");
    pools.use(nullptr);
    QTest::mouseClick(box(), Qt::LeftButton, {}, box()->rect().center());
    EXPECT_FALSE(box()->isChecked());
}

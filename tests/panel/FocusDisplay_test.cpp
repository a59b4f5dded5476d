// What has the keyboard focus shows it, whatever gave it the focus.

#include "support/WheelTurn.hpp"

#include "PanelTest.hpp"

#include <parameters/input/FocusOutline.hpp>
#include <parameters/rows/RowArea.hpp>
#include <QAbstractSlider>
#include <QDial>
#include <QSlider>

namespace {

class FocusDisplayTest : public PanelTest {
protected:
    void SetUp() override {
        PanelTest::SetUp();
        QString error;
        auto const file = networkFile("numbers.json", R"({ "pools": ["day"], "objects": [ { "name": "numbers",
            "parameters": [
                { "name": "int", "type": "int", "value": 5, "properties": { "min": 0, "max": 10 } },
                { "name": "real", "type": "double", "value": 5, "properties": { "min": 0, "max": 10 } },
                { "name": "dial", "type": "int", "value": 5, "preferences": ["dial"],
                  "properties": { "min": 0, "max": 10 } } ] } ] })");
        ASSERT_TRUE(window->openNetwork(file, &error)) << qPrintable(error);
        window->show();
        window->activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(window.get()));
    }
    QAbstractSlider* slider(char const* name) const {
        return window->currentView()->row(QString::fromUtf8(name))->editor()->findChild<QAbstractSlider*>();
    }
};

} // namespace

TEST_F(FocusDisplayTest, ASliderThatWasClickedShowsThatItHasTheFocus) {
    for (auto const* const name : {"int", "real", "dial"}) {
        SCOPED_TRACE(name);
        auto* const clicked = slider(name);
        ASSERT_NE(clicked, nullptr);
        clicked->clearFocus();
        QTest::mouseClick(clicked, Qt::LeftButton, Qt::NoModifier, clicked->rect().center());
        ASSERT_TRUE(clicked->hasFocus());
        // The pointer is elsewhere, as it lights the handle up.
        QEvent leave(QEvent::Leave);
        QApplication::sendEvent(clicked, &leave);
        auto const focused = clicked->grab().toImage();
        int const value = clicked->value();
        clicked->clearFocus();
        EXPECT_NE(clicked->grab().toImage(), focused);
        EXPECT_EQ(clicked->value(), value);
    }
}

TEST_F(FocusDisplayTest, AFrameHasTwoLinesOfOneColourAndOneOfTheOther) {
    QWidget widget;
    widget.resize(30, 20);
    auto palette = widget.palette();
    palette.setColor(QPalette::Window, Qt::white);
    palette.setColor(QPalette::Highlight, Qt::blue);
    palette.setColor(QPalette::HighlightedText, Qt::yellow);
    widget.setPalette(palette);
    Talo::FocusOutline outline(&widget);
    outline.show();
    auto const image = widget.grab().toImage();
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            int const edge = qMin(qMin(x, image.width() - 1 - x), qMin(y, image.height() - 1 - y));
            auto const expected = edge < 2 ? Qt::blue : edge == 2 ? Qt::yellow : Qt::white;
            ASSERT_EQ(image.pixelColor(x, y), QColor(expected)) << x << ", " << y;
        }
    }
}

TEST_F(FocusDisplayTest, AViewThatTakesTheFocusShowsIt) {
    auto* const area = window->currentView()->panel()->rowArea();
    auto const before = area->grab().toImage();
    QTest::mouseClick(area->viewport(), Qt::LeftButton, Qt::NoModifier,
                      QPoint(area->viewport()->width() / 2, area->viewport()->height() - 5));
    ASSERT_TRUE(area->hasFocus());
    auto const* const outline = area->findChild<Talo::FocusOutline*>(QString(), Qt::FindDirectChildrenOnly);
    ASSERT_NE(outline, nullptr);
    EXPECT_TRUE(outline->isVisible());
    EXPECT_NE(area->grab().toImage(), before);
    slider("int")->setFocus();
    EXPECT_FALSE(outline->isVisible());
}

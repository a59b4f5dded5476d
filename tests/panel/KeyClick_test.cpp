#include "support/TaloTest.hpp"

#include <panel/KeyClick.hpp>
#include <QLabel>
#include <QLineEdit>
#include <QMouseEvent>
#include <QTest>
#include <QVBoxLayout>

using testing::ElementsAre;
using testing::IsEmpty;

namespace {

/// Knows only the mouse.
class Swatch : public QLabel {
public:
    std::vector<std::string> heard;
    bool goesAtThePress = false;

protected:
    void mousePressEvent(QMouseEvent* event) override {
        heard.emplace_back(rect().center() == event->pos() && event->button() == Qt::LeftButton ? "press" : "?");
        if (goesAtThePress)
            delete this;
    }
    void mouseReleaseEvent(QMouseEvent*) override { heard.emplace_back("release"); }
};

class KeyClickTest : public TaloTest {
protected:
    void SetUp() override {
        TaloTest::SetUp();
        auto* const layout = new QVBoxLayout(&window);
        layout->addWidget(lineEdit);
        layout->addWidget(swatch);
        new Panel::KeyClick(swatch);
        window.show();
        window.activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
        lineEdit->setFocus();
        QTest::keyClick(lineEdit, Qt::Key_Tab);
        ASSERT_EQ(QApplication::focusWidget(), swatch);
    }

    QWidget window;
    QLineEdit* const lineEdit = new QLineEdit;
    QPointer<Swatch> const swatch = new Swatch;
};

} // namespace

TEST_F(KeyClickTest, SpaceAndReturnClick) {
    for (auto const key : {Qt::Key_Space, Qt::Key_Return, Qt::Key_Enter}) {
        swatch->heard.clear();
        QTest::keyClick(swatch, key);
        EXPECT_THAT(swatch->heard, ElementsAre("press", "release")) << key;
    }
    swatch->heard.clear();
    QTest::keyClick(swatch, Qt::Key_A);
    EXPECT_THAT(swatch->heard, IsEmpty());
}

TEST_F(KeyClickTest, ShowsWhetherItHasTheFocus) {
    auto const focused = swatch->grab().toImage();
    QTest::keyClick(swatch, Qt::Key_Tab);
    ASSERT_EQ(QApplication::focusWidget(), lineEdit);
    auto const resting = swatch->grab().toImage();
    EXPECT_NE(focused, resting);
    QTest::keyClick(lineEdit, Qt::Key_Backtab);
    EXPECT_EQ(swatch->grab().toImage(), focused);
}

TEST_F(KeyClickTest, TheWidgetMayGoAtThePress) {
    swatch->goesAtThePress = true;
    QTest::sendKeyEvent(QTest::Press, swatch, Qt::Key_Space, QStringLiteral(" "), Qt::NoModifier);
    EXPECT_FALSE(swatch);
}

// How the docks share the width of the window with the form.

#include "PanelTest.hpp"

#include <fractal/ui/FractalController.hpp>

namespace {

class DockWidthTest : public PanelTest {
protected:
    void SetUp() override {
        PanelTest::SetUp();
        QString error;
        ASSERT_TRUE(window->openNetwork(QStringLiteral(TALO_EXAMPLES "/networks/fractal.json"), &error))
            << qPrintable(error);
    }
    void TearDown() override {
        // The editor of the selections prints what it does.
        takeOutput();
        PanelTest::TearDown();
    }
    void show(int width, int height) {
        window->resize(width, height);
        window->show();
        ASSERT_TRUE(QTest::qWaitForWindowExposed(window.get()));
        settle();
    }
    static void settle() {
        for (int round = 0; round < 3; ++round) {
            QCoreApplication::sendPostedEvents();
            QCoreApplication::processEvents();
        }
    }
    QWidget* preview() const { return window->fractalController().dock(); }
    std::vector<int> widths() const {
        std::vector<int> widths;
        for (auto const* const dock : window->findChildren<QDockWidget*>())
            if (dock->isVisible())
                widths.push_back(dock->width());
        widths.push_back(window->currentView()->width());
        return widths;
    }
};

} // namespace

TEST_F(DockWidthTest, ThePreviewTakesItsShareOfEachWindow) {
    show(2560, 900);
    EXPECT_NEAR(preview()->width(), 2560.0 / 3, 20);
    window->resize(1200, 900);
    settle();
    EXPECT_NEAR(preview()->width(), 400, 20);
    window->resize(640, 480);
    settle();
    EXPECT_EQ(window->width(), 640);
    EXPECT_NEAR(preview()->width(), 640.0 / 3, 20);
    // Of larger texts the form needs more.
    auto const usual = window->font();
    auto large = usual;
    large.setPixelSize(14);
    window->setFont(large);
    window->resize(641, 480);
    settle();
    EXPECT_NEAR(preview()->width(), 641 - 70 * QFontMetrics(large).averageCharWidth(), 20) << "the form needs its room";
    window->setFont(usual);
    window->resize(1200, 900);
    settle();
    EXPECT_NEAR(preview()->width(), 400, 20);
}

TEST_F(DockWidthTest, AWindowThatIsTooNarrowForItsTextsLeavesThePreviewItsLeastWidth) {
    show(900, 480);
    auto large = window->font();
    large.setPixelSize(30);
    window->setFont(large);
    window->resize(901, 480);
    settle();
    // Qt has warned if it was asked for a width below 1.
    EXPECT_EQ(preview()->width(), preview()->minimumSizeHint().width());
}

TEST_F(DockWidthTest, ThePreviewKeepsTheShareThatAPersonGaveIt) {
    show(1200, 900);
    window->resizeDocks({window->fractalController().dock()}, {600}, Qt::Horizontal);
    settle();
    window->resize(1600, 900);
    settle();
    EXPECT_NEAR(preview()->width(), 800, 20);
}

TEST_F(DockWidthTest, ASecondViewSharesThePlaceOfThePreviewAndTheWindowStaysAsItIs) {
    show(1200, 800);
    auto const* const view = window->addView();
    settle();
    EXPECT_EQ(window->size(), QSize(1200, 800));
    EXPECT_NEAR(preview()->width(), 400, 20);
    EXPECT_NEAR(view->width(), preview()->width(), 4);
    EXPECT_NEAR(view->parentWidget()->height(), preview()->height(), 20);
    EXPECT_GE(view->height(), 200);
}

TEST_F(DockWidthTest, AViewWithoutAPreviewIsAsLargeAsTheFormBesideIt) {
    show(1200, 800);
    window->fractalController().previewAction()->trigger();
    settle();
    auto const* const view = window->addView();
    settle();
    EXPECT_EQ(window->size(), QSize(1200, 800));
    EXPECT_NEAR(view->width(), window->currentView()->width(), 40);
    EXPECT_GE(view->height(), 400);
}

TEST_F(DockWidthTest, ASecondViewFitsIntoASmallWindow) {
    show(640, 480);
    auto const* const view = window->addView();
    settle();
    EXPECT_EQ(window->size(), QSize(640, 480));
    EXPECT_GE(view->height(), 60);
}

TEST_F(DockWidthTest, ReloadingThePluginKeepsAllWidths) {
    show(1200, 800);
    window->addView();
    settle();
    auto const before = widths();
    action("reload")->trigger();
    settle();
    EXPECT_EQ(widths(), before);
    EXPECT_EQ(window->size(), QSize(1200, 800));
}

#pragma once

#include "PanelTest.hpp"

/// The active panel with a copy of the fractal network. The preview is closed unless a test shows it, because it would
/// take most of the time.
class FractalPanelTest : public PanelTest {
protected:
    void SetUp() override {
        PanelTest::SetUp();
        ASSERT_TRUE(QFile::copy(QStringLiteral(TALO_EXAMPLES "/networks/fractal.json"), file));
        QString error;
        ASSERT_TRUE(window->openNetwork(file, &error)) << qPrintable(error);
        window->resize(windowSize);
        window->show();
        window->activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(window.get()));
        // The action of a dock follows it only while the window is shown.
        if (!showsPreview)
            window->fractalController().previewAction()->trigger();
        ASSERT_EQ(window->fractalController().dock()->isVisible(), showsPreview);
    }

    QString const file = folder.filePath(QStringLiteral("fractal.json"));
    QSize windowSize{1150, 900};
    bool showsPreview = false;
};

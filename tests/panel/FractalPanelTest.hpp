#pragma once

#include "PanelTest.hpp"

/// The active panel with a copy of the fractal network. The preview is closed, because it is not tested here and would
/// take most of the time.
class FractalPanelTest : public PanelTest {
protected:
    void SetUp() override {
        PanelTest::SetUp();
        ASSERT_TRUE(QFile::copy(QStringLiteral(TALO_EXAMPLES "/networks/fractal.json"), file));
        QString error;
        ASSERT_TRUE(window->openNetwork(file, &error)) << qPrintable(error);
        window->fractalController().previewAction()->trigger();
        window->resize(windowSize);
        window->show();
        window->activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(window.get()));
    }

    QString const file = folder.filePath(QStringLiteral("fractal.json"));
    QSize windowSize{1150, 900};
};

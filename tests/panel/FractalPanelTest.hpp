#pragma once

#include "PanelTest.hpp"

/// The panel with a copy of the fractal network open, active and without the preview, which would take most of the time
/// and is not what is tested.
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

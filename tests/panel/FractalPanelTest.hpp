#pragma once

#include "PanelTest.hpp"

/// The active panel with a copy of the fractal network. The preview is closed unless a test shows it, because it would
/// take most of the time.
class FractalPanelTest : public PanelTest {
protected:
    void SetUp() override {
        PanelTest::SetUp();
        ASSERT_TRUE(QFile::copy(QStringLiteral(TALO_EXAMPLES "/networks/fractal.json"), file));
        if (hasSmallPictures) {
            ASSERT_NO_FATAL_FAILURE(makePicturesSmall());
        }
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

    /// Limits the size of pictures, their steps and their samples, so that each takes less than a second.
    void makePicturesSmall() {
        QFile network(file);
        ASSERT_TRUE(network.open(QIODevice::ReadWrite));
        auto text = network.readAll();
        for (auto const& [number, smaller] : {std::pair("\"max\": 5000", "\"max\": 500"),
                                              {"\"final\": 2000", "\"final\": 500"},
                                              {"\"max\": 16,", "\"max\": 2,"},
                                              {"\"final\": 8", "\"final\": 2"},
                                              {"\"max\": 4096", "\"max\": 200"},
                                              {"\"value\": 960", "\"value\": 160"}}) {
            ASSERT_EQ(text.count(number), 1) << number;
            text.replace(number, smaller);
        }
        ASSERT_TRUE(network.resize(0) && network.seek(0));
        ASSERT_EQ(network.write(text), text.size());
    }

    QString const file = folder.filePath(QStringLiteral("fractal.json"));
    QSize windowSize{1150, 900};
    bool showsPreview = false;
    bool hasSmallPictures = false;
};

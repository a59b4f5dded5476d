#include "FractalControllerTest.hpp"

using testing::Contains;
using testing::HasSubstr;
using testing::StartsWith;

namespace {

/// Clicks the first letter of a link in a label.
void clickLink(QLabel* label, QString const& linkText) {
    QTextDocument text;
    text.setHtml(label->text());
    auto const place = text.toPlainText().indexOf(linkText);
    ASSERT_GE(place, 0);
    int const x = label->fontMetrics().horizontalAdvance(text.toPlainText().left(place)) + 8;
    QTest::mouseClick(label, Qt::LeftButton, {}, QPoint(x, label->height() / 2));
}

} // namespace

TEST_F(FractalControllerTest, ThePreviewShowsTheFinePictureOfTheChosenPool) {
    ASSERT_TRUE(preview()->isVisible());
    EXPECT_EQ(preview()->image().size(), preview()->pictureSize());
    EXPECT_TRUE(window->fractalController().previewRenderer().isFine());
    auto const draft = preview()->image();
    window->choosePool(QStringLiteral("final"));
    ASSERT_TRUE(rests());
    EXPECT_TRUE(preview()->image() != draft);
    window->choosePool(QStringLiteral("draft"));
    ASSERT_TRUE(rests());
    EXPECT_TRUE(preview()->image() == draft);
}

TEST_F(FractalControllerTest, AHandleThatMovesShowsCoarsePicturesAndTheFineOneWhenItIsLetGo) {
    auto* const slider = control<QSlider>("formula", "iterations");
    ASSERT_NE(slider, nullptr);
    auto const before = preview()->image();
    // Send the events to the window, as the window system does, so that the button counts as held.
    auto* const handle = window->windowHandle();
    auto const at = [&](int value) {
        return slider->mapTo(window.get(), QPoint(QStyle::sliderPositionFromValue(slider->minimum(), slider->maximum(),
                                                                                  value, slider->width() - 12) +
                                                      6,
                                                  slider->height() / 2));
    };
    QTest::mousePress(handle, Qt::LeftButton, {}, at(slider->value()));
    for (int const value : {500, 1000, 1500}) {
        QTest::mouseMove(handle, at(value));
        ASSERT_TRUE(waitUntil([&] { return slider->value() > value - 200; }));
        ASSERT_TRUE(waitUntil([&] { return !window->fractalController().previewRenderer().isFine(); }));
    }
    EXPECT_TRUE(slider->isSliderDown());
    // Longer than the pause after which the fine picture starts when no button is held.
    QTimer longer;
    longer.setSingleShot(true);
    longer.start(400);
    ASSERT_TRUE(waitUntil([&] { return !longer.isActive(); }));
    EXPECT_FALSE(window->fractalController().previewRenderer().isFine());
    EXPECT_TRUE(preview()->image() != before);
    QTest::mouseRelease(handle, Qt::LeftButton, {}, at(1500));
    ASSERT_TRUE(rests());
    EXPECT_TRUE(window->fractalController().previewRenderer().isFine());
    EXPECT_TRUE(preview()->image() != before);
    EXPECT_NE(valueOf("formula.iterations"), "100");
}

TEST_F(FractalControllerTest, StartComputesThePictureAndReportsIt) {
    EXPECT_TRUE(bar()->isHidden());
    start();
    EXPECT_FALSE(bar()->isHidden());
    ASSERT_TRUE(ends());
    EXPECT_TRUE(bar()->isHidden());
    EXPECT_EQ(valueOf("render.status"), "Computed the picture of draft.");
    EXPECT_EQ(control<QLabel>("render", "status")->text(), QStringLiteral("Computed the picture of draft."));
    EXPECT_THAT(control<QLabel>("render", "progress")->text().toStdString(), StartsWith("96 × 72 points"));
    EXPECT_THAT(messages(Panel::MessageList::Source::Panel), Contains("Computed the picture of draft."));
    // The picture replaces the preview until something changes.
    EXPECT_EQ(preview()->image().size(), QSize(96, 72));
    set("formula.rotation", "12");
    ASSERT_TRUE(rests());
    EXPECT_EQ(preview()->image().size(), preview()->pictureSize());
}

TEST_F(FractalControllerTest, ThePictureIsThatOfThePoolWithItsQuality) {
    window->choosePool(QStringLiteral("final"));
    // Small, because so many samples are slow.
    set("exporter.width", "64");
    start();
    ASSERT_TRUE(ends());
    EXPECT_THAT(valueOf("render.progress"), HasSubstr("2000 steps at most, 8 × 8 samples"));
    EXPECT_EQ(valueOf("render.status"), "Computed the picture of final.");
}

TEST_F(FractalControllerTest, TheButtonInTheStatusBarCancels) {
    makeEndless();
    start();
    auto* const progress = bar()->findChild<QProgressBar*>();
    EXPECT_TRUE(progress->isVisible());
    EXPECT_EQ(progress->toolTip(), QStringLiteral("Computing the picture of draft"));
    QTest::mouseClick(bar()->findChild<QPushButton*>(), Qt::LeftButton);
    ASSERT_TRUE(ends());
    EXPECT_TRUE(bar()->isHidden());
    EXPECT_EQ(valueOf("render.status"), "Cancelled: the picture of draft.");
}

TEST_F(FractalControllerTest, EscapeCancels) {
    makeEndless();
    window->activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(window.get()));
    start();
    QTest::keyClick(window.get(), Qt::Key_Escape);
    ASSERT_TRUE(ends());
    EXPECT_EQ(valueOf("render.status"), "Cancelled: the picture of draft.");
}

TEST_F(FractalControllerTest, EscapeCancelsInTheFilterToo) {
    makeEndless();
    window->activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(window.get()));
    start();
    auto* const filter = window->findChild<QLineEdit*>(QStringLiteral("filter"));
    filter->setFocus();
    QTest::keyClick(filter, Qt::Key_Escape);
    ASSERT_TRUE(ends());
}

TEST_F(FractalControllerTest, TheLinkInTheStatusCancels) {
    makeEndless();
    auto* const status = control<QLabel>("render", "status");
    start();
    ASSERT_TRUE(waitUntil([&] { return status->text().contains(QLatin1String("href")); }));
    clickLink(status, QStringLiteral("Cancel"));
    ASSERT_TRUE(ends());
    EXPECT_EQ(valueOf("render.status"), "Cancelled: the picture of draft.");
}

TEST_F(FractalControllerTest, ALinkThatWasSavedWhileItComputedSaysThatNothingIs) {
    set("render.status", "Computing: 7 %. <a href=\"cancel\">Cancel</a>");
    clickLink(control<QLabel>("render", "status"), QStringLiteral("Cancel"));
    EXPECT_EQ(valueOf("render.status"), "Nothing is being computed.");
}

TEST_F(FractalControllerTest, TheLinkIsFollowedInASecondViewAndAfterThePluginsWereLoadedAgain) {
    window->showObject(QStringLiteral("render"));
    auto* const second = window->addView();
    QString error;
    ASSERT_TRUE(plugins.reload(&error)) << qPrintable(error);
    makeEndless();
    start();
    auto* const status = qobject_cast<QLabel*>(second->row(QStringLiteral("status"))->editor());
    ASSERT_NE(status, nullptr);
    emit status->linkActivated(QStringLiteral("elsewhere"));
    EXPECT_TRUE(window->fractalController().renderQueue().isComputing());
    emit status->linkActivated(QStringLiteral("cancel"));
    ASSERT_TRUE(ends());
}

TEST_F(FractalControllerTest, ThePluginsAreUnloadedWhileItComputes) {
    makeEndless();
    start();
    QString error;
    EXPECT_TRUE(plugins.unload(&error)) << qPrintable(error);
    EXPECT_TRUE(window->fractalController().renderQueue().isComputing());
    ASSERT_TRUE(plugins.reload(&error)) << qPrintable(error);
    EXPECT_TRUE(window->fractalController().renderQueue().isComputing());
}

TEST_F(FractalControllerTest, TheWindowIsClosedWhileItComputes) {
    makeEndless();
    // Save, because closing would ask otherwise.
    ASSERT_TRUE(window->saveValues(folder.filePath(QStringLiteral("endless.json"))));
    start();
    EXPECT_TRUE(window->close());
    window.reset();
}

TEST_F(FractalControllerTest, AnotherNetworkIsOpenedWhileItComputes) {
    makeEndless();
    start();
    ASSERT_TRUE(window->openNetwork(networkFile("lamps.json", lamps)));
    EXPECT_FALSE(window->fractalController().renderQueue().isComputing());
    EXPECT_TRUE(bar()->isHidden());
    EXPECT_FALSE(dock()->isVisible());
}

TEST_F(FractalControllerTest, ANetworkThatComputesNothingSaysSo) {
    ASSERT_TRUE(window->openNetwork(networkFile("lamps.json", lamps)));
    window->fractalController().previewAction()->trigger();
    EXPECT_TRUE(dock()->isVisible());
    EXPECT_TRUE(preview()->image().isNull());
    EXPECT_EQ(preview()->text(), QStringLiteral("Nothing in this network computes a picture."));
    EXPECT_TRUE(window->fractalController().isAtRest());
}

TEST_F(FractalControllerTest, APreviewThatTheUserClosedStaysClosed) {
    window->fractalController().previewAction()->trigger();
    EXPECT_FALSE(dock()->isVisible());
    EXPECT_TRUE(window->fractalController().isAtRest());
    ASSERT_TRUE(window->openNetwork(QStringLiteral(TALO_EXAMPLES "/networks/fractal.json")));
    EXPECT_FALSE(dock()->isVisible());
    window->fractalController().previewAction()->trigger();
    EXPECT_TRUE(dock()->isVisible());
    ASSERT_TRUE(rests());
    EXPECT_EQ(preview()->image().size(), preview()->pictureSize());
}

#include "panel/PanelTest.hpp"
#include "support/FileDialogs.hpp"

#include <fractal/ui/ComputingBar.hpp>
#include <QDockWidget>

using testing::Contains;
using testing::HasSubstr;
using testing::SizeIs;
using testing::StartsWith;

namespace {

/// The panel with the fractal network, whose kept pictures are small.
class FractalControllerTest : public PanelTest {
protected:
    void SetUp() override {
        PanelTest::SetUp();
        QString error;
        ASSERT_TRUE(window->openNetwork(QStringLiteral(TALO_EXAMPLES "/networks/fractal.json"), &error))
            << qPrintable(error);
        set("exporter.width", "96");
        window->show();
        ASSERT_TRUE(rests());
        takeOutput();
    }
    void TearDown() override {
        // What the lists of several texts print.
        takeOutput();
        PanelTest::TearDown();
    }

    bool rests() const {
        return waitUntil([this] { return window->fractalController().isAtRest(); });
    }
    bool ends() const {
        return waitUntil([this] { return !window->fractalController().renderQueue().isComputing(); });
    }
    Fractal::Preview* preview() const { return window->findChild<Fractal::Preview*>(); }
    QDockWidget* dock() const { return window->findChild<QDockWidget*>(QStringLiteral("preview")); }
    QWidget* bar() const { return window->findChild<Fractal::ComputingBar*>(); }
    template <typename T>
    T* control(char const* object, char const* parameter) const {
        window->showObject(QString::fromUtf8(object));
        auto* const editor = window->currentView()->row(QString::fromUtf8(parameter))->editor();
        auto* const itself = qobject_cast<T*>(editor);
        return itself ? itself : editor->findChild<T*>();
    }
    void makeEndless() {
        set("formula.kind", "Julia");
        set("formula.iterations", "20000");
        set("formula.quality", "16");
        set("formula.zoom", "-8");
        set("exporter.width", "4096");
    }
    /// Fires the action by its button, and waits until it computes.
    void start() {
        QTest::mouseClick(control<QPushButton>("render", "start"), Qt::LeftButton);
        ASSERT_TRUE(window->fractalController().renderQueue().isComputing());
    }
    std::vector<std::string> messages(Panel::MessageList::Source source) const {
        std::vector<std::string> texts;
        auto const all = window->messages()->texts(source);
        for (auto const& text : all)
            texts.push_back(text.toStdString());
        return texts;
    }
    QString path(char const* name) const { return folder.filePath(QString::fromUtf8(name)); }
};

/// A click on the first letter of a link in a label.
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
    // Through the window, as the system does it, so that the button counts as held.
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
    // Longer than changes rest when nobody holds the handle.
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

TEST_F(FractalControllerTest, StartComputesThePictureAndTellsOfIt) {
    EXPECT_TRUE(bar()->isHidden());
    start();
    EXPECT_FALSE(bar()->isHidden());
    ASSERT_TRUE(ends());
    EXPECT_TRUE(bar()->isHidden());
    EXPECT_EQ(valueOf("render.status"), "Computed the picture of draft.");
    EXPECT_EQ(control<QLabel>("render", "status")->text(), QStringLiteral("Computed the picture of draft."));
    EXPECT_THAT(control<QLabel>("render", "progress")->text().toStdString(), StartsWith("96 × 72 points"));
    EXPECT_THAT(messages(Panel::MessageList::Source::Panel), Contains("Computed the picture of draft."));
    // It takes the place of the preview until something changes.
    EXPECT_EQ(preview()->image().size(), QSize(96, 72));
    set("formula.rotation", "12");
    ASSERT_TRUE(rests());
    EXPECT_EQ(preview()->image().size(), preview()->pictureSize());
}

TEST_F(FractalControllerTest, ThePictureIsThatOfThePoolWithItsQuality) {
    window->choosePool(QStringLiteral("final"));
    // So many samples take a while.
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
    // Otherwise it asks first.
    ASSERT_TRUE(window->saveValues(folder.filePath(QStringLiteral("endless.json"))));
    start();
    EXPECT_TRUE(window->close());
    window.reset();
}

TEST_F(FractalControllerTest, ClosingAsksWhileAPictureIsWritten) {
    makeEndless();
    set("exporter.picture", path("a.png").toUtf8().constData());
    ASSERT_TRUE(window->saveValues(path("endless.json")));
    window->network()->findObject(QStringLiteral("exporter"))->run(window->pools().pool());
    ASSERT_TRUE(window->fractalController().renderQueue().isComputing());
    QString question;
    auto const close = [&](char const* button) {
        return withModalDialog<QMessageBox>([&] { window->close(); },
                                            [&](QMessageBox& box) {
                                                question = box.text();
                                                auto* const other = box.findChild<QPushButton*>(QLatin1String(button));
                                                QTest::mouseClick(other ? other : box.button(QMessageBox::Cancel),
                                                                  Qt::LeftButton);
                                            });
    };
    EXPECT_TRUE(close("cancel"));
    EXPECT_TRUE(question.contains(path("a.png"))) << qPrintable(question);
    EXPECT_TRUE(window->isVisible());
    EXPECT_TRUE(window->fractalController().renderQueue().isComputing());
    EXPECT_TRUE(close("endWork"));
    EXPECT_FALSE(window->isVisible());
    window.reset();
    EXPECT_FALSE(QFile::exists(path("a.png")));
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

TEST_F(FractalControllerTest, ChoosingAPictureWritesIt) {
    auto* const button = control<QPushButton>("exporter", "picture");
    ASSERT_TRUE(withFileDialog([&] { QTest::mouseClick(button, Qt::LeftButton); },
                               [&](QFileDialog& dialog) { enterFileName(dialog, path("a.png")); }));
    ASSERT_TRUE(waitUntil([&] { return QFile::exists(path("a.png")); }));
    ASSERT_TRUE(ends());
    EXPECT_EQ(QImage(path("a.png")).size(), QSize(96, 72));
    EXPECT_THAT(messages(Panel::MessageList::Source::Panel), Contains("Wrote " + path("a.png").toStdString() + "."));
    EXPECT_EQ(valueOf("render.status"), "Wrote " + path("a.png").toStdString() + ".");
    EXPECT_FALSE(QFile::exists(path("a.pdf")));
}

TEST_F(FractalControllerTest, ChoosingADocumentWritesIt) {
    auto* const button = control<QPushButton>("exporter", "document");
    ASSERT_TRUE(withFileDialog([&] { QTest::mouseClick(button, Qt::LeftButton); },
                               [&](QFileDialog& dialog) { enterFileName(dialog, path("a.pdf")); }));
    ASSERT_TRUE(waitUntil([&] { return QFile::exists(path("a.pdf")); }));
    ASSERT_TRUE(ends());
    QFile file(path("a.pdf"));
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    EXPECT_TRUE(file.readAll().startsWith("%PDF-"));
}

TEST_F(FractalControllerTest, ACancelledDialogWritesNothing) {
    auto* const button = control<QPushButton>("exporter", "picture");
    auto const before = messages(Panel::MessageList::Source::Panel);
    ASSERT_TRUE(withFileDialog([&] { QTest::mouseClick(button, Qt::LeftButton); },
                               [&](QFileDialog& dialog) { dialog.reject(); }));
    QCoreApplication::processEvents();
    EXPECT_FALSE(window->fractalController().renderQueue().isComputing());
    EXPECT_EQ(messages(Panel::MessageList::Source::Panel), before);
}

TEST_F(FractalControllerTest, ChoosingAPaletteColoursThePicture) {
    auto const file = networkFile("reds.gpl", "GIMP Palette\nName: Reds\n255 0 0\n64 0 0\n");
    auto const before = preview()->image();
    auto* const button = control<QPushButton>("exporter", "palette");
    ASSERT_TRUE(withFileDialog([&] { QTest::mouseClick(button, Qt::LeftButton); },
                               [&](QFileDialog& dialog) { enterFileName(dialog, file); }));
    ASSERT_TRUE(waitUntil([&] { return valueOf("colouring.palette") == "From file"; }));
    ASSERT_TRUE(rests());
    EXPECT_TRUE(preview()->image() != before);
    EXPECT_EQ(control<QComboBox>("colouring", "palette")->currentText(), QStringLiteral("From file"));
    EXPECT_FALSE(window->fractalController().renderQueue().isComputing());
}

TEST_F(FractalControllerTest, UndoOfChoosingAPaletteFileTakesItsChoiceBackInOneStep) {
    auto const file = networkFile("reds.gpl", "GIMP Palette\nName: Reds\n255 0 0\n64 0 0\n");
    auto* const button = control<QPushButton>("exporter", "palette");
    auto const choose = [&] {
        ASSERT_TRUE(withFileDialog([&] { QTest::mouseClick(button, Qt::LeftButton); },
                                   [&](QFileDialog& dialog) { enterFileName(dialog, file); }));
        ASSERT_TRUE(waitUntil([&] { return valueOf("colouring.palette") == "From file"; }));
    };
    auto const before = window->network()->values();
    choose();
    EXPECT_THAT(window->history().steps(), SizeIs(1));
    window->undo();
    EXPECT_EQ(valueOf("colouring.palette"), "Embers");
    EXPECT_EQ(valueOf("exporter.palette"), "");
    EXPECT_EQ(window->network()->values(), before);
    window->redo();
    EXPECT_EQ(valueOf("colouring.palette"), "From file");
    EXPECT_EQ(valueOf("exporter.palette"), file.toStdString());

    QTest::keyClick(control<QComboBox>("colouring", "palette"), Qt::Key_Home);
    ASSERT_EQ(valueOf("colouring.palette"), "Embers");
    window->showObject(QStringLiteral("exporter"));
    choose();
    ASSERT_THAT(window->history().steps(), SizeIs(3)) << "the same file again is another choice of the palette";
    window->undo();
    EXPECT_EQ(valueOf("colouring.palette"), "Embers");
    EXPECT_EQ(valueOf("exporter.palette"), file.toStdString());
}

TEST_F(FractalControllerTest, ABadPaletteAndABadFolderAreWarnedOf) {
    auto const file = networkFile("bad.gpl", "GIMP Palette\nred\n");
    auto* button = control<QPushButton>("exporter", "palette");
    ASSERT_TRUE(withFileDialog([&] { QTest::mouseClick(button, Qt::LeftButton); },
                               [&](QFileDialog& dialog) { enterFileName(dialog, file); }));
    auto const warnings = [&] { return messages(Panel::MessageList::Source::Warning); };
    ASSERT_TRUE(waitUntil([&] { return warnings().size() == 1; }));
    EXPECT_THAT(warnings()[0], StartsWith(file.toStdString() + ":2: "));
    EXPECT_EQ(valueOf("colouring.palette"), "Embers");
    // The preview says it to whoever wants the colours all the same.
    set("colouring.palette", "From file");
    ASSERT_TRUE(rests());
    EXPECT_THAT(preview()->text().toStdString(), StartsWith(file.toStdString() + ":2: "));

    set("exporter.picture", path("missing/a.png").toUtf8().constData());
    window->network()->findObject(QStringLiteral("exporter"))->run(window->pools().pool());
    ASSERT_TRUE(waitUntil([&] { return warnings().size() == 2; }));
    EXPECT_THAT(warnings()[1], StartsWith(path("missing/a.png").toStdString() + ": "));
    EXPECT_EQ(valueOf("render.status"), warnings()[1]);
}

TEST_F(FractalControllerTest, EachCreatorOfThePluginServesTheFractalNetwork) {
    auto const& registry = Kolt::InputRegistry::theRegistry();
    std::set<Kolt::VInputCreatorBase*> chosen;
    for (auto const& object : window->network()->objects()) {
        for (auto const& parameter : object->parameters())
            chosen.insert(registry.choose(*parameter, {"QT"}).creator.strong().get());
    }
    EXPECT_EQ(registry.entries().size(), 23U);
    for (auto const& entry : registry.entries())
        EXPECT_EQ(chosen.count(entry.creator.strong().get()), 1U) << entry.creator.strong()->describe();
}

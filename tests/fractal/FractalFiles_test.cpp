// Files that the fractal network writes and reads.

#include "FractalControllerTest.hpp"
#include "support/FileDialogs.hpp"

#include <QMessageBox>

using testing::Contains;
using testing::SizeIs;
using testing::StartsWith;

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

TEST_F(FractalControllerTest, UndoOfChoosingAPaletteFileAlsoRestoresThePaletteInOneStep) {
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
    // If the palette "From file" is selected, the preview shows the error, too.
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

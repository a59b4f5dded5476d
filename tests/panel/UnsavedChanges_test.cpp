#include "support/FileDialogs.hpp"
#include "UnsavedChangesTest.hpp"

#include <QFileDialog>
#include <QTextEdit>
#include <QToolButton>

using testing::HasSubstr;

TEST_F(UnsavedChangesTest, TheTitleMarksThem) {
    EXPECT_FALSE(window->isWindowModified());
    EXPECT_THAT(window->windowTitle().toStdString(), HasSubstr("Values[*]"));
    edit();
    EXPECT_TRUE(isMarked());
    action("undo")->trigger();
    EXPECT_TRUE(isUnmarked()) << "the values are those of the file again";
    action("redo")->trigger();
    EXPECT_TRUE(isMarked());
    ASSERT_TRUE(window->saveValues(file()));
    EXPECT_FALSE(window->isWindowModified());
    action("undo")->trigger();
    EXPECT_TRUE(isMarked()) << "the file holds what came after";
}

TEST_F(UnsavedChangesTest, AreSavedByTheKeys) {
    auto const unchanged = bytesOf(file());
    edit();
    ASSERT_TRUE(isMarked());
    ASSERT_NE(QApplication::focusWidget(), nullptr);
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_S, Qt::ControlModifier);
    EXPECT_FALSE(window->isWindowModified());
    EXPECT_NE(bytesOf(file()), unchanged);
    auto const blue = bytesOf(file());
    click(choice("Green"));
    ASSERT_TRUE(isMarked());
    EXPECT_EQ(bytesOf(file()), blue);
    EXPECT_TRUE(withFileDialog(
        [&] { QTest::keyClick(window.get(), Qt::Key_S, Qt::ControlModifier | Qt::ShiftModifier); },
        [&](QFileDialog& dialog) { enterFileName(dialog, folder.filePath(QStringLiteral("by keys.json"))); }));
    EXPECT_FALSE(window->isWindowModified());
    EXPECT_EQ(bytesOf(file()), blue);
    EXPECT_TRUE(bytesOf(folder.filePath(QStringLiteral("by keys.json"))).contains("Green"));
}

TEST_F(UnsavedChangesTest, ClosingWithoutThemAsksNothing) {
    edit();
    action("undo")->trigger();
    EXPECT_FALSE(close(QMessageBox::Cancel));
    EXPECT_FALSE(window->isVisible());
}

TEST_F(UnsavedChangesTest, TheTitleMarksWhatTheHostWrote) {
    set("all.int", "99");
    EXPECT_TRUE(isMarked());
    set("all.int", "20");
    EXPECT_TRUE(isUnmarked()) << "the value is that of the file again";
    set("others.same int", "4");
    EXPECT_TRUE(isMarked()) << "no row shows it";
    ASSERT_TRUE(window->saveValues(file()));
    EXPECT_FALSE(window->isWindowModified());
    set("others.same int", "5");
    EXPECT_TRUE(isMarked());
}

TEST_F(UnsavedChangesTest, WhatTheHostWroteIsNotLostUnasked) {
    set("all.int", "99");
    EXPECT_TRUE(close(QMessageBox::Cancel));
    EXPECT_TRUE(window->isVisible());
}

TEST_F(UnsavedChangesTest, WhatIsOnlyShownIsNoChange) {
    set("others.said", "Something else.");
    set("others.status", "Busy.");
    EXPECT_FALSE(close(QMessageBox::Cancel));
}

TEST_F(UnsavedChangesTest, TheQuestionShowsTheTitleAsItIs) {
    edit();
    auto format = Qt::AutoText;
    QTimer timer;
    QObject::connect(&timer, &QTimer::timeout, &timer, [&] {
        if (auto* const box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget())) {
            format = box->textFormat();
            QTest::mouseClick(box->button(QMessageBox::Cancel), Qt::LeftButton);
        }
    });
    timer.start(0);
    EXPECT_FALSE(window->close());
    EXPECT_EQ(format, Qt::PlainText);
}

TEST_F(UnsavedChangesTest, CancelKeepsTheWindow) {
    edit();
    EXPECT_TRUE(close(QMessageBox::Cancel));
    EXPECT_TRUE(window->isVisible());
    EXPECT_EQ(held("enum"), "Blue");
}

TEST_F(UnsavedChangesTest, DiscardClosesAndLeavesTheFileAsItWas) {
    auto const before = bytesOf(file());
    edit();
    EXPECT_TRUE(close(QMessageBox::Discard));
    EXPECT_FALSE(window->isVisible());
    EXPECT_EQ(bytesOf(file()), before);
}

TEST_F(UnsavedChangesTest, SaveWritesAndCloses) {
    edit();
    auto const edited = valuesNow();
    EXPECT_TRUE(close(QMessageBox::Save));
    EXPECT_FALSE(window->isVisible());
    ASSERT_TRUE(window->openNetwork(file()));
    EXPECT_EQ(valuesNow(), edited);
}

TEST_F(UnsavedChangesTest, AFailedSaveKeepsTheWindow) {
    edit();
    // Not even root can replace a folder by a file.
    ASSERT_TRUE(QFile::remove(file()));
    ASSERT_TRUE(QDir().mkpath(file() + QStringLiteral("/kept")));
    EXPECT_TRUE(close(QMessageBox::Save));
    EXPECT_TRUE(window->isVisible());
    EXPECT_EQ(held("enum"), "Blue");
    QPointer<QMessageBox> const box = window->findChild<QMessageBox*>();
    ASSERT_TRUE(box);
    EXPECT_THAT(box->informativeText().toStdString(), HasSubstr("values.json"));
    box->accept();
    EXPECT_TRUE(waitUntil([&] { return box.isNull(); }));
}

TEST_F(UnsavedChangesTest, ATextThatIsStillBeingTypedIsAskedAboutToo) {
    auto* const lines = control<QTextEdit>("lines");
    lines->setFocus();
    QTest::keyClick(lines, Qt::Key_X);
    EXPECT_EQ(valuesNow(), text) << "written when the field is left, at the latest";
    EXPECT_TRUE(close(QMessageBox::Cancel));
    EXPECT_THAT(held("lines"), HasSubstr("x"));
    EXPECT_EQ(window->focusWidget(), lines);

    auto* const entered = field("entered");
    entered->setFocus();
    QTest::keyClicks(entered, QStringLiteral("-04"));
    ASSERT_TRUE(answer(QMessageBox::Save, [this] { window->close(); }));
    EXPECT_THAT(bytesOf(file()).toStdString(), HasSubstr("2023-04"));
}

TEST_F(UnsavedChangesTest, OpeningAnotherNetworkAsksFirst) {
    edit();
    auto const objects = window->network()->objects();
    EXPECT_TRUE(answer(QMessageBox::Cancel, [this] { action("open")->trigger(); }));
    EXPECT_EQ(window->network()->objects(), objects);
    EXPECT_EQ(held("enum"), "Blue");

    auto const other = networkFile("other.json", lamps);
    EXPECT_TRUE(answer(QMessageBox::Discard, [&] {
        EXPECT_TRUE(withFileDialog([this] { action("open")->trigger(); },
                                   [&](QFileDialog& dialog) { enterFileName(dialog, other); }));
    }));
    EXPECT_THAT(window->windowTitle().toStdString(), HasSubstr("Two lamps"));
    EXPECT_FALSE(window->isWindowModified());
}

TEST_F(UnsavedChangesTest, SavingUnderAnotherNameContinuesWithThatFile) {
    auto const before = bytesOf(file());
    edit();
    EXPECT_TRUE(row("enum")->modifiedIndicator()->isVisible());
    auto const copy = folder.filePath(QStringLiteral("copy.json"));
    ASSERT_TRUE(window->saveValues(copy));
    EXPECT_EQ(bytesOf(file()), before);
    EXPECT_EQ(window->network()->file(), copy);
    EXPECT_EQ(window->windowFilePath(), copy);
    EXPECT_FALSE(window->isWindowModified());
    EXPECT_THAT(row("enum")->modifiedIndicator()->toolTip().toStdString(), HasSubstr("Default: Red"))
        << "reset still reaches what the author wrote";
    click(choice("Green"));
    EXPECT_TRUE(close(QMessageBox::Save));
    EXPECT_EQ(bytesOf(file()), before);
    EXPECT_THAT(bytesOf(copy).toStdString(), HasSubstr("\"value\": \"Green\""));
}

TEST_F(UnsavedChangesTest, ABrokenFileLosesNothing) {
    edit();
    auto const edited = valuesNow();
    QString error;
    EXPECT_FALSE(window->openNetwork(networkFile("broken.json", "{\n\"pools\": 3\n}"), &error));
    EXPECT_THAT(error.toStdString(), HasSubstr("broken.json:2: expected"));
    EXPECT_EQ(valuesNow(), edited);
    EXPECT_TRUE(isMarked());
    EXPECT_TRUE(action("undo")->isEnabled());
    action("undo")->trigger();
    EXPECT_EQ(valuesNow(), text);
}

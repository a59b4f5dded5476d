// Changes of the network's file by other programs, and the names and folders of files.

#include "support/FileDialogs.hpp"
#include "UnsavedChangesTest.hpp"

#include <panel/window/NoticeBar.hpp>

using testing::HasSubstr;

namespace {

class FileSafetyTest : public UnsavedChangesTest {
protected:
    /// Writes the file as another program does.
    QByteArray overwrite(QByteArray const& from, QByteArray const& to) const {
        auto bytes = bytesOf(file());
        EXPECT_TRUE(bytes.contains(from));
        bytes.replace(from, to);
        QFile target(file());
        EXPECT_TRUE(target.open(QIODevice::WriteOnly));
        EXPECT_EQ(target.write(bytes), bytes.size());
        return bytes;
    }
    bool save(QMessageBox::StandardButton button) {
        return answer(button, [this] { action("save")->trigger(); });
    }
    Panel::NoticeBar* notice() const { return window->findChild<Panel::NoticeBar*>(); }
    QPushButton* offer() const { return notice()->findChild<QPushButton*>(QStringLiteral("offer")); }
    bool isNoticed() const {
        return waitUntil([this] { return notice()->isVisible(); });
    }
};

} // namespace

TEST_F(FileSafetyTest, SavingAsksBeforeItOverwritesWhatAnotherProgramWrote) {
    edit();
    auto const theirs = overwrite("\"title\": \"Values\"", "\"title\": \"Theirs\"");
    EXPECT_TRUE(save(QMessageBox::Cancel));
    EXPECT_EQ(bytesOf(file()), theirs);
    EXPECT_TRUE(isMarked());
    EXPECT_TRUE(save(QMessageBox::Save));
    EXPECT_THAT(bytesOf(file()).toStdString(), HasSubstr("\"Blue\""));
    EXPECT_TRUE(isUnmarked());
    EXPECT_FALSE(save(QMessageBox::Cancel)) << "what was saved here is known";
}

TEST_F(FileSafetyTest, TheContentDecidesAndNotTheTime) {
    edit();
    auto const bytes = bytesOf(file());
    ASSERT_TRUE(QFile::remove(file()));
    QTest::qWait(20);
    QFile same(file());
    ASSERT_TRUE(same.open(QIODevice::WriteOnly));
    same.write(bytes);
    same.close();
    EXPECT_FALSE(save(QMessageBox::Cancel));
    EXPECT_TRUE(isUnmarked());
}

TEST_F(FileSafetyTest, SavingAsksBeforeItBringsBackAFileThatIsGone) {
    ASSERT_TRUE(QFile::remove(file()));
    EXPECT_TRUE(save(QMessageBox::Cancel));
    EXPECT_FALSE(QFile::exists(file()));
    EXPECT_TRUE(save(QMessageBox::Save));
    EXPECT_TRUE(QFile::exists(file()));
}

TEST_F(FileSafetyTest, AChangedFileCanBeLoadedAgainWhereNothingIsUnsaved) {
    EXPECT_FALSE(notice()->isVisible());
    overwrite("\"value\": \"edge\"", "\"value\": \"theirs\"");
    ASSERT_TRUE(isNoticed());
    EXPECT_EQ(held("line"), "edge");
    QTest::mouseClick(offer(), Qt::LeftButton);
    EXPECT_EQ(held("line"), "theirs");
    EXPECT_FALSE(notice()->isVisible());
    // The watcher continues to watch the file that was loaded.
    overwrite("\"value\": \"theirs\"", "\"value\": \"theirs again\"");
    ASSERT_TRUE(isNoticed());
    EXPECT_TRUE(offer()->isVisible());
}

TEST_F(FileSafetyTest, AChangedFileIsNotLoadedOverUnsavedValues) {
    edit();
    ASSERT_TRUE(isMarked());
    overwrite("\"value\": \"edge\"", "\"value\": \"theirs\"");
    ASSERT_TRUE(isNoticed());
    EXPECT_FALSE(offer()->isVisible());
    EXPECT_EQ(held("enum"), "Blue");
}

TEST_F(FileSafetyTest, WhatIsEditedAfterTheOfferIsNotLost) {
    overwrite("\"value\": \"edge\"", "\"value\": \"theirs\"");
    ASSERT_TRUE(isNoticed());
    edit();
    QTest::mouseClick(offer(), Qt::LeftButton);
    EXPECT_EQ(held("enum"), "Blue");
    EXPECT_EQ(held("line"), "edge");
    ASSERT_TRUE(isNoticed());
    EXPECT_FALSE(offer()->isVisible());
}

TEST_F(FileSafetyTest, AFileThatWasReplacedIsWatchedStill) {
    auto const bytes = bytesOf(file());
    for (int round = 0; round < 2; ++round) {
        auto changed = bytes;
        changed.replace("\"edge\"", "\"" + QByteArray::number(round) + "\"");
        auto const other = folder.filePath(QStringLiteral("other"));
        QFile target(other);
        ASSERT_TRUE(target.open(QIODevice::WriteOnly));
        target.write(changed);
        target.close();
        ASSERT_EQ(std::rename(QFile::encodeName(other).constData(), QFile::encodeName(file()).constData()), 0);
        ASSERT_TRUE(isNoticed());
        notice()->hide();
    }
    ASSERT_TRUE(QFile::remove(file()));
    ASSERT_TRUE(isNoticed());
    EXPECT_THAT(notice()->accessibleName().toStdString(), HasSubstr("is gone"));
}

TEST_F(FileSafetyTest, OwnSavingIsNoChange) {
    edit();
    EXPECT_FALSE(save(QMessageBox::Cancel));
    QTest::qWait(500);
    EXPECT_FALSE(notice()->isVisible());
}

TEST_F(FileSafetyTest, ANameWithoutASuffixGetsOneAndIsListedByOpen) {
    edit();
    EXPECT_TRUE(withFileDialog([this] { action("saveAs")->trigger(); },
                               [&](QFileDialog& dialog) {
                                   EXPECT_EQ(dialog.directory(), QDir(folder.path()));
                                   enterFileName(dialog, QStringLiteral("copy"));
                               }));
    EXPECT_EQ(window->network()->file(), folder.filePath(QStringLiteral("copy.json")));
    EXPECT_TRUE(withFileDialog([this] { action("open")->trigger(); },
                               [&](QFileDialog& dialog) {
                                   EXPECT_EQ(dialog.directory(), QDir(folder.path()));
                                   EXPECT_THAT(dialog.selectedNameFilter().toStdString(), HasSubstr("*.json"));
                                   dialog.reject();
                               }));
}

TEST_F(FileSafetyTest, DialogsOfEditorsStartBesideTheNetworkAndAddTheSuffix) {
    ASSERT_TRUE(window->openNetwork(networkFile("export.json", R"json({ "pools": ["all"], "objects": [
        { "name": "all", "parameters": [
            { "name": "document", "type": "string", "preferences": ["FileInput", "Save as PDF"], "value": "" },
            { "name": "picture", "type": "string", "preferences": ["Save as"], "value": "",
              "properties": { "Extension": "PNG pictures (*.png);;All files (*)" } },
            { "name": "palette", "type": "string", "preferences": ["FileInput", "Open"], "value": "" } ] } ] })json")));
    auto const click = [this](char const* name) {
        return [this, name] { QTest::mouseClick(control<QPushButton>(name), Qt::LeftButton); };
    };
    EXPECT_TRUE(withFileDialog(click("document"), [&](QFileDialog& dialog) {
        EXPECT_EQ(dialog.directory(), QDir(folder.path()));
        enterFileName(dialog, QStringLiteral("picture"));
    }));
    EXPECT_EQ(held("document"), folder.filePath(QStringLiteral("picture.pdf")).toStdString());
    EXPECT_TRUE(withFileDialog(click("picture"),
                               [&](QFileDialog& dialog) { enterFileName(dialog, QStringLiteral("picture")); }));
    EXPECT_EQ(held("picture"), folder.filePath(QStringLiteral("picture.png")).toStdString());
    EXPECT_TRUE(withFileDialog(click("palette"), [&](QFileDialog& dialog) {
        EXPECT_EQ(dialog.directory(), QDir(folder.path()));
        dialog.reject();
    }));
}

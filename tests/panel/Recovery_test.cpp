#include "support/FullDisk.hpp"
#include "support/VirtualTime.hpp"
#include "UnsavedChangesTest.hpp"

#include <lattice/TypedParameter.hpp>
#include <panel/window/NoticeBar.hpp>
#include <panel/window/Recovery.hpp>
#include <QJsonDocument>
#include <QJsonObject>
#include <QSignalSpy>

using testing::HasSubstr;

namespace {

class RecoveryTest : public UnsavedChangesTest {
protected:
    void SetUp() override {
        UnsavedChangesTest::SetUp();
        recovery = std::make_unique<Panel::Recovery>(window->document(), states());
    }
    void TearDown() override {
        recovery.reset();
        UnsavedChangesTest::TearDown();
    }

    QString states() const { return folder.filePath(QStringLiteral("states")); }
    QStringList kept() const { return QDir(states()).entryList({QStringLiteral("*.json")}, QDir::Files); }
    QJsonObject keptValues() const {
        auto const content = QJsonDocument::fromJson(bytesOf(states() + '/' + kept().value(0))).object();
        return content.value(QStringLiteral("values")).toObject();
    }
    /// Lets so many milliseconds pass, at once.
    static void pass(int milliseconds) {
        VirtualTime const time;
        QEventLoop loop;
        QTimer::singleShot(milliseconds, Qt::PreciseTimer, &loop, &QEventLoop::quit);
        loop.exec();
    }
    bool isKept() const {
        pass(4000);
        return !kept().isEmpty();
    }
    /// A network that was never saved.
    static std::unique_ptr<Talo::Network> newNetwork() {
        auto network = Talo::Network::create(QStringLiteral("New"), {"day"});
        network->addObject("lamp", {Kolt::Parameter<bool>("on", false)});
        return network;
    }
    /// Destroys the panel without closing it, and opens its file in another one.
    void crash() {
        auto const opened = window->document().path();
        recovery.reset();
        window = std::make_unique<Panel::MainWindow>(plugins);
        ASSERT_TRUE(window->openNetwork(opened));
        window->show();
        recovery = std::make_unique<Panel::Recovery>(window->document(), states());
    }
    /// Starts the recovery and answers its question by the button. Returns whether it asked.
    bool answerQuestion(char const* button) {
        bool asked = false;
        QTimer timer;
        QObject::connect(&timer, &QTimer::timeout, &timer, [&] {
            if (auto* const box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget())) {
                auto* const chosen = box->findChild<QPushButton*>(QLatin1String(button));
                QTest::keyClick(box, Qt::Key_Escape);
                if (!chosen)
                    return;
                asked = true;
                question = box->text() + ' ' + box->informativeText();
                EXPECT_TRUE(box->isVisible()) << "the question must be answered";
                QTest::mouseClick(chosen, Qt::LeftButton);
            }
        });
        timer.start(0);
        window->follow(*recovery);
        QTest::qWait(50);
        return asked;
    }

    std::unique_ptr<Panel::Recovery> recovery;
    QString question;
};

} // namespace

TEST_F(RecoveryTest, KeepsWhatWasUnsavedBeforeItWasThere) {
    recovery.reset();
    set("all.int", "99");
    ASSERT_TRUE(isMarked()) << "from now on nothing changes";
    recovery = std::make_unique<Panel::Recovery>(window->document(), states());
    ASSERT_TRUE(isKept());
    EXPECT_TRUE(keptValues().contains("all.int"));
}

TEST_F(RecoveryTest, KeepsWhatIsUnsavedAFewSecondsAfterAnEdit) {
    edit();
    pass(2000);
    EXPECT_TRUE(kept().isEmpty()) << "edits that follow each other are written together";
    pass(2000);
    ASSERT_FALSE(kept().isEmpty());
    EXPECT_EQ(keptValues(), (QJsonObject{{"all.enum", QJsonObject{{"value", "Blue"}}}}));
    action("undo")->trigger();
    EXPECT_TRUE(waitUntil([this] { return kept().isEmpty(); })) << "nothing is unsaved any more";
}

TEST_F(RecoveryTest, KeepsWhatIsUnsavedWhileEditsGoOn) {
    for (auto const* const number : {"1", "2", "3", "4", "5"}) {
        set("all.int", number);
        pass(1000);
    }
    EXPECT_FALSE(kept().isEmpty());
}

TEST_F(RecoveryTest, ForgetsWhatIsSaved) {
    edit();
    ASSERT_TRUE(isKept());
    ASSERT_TRUE(window->saveValues(file()));
    EXPECT_TRUE(kept().isEmpty());
}

TEST_F(RecoveryTest, RestoresValuesThatAPanelLeftBehind) {
    edit();
    set("all.int", "99");
    recovery->write();
    auto const edited = valuesNow();
    crash();
    EXPECT_NE(valuesNow(), edited);
    EXPECT_TRUE(answerQuestion("restore"));
    EXPECT_THAT(question.toStdString(), HasSubstr("Values"));
    EXPECT_THAT(question.toStdString(),
                HasSubstr(QLocale().toString(QDate::currentDate(), QLocale::ShortFormat).toStdString()));
    EXPECT_EQ(valuesNow(), edited);
    EXPECT_TRUE(isMarked());
    EXPECT_EQ(kept().size(), 1) << "they are still not saved";
    EXPECT_THAT(row("enum")->modifiedIndicator()->toolTip().toStdString(), HasSubstr("Default: Red"));
}

TEST_F(RecoveryTest, GivesUpWhatIsDiscarded) {
    edit();
    recovery->write();
    crash();
    EXPECT_TRUE(answerQuestion("discard"));
    EXPECT_EQ(held("enum"), "Red");
    EXPECT_TRUE(kept().isEmpty());
    crash();
    EXPECT_FALSE(answerQuestion("discard"));
}

TEST_F(RecoveryTest, ValuesWithoutADecisionAreKept) {
    edit();
    recovery->write();
    crash();
    window->document().checkModified();
    crash();
    EXPECT_TRUE(answerQuestion("restore"));
    EXPECT_EQ(held("enum"), "Blue");
}

TEST_F(RecoveryTest, WhatTheFileNoLongerHasIsReported) {
    edit();
    set("all.int", "99");
    recovery->write();
    auto bytes = bytesOf(file());
    QFile changed(file());
    ASSERT_TRUE(changed.open(QIODevice::WriteOnly));
    changed.write(bytes.replace("\"Blue\"", "\"Grey\""));
    changed.close();
    crash();
    EXPECT_TRUE(answerQuestion("restore"));
    EXPECT_EQ(held("int"), "99");
    EXPECT_EQ(held("enum"), "Red");
    EXPECT_THAT(window->messages()->texts(Panel::MessageList::Source::Error).join(' ').toStdString(),
                HasSubstr("all.enum"));
}

TEST_F(RecoveryTest, ASecondPanelSaysSoAndKeepsItsOwn) {
    EXPECT_FALSE(recovery->isOpenElsewhere());
    edit();
    recovery->write();
    Panel::MainWindow second(plugins);
    ASSERT_TRUE(second.openNetwork(file()));
    second.show();
    Panel::Recovery others(second.document(), states());
    EXPECT_TRUE(others.isOpenElsewhere());
    EXPECT_FALSE(others.found().written.isValid()) << "the first panel still has its values";
    second.follow(others);
    auto const* const notice = second.findChild<Panel::NoticeBar*>();
    EXPECT_TRUE(waitUntil([&] { return notice->isVisible(); }));
    EXPECT_THAT(notice->accessibleName().toStdString(), HasSubstr("another panel"));
    QString error;
    ASSERT_TRUE(second.network()->setText("all.int", "7", second.pools().pool(), &error));
    others.write();
    EXPECT_EQ(kept().size(), 2);
    ASSERT_TRUE(second.openNetwork(networkFile("other.json", lamps)));
    EXPECT_FALSE(others.isOpenElsewhere()) << "nobody else has the other network open";
}

TEST_F(RecoveryTest, AnotherNetworkHasFilesOfItsOwn) {
    edit();
    recovery->write();
    ASSERT_TRUE(window->openNetwork(networkFile("other.json", lamps)));
    EXPECT_TRUE(kept().isEmpty()) << "whoever opened it was asked before";
    EXPECT_FALSE(recovery->isOpenElsewhere());
    set("lamp.steady", "false");
    recovery->write();
    EXPECT_TRUE(keptValues().contains("lamp.steady"));
}

TEST_F(RecoveryTest, APanelThatIsOpenForLongIsStillThere) {
    auto const locks = QDir(states()).entryInfoList({QStringLiteral("*.lock")}, QDir::Files);
    ASSERT_EQ(locks.size(), 1);
    QFile lock(locks.front().filePath());
    ASSERT_TRUE(lock.open(QIODevice::ReadWrite));
    ASSERT_TRUE(lock.setFileTime(QDateTime::currentDateTime().addDays(-1), QFileDevice::FileModificationTime));
    lock.close();
    Panel::Recovery const others(window->document(), states());
    EXPECT_TRUE(others.isOpenElsewhere());
}

TEST_F(RecoveryTest, FindsWhatTheThirdOfThreePanelsLeftBehind) {
    auto second = std::make_unique<Panel::Recovery>(window->document(), states());
    auto third = std::make_unique<Panel::Recovery>(window->document(), states());
    edit();
    third->write();
    second.reset();
    third.reset();
    crash();
    EXPECT_TRUE(recovery->found().written.isValid());
}

TEST_F(RecoveryTest, FollowsANetworkThatIsSavedElsewhere) {
    edit();
    recovery->write();
    ASSERT_TRUE(window->saveValues(folder.filePath(QStringLiteral("elsewhere.json"))));
    EXPECT_TRUE(kept().isEmpty());
    set("all.int", "99");
    recovery->write();
    crash();
    EXPECT_TRUE(window->document().path().endsWith(QStringLiteral("elsewhere.json")));
    EXPECT_TRUE(answerQuestion("restore"));
    EXPECT_EQ(held("int"), "99");
    EXPECT_EQ(held("enum"), "Blue");
}

TEST_F(RecoveryTest, TheSameNetworkOpenedAgainIsNoSecondPanel) {
    ASSERT_TRUE(window->openNetwork(file()));
    EXPECT_FALSE(recovery->isOpenElsewhere());
    edit();
    recovery->write();
    EXPECT_EQ(kept().size(), 1);
}

TEST_F(RecoveryTest, WhatWasFoundIsNotThatOfANetworkWithoutAFile) {
    edit();
    recovery->write();
    crash();
    ASSERT_TRUE(recovery->found().written.isValid());
    window->showNetwork(newNetwork());
    EXPECT_FALSE(recovery->found().written.isValid());
    EXPECT_EQ(kept().size(), 1) << "nobody decided about it";
}

TEST_F(RecoveryTest, KeepsNothingOfANetworkWithoutAFile) {
    window->showNetwork(newNetwork());
    set("lamp.on", "true");
    ASSERT_TRUE(isMarked());
    recovery->write();
    EXPECT_TRUE(kept().isEmpty());
}

TEST_F(RecoveryTest, AFolderThatCannotBeMadeIsReportedOnce) {
    recovery.reset();
    ASSERT_TRUE(QDir(states()).removeRecursively());
    ASSERT_TRUE(QFile::copy(file(), states()));
    recovery = std::make_unique<Panel::Recovery>(window->document(), states());
    QSignalSpy const reasons(recovery.get(), &Panel::Recovery::failed);
    edit();
    recovery->write();
    recovery->write();
    ASSERT_EQ(reasons.size(), 1);
    EXPECT_THAT(reasons[0][0].toString().toStdString(), HasSubstr(states().toStdString()));
    ASSERT_TRUE(window->openNetwork(networkFile("other.json", lamps)));
    set("lamp.steady", "false");
    recovery->write();
    EXPECT_EQ(reasons.size(), 2) << "once for each network";
}

TEST_F(RecoveryTest, AFullDiskIsReportedOnce) {
    QSignalSpy const reasons(recovery.get(), &Panel::Recovery::failed);
    edit();
    {
        FullDisk const disk(10);
        recovery->write();
        recovery->write();
    }
    ASSERT_EQ(reasons.size(), 1);
    EXPECT_THAT(reasons[0][0].toString().toStdString(), HasSubstr(states().toStdString()));
    EXPECT_TRUE(kept().isEmpty());
}

#include "support/TaloTest.hpp"

#include <gtest/gtest-spi.h>
#include <iostream>
#include <memory>
#include <QApplication>
#include <QLabel>
#include <QStandardPaths>
#include <QStyle>
#include <QTimer>
#include <thread>

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class TestBase : public TaloTest {};

TEST_F(TestBase, LinesOfEveryWriterAreTakenInOrder) {
    std::printf("from printf\n");
    std::cout << "from a stream\n";
    std::puts("from puts");
    EXPECT_THAT(takeOutput(), ElementsAre("from printf", "from a stream", "from puts"));
    EXPECT_THAT(takeOutput(), IsEmpty());
}

TEST_F(TestBase, LinesOfAChildProcessAreTaken) {
    ASSERT_EQ(std::system("echo from a child"), 0);
    EXPECT_THAT(takeOutput(), ElementsAre("from a child"));
}

TEST_F(TestBase, EmptyAndUnfinishedLinesAreLines) {
    std::printf("\nfirst\n\nunfinished");
    EXPECT_THAT(takeOutput(), ElementsAre("", "first", "", "unfinished"));
}

TEST_F(TestBase, TextThatIsNotFlushedIsNotWritten) {
    std::printf("kept back\n");
    EXPECT_EQ(takeWrittenOutput(), "");
    std::fflush(stdout);
    EXPECT_EQ(takeWrittenOutput(), "kept back\n");
}

TEST_F(TestBase, AnExpectedWarningIsNoFailure) {
    expectQtWarning("^careful, \\d+$");
    expectQtWarning("worse");
    qCritical("worse than that");
    qWarning("careful, 12");
}

TEST_F(TestBase, DebugMessagesAreNoFailure) {
    qDebug("a debug message of the test");
    qInfo("a piece of information of the test");
}

TEST_F(TestBase, AWidgetDeletedLaterDoesNotSurvive) {
    (new QLabel(QStringLiteral("leaving")))->deleteLater();
}

TEST_F(TestBase, WaitingHandlesEventsUntilTheConditionHolds) {
    auto fired = false;
    QTimer::singleShot(0, qApp, [&] { fired = true; });
    EXPECT_TRUE(waitUntil([&] { return fired; }));
    EXPECT_FALSE(waitUntil([] { return false; }, 1));
}

TEST_F(TestBase, LookAndFontAreFixed) {
    EXPECT_TRUE(QApplication::style()->objectName() == QLatin1String("fusion"));
    EXPECT_EQ(QFontInfo(QApplication::font()).family(), QStringLiteral("DejaVu Sans"));
    EXPECT_EQ(QFontInfo(QApplication::font()).pixelSize(), 10);
    EXPECT_EQ(QApplication::cursorFlashTime(), 0);
}

TEST_F(TestBase, HomeIsAFreshFolderOfTheBuild) {
    auto const home = QDir(QDir::homePath());
    EXPECT_TRUE(home.exists());
    EXPECT_TRUE(home.path().contains(QStringLiteral("/tests/homes/home-"))) << qPrintable(home.path());
    for (auto const location : {QStandardPaths::ConfigLocation, QStandardPaths::AppDataLocation,
                                QStandardPaths::CacheLocation, QStandardPaths::RuntimeLocation}) {
        auto const path = QStandardPaths::writableLocation(location);
        EXPECT_TRUE(path.startsWith(home.path())) << qPrintable(path);
    }
    EXPECT_THAT(QDir(QStandardPaths::writableLocation(QStandardPaths::ConfigLocation)).entryList(QDir::Files),
                IsEmpty());
}

class MemberOfDerivedFixture : public TaloTest {
protected:
    QLabel label_;
};

TEST_F(MemberOfDerivedFixture, IsNoSurvivingWidget) {
    EXPECT_EQ(QApplication::topLevelWidgets().count(&label_), 1);
}

// A fixture that a plain test constructs in order to break a rule.
class Guarded : public TaloTest {
public:
    void TestBody() override {}
    using TaloTest::expectQtWarning;
    using TaloTest::takeOutput;
};

TEST(TestBaseFails, ForALineOnStandardOutput) {
    EXPECT_NONFATAL_FAILURE(
        {
            Guarded const test;
            std::printf("nobody takes me\n");
        },
        "unexpected line on standard output: nobody takes me");
}

TEST(TestBaseFails, ForAWarning) {
    EXPECT_NONFATAL_FAILURE(
        {
            Guarded const test;
            qWarning("careful");
        },
        "unexpected Qt message: careful");
}

TEST(TestBaseFails, ForACriticalMessageOfAThread) {
    EXPECT_NONFATAL_FAILURE(
        {
            Guarded const test;
            std::thread([] { qCritical("in a thread"); }).join();
        },
        "unexpected Qt message: in a thread");
}

TEST(TestBaseFails, ForAWarningThatComesOnceMoreThanExpected) {
    EXPECT_NONFATAL_FAILURE(
        {
            Guarded test;
            test.expectQtWarning("again");
            qWarning("again");
            qWarning("again");
        },
        "unexpected Qt message: again");
}

TEST(TestBaseFails, ForAnExpectedWarningThatDoesNotCome) {
    EXPECT_NONFATAL_FAILURE(
        {
            Guarded test;
            test.expectQtWarning("promised");
        },
        "this Qt message did not come: promised");
}

TEST(TestBaseFails, ForASurvivingWidgetAndOnlyOnce) {
    static std::unique_ptr<QWidget> survivor;
    EXPECT_NONFATAL_FAILURE(
        {
            Guarded const test;
            survivor = std::make_unique<QWidget>();
            survivor->setObjectName(QStringLiteral("survivor"));
            new QLabel(survivor.get());
        },
        "surviving widget: QWidget 'survivor' with 1 widgets in it");
    { Guarded const next; }
    survivor.reset();
}

} // namespace

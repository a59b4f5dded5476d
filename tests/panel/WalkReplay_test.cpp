// Runs the random walk as a program: its seed alone decides what it does, and a log is replayed as it was.

#include "support/TaloTest.hpp"

#include <QProcess>
#include <QTemporaryDir>

namespace {

class WalkReplayTest : public TaloTest {
protected:
    /// Walks in a process of its own, with this in its environment; the log that it leaves in a new folder.
    QString walk(char const* name, QString const& value) {
        auto const logs = folder.filePath(QString::number(++runs_));
        QProcess process;
        auto environment = QProcessEnvironment::systemEnvironment();
        environment.insert(QLatin1String(name), value);
        environment.insert(QStringLiteral("TALO_WALK_EVENTS"), QStringLiteral("300"));
        environment.insert(QStringLiteral("TALO_WALK_LOGS"), logs);
        process.setProcessEnvironment(environment);
        process.start(QStringLiteral(TALO_WALK), {QStringLiteral("--gtest_filter=Plans/*")});
        EXPECT_TRUE(process.waitForFinished(120'000));
        EXPECT_EQ(process.exitCode(), 0) << process.readAll().toStdString();
        auto const made = QDir(logs).entryList(QDir::Files);
        return made.size() == 1 ? logs + QLatin1Char('/') + made.front() : QString();
    }

    static std::string contentOf(QString const& file) {
        QFile log(file);
        EXPECT_TRUE(log.open(QIODevice::ReadOnly));
        return log.readAll().toStdString();
    }

    QTemporaryDir const folder;

private:
    int runs_ = 0;
};

} // namespace

TEST_F(WalkReplayTest, TheSameSeedMakesTheSameLogTwiceAndAnotherOneAnother) {
    auto const first = contentOf(walk("TALO_WALK_SEED", QStringLiteral("5")));
    EXPECT_GT(first.size(), 300U * 10);
    EXPECT_EQ(first, contentOf(walk("TALO_WALK_SEED", QStringLiteral("5"))));
    EXPECT_NE(first, contentOf(walk("TALO_WALK_SEED", QStringLiteral("6"))));
}

TEST_F(WalkReplayTest, ALogIsReplayedAsItWas) {
    auto const log = walk("TALO_WALK_SEED", QStringLiteral("5"));
    EXPECT_EQ(contentOf(log), contentOf(walk("TALO_WALK_REPLAY", log)));
}

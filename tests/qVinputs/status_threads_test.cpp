#include "support/TaloTest.hpp"

#include <QProcess>

namespace {

/// Runs the program that is built with the thread sanitizer.
class StatusThreads : public TaloTest {
protected:
    void run(QStringList const& arguments) {
        QProcess process;
        process.setProcessChannelMode(QProcess::MergedChannels);
        process.start(QStringLiteral(TALO_STATUS_THREADS), arguments);
        ASSERT_TRUE(process.waitForFinished(-1)) << qPrintable(process.errorString());
        EXPECT_EQ(process.exitStatus(), QProcess::NormalExit);
        exitCode = process.exitCode();
        output = process.readAll().toStdString();
    }

    int exitCode = -1;
    std::string output;
};

TEST_F(StatusThreads, HaveNoRaceWithTheDisplay) {
    run({});
    EXPECT_EQ(exitCode, 0);
    EXPECT_EQ(output, "");
}

TEST_F(StatusThreads, RaceWithADisplayThatStaysInTheDelivery) {
    run({QStringLiteral("--stay-in-delivery")});
    EXPECT_NE(exitCode, 0);
    EXPECT_THAT(output, testing::HasSubstr("WARNING: ThreadSanitizer: data race"));
}

} // namespace

#include "support/TaloTest.hpp"

#include <QProcess>

namespace {

struct Run {
    int status;
    std::string output;
};

Run runPlanted(QString const& filter) {
    QProcess process;
    // Someone who runs the tests may have them stop at the first failure. This program has to run all of its tests.
    auto environment = QProcessEnvironment::systemEnvironment();
    environment.remove(QStringLiteral("GTEST_FAIL_FAST"));
    process.setProcessEnvironment(environment);
    process.start(QStringLiteral(TALO_PLANTED_FAULTS), {QStringLiteral("--gtest_filter=") + filter});
    if (!process.waitForFinished() || process.exitStatus() != QProcess::NormalExit) {
        ADD_FAILURE() << qPrintable(process.errorString());
    }
    return {process.exitCode(), process.readAllStandardOutput().toStdString()};
}

struct PlantedFault {
    char const* test;
    char const* message;
};

void PrintTo(PlantedFault const& fault, std::ostream* stream) {
    *stream << fault.test;
}

class PlantedFaults : public TaloTest, public testing::WithParamInterface<PlantedFault> {};

TEST_P(PlantedFaults, FailTheProgramAndReachTheTerminal) {
    auto const run = runPlanted(QStringLiteral("Planted.%1").arg(QString::fromLatin1(GetParam().test)));
    EXPECT_EQ(run.status, 1);
    EXPECT_THAT(run.output, testing::HasSubstr(GetParam().message));
}

INSTANTIATE_TEST_SUITE_P(
    Each, PlantedFaults,
    testing::Values(PlantedFault{"Line", "unexpected line on standard output: a line that nobody takes"},
                    PlantedFault{"Warning", "unexpected Qt message: a warning that nobody expects"},
                    PlantedFault{"Widget", "surviving widget: QLabel"}, PlantedFault{"Assertion", "shown at once"}),
    [](auto const& fault) { return std::string(fault.param.test); });

class PlantedFaultsTogether : public TaloTest {};

TEST_F(PlantedFaultsTogether, LeaveASoundTestSound) {
    auto const run = runPlanted(QStringLiteral("*"));
    EXPECT_EQ(run.status, 1);
    EXPECT_THAT(run.output, testing::HasSubstr("[       OK ] Planted.SoundTestAfterTheOthers"));
    EXPECT_THAT(run.output, testing::HasSubstr("4 FAILED TESTS"));
    EXPECT_THAT(run.output, testing::Not(testing::HasSubstr("\nheld back")));
}

TEST_F(PlantedFaultsTogether, AProgramThatRunsNoTestFails) {
    EXPECT_EQ(runPlanted(QStringLiteral("NoSuchTest")).status, 1);
}

} // namespace

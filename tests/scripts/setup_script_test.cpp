#include "artefact/run_program.hpp"
#include "support/TaloTest.hpp"

#include <filesystem>
#include <QTemporaryDir>
#include <regex>

namespace {

/// Runs scripts/setup as on a system without Debian's tools: no program but the shell is found.
ProgramRun setUp(std::string const& groups, std::string const& environment = {}) {
    QTemporaryDir const programs;
    std::filesystem::create_symlink("/bin/bash", programs.filePath("bash").toStdString());
    return runProgram("PATH=" + quoted(programs.path().toStdString()) + " " + environment + " /bin/bash " +
                      quoted(TALO_SOURCES "/scripts/setup") + " " + groups + " 2>&1");
}

std::string textOf(ProgramRun const& run) {
    std::string text;
    for (auto const& line : run.lines)
        text += line + '\n';
    return text;
}

class SetupScript : public TaloTest {};

} // namespace

TEST_F(SetupScript, NamesWhatIsNeededWhereThereIsNoDebian) {
    auto const run = setUp("build test");
    EXPECT_EQ(run.status, 1);
    auto const text = textOf(run);
    for (auto const* const purpose : {"a compiler for C++17", "CMake 3.25", "Qt 5.15 with its development files",
                                      "GoogleTest and GoogleMock", "TALO_SKIP_SETUP=1"})
        EXPECT_THAT(text, testing::HasSubstr(purpose));
    // These names are Debian's alone.
    EXPECT_FALSE(std::regex_search(text, std::regex("-dev\\b|libgtest|qtbase5|ninja-build"))) << text;
}

TEST_F(SetupScript, NamesOnlyTheGroupsThatAreAskedFor) {
    auto const text = textOf(setUp("build"));
    EXPECT_THAT(text, testing::Not(testing::HasSubstr("GoogleTest")));
    EXPECT_THAT(textOf(setUp("qt6")), testing::HasSubstr("Qt 6.4 with its development files"));
}

TEST_F(SetupScript, IsSilentWhenItIsToldThatAllIsThere) {
    auto const run = setUp("build test check", "TALO_SKIP_SETUP=1");
    EXPECT_EQ(run.status, 0);
    EXPECT_EQ(textOf(run), "");
}

TEST_F(SetupScript, RefusesAGroupThatDoesNotExist) {
    auto const run = setUp("sprockets");
    EXPECT_EQ(run.status, 2);
    EXPECT_THAT(textOf(run), testing::HasSubstr("there is no group 'sprockets'"));
}

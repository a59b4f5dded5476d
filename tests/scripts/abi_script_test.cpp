// The stamp of the host's interface is that of its headers, and another layout has another stamp.

#include "artefact/run_program.hpp"
#include "support/TaloTest.hpp"

#include <filesystem>
#include <fstream>

namespace {

namespace fs = std::filesystem;

/// Works on a copy of the host's headers.
class InterfaceStamps : public TaloTest {
protected:
    void SetUp() override {
        copy_ = fs::path(getenv("HOME")) / testing::UnitTest::GetInstance()->current_test_info()->name();
        fs::copy(TALO_SOURCES "/host", copy_, fs::copy_options::recursive);
    }
    static ProgramRun abi(std::string const& arguments) {
        return runProgram(quoted(TALO_SOURCES "/scripts/abi") + " " + arguments + " 2>&1");
    }
    void replace(char const* header, std::string const& before, std::string const& after) const {
        auto const file = copy_ / "lattice" / header;
        std::ostringstream content;
        content << std::ifstream(file).rdbuf();
        auto text = content.str();
        auto const place = text.find(before);
        ASSERT_NE(place, std::string::npos) << before;
        std::ofstream(file) << text.replace(place, before.size(), after);
    }
    fs::path copy_;
};

TEST_F(InterfaceStamps, TheStampIsThatOfTheHeaders) {
    auto const run = abi("--check");
    EXPECT_EQ(run.status, 0) << testing::PrintToString(run.lines);
}

TEST_F(InterfaceStamps, WhatChangesNoLayoutChangesNoStamp) {
    replace("ValueBase.hpp",
            "private:", "    // A comment.\n    int numberOfNothing() const { return 0; }\n\nprivate:");
    EXPECT_EQ(abi("--check " + quoted(copy_.string())).status, 0);
}

TEST_F(InterfaceStamps, OneMoreVirtualFunctionIsAnotherInterface) {
    replace("ValueBase.hpp", "    virtual bool isEdited() const;",
            "    virtual void oneMore();\n    virtual bool isEdited() const;");
    auto const run = abi("--check " + quoted(copy_.string()));
    EXPECT_EQ(run.status, 1);
    EXPECT_THAT(run.lines, testing::ElementsAre(testing::HasSubstr("the stamp of the interface is ")));
    EXPECT_EQ(abi(quoted(copy_.string())).status, 0) << "writes it";
    EXPECT_EQ(abi("--check " + quoted(copy_.string())).status, 0);
}

TEST_F(InterfaceStamps, MembersInAnotherOrderAreAnotherInterface) {
    std::string const name = "    std::string const name_;\n";
    std::string const value = "    ValuePtr const ownValue_;\n";
    replace("Parameter.hpp", name + value, value + name);
    EXPECT_EQ(abi("--check " + quoted(copy_.string())).status, 1);
}

} // namespace

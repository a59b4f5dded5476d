#include "artefact/run_program.hpp"
#include "support/TaloTest.hpp"

#include <dlfcn.h>

namespace {

using testing::HasSubstr;
using testing::Not;

/// The plug-in file as it is shipped, and built with link-time optimisation.
class Symbols : public TaloTest, public testing::WithParamInterface<char const*> {
protected:
    static ProgramRun run(std::string const& command) {
        auto const run = runProgram(command + " " + quoted(GetParam()) + " 2>&1");
        EXPECT_EQ(run.status, 0) << command;
        EXPECT_FALSE(run.lines.empty()) << command;
        return run;
    }
};

TEST_P(Symbols, TheExportIsTheOnlySymbolThatOthersSee) {
    auto const lines = run(std::string(TALO_NM) + " -D --defined-only").lines;
    ASSERT_EQ(lines.size(), 1U) << testing::PrintToString(lines);
    EXPECT_THAT(lines[0], testing::EndsWith(" T TALO_API_2023_MAR_29__qtalo_inputs"));
}

TEST_P(Symbols, NoneIsUniqueInTheProcess) {
    auto const lines = run(std::string(TALO_READELF) + " -sW").lines;
    EXPECT_THAT(lines, testing::Contains(HasSubstr("TALO_API_2023_MAR_29__qtalo_inputs")));
    EXPECT_THAT(lines, testing::Each(Not(HasSubstr("UNIQUE"))));
}

TEST_P(Symbols, NoneDestroysWhatAValueHolds) {
    // The content of a value may outlive the file whose code created it.
    auto const lines = run(std::string(TALO_NM)).lines;
    EXPECT_THAT(lines, testing::Contains(HasSubstr("TALO_API_2023_MAR_29__qtalo_inputs")));
    EXPECT_THAT(lines, testing::Each(Not(HasSubstr("_ZTVSt23_Sp_counted_ptr_inplace"))));
}

TEST_P(Symbols, AllThatIsNeededIsFound) {
    auto const lines = run(std::string(TALO_LDD) + " -r").lines;
    EXPECT_THAT(lines, testing::Contains(HasSubstr("libtessera.so")));
    EXPECT_THAT(lines, testing::Each(testing::AllOf(Not(HasSubstr("undefined symbol")), Not(HasSubstr("not found")))));
}

TEST_P(Symbols, TheLoaderResolvesEverythingAtOnce) {
    void* const handle = dlopen(GetParam(), RTLD_NOW | RTLD_LOCAL);
    ASSERT_NE(handle, nullptr) << dlerror();
    EXPECT_EQ(dlclose(handle), 0);
    EXPECT_EQ(dlopen(GetParam(), RTLD_LAZY | RTLD_NOLOAD), nullptr) << "the file stays mapped";
}

INSTANTIATE_TEST_SUITE_P(Files, Symbols, testing::Values(TALO_PLUGIN_FILES),
                         [](auto const& test) { return test.index == 0 ? "AsShipped" : "LinkTimeOptimised"; });

class HostLibraries : public TaloTest, public testing::WithParamInterface<char const*> {};

TEST_P(HostLibraries, BelowTheQtSideNeedNoQt) {
    auto const run = runProgram(std::string(TALO_READELF) + " -dW " +
                                quoted(TALO_LIBRARIES "/lib" + std::string(GetParam()) + ".so"));
    EXPECT_EQ(run.status, 0);
    EXPECT_THAT(run.lines, testing::Contains(testing::AllOf(HasSubstr("NEEDED"), HasSubstr("libstdc++"))));
    EXPECT_THAT(run.lines, testing::Each(Not(testing::AllOf(HasSubstr("NEEDED"), HasSubstr("Qt")))));
}

INSTANTIATE_TEST_SUITE_P(Libraries, HostLibraries, testing::Values("tessera", "lattice", "bramble"),
                         [](auto const& test) { return std::string(test.param); });

} // namespace

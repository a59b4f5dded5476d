#include "artefact/run_program.hpp"
#include "support/TaloTest.hpp"

#include <filesystem>
#include <fstream>
#include <map>

namespace {

namespace fs = std::filesystem;

/// The script, in a copy of the tree to which it has added the editors SampleNumber and SampleText.
class NewEditorScript : public TaloTest {
protected:
    static fs::path copy() { return TALO_COPY; }

    static std::string contents(fs::path const& file) {
        std::ifstream stream(file);
        EXPECT_TRUE(stream) << file;
        return {std::istreambuf_iterator<char>(stream), {}};
    }
    static std::map<std::string, std::string> allContents() {
        std::map<std::string, std::string> all;
        for (auto const& entry : fs::recursive_directory_iterator(copy())) {
            if (entry.is_regular_file())
                all[entry.path().string()] = contents(entry.path());
        }
        return all;
    }
    static ProgramRun run(std::string const& arguments) {
        return runProgram(quoted((copy() / "scripts/new_editor").string()) + " " + arguments + " 2>&1");
    }

    /// Checks that the script refuses with one line and changes nothing.
    static void expectRefusal(std::string const& arguments, std::string const& sentence) {
        auto const before = allContents();
        auto const refused = run(arguments);
        EXPECT_EQ(refused.status, 2) << arguments;
        EXPECT_THAT(refused.lines, testing::ElementsAre("scripts/new_editor: " + sentence));
        EXPECT_TRUE(allContents() == before) << arguments << " changed a file";
    }
    /// Checks that a file of the copy has one more line, right after another one.
    static void expectLine(std::string const& file, std::string const& line, std::string const& before) {
        EXPECT_THAT(contents(copy() / file), testing::HasSubstr("\n" + before + "\n" + line + "\n")) << file;
        EXPECT_THAT(contents(fs::path(TALO_SOURCES) / file), testing::Not(testing::HasSubstr(line))) << file;
    }
};

TEST_F(NewEditorScript, NamesTheEditorWhereverEditorsAreListed) {
    expectLine("plugin/Sources.cmake", "    SampleNumber\n    SampleText", "    qVStringList");
    expectLine("tests/qVinputs/CMakeLists.txt", "talo_test(SampleText_test SampleText_test.cpp LINK sorrel PLUGIN)",
               "talo_test(SampleNumber_test SampleNumber_test.cpp LINK sorrel PLUGIN)");
    expectLine("tests/contract/CMakeLists.txt", "    SampleNumberEditors.cpp\n    SampleTextEditors.cpp",
               "    NumberEditors.cpp");
    expectLine("benchmarks/CMakeLists.txt", "    SampleNumber_editors.cpp\n    SampleText_editors.cpp",
               "    RatioReporter.hpp");
}

TEST_F(NewEditorScript, WantsTwoArguments) {
    auto const* const sentence =
        "wants the name of the class and the type of its values, as in: scripts/new_editor QSpin int";
    expectRefusal("", sentence);
    expectRefusal("Sample", sentence);
    expectRefusal("Sample int more", sentence);
}

TEST_F(NewEditorScript, WantsTheNameOfAClass) {
    for (auto const& name : std::vector<std::string>{"9lives", "a/b", "a b", "", "Sample.hpp"})
        expectRefusal(quoted(name) + " int",
                      "'" + name + "' is no name for a class: letters and digits, a letter first");
}

TEST_F(NewEditorScript, OverwritesNothing) {
    expectRefusal("QBool int", "there is qVinputs/basics/QBool.hpp already");
    expectRefusal("qbool int", "there is qVinputs/basics/QBool.hpp already");
    expectRefusal("Number int", "there is tests/contract/NumberEditors.cpp already");
}

TEST_F(NewEditorScript, KnowsSomeTypes) {
    expectRefusal("Sample float", "'float' is none of the types that it knows: bool, int, double, std::string");
    expectRefusal("Sample ''", "'' is none of the types that it knows: bool, int, double, std::string");
}

} // namespace

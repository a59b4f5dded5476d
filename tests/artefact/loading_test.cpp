#include "artefact/creators_table.hpp"
#include "artefact/run_program.hpp"
#include "support/TaloTest.hpp"

#include <algorithm>
#include <map>
#include <set>

namespace {

using testing::ElementsAreArray;
using testing::IsEmpty;
using testing::UnorderedElementsAreArray;

using Lines = std::vector<std::string>;

std::string inBraces(std::set<std::string> const& names) {
    std::string text;
    for (auto const& name : names)
        text += (text.empty() ? "" : ", ") + name;
    return "{" + text + "}";
}

std::string keyOf(CreatorRow const& row) {
    return row.valueType + "\t" + row.name + "\t" + inBraces({row.given.begin(), row.given.end()});
}

/// The lines that begin with a word, without the word, and the positions of the first and the last of them.
struct Events {
    Events(Lines const& all, std::string const& word) {
        for (std::size_t place = 0; place < all.size(); ++place) {
            if (all[place].rfind(word + "\t", 0) != 0 && all[place] != word)
                continue;
            if (lines.empty())
                first = place;
            last = place;
            lines.push_back(all[place] == word ? std::string() : all[place].substr(word.size() + 1));
        }
    }
    Lines lines;
    std::size_t first = 0;
    std::size_t last = 0;
};

/// The plug-in file as it is shipped, and built with link-time optimisation.
class Loading : public TaloTest, public testing::WithParamInterface<char const*> {
protected:
    static Lines run(std::string const& mode) {
        auto const run = runProgram(quoted(TALO_PLUGIN_PROCESS) + " " + quoted(GetParam()) + " " + mode);
        EXPECT_EQ(run.status, 0) << testing::PrintToString(run.lines);
        return run.lines;
    }

    static Lines tableKeys() {
        Lines keys;
        for (auto const& row : creatorsTable())
            keys.push_back(keyOf(row));
        return keys;
    }

    /// Checks the order of loading and unloading: creators, attach, and after the line `end` detach, then the creators
    /// in reverse order.
    static void expectOrder(Lines const& lines, std::string const& end) {
        Events const values(lines, "value creator");
        Events const registered(lines, "registered");
        Events const called(lines, "called");
        Events const ending(lines, end);
        Events const unregistered(lines, "unregistered");

        EXPECT_THAT(values.lines, UnorderedElementsAreArray({"double", "int", "Tessera::StrongPtr<Kolt::VAction>"}));
        EXPECT_THAT(registered.lines, UnorderedElementsAreArray(tableKeys()));
        EXPECT_THAT(called.lines,
                    ElementsAreArray({"0\tqtalo_inputs\tTALO_API_VERSION", "1\tqtalo_inputs\tTALO_API_VERSION"}));
        ASSERT_THAT(ending.lines, testing::SizeIs(1));
        EXPECT_LT(values.last, called.first) << "attach comes after every value creator";
        EXPECT_LT(registered.last, called.first) << "attach comes after every creator";
        EXPECT_LT(called.first, ending.first);
        EXPECT_LT(ending.first, called.last);
        EXPECT_LT(called.last, unregistered.first) << "detach comes before any creator goes";

        Lines gone;
        for (auto const& line : registered.lines)
            gone.push_back(line.substr(0, line.rfind('\t')));
        std::reverse(gone.begin(), gone.end());
        EXPECT_THAT(unregistered.lines, ElementsAreArray(gone));
    }
};

TEST_P(Loading, RegistersThenAttachesThenDetachesThenUnregistersWhenClosed) {
    auto const lines = run("close");
    expectOrder(lines, "closing");
    EXPECT_EQ(lines.back(), "closed") << "nothing is left in the registry";
}

TEST_P(Loading, RegistersThenAttachesThenDetachesThenUnregistersAtTheEndOfTheProcess) {
    expectOrder(run("exit"), "leaving main");
}

TEST_P(Loading, RegistersTheRowsOfAModuleInTheirOrder) {
    Events const registered(run("close"), "registered");
    std::map<std::string, Lines> expected;
    for (auto const& row : creatorsTable())
        expected[row.module].push_back(keyOf(row));
    for (auto const& [module, keys] : expected) {
        Lines found;
        std::copy_if(
            registered.lines.begin(), registered.lines.end(), std::back_inserter(found),
            [&keys = keys](auto const& line) { return std::find(keys.begin(), keys.end(), line) != keys.end(); });
        EXPECT_THAT(found, ElementsAreArray(keys)) << module;
    }
}

TEST_P(Loading, LeavesEachCreatorWithItsSetAndQtItsPriorityKeyAndQtSide) {
    Lines expected;
    for (auto const& row : creatorsTable()) {
        std::set<std::string> names(row.given.begin(), row.given.end());
        names.insert("QT");
        expected.push_back(row.valueType + "\t" + row.name + "\t" + inBraces(names) +
                           "\t0\tTALO_API_VERSION\tQt widgets");
    }
    EXPECT_THAT(Events(run("close"), "stands").lines, UnorderedElementsAreArray(expected));
}

TEST_P(Loading, WarnsOnceOfARefusedCreatorAndGoesOn) {
    auto const lines = run("refused");
    std::string const types = " Kolt::VInputCreator<bool, Kolt::VInputCreatorBase> as input creator for type bool";
    EXPECT_THAT(Events(lines, "WARNING: Could not register" + types + "!").lines, testing::SizeIs(1));
    EXPECT_THAT(Events(lines, "host warning").lines, ElementsAreArray({"Could not register" + types}));
    EXPECT_THAT(Events(lines, "refused").lines, ElementsAreArray({"bool"}));

    auto rest = tableKeys();
    auto const refused = std::find(rest.begin(), rest.end(), "bool\tboolean\t{}");
    ASSERT_NE(refused, rest.end());
    rest.erase(refused);
    Events const registered(lines, "registered");
    EXPECT_THAT(registered.lines, UnorderedElementsAreArray(rest));
    EXPECT_THAT(Events(lines, "called").lines, testing::SizeIs(2));
    EXPECT_THAT(Events(lines, "unregistered").lines, testing::SizeIs(rest.size()));
    EXPECT_EQ(lines.back(), "stands\tbool\tboolean\t{}\t0\tTALO_API_VERSION\tno Qt widgets")
        << "the creator that stood in the way stays";
}

TEST_P(Loading, AThousandTimesLeavesNothingBehind) {
    EXPECT_THAT(run("cycles"), ElementsAreArray({"1000 cycles"}));
}

INSTANTIATE_TEST_SUITE_P(Files, Loading, testing::Values(TALO_PLUGIN_FILES),
                         [](auto const& test) { return test.index == 0 ? "AsShipped" : "LinkTimeOptimised"; });

class LoadingProcess : public TaloTest {};

TEST_F(LoadingProcess, FailsWhereTheFileCannotBeLoaded) {
    auto const run = runProgram(quoted(TALO_PLUGIN_PROCESS) + " /no/such/file.talo close");
    EXPECT_EQ(run.status, 1);
    EXPECT_THAT(run.lines, testing::ElementsAre(testing::HasSubstr("Cannot open the plug-in /no/such/file.talo")));
}

} // namespace

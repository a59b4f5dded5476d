// How many instructions the editors take beside those of bare Qt. Other programs do not disturb these counts, so a goal
// that fails here has a reason in the code.

#include "BenchmarkProgram.hpp"
#include "Counting.hpp"
#include "Figures.hpp"
#include "Sides.hpp"

#include <QCoreApplication>

namespace {

/// As many as stand on a usual form.
constexpr int editorCount = 10;

/// How often a change or an edit is counted.
constexpr int stepCount = 10;

/// Where the bare editor takes fewer instructions than this, the figure is how many more the plug-in's takes.
constexpr double nextToNothing = 40000;

/// How many more that may be: to make the value, lock the parameter and tell who listens.
double goalOfMore(std::string const& kind) {
    // Each box that is set is disconnected, and connected again as the last one that hears of it.
    if (kind == "checkboxes")
        return 11000;
    // Its tool tip is a property, a text that is converted each time.
    if (kind == "action")
        return 4500;
    // Its buttons report how they were set, and the value is written once more for that.
    if (kind == "enum")
        return 4000;
    // The text of its line is set once more.
    if (kind == "selection editable")
        return 8500;
    return 2500;
}

/// The ratio to the bare editor that is allowed elsewhere.
double goalOfRatio(std::string const& kind, std::string const& measure) {
    // It asks its parent to take its size anew, and the parent of the benchmark has nine more editors to draw.
    if (measure == "change" && kind.rfind("multiple selection", 0) == 0)
        return 7.0;
    // A number field shows zero before it shows its value, so that a text is laid out twice.
    return measure == "create" ? 1.2 : 1.1;
}

/// Counts what some steps take; the first ones, in which Qt remembers what it draws again and again, are left out.
template <typename Step>
void countSteps(std::string const& job, Step const& step) {
    for (int n = 0; n < 4; ++n)
        step(n % 2);
    counted(job, [&] {
        for (int n = 0; n < stepCount; ++n)
            step(n % 2);
    });
}

template <typename TheSide>
void countSide(BenchmarkCase const& benchmarkCase, std::string const& kind, std::string const& side) {
    auto const create = [&] {
        TheSide made(benchmarkCase, editorCount);
        EditorWindow window;
        window.fill(made, editorCount);
        window.show();
    };
    create();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    counted(kind + ", create/" + side, create);

    TheSide made(benchmarkCase, editorCount);
    EditorWindow window;
    window.fill(made, editorCount);
    window.show();
    auto const painted = [](auto const& step) {
        return [&step](int n) {
            step(n);
            QCoreApplication::processEvents();
        };
    };
    auto const change = [&](int n) { made.change(n); };
    auto const edit = [&](int n) { benchmarkCase.edit(window.first(), n); };
    countSteps(kind + ", change/" + side, painted(change));
    countSteps(kind + ", told/" + side, change);
    if (benchmarkCase.edit)
        countSteps(kind + ", edit/" + side, painted(edit));
}

int countAll() {
    for (auto const& benchmarkCase : benchmarkCases()) {
        auto kind = benchmarkCase.name;
        for (auto const& preference : benchmarkCase.preferences)
            kind += " " + preference;
        countSide<BareSide>(benchmarkCase, kind, "bare");
        countSide<PluginSide>(benchmarkCase, kind, "plug-in");
    }
    return 0;
}

/// Prints the line of a job, "kind, measure"; says whether its figure is above the goal.
bool reportJob(std::string const& job, double bare, double plugin) {
    auto const comma = job.rfind(", ");
    auto const kind = job.substr(0, comma);
    auto const measure = job.substr(comma + 2);
    if (measure != "create" && bare / stepCount < nextToNothing)
        return printFigure(job + ", instructions", (plugin - bare) / stepCount, goalOfMore(kind), "i");
    return printFigure(job + ", instructions", plugin / bare, goalOfRatio(kind, measure));
}

/// Prints the table; the status of the program.
int report(Counts const& counts) {
    int above = 0;
    std::string const bare = "/bare";
    for (auto const& [name, figures] : counts) {
        auto const place = name.rfind(bare);
        if (place == std::string::npos)
            continue;
        auto const job = name.substr(0, place);
        above += reportJob(job, figures.front(), counts.at(job + "/plug-in").front()) ? 1 : 0;
    }
    return above > 0 ? 1 : 0;
}

} // namespace

int main(int argc, char** argv) {
    return runBenchmarkProgram(argc, argv, [] { return isCounting() ? countAll() : report(countInValgrind({})); });
}

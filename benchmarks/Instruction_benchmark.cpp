// How many instructions the editors take beside those of bare Qt. Other programs do not disturb these counts, so a goal
// that fails here has a reason in the code.

#include "BenchmarkProgram.hpp"
#include "Figures.hpp"
#include "Sides.hpp"

#include <iostream>
#include <map>
#include <QApplication>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>
#include <QTextStream>
#include <valgrind/callgrind.h>

namespace {

/// As many as stand on a usual form.
constexpr int editorCount = 10;

/// Instructions of the bare and the plug-in's side of a job.
using Counts = std::map<std::string, std::map<std::string, double>>;

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
    return kind.rfind("multiple selection", 0) == 0 && measure == "change" ? 7.0 : 1.15;
}

/// Counts the instructions of `work` for this job, of which the name has a "/" before the side.
template <typename Work>
void count(std::string const& job, Work const& work) {
    CALLGRIND_ZERO_STATS;
    work();
    CALLGRIND_DUMP_STATS_AT(job.c_str());
}

/// Counts what some steps take; the first ones, in which Qt remembers what it draws again and again, are left out.
template <typename Step>
void countSteps(std::string const& job, Step const& step) {
    for (int n = 0; n < 4; ++n)
        step(n % 2);
    count(job, [&] {
        for (int n = 0; n < stepCount; ++n)
            step(n % 2);
    });
}

template <typename TheSide>
void countSide(BenchmarkCase const& benchmarkCase, std::string const& kind, std::string const& side) {
    auto const create = [&] {
        TheSide made(benchmarkCase, editorCount);
        Panel panel;
        panel.fill(made, editorCount);
        panel.show();
    };
    create();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    count(kind + ", create/" + side, create);

    TheSide made(benchmarkCase, editorCount);
    Panel panel;
    panel.fill(made, editorCount);
    panel.show();
    auto const painted = [](auto const& step) {
        return [&step](int n) {
            step(n);
            QCoreApplication::processEvents();
        };
    };
    auto const change = [&](int n) { made.change(n); };
    auto const edit = [&](int n) { benchmarkCase.edit(panel.first(), n); };
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

/// Adds what the counting program has written for one job, if the file is of one.
void readCounts(QString const& name, Counts& counts) {
    QFile file(name);
    file.open(QIODevice::ReadOnly);
    QTextStream lines(&file);
    QString const jobMark = QStringLiteral("desc: Trigger: Client Request: ");
    QString const sumMark = QStringLiteral("totals: ");
    QString job;
    for (QString line; lines.readLineInto(&line);) {
        if (line.startsWith(jobMark))
            job = line.mid(jobMark.size());
        if (line.startsWith(sumMark) && !job.isEmpty())
            counts[job.section(QLatin1Char('/'), 0, 0).toStdString()][job.section(QLatin1Char('/'), 1).toStdString()] =
                line.mid(sumMark.size()).toDouble();
    }
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
    for (auto const& [job, sides] : counts)
        above += reportJob(job, sides.at("bare"), sides.at("plug-in")) ? 1 : 0;
    return above > 0 ? 1 : 0;
}

/// Runs this program in valgrind, which counts, and reports.
int countInValgrind(QString const& program) {
    QTemporaryDir const folder;
    QProcess valgrind;
    valgrind.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    valgrind.start(QStringLiteral("valgrind"),
                   {QStringLiteral("--quiet"), QStringLiteral("--tool=callgrind"),
                    QStringLiteral("--callgrind-out-file=") + folder.filePath(QStringLiteral("counts")), program});
    if (!valgrind.waitForFinished(-1) || valgrind.exitStatus() != QProcess::NormalExit || valgrind.exitCode() != 0) {
        std::cerr << "valgrind cannot count: " << valgrind.errorString().toStdString() << "\n";
        return 2;
    }
    Counts counts;
    for (auto const& name : QDir(folder.path()).entryList(QDir::Files))
        readCounts(folder.filePath(name), counts);
    if (counts.size() < benchmarkCases().size()) {
        std::cerr << "valgrind has counted " << counts.size() << " jobs only\n";
        return 2;
    }
    return report(counts);
}

} // namespace

int main(int argc, char** argv) {
    if (RUNNING_ON_VALGRIND != 0)
        return runBenchmarkProgram(argc, argv, countAll);
    return countInValgrind(QFile::decodeName(argv[0]));
}

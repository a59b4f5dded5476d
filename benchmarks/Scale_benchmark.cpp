// What large networks, long lists and long texts cost: the milliseconds of processor time of each job, or the bytes
// that it keeps, beside its goal. Networks of 1,000, 10,000 and 100,000 objects show how the cost grows. Of several
// rounds the quickest counts, as only noise makes one longer. Status 1 where a figure is above its goal.
//
// TALO_SCALE_GROUPS in the environment names the groups of jobs that are measured; all are without it.

#include "BenchmarkProgram.hpp"
#include "ScaleReport.hpp"

#include <cmath>
#include <fcntl.h>
#include <panel/window/MainWindow.hpp>
#include <panel/window/Plugins.hpp>
#include <panel/window/StandardOutputTap.hpp>
#include <QApplication>
#include <QElapsedTimer>
#include <QEventLoop>
#include <QTimer>
#include <unistd.h>

namespace {

void reportOutput(ScaleReport& report) {
    fflush(stdout);
    int const real = dup(STDOUT_FILENO);
    int const nothing = open("/dev/null", O_WRONLY);
    dup2(nothing, STDOUT_FILENO);
    auto const write = [](int megabytes) {
        Panel::StandardOutputTap tap;
        QByteArray const part(1 << 20, 'x');
        QElapsedTimer timer;
        timer.start();
        for (int n = 0; n < megabytes; ++n)
            for (int done = 0; done < part.size();)
                done += static_cast<int>(
                    ::write(STDOUT_FILENO, part.constData() + done, static_cast<std::size_t>(part.size() - done)));
        return static_cast<double>(timer.nsecsElapsed()) / 1e6;
    };
    double four = 0;
    double sixteen = 0;
    double const cost = quickestTime(2, [&](int) { four = write(4); });
    double const cost16 = quickestTime(2, [&](int) { sixteen = write(16); });
    dup2(real, STDOUT_FILENO);
    close(real);
    close(nothing);
    report.add("one line of 16 MB on standard output: writer", sixteen, 100);
    report.add("  processor time", cost16, 100);
    report.add("  growth from 4 MB, exponent", std::log(cost16 / cost) / std::log(4), growthGoal, "");
    ScaleReport::note("one line of 4 MB on standard output: writer", four);
}

/// Counts the timers that fire.
class TimerCount : public QObject {
public:
    int count = 0;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override {
        count += event->type() == QEvent::Timer ? 1 : 0;
        return QObject::eventFilter(watched, event);
    }
};

void reportIdle(ScaleReport& report) {
    QTemporaryDir const folder;
    Panel::Plugins plugins;
    Panel::MainWindow window(plugins);
    window.show();
    window.openNetwork(written(folder, QStringLiteral("text.json"), textJson("text")));
    auto const wait = [](int milliseconds) {
        QEventLoop loop;
        QTimer::singleShot(milliseconds, &loop, &QEventLoop::quit);
        loop.exec();
    };
    wait(1000);
    TimerCount timers;
    qApp->installEventFilter(&timers);
    wait(3000);
    // The wait has a timer of its own.
    report.add("idle panel: timers in three seconds", timers.count - 1, 0, "");
}

} // namespace

int main(int argc, char** argv) {
    return runBenchmarkProgram(argc, argv, [] {
        ScaleReport report;
        auto const wanted = qEnvironmentVariable("TALO_SCALE_GROUPS");
        std::pair<char const*, void (*)(ScaleReport&)> const groups[] = {
            {"objects", reportObjects}, {"parts", reportParts},       {"lists", reportLists},   {"texts", reportTexts},
            {"keys", reportKeys},       {"modified", reportModified}, {"output", reportOutput}, {"idle", reportIdle}};
        for (auto const& [name, measureGroup] : groups)
            if (wanted.isEmpty() || wanted.contains(QLatin1String(name)))
                measureGroup(report);
        return report.allMet() ? 0 : 1;
    });
}

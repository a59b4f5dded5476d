// What large networks, long lists and long texts cost: the milliseconds of processor time of each job, or the bytes
// that it keeps, beside its goal. Networks of 1,000, 10,000 and 100,000 objects show how the cost grows. Of several
// rounds the quickest counts, as only noise makes one longer. Status 1 where a goal is missed.

#include "BenchmarkProgram.hpp"

#include <bramble/MultipleStringSelection.hpp>
#include <bramble/StringSelection.hpp>
#include <cmath>
#include <ctime>
#include <fcntl.h>
#include <iomanip>
#include <iostream>
#include <lattice/EditRecorder.hpp>
#include <limits>
#include <malloc.h>
#include <panel/window/MainWindow.hpp>
#include <panel/window/Plugins.hpp>
#include <panel/window/StandardOutputTap.hpp>
#include <parameters/rows/RawValueLabel.hpp>
#include <QApplication>
#include <QElapsedTimer>
#include <QEventLoop>
#include <QListWidget>
#include <QTemporaryDir>
#include <QTest>
#include <QTextEdit>
#include <QTimer>
#include <sorrel/InputFrontEnd.hpp>
#include <unistd.h>

namespace {

constexpr int largeSize = 100'000;
constexpr double growthGoal = 1.1;

/// Prints a line for each job and remembers whether one missed its goal.
class Report {
public:
    void add(std::string const& job, double figure, double goal, char const* unit = "ms") {
        bool const isMet = figure <= goal;
        allMet_ = allMet_ && isMet;
        std::cout << std::left << std::setw(52) << job << std::right << std::fixed << std::setprecision(3)
                  << std::setw(13) << figure << ' ' << std::left << std::setw(5) << unit << " goal " << std::right
                  << std::setw(9) << goal << (isMet ? "" : "   MISSED") << std::endl;
    }
    /// A figure without a goal.
    static void note(std::string const& job, double figure) {
        std::cout << std::left << std::setw(52) << job << std::right << std::fixed << std::setprecision(3)
                  << std::setw(13) << figure << " ms" << std::endl;
    }
    bool allMet() const { return allMet_; }

private:
    bool allMet_ = true;
};

double processorTime() {
    timespec time{};
    clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &time);
    return static_cast<double>(time.tv_sec) * 1e3 + static_cast<double>(time.tv_nsec) / 1e6;
}

/// Milliseconds of the quickest round.
template <typename Job>
double measure(int rounds, Job const& job) {
    double quickest = std::numeric_limits<double>::infinity();
    for (int round = 0; round < rounds; ++round) {
        double const start = processorTime();
        job(round);
        quickest = std::min(quickest, processorTime() - start);
    }
    return quickest;
}

/// A large sample is measured once, a small one often.
int roundsFor(int size) {
    return size >= largeSize ? 2 : size >= largeSize / 10 ? 5 : 20;
}

QByteArray texts(int count, char const* before) {
    QByteArray list;
    for (int number = 0; number < count; ++number)
        list += (number > 0 ? ",\"" : "\"") + QByteArray(before) + QByteArray::number(number) + '"';
    return '[' + list + ']';
}

QString written(QTemporaryDir const& folder, QString const& name, QByteArray const& json) {
    QFile file(folder.filePath(name));
    if (!file.open(QIODevice::WriteOnly) || file.write(json) != json.size())
        qFatal("The benchmark cannot write its file.");
    return file.fileName();
}

QByteArray objectsJson(int count) {
    QByteArray json(R"({"title":"many","pools":["draft","final"],"objects":[)");
    for (int number = 0; number < count; ++number)
        json +=
            (number > 0 ? ",\n" : "") + (R"({"name":"object)" + QByteArray::number(number)) +
            R"(","kind":"thing","parameters":[{"name":"level","type":"double","value":0.5,"values":{"draft":0.25}}]})";
    return json + "]}";
}

std::unique_ptr<Talo::Network> loaded(QString const& file) {
    auto result = Talo::Network::load(file);
    if (!result.network)
        qFatal("%s", qPrintable(result.error));
    return std::move(result.network);
}

using Times = std::map<std::string, double>;

/// What each job takes with a network of so many objects.
Times measureObjects(int count) {
    QTemporaryDir const folder;
    auto const file = written(folder, "network.json", objectsJson(count));
    int const rounds = roundsFor(count);
    Times times;
    std::unique_ptr<Talo::Network> network;
    times["load"] = measure(rounds, [&](int) {
        network.reset();
        network = loaded(file);
    });
    times["save"] = measure(rounds, [&](int) {
        if (!network->save(folder.filePath("saved.json"), nullptr))
            qFatal("The benchmark cannot save.");
    });
    network.reset();
    Panel::Plugins plugins;
    Panel::MainWindow window(plugins);
    window.show();
    QCoreApplication::processEvents();
    double show = std::numeric_limits<double>::infinity();
    for (int round = 0; round < rounds; ++round) {
        auto fresh = loaded(file);
        show = std::min(show, measure(1, [&](int) {
                            window.showNetwork(std::move(fresh));
                            QCoreApplication::processEvents();
                        }));
    }
    times["show"] = show;
    times["pool switch"] = measure(rounds, [&](int round) {
        window.choosePool(round % 2 == 0 ? "final" : "draft");
        QCoreApplication::processEvents();
    });
    times["filter"] = measure(rounds, [&](int round) {
        window.setFilter(round % 2 == 0 ? "object1" : "level 0.5");
        QCoreApplication::processEvents();
    });
    return times;
}

void reportObjects(Report& report) {
    auto const small = measureObjects(largeSize / 100);
    auto const medium = measureObjects(largeSize / 10);
    auto const large = measureObjects(largeSize);
    Times const goals{{"load", 800}, {"show", 200}, {"save", 1400}, {"pool switch", 100}, {"filter", 400}};
    for (auto const& [job, goal] : goals) {
        Report::note("1,000 objects: " + job, small.at(job));
        Report::note("10,000 objects: " + job, medium.at(job));
        report.add("100,000 objects: " + job, large.at(job), goal);
        report.add("  growth from 10,000, exponent", std::log10(large.at(job) / medium.at(job)), growthGoal, "");
    }
}

void reportParts(Report& report) {
    QTemporaryDir const folder;
    auto const report1 = [&](char const* job, QByteArray const& json) {
        auto const file = written(folder, "parts.json", json);
        report.add(std::string("100,000 ") + job + ": load", measure(2, [&](int) { loaded(file); }), 1000);
        auto const network = loaded(file);
        report.add(std::string("100,000 ") + job + ": save",
                   measure(2,
                           [&](int) {
                               if (!network->save(folder.filePath("saved.json"), nullptr))
                                   qFatal("The benchmark cannot save.");
                           }),
                   1000);
    };
    report1("pools", R"({"pools":)" + texts(largeSize, "pool ") + R"(,"objects":[]})");
    QByteArray slotList;
    for (int number = 0; number < largeSize; ++number)
        slotList +=
            (number > 0 ? "," : "") + (R"({"name":"slot)" + QByteArray::number(number)) + R"(","parameter":"o.p"})";
    report1(
        "slots",
        R"({"pools":["draft"],"objects":[{"name":"o","parameters":[{"name":"p","type":"int","value":1}],"slots":[)" +
            slotList + "]}]}");
    auto const entries = texts(largeSize, "frame ");
    report1(
        "chosen entries",
        R"({"pools":["draft"],"objects":[{"name":"o","parameters":[{"name":"p","type":"multiselection","entries":)" +
            entries + R"(,"value":)" + entries + "}]}]}");
    report1(
        "parameters of one object", R"({"pools":["draft"],"objects":[{"name":"o","parameters":[)" + [] {
            QByteArray json;
            for (int number = 0; number < largeSize; ++number)
                json += (number > 0 ? ",\n" : "") + (R"({"name":"p)" + QByteArray::number(number)) +
                        R"(","type":"int","value":1})";
            return json;
        }() + "]}]}");
}

std::vector<std::string> frames(int count) {
    std::vector<std::string> all;
    for (int number = 0; number < count; ++number)
        all.push_back("frame_" + std::to_string(number) + ".png");
    return all;
}

class OnePool : public Kolt::ValuePoolSource, public Kolt::ValuePoolProvider {
public:
    Tessera::StrongPtr<Kolt::ValuePoolProvider> getValuePoolProvider() const override {
        return Tessera::WeakPtr<Kolt::ValuePoolProvider>(const_cast<OnePool*>(this)).strong();
    }
    Kolt::PoolPtr getValuePool() const override { return pool_; }

private:
    Kolt::PoolPtr const pool_{new Kolt::ValuePool("pool")};
};

class Source : public Kolt::ValueNotifier {
public:
    ~Source() override { stopNotifications(); }
    void onValueChange(Kolt::ValuePtr const&, Kolt::VContext const&, Kolt::ValueMap const*) override {}
};

/// Bytes that a step keeps and the time of an edit that is recorded; `edit` changes the selection in place.
template <typename Selection, typename Edit>
void reportSteps(Report& report, std::string const& name, Selection const& selection, double byteGoal,
                 Edit const& edit) {
    Kolt::UndoHistory history;
    Kolt::ParameterPtr const parameter(new Kolt::VParameter("frames", Kolt::makeValue(selection)));
    parameter->setHistory(&history);
    auto const recorder = Kolt::EditRecorder::watch(parameter);
    Source source;
    int number = 0;
    auto const change = [&] {
        edit(*selection, number++);
        if (!Kolt::setParameterValue(*parameter, selection, nullptr, std::string(), false,
                                     Tessera::WeakPtr<Kolt::ValueNotifier>(&source), nullptr))
            qFatal("The benchmark cannot write the value.");
    };
    change();
    constexpr int steps = 100;
    auto const before = mallinfo2();
    double const time = measure(1, [&](int) {
        for (int step = 0; step < steps; ++step)
            change();
    });
    auto const after = mallinfo2();
    double const bytes =
        static_cast<double>(after.uordblks + after.hblkhd) - static_cast<double>(before.uordblks + before.hblkhd);
    report.add(name + ": undo step", bytes / steps / 1024, byteGoal, "KB");
    report.add(name + ": recorded edit", time / steps, 0.1);
}

void reportLists(Report& report) {
    auto const list = frames(largeSize);
    Kolt::VStringList const single(new Kolt::StringSelection(list, list.front()));
    Kolt::VMultipleStringList const multiple(new Kolt::MultipleStringSelection(list));
    reportSteps(report, "100,000 texts, single selection", single, 1,
                [&](auto& selection, int number) { selection.select(list[static_cast<std::size_t>(number + 1)]); });
    reportSteps(report, "100,000 texts, multiple selection", multiple, 10,
                [&](auto& selection, int number) { selection.add(list[static_cast<std::size_t>(number)]); });

    OnePool pools;
    QWidget window;
    window.resize(600, 400);
    window.show();
    auto const reportHost = [&](char const* job, auto const& selection, double goal, auto const& change) {
        Kolt::ParameterPtr const parameter(new Kolt::VParameter("frames", Kolt::makeValue(selection)));
        auto const editor = Kolt::makeEditor(parameter, &window, &pools);
        editor.widget->show();
        QCoreApplication::processEvents();
        report.add(job,
                   measure(5,
                           [&](int round) {
                               change(*selection, round);
                               parameter->notifyValueChange(parameter->ownValue(), nullptr, std::string(), nullptr,
                                                            nullptr, nullptr);
                               QCoreApplication::processEvents();
                           }),
                   goal);
        delete editor.widget;
    };
    reportHost("100,000 texts, drop-down: host change", single, 0.3,
               [&](auto& selection, int round) { selection.select(list[static_cast<std::size_t>(round)]); });
    reportHost("100,000 texts, multiple selection: equal refill", multiple, 30, [](auto&, int) {});
}

QByteArray const& megabyte() {
    static QByteArray const text =
        QByteArray("a line of sixty-four characters, which is what a line may hold.\n").repeated(1 << 14);
    return text;
}

QByteArray oneText(QByteArray const& text) {
    return R"({"pools":["draft"],"objects":[{"name":"o","parameters":[{"name":"p","type":"string","preferences":["MultiLine"],"value":")" +
           QByteArray(text).replace("\n", "\\n") + "\"}]}]}";
}

void reportTexts(Report& report) {
    QTemporaryDir const folder;
    Panel::Plugins plugins;
    Panel::MainWindow window(plugins);
    window.show();
    window.openNetwork(written(folder, "text.json", oneText(megabyte())));
    QCoreApplication::processEvents();
    auto* const edit = window.currentView()->findChild<QTextEdit*>();
    if (!edit)
        qFatal("There is no editor.");
    edit->setFocus();
    auto const key = [&](int) {
        QTest::keyClick(edit, Qt::Key_X);
        QCoreApplication::processEvents();
    };
    measure(3, key);
    double total = measure(1, [&](int) {
        for (int n = 0; n < 20; ++n)
            key(n);
    });
    report.add("1 MB text in the panel: key", total / 20, 2);
    window.setRawValuesShown(true);
    QCoreApplication::processEvents();
    total = measure(1, [&](int) {
        for (int n = 0; n < 20; ++n)
            key(n);
    });
    report.add("1 MB text in the panel: key, raw values shown", total / 20, 3);
    auto* const raw = window.currentView()->findChild<Talo::RawValueLabel*>();
    auto const text = megabyte().toStdString();
    auto const parameter = window.network()->findParameter("o.p");
    auto const other = Kolt::makeValue(text + '!');
    report.add("1 MB text: raw value until painted",
               measure(5,
                       [&](int round) {
                           if (!parameter->ownValue()->assign(*(round % 2 ? other : Kolt::makeValue(text))))
                               qFatal("The benchmark cannot write the value.");
                           raw->refresh();
                           raw->repaint();
                       }),
               1);
    report.add("1 MB text: tool tip of the raw value",
               measure(3,
                       [&](int) {
                           QHelpEvent help(QEvent::ToolTip, QPoint(5, 5), raw->mapToGlobal(QPoint(5, 5)));
                           QCoreApplication::sendEvent(raw, &help);
                           QCoreApplication::processEvents();
                       }),
               1);
}

void reportKeys(Report& report) {
    QTemporaryDir const folder;
    Panel::Plugins plugins;
    Panel::MainWindow window(plugins);
    window.show();
    auto const entries = texts(largeSize, "frame ");
    window.openNetwork(written(folder, "choice.json",
                               R"({"pools":["draft"],"objects":[{"name":"o","parameters":[{"name":"p",)"
                               R"("type":"multiselection","entries":)" +
                                   entries + R"(,"value":)" + entries + "}]}]}"));
    QCoreApplication::processEvents();
    auto* const list = window.currentView()->findChild<QListWidget*>();
    if (!list)
        qFatal("There is no list.");
    list->setFocus();
    // Both ways, so that the list does not come to its end.
    auto const key = [&](int round) {
        QKeyEvent event(QEvent::KeyPress, round % 2 ? Qt::Key_Down : Qt::Key_Up, Qt::NoModifier);
        QCoreApplication::sendEvent(list, &event);
    };
    measure(2, key);
    report.add("100,000 texts, all chosen: key that chooses nothing", measure(20, key), 0.1);
}

void reportModified(Report& report) {
    constexpr int count = 80'000;
    QTemporaryDir const folder;
    QByteArray json(R"({"pools":["draft"],"objects":[{"name":"o","parameters":[)");
    for (int number = 0; number < count; ++number)
        json += (number > 0 ? ",\n" : "") + (R"({"name":"p)" + QByteArray::number(number)) +
                R"(","type":"double","value":1,"perPool":true})";
    auto const network = loaded(written(folder, "values.json", json + "]}]}"));
    auto const parameter = network->findParameter("o.p79999");
    report.add("80,000 values: modified after an edit",
               measure(20,
                       [&](int round) {
                           if (!Kolt::setParameterValue(*parameter, round % 2 + 1.0, network->pools().front(),
                                                        std::string(), true, nullptr, nullptr))
                               qFatal("The benchmark cannot write the value.");
                           if (network->isModified() != (round % 2 == 1))
                               qFatal("The network does not know what differs.");
                       }),
               0.1);
}

void reportOutput(Report& report) {
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
    double const cost = measure(2, [&](int) { four = write(4); });
    double const cost16 = measure(2, [&](int) { sixteen = write(16); });
    dup2(real, STDOUT_FILENO);
    close(real);
    close(nothing);
    report.add("one line of 16 MB on standard output: writer", sixteen, 100);
    report.add("  processor time", cost16, 100);
    report.add("  growth from 4 MB, exponent", std::log(cost16 / cost) / std::log(4), growthGoal, "");
    Report::note("one line of 4 MB on standard output: writer", four);
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

void reportIdle(Report& report) {
    QTemporaryDir const folder;
    Panel::Plugins plugins;
    Panel::MainWindow window(plugins);
    window.show();
    window.openNetwork(written(folder, "text.json", oneText("text")));
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
        Report report;
        // Of all groups, or of those that the variable names.
        auto const wanted = qEnvironmentVariable("TALO_SCALE_GROUPS");
        std::pair<char const*, void (*)(Report&)> const groups[] = {
            {"objects", reportObjects}, {"parts", reportParts},       {"lists", reportLists},   {"texts", reportTexts},
            {"keys", reportKeys},       {"modified", reportModified}, {"output", reportOutput}, {"idle", reportIdle}};
        for (auto const& [name, measureGroup] : groups)
            if (wanted.isEmpty() || wanted.contains(QLatin1String(name)))
                measureGroup(report);
        return report.allMet() ? 0 : 1;
    });
}

// What large networks cost.

#include "ScaleReport.hpp"

#include <algorithm>
#include <cmath>
#include <lattice/ChangeSignal.hpp>
#include <limits>
#include <map>
#include <panel/window/MainWindow.hpp>
#include <panel/window/Plugins.hpp>
#include <QCoreApplication>

namespace {

/// A large sample is measured once, a small one often.
int roundsFor(int size) {
    return size >= largeSize ? 2 : size >= largeSize / 10 ? 5 : 20;
}

QByteArray objectsJson(int count) {
    QByteArray json(R"({"title":"many","pools":["draft","final"],"objects":[)");
    for (int number = 0; number < count; ++number)
        json +=
            (number > 0 ? ",\n" : "") + (R"({"name":"object)" + QByteArray::number(number)) +
            R"(","kind":"thing","parameters":[{"name":"level","type":"double","value":0.5,"values":{"draft":0.25}}]})";
    return json + "]}";
}

using Times = std::map<std::string, double>;

/// What each job takes with a network of so many objects.
Times measureObjects(int count) {
    QTemporaryDir const folder;
    auto const file = written(folder, QStringLiteral("network.json"), objectsJson(count));
    int const rounds = roundsFor(count);
    Times times;
    std::unique_ptr<Talo::Network> network;
    times["load"] = quickestTime(rounds, [&](int) {
        network.reset();
        network = loaded(file);
    });
    times["save"] = quickestTime(rounds, [&](int) {
        if (!network->save(folder.filePath(QStringLiteral("saved.json")), nullptr))
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
        show = std::min(show, quickestTime(1, [&](int) {
                            window.showNetwork(std::move(fresh));
                            QCoreApplication::processEvents();
                        }));
    }
    times["show"] = show;
    times["pool switch"] = quickestTime(rounds, [&](int round) {
        window.choosePool(QLatin1String(round % 2 == 0 ? "final" : "draft"));
        QCoreApplication::processEvents();
    });
    times["filter"] = quickestTime(rounds, [&](int round) {
        window.setFilter(QLatin1String(round % 2 == 0 ? "object1" : "level 0.5"));
        QCoreApplication::processEvents();
    });
    return times;
}

QByteArray slotsJson() {
    QByteArray list;
    for (int number = 0; number < largeSize; ++number)
        list += (number > 0 ? "," : "") + (R"({"name":"slot)" + QByteArray::number(number)) + R"(","parameter":"o.p"})";
    return R"({"pools":["draft"],"objects":[{"name":"o","parameters":[{"name":"p","type":"int","value":1}],"slots":[)" +
           list + "]}]}";
}

QByteArray parametersJson(int count, char const* rest) {
    QByteArray json(R"({"pools":["draft"],"objects":[{"name":"o","parameters":[)");
    for (int number = 0; number < count; ++number)
        json += (number > 0 ? ",\n" : "") + (R"({"name":"p)" + QByteArray::number(number)) + rest;
    return json + "]}]}";
}

void reportPart(ScaleReport& report, std::string const& what, QByteArray const& json) {
    constexpr double goal = 1000;
    QTemporaryDir const folder;
    auto const file = written(folder, QStringLiteral("parts.json"), json);
    report.add("100,000 " + what + ": load", quickestTime(2, [&](int) { loaded(file); }), goal);
    auto const network = loaded(file);
    auto const save = [&](int) {
        if (!network->save(folder.filePath(QStringLiteral("saved.json")), nullptr))
            qFatal("The benchmark cannot save.");
    };
    report.add("100,000 " + what + ": save", quickestTime(2, save), goal);
}

} // namespace

void reportObjects(ScaleReport& report) {
    auto const small = measureObjects(largeSize / 100);
    auto const medium = measureObjects(largeSize / 10);
    auto const large = measureObjects(largeSize);
    Times const goals{{"load", 800}, {"show", 200}, {"save", 1400}, {"pool switch", 100}, {"filter", 400}};
    for (auto const& [job, goal] : goals) {
        ScaleReport::note("1,000 objects: " + job, small.at(job));
        ScaleReport::note("10,000 objects: " + job, medium.at(job));
        report.add("100,000 objects: " + job, large.at(job), goal);
        report.add("  growth from 10,000, exponent", std::log10(large.at(job) / medium.at(job)), growthGoal, "");
    }
}

void reportParts(ScaleReport& report) {
    reportPart(report, "pools", R"({"pools":)" + listOfTexts(largeSize, "pool ") + R"(,"objects":[]})");
    reportPart(report, "slots", slotsJson());
    auto const entries = listOfTexts(largeSize, "frame ");
    reportPart(report, "chosen entries", choiceJson(entries));
    reportPart(report, "parameters of one object", parametersJson(largeSize, R"(","type":"int","value":1})"));
}

void reportModified(ScaleReport& report) {
    constexpr int count = 80'000;
    QTemporaryDir const folder;
    auto const network = loaded(written(folder, QStringLiteral("values.json"),
                                        parametersJson(count, R"(","type":"double","value":1,"perPool":true})")));
    auto const& all = network->objects().front()->parameters();
    auto const signal = std::make_shared<Kolt::ChangeSignal>([] {});
    for (auto const& each : all)
        each->setChangeSignal(signal);
    auto const edit = [&](int place, double value) {
        if (!Kolt::setParameterValue(*all.at(static_cast<std::size_t>(place)), value, network->pools().front(),
                                     std::string(), true, nullptr, nullptr))
            qFatal("The benchmark cannot write the value.");
        if (network->isModifiedAfter(signal->awaitNext()) != (value != 1))
            qFatal("The network does not know what differs.");
    };
    // Looks at all values once.
    edit(0, 1);
    report.add("80,000 values: modified by edits of one",
               quickestTime(20, [&](int round) { edit(count - 1, round + 2); }), 0.1);
    double back = std::numeric_limits<double>::infinity();
    double other = std::numeric_limits<double>::infinity();
    for (int round = 0; round < 20; ++round) {
        back = std::min(back, quickestTime(1, [&](int) { edit(count - 1, 1); }));
        other = std::min(other, quickestTime(1, [&](int) { edit(count - 2, 2); }));
        edit(count - 2, 1);
        edit(count - 1, 2);
    }
    report.add("80,000 values: an edit back to what is saved", back, 0.1);
    report.add("80,000 values: an edit of another value", other, 0.1);
}

#include "WalkPlan.hpp"

#include <QDate>
#include <QFileInfo>

namespace {

// Each event takes longer on a display, and fewer suffice to show that the behaviour is the same.
constexpr int actsForOneOnDisplay = 4;

// A rest takes longer in a large network.
constexpr int shareOfLargeNetwork = 8;

bool isOffscreen() {
    // Before there is an application; without the variable the tests are off screen.
    auto const platform = qgetenv("QT_QPA_PLATFORM");
    return platform.isEmpty() || platform == "offscreen";
}

WalkPlan planOfSeed(std::string const& name, unsigned seed, int acts, QString const& folder) {
    auto const log = QStringLiteral("%1/%2-%3.log").arg(folder, isOffscreen() ? "offscreen" : "display").arg(seed);
    WalkPlan plan;
    plan.name = name;
    plan.events = walkOfSeed(seed, acts);
    plan.log = log;
    return plan;
}

WalkPlan planOfLog(QString const& file, QString const& folder) {
    WalkPlan plan;
    plan.name = "replay";
    QString error;
    plan.events = readWalk(file, &error);
    plan.error = error.toStdString();
    plan.isLarge = QFileInfo(file).fileName().contains(QLatin1String("large"));
    plan.log = folder + QStringLiteral("/replayed-") + QFileInfo(file).fileName();
    return plan;
}

WalkPlan planOfLargeNetwork(unsigned seed, int acts, QString const& folder) {
    auto plan = planOfSeed("large", seed, acts, folder);
    plan.isLarge = true;
    plan.log.replace(QStringLiteral(".log"), QStringLiteral("-large.log"));
    return plan;
}

/// A number that is another one every day.
unsigned seedOfToday() {
    return QDate::currentDate().toString(QStringLiteral("yyyyMMdd")).toUInt();
}

} // namespace

std::vector<WalkPlan> walkPlans(int acts, QString const& folder) {
    auto const wantedFolder = qEnvironmentVariable("TALO_WALK_LOGS");
    auto const logs = wantedFolder.isEmpty() ? folder : wantedFolder;
    auto const wantedActs = qEnvironmentVariableIntValue("TALO_WALK_EVENTS");
    int const count = wantedActs > 0 ? wantedActs : isOffscreen() ? acts : acts / actsForOneOnDisplay;
    std::vector<WalkPlan> plans;
    if (auto const shortened = qEnvironmentVariable("TALO_WALK_SHORTEN"); !shortened.isEmpty()) {
        plans.emplace_back().name = "shorten";
        plans.back().shortened = shortened;
    } else if (auto const replayed = qEnvironmentVariable("TALO_WALK_REPLAY"); !replayed.isEmpty()) {
        plans.push_back(planOfLog(replayed, logs));
    } else if (auto const seed = qEnvironmentVariableIntValue("TALO_WALK_SEED"); seed > 0) {
        plans.push_back(planOfSeed("seed", static_cast<unsigned>(seed), count, logs));
    } else if (auto const minutes = qEnvironmentVariableIntValue("TALO_WALK_MINUTES"); minutes > 0) {
        plans.push_back(planOfSeed("soak", seedOfToday(), count, logs));
        plans.back().minutes = minutes;
    } else {
        for (unsigned fixed : {1U, 2U, 3U})
            plans.push_back(planOfSeed("seed" + std::to_string(fixed), fixed, count, logs));
        plans.push_back(planOfSeed("seedOfTheDay", seedOfToday(), count, logs));
        plans.push_back(planOfLargeNetwork(4, count / shareOfLargeNetwork, logs));
    }
    for (auto& plan : plans)
        plan.keepsLog = !wantedFolder.isEmpty();
    return plans;
}

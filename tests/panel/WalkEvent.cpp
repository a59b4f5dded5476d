#include "WalkEvent.hpp"

#include <QFile>
#include <random>

namespace {

constexpr int actsBetweenRests = 250;

// So that the history, which keeps 1000 steps, has all of them.
constexpr int restsBetweenReturns = 3;

} // namespace

WalkEvents walkOfSeed(unsigned seed, int acts) {
    std::mt19937 random(seed);
    WalkEvents events;
    for (int act = 1; act <= acts; ++act) {
        events.push_back({WalkEvent::Kind::Act, static_cast<unsigned>(random())});
        bool const isLast = act == acts;
        if (isLast || act % actsBetweenRests == 0)
            events.push_back({WalkEvent::Kind::Rest});
        if (isLast || act % (actsBetweenRests * restsBetweenReturns) == 0)
            events.push_back({WalkEvent::Kind::Back});
    }
    return events;
}

std::string lineOf(WalkEvent const& event) {
    switch (event.kind) {
    case WalkEvent::Kind::Rest:
        return "rest";
    case WalkEvent::Kind::Back:
        return "back";
    case WalkEvent::Kind::Act:
        break;
    }
    return "act " + std::to_string(event.seed);
}

WalkEvents readWalk(QString const& file, QString* error) {
    QFile log(file);
    if (!log.open(QIODevice::ReadOnly | QIODevice::Text)) {
        *error = log.errorString();
        return {};
    }
    WalkEvents events;
    while (!log.atEnd()) {
        auto const line = QString::fromUtf8(log.readLine()).trimmed();
        bool isNumber = false;
        auto const seed = line.section(QLatin1Char(' '), 1, 1).toUInt(&isNumber);
        if (line == QLatin1String("rest")) {
            events.push_back({WalkEvent::Kind::Rest});
        } else if (line == QLatin1String("back")) {
            events.push_back({WalkEvent::Kind::Back});
        } else if (line.startsWith(QLatin1String("act ")) && isNumber) {
            events.push_back({WalkEvent::Kind::Act, seed});
        } else {
            *error = QStringLiteral("no event: ") + line;
            return {};
        }
    }
    return events;
}

bool writeWalk(QString const& file, WalkEvents const& events) {
    QFile log(file);
    if (!log.open(QIODevice::WriteOnly | QIODevice::Text))
        return false;
    for (auto const& event : events)
        log.write(QByteArray::fromStdString(lineOf(event) + '\n'));
    return log.flush();
}

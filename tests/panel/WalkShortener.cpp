#include "WalkShortener.hpp"

#include <algorithm>
#include <cstdio>
#include <QCoreApplication>
#include <QFileInfo>
#include <QProcess>
#include <QTemporaryDir>

namespace {

WalkEvents without(WalkEvents const& walk, std::size_t first, std::size_t count) {
    WalkEvents shorter(walk.begin(), walk.begin() + static_cast<std::ptrdiff_t>(first));
    shorter.insert(shorter.end(), walk.begin() + static_cast<std::ptrdiff_t>(std::min(first + count, walk.size())),
                   walk.end());
    return shorter;
}

} // namespace

WalkEvents shortestThatFails(WalkEvents walk, std::function<bool(WalkEvents const&)> const& fails) {
    auto size = std::max<std::size_t>(1, walk.size() / 2);
    while (!walk.empty()) {
        bool becameShorter = false;
        // From the end: what follows the failure goes first.
        for (auto part = (walk.size() + size - 1) / size; part-- > 0;) {
            auto const shorter = without(walk, part * size, size);
            if (!fails(shorter))
                continue;
            walk = shorter;
            becameShorter = true;
        }
        if (size > 1)
            size = (size + 1) / 2;
        else if (!becameShorter)
            break;
    }
    return walk;
}

bool failsWhenReplayed(WalkEvents const& walk, QString const& name) {
    constexpr int longest = 300'000;
    QTemporaryDir const folder;
    auto const file = folder.filePath(name);
    if (!writeWalk(file, walk))
        return false;
    QProcess process;
    auto environment = QProcessEnvironment::systemEnvironment();
    environment.remove(QStringLiteral("TALO_WALK_SHORTEN"));
    environment.insert(QStringLiteral("TALO_WALK_REPLAY"), file);
    environment.insert(QStringLiteral("TALO_WALK_LOGS"), folder.path());
    process.setProcessEnvironment(environment);
    process.setStandardOutputFile(QProcess::nullDevice());
    process.setStandardErrorFile(QProcess::nullDevice());
    process.start(QCoreApplication::applicationFilePath(), {QStringLiteral("--gtest_filter=Plans/*")});
    bool const hasEnded = process.waitForFinished(longest);
    process.kill();
    process.waitForFinished();
    return !hasEnded || process.exitStatus() != QProcess::NormalExit || process.exitCode() != 0;
}

std::string shortenLog(QString const& file) {
    QString error;
    auto const walk = readWalk(file, &error);
    if (walk.empty())
        return error.isEmpty() ? "no event" : error.toStdString();
    auto const name = QFileInfo(file).fileName();
    if (!failsWhenReplayed(walk, name))
        return "the walk does not fail";
    auto const shortest = shortestThatFails(walk, [&](WalkEvents const& tried) {
        bool const fails = failsWhenReplayed(tried, name);
        std::fprintf(stderr, "%zu events %s\n", tried.size(), fails ? "fail" : "do not fail");
        return fails;
    });
    return writeWalk(file + QStringLiteral(".short"), shortest) ? std::string() : "the short log cannot be written";
}

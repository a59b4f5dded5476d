#include "ScaleReport.hpp"

#include "Figures.hpp"

#include <algorithm>
#include <cstdio>
#include <limits>

void ScaleReport::add(std::string const& job, double figure, double goal, std::string const& unit) {
    allMet_ = !printFigure(job, figure, goal, unit) && allMet_;
}

void ScaleReport::compare(std::string const& job, double ours, double bare, double goal) {
    allMet_ = !printFigure(job, ours / bare, goal, {}, std::to_string(ours) + " to " + std::to_string(bare) + " ms") &&
              allMet_;
}

void ScaleReport::note(std::string const& job, double milliseconds) {
    std::printf("%-48s%9.3f ms\n", job.c_str(), milliseconds);
}

double quickestTime(int rounds, std::function<void(int round)> const& job) {
    double quickest = std::numeric_limits<double>::infinity();
    for (int round = 0; round < rounds; ++round) {
        double const start = processorTime();
        job(round);
        quickest = std::min(quickest, processorTime() - start);
    }
    return quickest;
}

QByteArray listOfTexts(int count, char const* before) {
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

std::unique_ptr<Talo::Network> loaded(QString const& file) {
    auto result = Talo::Network::load(file);
    if (!result.network)
        qFatal("%s", qPrintable(result.error));
    return std::move(result.network);
}

QByteArray choiceJson(QByteArray const& entries) {
    return R"({"pools":["draft"],"objects":[{"name":"o","parameters":[{"name":"p","type":"multiselection","entries":)" +
           entries + R"(,"value":)" + entries + "}]}]}";
}

QByteArray textJson(QByteArray const& text) {
    return R"({"pools":["draft"],"objects":[{"name":"o","parameters":[{"name":"p","type":"string","preferences":["MultiLine"],"value":")" +
           QByteArray(text).replace("\n", "\\n") + "\"}]}]}";
}

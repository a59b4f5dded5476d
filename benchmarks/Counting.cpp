#include "Counting.hpp"

#include <algorithm>
#include <cstdlib>
#include <iostream>
#include <QCollator>
#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>
#include <QTextStream>
#include <valgrind/callgrind.h>

namespace {

[[noreturn]] void fail(QString const& reason) {
    std::cerr << "valgrind cannot count: " << reason.toStdString() << "\n";
    std::exit(2);
}

/// Adds what one file says; there is one for each measurement, and one for the rest of the program.
void read(QString const& name, Counts& counts) {
    QFile file(name);
    if (!file.open(QIODevice::ReadOnly))
        fail(file.errorString());
    QString const nameMark = QStringLiteral("desc: Trigger: Client Request: ");
    QString const sumMark = QStringLiteral("totals: ");
    QTextStream lines(&file);
    QString measured;
    for (QString line; lines.readLineInto(&line);) {
        if (line.startsWith(nameMark))
            measured = line.remove(nameMark);
        if (line.startsWith(sumMark) && !measured.isEmpty())
            counts[measured.toStdString()].push_back(line.remove(sumMark).toDouble());
    }
}

} // namespace

bool isCounting() {
    return RUNNING_ON_VALGRIND != 0;
}

void counted(std::string const& name, std::function<void()> const& work) {
    CALLGRIND_ZERO_STATS;
    work();
    CALLGRIND_DUMP_STATS_AT(name.c_str());
}

Counts countInValgrind(std::vector<std::string> const& arguments) {
    QTemporaryDir const folder;
    QStringList command{QStringLiteral("--quiet"), QStringLiteral("--tool=callgrind"),
                        QStringLiteral("--callgrind-out-file=") + folder.filePath(QStringLiteral("counts")),
                        QCoreApplication::applicationFilePath()};
    for (auto const& argument : arguments)
        command.append(QString::fromStdString(argument));
    QProcess valgrind;
    valgrind.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    valgrind.start(QStringLiteral("valgrind"), command);
    if (!valgrind.waitForFinished(-1))
        fail(valgrind.errorString());
    if (valgrind.exitStatus() != QProcess::NormalExit || valgrind.exitCode() != 0)
        fail(QStringLiteral("the program failed"));

    // They have numbers, of which 10 comes after 9.
    auto files = QDir(folder.path()).entryList(QDir::Files);
    QCollator order;
    order.setNumericMode(true);
    std::sort(files.begin(), files.end(), order);
    Counts counts;
    for (auto const& file : files)
        read(folder.filePath(file), counts);
    if (counts.empty())
        fail(QStringLiteral("nothing was measured"));
    return counts;
}

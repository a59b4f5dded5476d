#include <checker/CheckRun.hpp>

#include <csignal>
#include <cstring>
#include <exception>
#include <fcntl.h>
#include <QCoreApplication>
#include <QElapsedTimer>
#include <QFile>
#include <QProcess>
#include <QTemporaryFile>
#include <sys/resource.h>
#include <tessera/Typename.hpp>
#include <unistd.h>

namespace Checker {

namespace {

// A line of this letter alone says that the check came to its end.
constexpr char endMark = 'E';

/// What is in the file of the child: its findings. Returns whether it came to its end.
bool readFindings(QFile& file, CheckResult& result) {
    bool ended = false;
    auto const written = file.readAll().split('\n');
    for (auto const& line : written) {
        auto const text = QString::fromUtf8(line.mid(2));
        if (line.startsWith('F'))
            result.faults << text;
        else if (line.startsWith('N'))
            result.notes << text;
        else if (line.startsWith(endMark))
            ended = true;
    }
    return ended;
}

QStringList linesOf(QByteArray const& output) {
    auto const printed = QString::fromUtf8(output).split(QLatin1Char('\n'), Qt::SkipEmptyParts);
    QStringList lines;
    for (auto const& line : printed)
        // These two come from Qt's platform without a display.
        if (!line.contains(QStringLiteral("propagateSizeHints")) && !line.contains(QStringLiteral("XDG_RUNTIME_DIR")))
            lines << line;
    return lines;
}

/// How the child ended, if it should not have ended so; empty otherwise.
QString wrongEnd(QProcess const& child, bool inTime, bool ended, int seconds) {
    if (!inTime)
        return QStringLiteral("it did not end within %1 seconds").arg(seconds);
    if (child.exitStatus() == QProcess::CrashExit)
        return QString::fromLatin1(ended ? "it crashed at the end of the program: %1" : "it crashed: %1")
            .arg(QString::fromLocal8Bit(strsignal(child.exitCode())));
    if (!ended)
        return QStringLiteral("it ended the program, with the status %1").arg(child.exitCode());
    // 0 and 1 are the child's own. A sanitizer has one for what it found at the end.
    if (child.exitCode() > 1)
        return QStringLiteral("the program ended with the status %1").arg(child.exitCode());
    return {};
}

/// Calls a function; an exception that leaves it is a fault.
template <typename Function>
void caught(Findings& findings, Function const& function) {
    try {
        function();
    } catch (std::exception const& exception) {
        findings.fault("an exception left it: " + Tessera::Typename(typeid(exception)) + ", " + exception.what());
    } catch (...) {
        findings.fault("an exception of unknown type left it");
    }
}

} // namespace

CheckResult runInChild(Check const& check, Subject const& subject, int secondsAtMost) {
    CheckResult result{QString::fromStdString(check.name), check.level, {}, {}, {}, 0};
    QTemporaryFile findings;
    if (!findings.open()) {
        result.faults << QStringLiteral("a temporary file cannot be made: %1").arg(findings.errorString());
        return result;
    }
    QElapsedTimer time;
    time.start();
    QProcess child;
    child.setProcessChannelMode(QProcess::MergedChannels);
    child.start(QCoreApplication::applicationFilePath(),
                {QStringLiteral("--run"), result.name, QStringLiteral("--findings"), findings.fileName(),
                 QStringLiteral("--seed"), QString::number(subject.seed), QStringLiteral("--events"),
                 QString::number(subject.events), QStringLiteral("--"), QFile::decodeName(subject.file.c_str())});
    bool const inTime = child.waitForFinished(secondsAtMost * 1000);
    if (!inTime) {
        child.kill();
        child.waitForFinished();
    }
    result.seconds = static_cast<double>(time.elapsed()) / 1e3;
    bool const ended = readFindings(findings, result);
    auto const wrong = wrongEnd(child, inTime, ended, secondsAtMost);
    if (!wrong.isEmpty())
        result.faults << wrong;
    auto const lines = linesOf(child.readAll());
    if (check.output == Check::Output::Noted && !lines.isEmpty())
        result.notes << QStringLiteral("its editors print %1 lines").arg(lines.size());
    // The last ones say most about a crash.
    constexpr int most = 5;
    result.output = lines.mid(qMax(0, lines.size() - most));
    return result;
}

int runAsChild(Check const& check, Subject const& subject, QString const& findingsFile) {
    // The parent reports a crash; a core file is not needed.
    rlimit const none{0, 0};
    setrlimit(RLIMIT_CORE, &none);
    int const descriptor = open(QFile::encodeName(findingsFile).constData(), O_WRONLY | O_APPEND | O_CLOEXEC);
    if (descriptor < 0)
        return 2;
    Findings findings(descriptor);
    caught(findings, [&] { check.run(subject, findings); });
    char const end[] = {endMark, '\n'};
    bool const isWritten = write(descriptor, end, sizeof end) == sizeof end;
    close(descriptor);
    return isWritten && findings.faults().empty() ? 0 : 1;
}

} // namespace Checker

// talo_check: checks a plug-in file. Every check runs in a child process, which is this program again.

#include <checker/CommandLine.hpp>
#include <checker/LoadedPlugin.hpp>
#include <checker/Report.hpp>
#include <cstdio>
#include <QApplication>
#include <QFile>
#include <QSaveFile>

namespace {

using namespace Checker;

void print(std::FILE* stream, QByteArray const& text) {
    std::fwrite(text.constData(), 1, static_cast<std::size_t>(text.size()), stream);
    std::fflush(stream);
}

/// Loads and unloads the file, for a host that wants to know whether that can be survived.
int loadQuickly(CommandLine const& line) {
    Findings findings;
    // Without this line the checker itself did not start, and nothing is known of the file.
    print(stdout, "talo_check: begin\n");
    { LoadedPlugin const plugin(line.subject.file, findings); }
    for (auto const& fault : findings.faults())
        print(stderr, QByteArray::fromStdString(fault + '\n'));
    // Without this line the file has ended the process.
    print(stdout, "talo_check: done\n");
    return findings.faults().empty() ? 0 : 1;
}

int runCheck(CommandLine const& line) {
    auto const* const check = findCheck(line.run.toStdString());
    if (!check) {
        print(stderr, "There is no check of this name; --list names all.\n");
        return 2;
    }
    return runAsChild(*check, line.subject, line.findings);
}

QByteArray written(Report const& report, CommandLine::Format format) {
    switch (format) {
    case CommandLine::Format::Json:
        return report.asJson();
    case CommandLine::Format::JUnit:
        return report.asJUnit();
    case CommandLine::Format::Text:
        break;
    }
    return report.asText();
}

/// Writes a report to the file that was asked for; false, with a message, if that fails.
bool save(QByteArray const& text, QString const& name) {
    QSaveFile file(name);
    if (file.open(QIODevice::WriteOnly) && file.write(text) == text.size() && file.commit())
        return true;
    print(stderr, QStringLiteral("%1 cannot be written: %2.\n").arg(name, file.errorString()).toLocal8Bit());
    return false;
}

int checkAll(CommandLine const& line) {
    Report report{QFile::decodeName(line.subject.file.c_str()), line.subject.seed, {}};
    for (auto const& check : allChecks())
        if (line.only.isEmpty() ? check.level <= line.level : line.only == QString::fromStdString(check.name))
            report.results.push_back(runInChild(check, line.subject, line.seconds));
    auto const text = written(report, line.format);
    if (line.output.isEmpty())
        print(stdout, text);
    else if (!save(text, line.output))
        return 2;
    return report.passed() ? 0 : 1;
}

} // namespace

int main(int count, char** arguments) {
    QStringList given;
    for (int index = 0; index < count; ++index)
        given << QString::fromLocal8Bit(arguments[index]);
    auto const line = readCommandLine(given);
    if (!line.error.isEmpty()) {
        print(stderr, line.error.toLocal8Bit() + "\ntalo_check --help says more.\n");
        return 2;
    }
    if (line.help) {
        QCoreApplication const application(count, arguments);
        print(stdout, helpText().toLocal8Bit());
        return 0;
    }
    if (!line.text.isEmpty()) {
        print(stdout, line.text.toLocal8Bit());
        return 0;
    }
    // Nothing of it needs a display or an application, and a host waits for it.
    if (line.quick)
        return loadQuickly(line);
    if (line.run.isEmpty()) {
        QCoreApplication const application(count, arguments);
        return checkAll(line);
    }
    // Nobody sees the windows of a check.
    if (qEnvironmentVariableIsEmpty("TALO_CHECK_DISPLAY"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
    QApplication const application(count, arguments);
    QApplication::setQuitOnLastWindowClosed(false);
    return runCheck(line);
}

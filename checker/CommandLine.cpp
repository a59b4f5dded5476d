#include <checker/CommandLine.hpp>

#include <initializer_list>
#include <QCommandLineParser>
#include <QFile>
#include <random>

namespace Checker {

namespace {

/// An option of these names; with the name of its value if it has one.
QCommandLineOption option(std::initializer_list<char const*> names, char const* meaning, char const* value = "") {
    QStringList all;
    for (auto const* const name : names)
        all << QLatin1String(name);
    return {all, QLatin1String(meaning), QLatin1String(value)};
}

/// The one list of the options, for parsing and for the help.
class Options {
public:
    Options() {
        for (auto* const hidden : {&run, &findings})
            hidden->setFlags(QCommandLineOption::HiddenFromHelp);
        parser.setApplicationDescription(QStringLiteral(
            "Checks a plug-in file: whether it loads and unloads, and whether its editors do what hosts rely on.\n"
            "Status 0 if all checks pass, 1 if one fails, 2 if the command line is wrong."));
        parser.addOptions(
            {help, version, level, only, seed, seconds, format, output, quick, list, events, run, findings});
        parser.addPositionalArgument(QStringLiteral("FILE.talo"), QStringLiteral("The plug-in file to check."));
    }

    QCommandLineOption const help = option({"h", "help"}, "Prints this help and ends.");
    QCommandLineOption const version = option({"v", "version"}, "Prints the version and ends.");
    QCommandLineOption const level =
        option({"level"}, "Makes the checks up to this level, from 1 to 10, which is the default.", "N");
    QCommandLineOption const only = option({"only"}, "Makes only this check; --list names all.", "CHECK");
    QCommandLineOption const seed =
        option({"seed"}, "Draws the random events from this number, to replay a report.", "NUMBER");
    QCommandLineOption const events =
        option({"events"}, "How many random events each editor gets; 200 by default.", "NUMBER");
    QCommandLineOption const seconds = option({"seconds"}, "The time limit of each check; 60 by default.", "SECONDS");
    QCommandLineOption const format =
        option({"format"}, "How the report is written; text by default.", "text|json|junit");
    QCommandLineOption const output = option({"output"}, "Writes the report into this file.", "FILE");
    QCommandLineOption const quick = option({"quick"}, "Only loads and unloads the file, in this very process.");
    QCommandLineOption const list = option({"list"}, "Prints the checks and ends.");
    QCommandLineOption run = option({"run"}, "Makes one check in this process.", "CHECK");
    QCommandLineOption findings = option({"findings"}, "The file for what that check finds.", "FILE");
    QCommandLineParser parser;
};

QString listOfChecks() {
    QString text;
    for (auto const& check : allChecks())
        text += QStringLiteral("%1  %2\n        %3\n")
                    .arg(check.level, 2)
                    .arg(QString::fromStdString(check.name), QString::fromStdString(check.meaning));
    return text;
}

/// Reads a number; an error if it is none or out of range.
int numberOf(QCommandLineParser const& parser, QCommandLineOption const& option, int usual, int most, QString& error) {
    if (!parser.isSet(option))
        return usual;
    bool isNumber = false;
    int const number = parser.value(option).toInt(&isNumber);
    if (!isNumber || number < 1 || number > most)
        error = QStringLiteral("--%1 needs a whole number from 1 to %2.").arg(option.names().constFirst()).arg(most);
    return number;
}

void readFormat(QString const& name, CommandLine& line) {
    if (name == QStringLiteral("json"))
        line.format = CommandLine::Format::Json;
    else if (name == QStringLiteral("junit"))
        line.format = CommandLine::Format::JUnit;
    else if (!name.isEmpty() && name != QStringLiteral("text"))
        line.error = QStringLiteral("--format is text, json or junit.");
}

} // namespace

CommandLine readCommandLine(QStringList const& arguments) {
    Options options;
    auto& parser = options.parser;
    CommandLine line;
    if (!parser.parse(arguments)) {
        line.error = parser.errorText();
        return line;
    }
    line.help = parser.isSet(options.help);
    if (parser.isSet(options.version))
        line.text = QStringLiteral("talo_check " TALO_VERSION "\n");
    else if (parser.isSet(options.list))
        line.text = listOfChecks();
    if (line.help || !line.text.isEmpty())
        return line;
    auto const files = parser.positionalArguments();
    if (files.size() != 1)
        line.error = QStringLiteral("One plug-in file is needed.");
    else
        line.subject.file = QFile::encodeName(files.constFirst()).toStdString();
    constexpr int large = 1000000000;
    line.subject.seed = static_cast<unsigned>(
        numberOf(parser, options.seed, static_cast<int>(std::random_device()() % large) + 1, large, line.error));
    line.subject.events = numberOf(parser, options.events, 200, large, line.error);
    line.level = numberOf(parser, options.level, HighestLevel, HighestLevel, line.error);
    line.seconds = numberOf(parser, options.seconds, 60, 3600, line.error);
    readFormat(parser.value(options.format), line);
    line.only = parser.value(options.only);
    if (!line.only.isEmpty() && !findCheck(line.only.toStdString()))
        line.error = QStringLiteral("There is no check of this name; --list names all.");
    line.output = parser.value(options.output);
    line.quick = parser.isSet(options.quick);
    line.run = parser.value(options.run);
    line.findings = parser.value(options.findings);
    return line;
}

QString helpText() {
    return Options().parser.helpText();
}

} // namespace Checker

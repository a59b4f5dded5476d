#pragma once

#include <checker/Check.hpp>
#include <QString>
#include <QStringList>

namespace Checker {

/// What the command line asks for.
struct CommandLine {
    /// How the report is written.
    enum class Format { Text, Json, JUnit };

    QString error;                ///< why the command line is wrong, a sentence; empty if it is not
    QString text;                 ///< what is to be printed instead of checking (version, list); else empty
    bool help = false;            ///< whether the help is to be printed instead of checking
    Subject subject;              ///< what is checked
    QString only;                 ///< the one check that is made; empty for all
    int level = HighestLevel;     ///< checks above it are left out
    int seconds = 60;             ///< the time limit of a check
    Format format = Format::Text; ///< of the report
    QString output;               ///< the file of the report; empty for standard output
    QString run;                  ///< the one check that this process runs as a child; else empty
    QString findings;             ///< the file to which that check adds what it finds
    bool quick = false;           ///< only loads and unloads, in this process
};

/// Reads the arguments of the program, the first of which is its name.
CommandLine readCommandLine(QStringList const& arguments);

/// The text for `--help`. Needs the application object, which knows the name of the program.
QString helpText();

} // namespace Checker

#pragma once

#include <checker/CheckRun.hpp>
#include <QByteArray>
#include <vector>

namespace Checker {

/// What all checks of a file found.
struct Report {
    QString file;                     ///< the plug-in
    unsigned seed = 1;                ///< that replays it
    std::vector<CheckResult> results; ///< in the order of the checks

    /// Whether all passed.
    bool passed() const;
    /// For people, UTF-8: a line for each check, with its faults and notes below, and a summary.
    QByteArray asText() const;
    /// One JSON object: "file", "seed", "passed", "checks".
    QByteArray asJson() const;
    /// JUnit XML, as build servers read it: a test suite with a test case for each check.
    QByteArray asJUnit() const;
};

/// The lines of a check in the text for people.
QByteArray textOf(CheckResult const& result);

} // namespace Checker

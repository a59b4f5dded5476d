#pragma once

#include <checker/Check.hpp>
#include <QString>
#include <QStringList>

namespace Checker {

/// How a check ended.
struct CheckResult {
    QString name;       ///< of the check
    int level = 0;      ///< of the check
    QStringList faults; ///< sentences; none if it passed
    QStringList notes;  ///< sentences that harm nothing
    QStringList output; ///< the last lines that the plug-in printed, in either stream
    double seconds = 0; ///< how long it took

    /// Whether it passed.
    bool passed() const { return faults.isEmpty(); }
};

/// Runs a check in a process of its own, which is ended after so many seconds. A crash, an end and a hang are faults.
CheckResult runInChild(Check const& check, Subject const& subject, int secondsAtMost);

/// Runs a check in this process, which is such a child, and adds what it finds to a file. Returns the status of the
/// process.
int runAsChild(Check const& check, Subject const& subject, QString const& findingsFile);

} // namespace Checker

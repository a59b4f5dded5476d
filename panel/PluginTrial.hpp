#pragma once

#include <QCoreApplication>
#include <QSettings>
#include <QString>

namespace Panel {

/// Tries plug-in files in a process of their own before they are loaded, because a crash, a hang or an end of the
/// program while a file is loaded cannot be survived. The checker of plug-in files (talo_check) loads and unloads the
/// file. What came of it is kept by path, time and size of the file, so that each file is tried once.
/// User-interface thread.
class PluginTrial {
    Q_DECLARE_TR_FUNCTIONS(PluginTrial)

public:
    /// `checker` is the program; empty for none, so that nothing is tried. What came of the trials is kept in
    /// `keptFile`, in the format of settings.
    PluginTrial(QString checker, QString const& keptFile);
    ~PluginTrial();

    /// The file for what came of the trials, in the user's settings.
    static QString userFile();
    /// How long a file may take, in seconds; 10 unless set.
    void setTimeLimit(int seconds) { seconds_ = seconds; }
    /// Why a file cannot be loaded without the end of the program: a sentence that names it. Empty if it can, which
    /// includes a file that the host refuses with a reason of its own.
    QString problemOf(QString const& file);

private:
    // What came of a trial, in a form that can be kept: empty if the file does no harm, "hang", "end", or "crash" and
    // the number of the signal.
    QString tried(QString const& path) const;
    QString sentence(QString const& file, QString const& verdict) const;

    QString const checker_;
    QSettings kept_;
    int seconds_ = 10;
};

} // namespace Panel

#include <panel/PluginTrial.hpp>

#include <cstring>
#include <QCryptographicHash>
#include <QDateTime>
#include <QFileInfo>
#include <QProcess>

namespace Panel {

namespace {

/// What tells one state of a file from another.
QStringList stateOf(QFileInfo const& file) {
    return {file.filePath(), QString::number(file.lastModified().toMSecsSinceEpoch()), QString::number(file.size())};
}

/// A name of the settings for a path, which may have any characters.
QString keyOf(QString const& path) {
    return QString::fromLatin1(QCryptographicHash::hash(path.toUtf8(), QCryptographicHash::Sha1).toHex());
}

} // namespace

PluginTrial::PluginTrial(QString checker, QString const& keptFile)
    : checker_(std::move(checker)), kept_(keptFile, QSettings::IniFormat) {}

PluginTrial::~PluginTrial() = default;

QString PluginTrial::userFile() {
    return QSettings(QSettings::IniFormat, QSettings::UserScope, QStringLiteral("talo"),
                     QStringLiteral("plugin_trials"))
        .fileName();
}

QString PluginTrial::problemOf(QString const& file) {
    QFileInfo const info(QFileInfo(file).canonicalFilePath());
    // What is no file is refused by the host itself.
    if (checker_.isEmpty() || !info.isFile())
        return {};
    auto const state = stateOf(info);
    auto const key = keyOf(info.filePath());
    // The state, and the problem at its end.
    auto kept = kept_.value(key).toStringList();
    if (kept.size() != state.size() + 1 || kept.mid(0, state.size()) != state) {
        kept = state + QStringList{tried(info.filePath())};
        kept_.setValue(key, kept);
    }
    return kept.last().isEmpty()
               ? QString()
               : tr("The plug-in %1 was not loaded, because it would end this program: %2").arg(file, kept.last());
}

QString PluginTrial::tried(QString const& path) const {
    QProcess process;
    process.setStandardErrorFile(QProcess::nullDevice());
    process.start(checker_, {QStringLiteral("--quick"), QStringLiteral("--"), path});
    // Without the checker nothing is known against the file.
    if (!process.waitForStarted())
        return {};
    if (!process.waitForFinished(seconds_ * 1000)) {
        process.kill();
        process.waitForFinished();
        return tr("loading it takes more than %1 seconds.").arg(seconds_);
    }
    if (process.exitStatus() == QProcess::CrashExit)
        return tr("it crashes while it is loaded (%1).").arg(QString::fromLocal8Bit(strsignal(process.exitCode())));
    // The checker says in its last line that it came to its end.
    if (!process.readAllStandardOutput().endsWith("talo_check: done\n"))
        return tr("it ends the program while it is loaded.");
    return {};
}

} // namespace Panel

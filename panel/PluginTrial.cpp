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
    // The state, and the verdict at its end.
    auto kept = kept_.value(key).toStringList();
    if (kept.size() != state.size() + 1 || kept.mid(0, state.size()) != state) {
        kept = state + QStringList{tried(info.filePath())};
        kept_.setValue(key, kept);
    }
    return sentence(file, kept.last());
}

QString PluginTrial::sentence(QString const& file, QString const& verdict) const {
    if (verdict.isEmpty())
        return {};
    if (verdict == QLatin1String("hang"))
        return tr("The plug-in %1 was not loaded, because loading it takes more than %2 seconds.")
            .arg(file)
            .arg(seconds_);
    if (verdict == QLatin1String("end"))
        return tr("The plug-in %1 was not loaded, because it ends the program while it is loaded.").arg(file);
    int const signal = verdict.section(QLatin1Char(' '), 1).toInt();
    return tr("The plug-in %1 was not loaded, because it crashes while it is loaded (%2).")
        .arg(file, QString::fromLocal8Bit(strsignal(signal)));
}

QString PluginTrial::tried(QString const& path) const {
    QProcess process;
    process.setStandardErrorFile(QProcess::nullDevice());
    process.start(checker_, {QStringLiteral("--quick"), QStringLiteral("--"), path});
    if (!process.waitForStarted())
        return {};
    bool const inTime = process.waitForFinished(seconds_ * 1000);
    if (!inTime) {
        process.kill();
        process.waitForFinished();
    }
    auto const lines = process.readAllStandardOutput();
    // A checker that does not start, as without one of its libraries, says nothing against the file.
    if (!lines.startsWith("talo_check: begin\n"))
        return {};
    if (!inTime)
        return QStringLiteral("hang");
    if (process.exitStatus() == QProcess::CrashExit)
        return QStringLiteral("crash %1").arg(process.exitCode());
    return lines.endsWith("talo_check: done\n") ? QString() : QStringLiteral("end");
}

} // namespace Panel

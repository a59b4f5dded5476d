#include <panel/window/Plugins.hpp>

#include <panel/Translations.hpp>
#include <parameters/rows/HostTexts.hpp>
#include <QFileInfo>
#include <tessera/TerminalText.hpp>

namespace Panel {

namespace {

void append(QString* error, std::string const& message) {
    if (!error)
        return;
    if (!error->isEmpty())
        *error += QLatin1Char('\n');
    // A newline separates the reasons, so there is none in a reason.
    *error += Talo::hostText(QString::fromStdString(Tessera::terminalText(message)));
}

} // namespace

Plugins::Plugins(QObject* parent) : QObject(parent), loader_(host_) {}

Plugins::~Plugins() = default;

bool Plugins::load(QString const& file, QString* error, Trust trust) {
    if (trust == Trust::Tried && !passesTrial(file, error))
        return false;
    emit aboutToChange();
    bool const loaded = loadFile(file, error);
    if (loaded && !knownFiles_.contains(file))
        knownFiles_ << file;
    emit changed();
    return loaded;
}

bool Plugins::unload(QString* error) {
    if (!isIdle(error))
        return false;
    emit aboutToChange();
    bool const unloaded = unloadFiles(error);
    emit changed();
    return unloaded;
}

bool Plugins::reload(QString* error) {
    if (!isIdle(error))
        return false;
    emit aboutToChange();
    bool reloaded = unloadFiles(error);
    auto const loaded = loadedFiles();
    for (auto const& file : std::as_const(knownFiles_)) {
        // It may have been built again meanwhile.
        if (!loaded.contains(file))
            reloaded = passesTrial(file, error) && loadFile(file, error) && reloaded;
    }
    emit changed();
    return reloaded;
}

bool Plugins::isIdle(QString* error) const {
    // Before any editor is closed: one of them may be what is running.
    auto const idle = loader_.checkIdle();
    if (!idle.ok)
        append(error, idle.message);
    return idle.ok;
}

QStringList Plugins::loadedFiles() const {
    QStringList files;
    for (auto const& file : loader_.files())
        files << QString::fromStdString(file);
    return files;
}

bool Plugins::passesTrial(QString const& file, QString* error) const {
    auto const problem = problemOf(file);
    if (!problem.isEmpty())
        append(error, problem.toStdString());
    return problem.isEmpty();
}

bool Plugins::loadFile(QString const& file, QString* error) {
    auto const outcome = loader_.load(file.toStdString());
    // A link has the translation of the file that it leads to.
    QFileInfo const info(QFileInfo(file).canonicalFilePath());
    if (outcome.ok)
        translations_[file] = installTranslation(info.absolutePath(), info.completeBaseName());
    else
        append(error, outcome.message);
    return outcome.ok;
}

bool Plugins::unloadFiles(QString* error) {
    bool all = true;
    auto const files = loader_.files();
    for (auto file = files.rbegin(); file != files.rend(); ++file) {
        auto const outcome = loader_.unload(*file);
        if (outcome.ok)
            translations_.erase(QString::fromStdString(*file));
        else
            append(error, outcome.message);
        all = all && outcome.ok;
    }
    return all;
}

} // namespace Panel

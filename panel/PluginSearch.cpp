#include <panel/PluginSearch.hpp>

#include <algorithm>
#include <QDir>
#include <QFileInfo>

namespace Panel {

void PluginSearch::addFile(QString const& file) {
    QFileInfo const added(file);
    for (auto const& known : std::as_const(files_)) {
        QFileInfo const other(known);
        // Empty for files that do not exist; those are compared by their names alone.
        bool const isSame =
            !added.canonicalFilePath().isEmpty() && added.canonicalFilePath() == other.canonicalFilePath();
        if (isSame && file != known)
            return remark(tr("%1 is not loaded again: it is the file %2.").arg(file, known));
        if (isSame || added.absoluteFilePath() == other.absoluteFilePath())
            return remark(tr("%1 is loaded once only.").arg(file));
        // The name is that of the function which a plug-in exports, so it identifies the plug-in.
        if (added.fileName() == other.fileName())
            return remark(tr("%1 is not loaded: %2 has the same name and comes first.").arg(file, known));
    }
    files_ << file;
}

bool PluginSearch::addFolder(QString const& folder) {
    QDir const place(folder);
    if (!place.isReadable())
        return false;
    // What is no regular file is added as well, so that the loader says so.
    auto const names = place.entryList({QStringLiteral("*.talo")}, QDir::Files | QDir::System, QDir::Name);
    for (auto const& name : names)
        addFile(QDir::cleanPath(place.absoluteFilePath(name)));
    return true;
}

void PluginSearch::addPath(QString const& folders) {
    auto const names = folders.split(QLatin1Char(':'), Qt::SkipEmptyParts);
    for (auto const& name : names)
        if (!addFolder(name))
            remark(tr("The folder %1 of TALO_PLUGIN_PATH cannot be read.").arg(name));
}

bool PluginSearch::hasName(QString const& fileName) const {
    return std::any_of(files_.begin(), files_.end(),
                       [&](auto const& file) { return QFileInfo(file).fileName() == fileName; });
}

void PluginSearch::remark(QString const& sentence) {
    if (!remarks_.contains(sentence))
        remarks_ << sentence;
}

} // namespace Panel

#pragma once

#include <QCoreApplication>
#include <QString>
#include <QStringList>

namespace Panel {

/// Collects the plug-in files (*.talo) that are to be loaded, in the order in which they are named and found. A file
/// that is there already, or whose name another one has, is left out and remarked on once. User-interface thread.
class PluginSearch {
    Q_DECLARE_TR_FUNCTIONS(Panel::PluginSearch)

public:
    /// Adds a file, which need not exist: its loading will tell.
    void addFile(QString const& file);
    /// Adds the plug-in files of a folder in the order of their names, those of folders in it not. False if the folder
    /// cannot be read.
    bool addFolder(QString const& folder);
    /// Adds those of several folders, separated by colons; empty names count for nothing. A folder that cannot be read
    /// is remarked on.
    void addPath(QString const& folders);

    /// Whether a file of this name, as in "qtalo_inputs.talo", was added.
    bool hasName(QString const& fileName) const;

    /// The files, no two of them the same or of one name.
    QStringList const& files() const { return files_; }
    /// What was left out, and why: sentences for people.
    QStringList const& remarks() const { return remarks_; }

private:
    void remark(QString const& sentence);

    QStringList files_;
    QStringList remarks_;
};

} // namespace Panel

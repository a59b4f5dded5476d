#pragma once

#include <functional>
#include <lattice/PluginLoader.hpp>
#include <map>
#include <memory>
#include <QObject>
#include <QStringList>
#include <QTranslator>

namespace Panel {

/// The plug-in files of the panel. It remembers the files that it once loaded, so that they can be loaded again. With a
/// file FOLDER/NAME.talo comes the translation of its texts, FOLDER/NAME_LANGUAGE.qm, where there is one for the
/// language of the panel; it goes when the file is unloaded.
/// Closes them when it is destroyed, which must happen after all editors are gone and before `main` returns.
/// User-interface thread.
class Plugins : public QObject {
    Q_OBJECT

public:
    explicit Plugins(QObject* parent = nullptr);
    ~Plugins() override;

    /// Why a file must not be loaded, a sentence; empty if nothing is known against it.
    using Trial = std::function<QString(QString const& file)>;
    /// Sets what is asked before a file is loaded or reloaded; nothing is asked at first.
    void setTrial(Trial trial) { trial_ = std::move(trial); }
    /// Why the trial is against a file; empty if it is not.
    QString problemOf(QString const& file) const { return trial_ ? trial_(file) : QString(); }
    /// Whether load() asks the trial.
    enum class Trust { Tried, Anyway };

    /// Loads a file. False, and the reason in `error` unless that is null, when it cannot be loaded; a file that could
    /// not be loaded is not remembered.
    bool load(QString const& file, QString* error = nullptr, Trust trust = Trust::Tried);
    /// Unloads all loaded files, the latest first. False, and the reasons in `error` unless that is null, when one
    /// stays, because editors or values made by it are still in use. While code of a file is running on this thread,
    /// nothing is closed or unloaded.
    bool unload(QString* error = nullptr);
    /// Unloads all loaded files and loads all remembered ones, in the order in which they were first loaded.
    /// While code of a file is running on this thread, nothing happens and it returns false.
    bool reload(QString* error = nullptr);

    /// The loaded files.
    QStringList loadedFiles() const;
    /// The remembered files, loaded or not.
    QStringList const& knownFiles() const { return knownFiles_; }

signals:
    /// Creators are about to be registered or unregistered: receivers close all editors and icons before they return.
    void aboutToChange();
    /// Creators may have come or gone: editors and icons can be opened again.
    void changed();

private:
    // Whether no code of the files is running.
    bool isIdle(QString* error) const;
    bool passesTrial(QString const& file, QString* error) const;
    bool loadFile(QString const& file, QString* error);
    bool unloadFiles(QString* error);

    Trial trial_;
    Kolt::VInitialization host_;
    Kolt::PluginLoader loader_;
    QStringList knownFiles_;
    std::map<QString, std::unique_ptr<QTranslator>> translations_;
};

} // namespace Panel

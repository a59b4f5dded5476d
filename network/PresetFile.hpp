#pragma once

#include <lattice/Object.hpp>
#include <QJsonObject>
#include <QString>
#include <QStringList>
#include <tessera/Export.hpp>
#include <vector>

namespace Talo {

class Network;

/// Which objects can have a preset: those of one kind, or a single one that has no kind.
struct TALO_EXPORT PresetScope {
    QString kind;   ///< the kind of the objects; empty for an object without a kind
    QString object; ///< the name of the object; empty where there is a kind

    /// The scope of an object of the network.
    static PresetScope of(Network const& network, Kolt::ObjectPtr const& object);
    /// Whether both are the same.
    bool operator==(PresetScope const& other) const { return kind == other.kind && object == other.object; }
};

/// Named sets of values for the objects of a network, in a file beside the network file. docs/network-files.md
/// describes the format. Each change reads the file anew, so that what another program wrote is kept, and replaces it
/// in one step. A file that cannot be read is never written. User-interface thread. Prints nothing.
class TALO_EXPORT PresetFile {
public:
    /// A preset.
    struct Preset {
        PresetScope scope; ///< whose preset it is
        QString name;      ///< any text but the empty one; once in its scope
        /// The values by the names of the parameters, each {"type": ..., "value": ...}.
        QJsonObject values;
    };

    /// The file with the presets of a network file: its name with ".presets" behind it; empty for no file.
    static QString fileFor(QString const& networkFile);
    /// The presets in this file, which need not exist; with an empty name there are none and none can be kept.
    explicit PresetFile(QString file);
    ~PresetFile();

    /// The file's name.
    QString const& file() const { return file_; }
    /// Reads the file; without one there are no presets. Returns "FILE:LINE: what was expected, what was found" if that
    /// fails; there are no presets then.
    [[nodiscard]] QString read();
    /// The names of the presets of a scope, sorted.
    QStringList names(PresetScope const& scope) const;
    /// A preset by its name; null if there is none. Valid until the next change.
    Preset const* find(PresetScope const& scope, QString const& name) const;

    /// Adds a preset or replaces the one with the same scope and name, and writes the file. Returns the reason if that
    /// fails; the file stays as it was.
    [[nodiscard]] QString put(Preset const& preset);
    /// Removes a preset, if there is one, and writes the file. Returns the reason if that fails.
    [[nodiscard]] QString remove(PresetScope const& scope, QString const& name);

private:
    std::vector<Preset>::const_iterator place(PresetScope const& scope, QString const& name) const;
    QString write() const;

    QString const file_;
    std::vector<Preset> presets_;
};

} // namespace Talo

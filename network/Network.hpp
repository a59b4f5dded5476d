#pragma once

#include <bramble/Action.hpp>
#include <functional>
#include <lattice/ChangeSignal.hpp>
#include <lattice/Object.hpp>
#include <map>
#include <memory>
#include <optional>
#include <QByteArray>
#include <QString>
#include <QStringList>
#include <set>
#include <tessera/Export.hpp>
#include <unordered_map>
#include <vector>

class QJsonObject;

namespace Talo {

class NetworkReader;
class NetworkText;

/// Makes an object of a network: of the kind that the file names, which may be empty, and with the name, which the
/// object must carry. Returns a new object, never null.
using ObjectFactory = std::function<Kolt::ObjectPtr(QString const& kind, QString const& name)>;

/// A network of objects with typed parameters, as a network file describes it, and the pools in which its parameters
/// have values. docs/network-files.md describes the format. The network owns objects and pools: they live until it is
/// destroyed; a parameter also dies when it is removed from its object. User-interface thread. Prints nothing and
/// throws nothing.
class TALO_EXPORT Network {
public:
    /// What came of a file: a network, or a null one and the reason as "FILE:LINE: what was expected, what was found".
    /// What a parameter has wrong is said after its name, as "FILE:LINE: object.parameter: what was expected, ...".
    struct LoadResult {
        /// Null when the file was refused.
        std::unique_ptr<Network> network;
        /// Why it was refused; empty otherwise.
        QString error;
    };

    /// Reads a network file completely or not at all. Only a regular file of at most 64 MB is read. For a file that
    /// cannot be read the line is 0. The factory makes
    /// the objects; an empty one makes objects that do nothing.
    static LoadResult load(QString const& file, ObjectFactory const& makeObject = {});
    /// A network without objects and without a file, for a host that makes its objects itself, with new pools of these
    /// names. REQUIRES: at least one name, each one once.
    static std::unique_ptr<Network> create(QString const& title, std::vector<std::string> const& poolNames);
    /// Adds an object at the end; null is ignored. `kind` says what it is for, and may be empty. Its values are its
    /// defaults, and they count as saved. Its actions keep their handlers.
    void addObject(Kolt::ObjectPtr const& object, QString const& kind = {});
    /// Makes an object with these parameters, adds it in the same way and returns it.
    Kolt::ObjectPtr addObject(std::string const& name, std::vector<Kolt::ParameterPtr> const& parameters);
    ~Network();
    Network(Network const&) = delete;
    Network& operator=(Network const&) = delete;

    /// The file as it was given to `load`, or the last one that `saveAs` wrote; empty for a network without a file.
    QString const& file() const { return file_; }
    /// A text for the window; empty when the file has none.
    QString const& title() const { return title_; }

    /// The objects in the order of the file.
    std::vector<Kolt::ObjectPtr> const& objects() const { return objects_; }
    /// An object by its name; null when there is none.
    Kolt::ObjectPtr findObject(QString const& name) const;
    /// What the object is for, a free text of the file; empty for an object of another network.
    QString kind(Kolt::ObjectPtr const& object) const;
    /// The parameter named "object.parameter", where the first dot separates the two; null when there is none.
    Kolt::ParameterPtr findParameter(QString const& objectDotParameter) const;

    /// The pools in the order of the file, at least one. The first one is chosen at the start.
    std::vector<Kolt::PoolPtr> const& pools() const { return pools_; }
    /// The pool of this name; null when there is none.
    Kolt::PoolPtr findPool(QString const& name) const;

    /// All values as JSON: {"object": {"parameter": {"value": ..., "values": {"pool": ...}}}}, sorted by name, with
    /// "values" where the parameter keeps values per pool, for those pools that have one. Null means that nothing
    /// is chosen, or a value that network files cannot contain. Equal values give equal bytes. Ends with a line feed.
    QByteArray values() const;
    /// Writes the whole network with its current values, in the format that `load` reads, and replaces the file in one
    /// step or leaves it as it was. What was saved, loaded and saved there again has the same bytes; in another folder
    /// only the paths that are relative to the folder differ. Not written are properties that an editor filled in
    /// (VParameter::isFilledIn), and what shows a state: a status or an information is written as it was at the
    /// start. False, and the reason in `error` unless that is null,
    /// when the file cannot be written or the network has something that files cannot contain.
    bool save(QString const& file, QString* error) const;

    /// Writes the network as `save` does and uses that file from now on: relative paths start at its folder. The
    /// defaults of the parameters stay what they were.
    bool saveAs(QString const& file, QString* error);

    /// From now on the values that people edit are the defaults of their parameters (VParameter::rememberDefaults), and
    /// they count as saved. A network that was loaded starts so: its defaults are what its author wrote.
    void rememberDefaults();
    /// Whether a value that people edit differs from the one in the file, in a pool or in the parameter itself.
    bool isModified() const;
    /// The same, quickly, for a host that follows all parameters by a signal: `changed` is what
    /// ChangeSignal::awaitNext() returned. Looks only at those that have changed since all were looked at; at all if
    /// `changed` is empty. A change of which nobody was notified is missed until isModified() is called.
    bool isModifiedAfter(std::optional<std::vector<Kolt::ChangeSignal::Changed>> const& changed);
    /// The values of the parameters that differ so, as JSON: {"object.parameter": {"value": ..., "values": ...}}, as
    /// `values` writes them.
    QByteArray unsavedValues() const;
    /// Takes over what `unsavedValues` gave, of this network or of one that was loaded from the same file before or
    /// after it was changed. Notifies everybody. Each parameter takes all of its values or none. Returns why for those
    /// that take none, as "object.parameter: what was expected, what was found".
    QStringList takeValues(QByteArray const& json);

    /// The name of a parameter of this network, "object.parameter"; empty for any other.
    QString nameOf(Kolt::ParameterPtr const& parameter) const;

    /// Sets a value as the host would: the pool's value where the parameter keeps values per pool (made if it is not
    /// there), else the parameter's own. Notifies everybody once and renews the age stamp. The text is what the type's
    /// VValueTrait reads. False, nothing changed, and the reason in `error` unless that is null, when there is no such
    /// parameter or pool or the text is no value of the type.
    bool setText(QString const& objectDotParameter, QString const& text, Kolt::PoolPtr const& pool, QString* error);

    /// Called when an action of the network is fired, with the object that holds it and the parameter and pool that it
    /// was fired for, both of which may be null. May be empty. An action that outlives the network
    /// does nothing when it is fired.
    std::function<void(Kolt::ObjectPtr const&, Kolt::ParameterPtr const&, Kolt::PoolPtr const&)> actionHandler;

private:
    friend class NetworkReader;
    struct SavedValue {
        Kolt::ParameterRef parameter;
        Kolt::ValueSnapshot value;
    };
    /// Where relative paths start, and where they are to start in a file that is written. Asked once for all
    /// parameters.
    struct Folders {
        QString now;
        QString target;
    };
    Network();

    /// Makes room for so many objects.
    void reserveObjects(std::size_t count);
    /// Adds an object and its kind, and nothing else.
    void insertObject(Kolt::ObjectPtr const& object, QString const& kind);
    /// Adds a pool with a name that is not taken.
    void insertPool(std::string const& name);
    /// Makes the actions that a parameter of the object holds, its own and those of the pools, call the handler.
    void connectActions(Kolt::VParameter const& parameter, Kolt::ObjectPtr const& object) const;
    bool isSaved(SavedValue const& saved) const;
    /// Looks at all values.
    bool findModified() const;
    void noteChanged(Kolt::ChangeSignal::Changed const& changed);
    /// Keeps what an object says at the start: defaults, and texts that are shown to people.
    void rememberOpened(Kolt::VObject const& object);
    /// What a parameter that shows a state showed at the start; null for any other.
    Kolt::ValueSnapshot const* whenOpened(Kolt::VParameter const& parameter) const;
    void forgetSaved();
    /// From now on the values count as saved.
    void rememberDefaultsAsSaved();
    void rememberSaved();
    void rememberSaved(Kolt::VObject const& object);
    /// The folder of the file, absolute.
    QString folder() const;
    /// The network as it is written to a folder.
    NetworkText toText(QString const& targetFolder) const;
    QJsonObject objectToJson(Kolt::ObjectPtr const& object, Folders const& folders) const;
    QJsonObject parameterToJson(Kolt::VParameter const& parameter, Folders const& folders) const;

    QString file_;
    QString title_;
    std::vector<Kolt::PoolPtr> pools_;
    std::vector<Kolt::ObjectPtr> objects_;
    std::unordered_map<std::string, Kolt::PoolPtr> poolsByName_;
    // The first object of each name.
    std::unordered_map<std::string, Kolt::ObjectPtr> byName_;
    // What each object is for; no entry for an empty text.
    std::unordered_map<Kolt::VObject const*, QString> kinds_;
    // What was shown at the start.
    std::map<Kolt::VParameter const*, SavedValue> displayed_;
    // What the file holds of the values that people edit.
    std::vector<SavedValue> saved_;
    // The places of those that were found to differ or have changed since. Nearly always the first one differs.
    mutable std::set<std::size_t> differing_;
    // Whether no other one differs.
    mutable bool knowsOthers_ = false;
    // The place of the one that changed last: a person changes one value many times.
    std::size_t lastChanged_ = 0;
    // Tells actions whether the network is alive.
    std::shared_ptr<Network*> const self_;
};

} // namespace Talo

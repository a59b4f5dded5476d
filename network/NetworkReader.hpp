#pragma once

#include <lattice/ValueFormat.hpp>
#include <network/JsonNode.hpp>
#include <network/Network.hpp>
#include <QSet>
#include <tessera/Export.hpp>

namespace Talo {

class NetworkText;
class PropertyFormat;

/// Makes a network from the text of a network file.
class TALO_EXPORT NetworkReader {
public:
    /// The whole network; throws a FormatError when anything in the JSON is wrong. `file` says where relative paths
    /// start; it need not exist. The factory makes the objects; an empty one makes objects that do nothing.
    static std::unique_ptr<Network> read(JsonNode root, QString const& file, ObjectFactory const& makeObject = {});

    /// Throws a FormatError where `read` would; its line has no meaning.
    static void check(NetworkText const& text, QString const& file);

private:
    NetworkReader(QString const& file, ObjectFactory const& makeObject);
    /// Reads what a network has beside its objects.
    void readHead(JsonNode const& root);
    /// Reads the objects without their slots, and releases what was read.
    void readObjects(JsonNode root);
    void readPool(JsonNode const& node);
    void readObject(JsonNode const& node);
    void readParameters(JsonNode const& node, Kolt::ObjectPtr const& object);
    static void checkReferences(JsonNode const& node, Kolt::VObject const& object, Kolt::VParameter const& parameter);
    void readParameter(JsonNode const& node, Kolt::ObjectPtr const& object);
    /// The parameter with that name, which is not taken.
    void readParameter(JsonNode const& node, Kolt::ObjectPtr const& object, QString const& name);
    void readPoolValues(JsonNode const& node, Kolt::VParameter const& parameter, Kolt::VValueFormat const& format,
                        std::vector<std::string> const& entries) const;
    void forgetObjects();
    /// Reads the slots of all objects, which may be bound to a parameter of an object that comes later.
    void readSlots() const;
    void readSlots(JsonNode const& node, Kolt::VObject& object) const;

    std::unique_ptr<Network> network_;
    // The network's, asked once, as each parameter needs it.
    QString folder_;
    ObjectFactory const& makeObject_;
    QSet<QString> takenObjectNames_;
    // The names of the parameters of the object that is being read.
    QSet<QString> takenNames_;
    // The slots that are to be read, with their objects.
    std::vector<std::pair<Kolt::ObjectPtr, JsonNode>> slots_;
};

} // namespace Talo

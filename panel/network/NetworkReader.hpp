#pragma once

#include <panel/network/JsonNode.hpp>
#include <panel/network/Network.hpp>
#include <QSet>

namespace Panel {

class PropertyFormat;
struct ValueFormat;

/// Makes a network of the text of a network file. It is used for one text.
class NetworkReader {
public:
    /// The whole network; throws a FormatError when anything in the text is wrong. `file` says where relative paths
    /// start; it need not exist.
    static std::unique_ptr<Network> read(QByteArray const& json, QString const& file);

private:
    explicit NetworkReader(QString const& file);
    void readRoot(JsonNode const& root);
    void readPool(JsonNode const& node);
    void readObject(JsonNode const& node);
    void readParameter(JsonNode const& node, Kolt::ObjectPtr const& object);
    void readPoolValues(JsonNode const& node, Kolt::VParameter const& parameter, ValueFormat const& format,
                        std::vector<std::string> const& entries) const;
    void readSlots(JsonNode const& node, Kolt::ObjectPtr const& object);

    std::unique_ptr<Network> network_;
    // The names of the parameters of the object that is being read.
    QSet<QString> takenNames_;
};

} // namespace Panel

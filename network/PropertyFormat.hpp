#pragma once

#include <lattice/Value.hpp>
#include <lattice/ValueMap.hpp>
#include <network/JsonNode.hpp>

namespace Talo {

/// How the properties of parameters stand in a network file. JSON does not tell 1 from 1.0, so the name decides: a
/// plain number under "min", "max" or "increment" of a parameter of type double is a double and every other plain
/// number an int; {"int": 1} and {"double": 1} say it otherwise. Texts and truth values stand for themselves.
/// "tooltip", "icon", "inputmask" and "Extension" must be texts, "min", "max", "increment", "precision" and "wrap"
/// numbers. Any other name may hold any of these.
///
/// The path under "icon" is relative to the folder of the network file and is given to editors with that folder.
class PropertyFormat {
public:
    /// For parameters of a type, named by its key in the file, in a network file of a folder (absolute).
    PropertyFormat(QString typeKey, QString folder);

    /// Reads the properties of one parameter; throws a FormatError for a property of the wrong kind, and for one with
    /// which an editor could not work: a range that is empty, less than one column, fewer than two positions.
    Kolt::ValueMap read(JsonNode const& node) const;
    /// The property as JSON, for a network file in `targetFolder`; undefined for a value that no file can hold.
    QJsonValue write(QString const& name, Kolt::ValuePtr const& value, QString const& targetFolder) const;
    /// What takes the place of the property once the network file stands in `targetFolder`; null where it stays.
    Kolt::ValuePtr moved(QString const& name, Kolt::ValuePtr const& value, QString const& targetFolder) const;

private:
    enum class Kind { Integer, Real, Text, Icon, Free };
    Kind kindOf(QString const& name) const;
    /// Whether the property is a path that stands in the file relative to its folder.
    bool isRelative(QString const& name, Kolt::ValuePtr const& value) const;
    Kolt::ValuePtr readProperty(JsonNode const& node) const;
    void checkRanges(JsonNode const& node, Kolt::ValueMap const& properties) const;

    QString const typeKey_;
    QString const folder_;
};

} // namespace Talo

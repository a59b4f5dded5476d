#pragma once

#include <lattice/Value.hpp>
#include <lattice/ValueMap.hpp>
#include <network/JsonNode.hpp>
#include <tessera/Export.hpp>

namespace Talo {

/// How a network file writes the properties of parameters. JSON does not distinguish 1 from 1.0, so the name decides: a
/// number is a double for "min", "max" and "increment" of a parameter of type double, and an int everywhere else;
/// {"int": 1} and {"double": 1} override this. Texts and truth values are written as they are.
/// "tooltip", "icon", "inputmask", "Extension", "label", "help", "unit", "group", "visibleWhen" and "enabledWhen" must
/// be texts, "min", "max", "increment", "precision" and "wrap" numbers, "advanced" and "readOnly" truth values. A
/// property with another name may be any of these.
///
/// The path of "icon" is relative to the folder of the network file; editors get it with that folder.
class TALO_EXPORT PropertyFormat {
public:
    /// For parameters of a type, named by its key in the file, in a network file of a folder (absolute).
    PropertyFormat(QString typeKey, QString folder);

    /// Reads the properties of one parameter; throws a FormatError for a property of the wrong kind, and for one with
    /// which an editor could not work: a range that is empty, less than one column, fewer than two positions.
    Kolt::ValueMap read(JsonNode const& node) const;
    /// The property as JSON, for a network file in `targetFolder`; undefined for a value that no file can hold.
    QJsonValue write(QString const& name, Kolt::ValuePtr const& value, QString const& targetFolder) const;
    /// The property as it must be when the network file is moved to `targetFolder`; null where it does not change.
    Kolt::ValuePtr moved(QString const& name, Kolt::ValuePtr const& value, QString const& targetFolder) const;

private:
    // A bound is an integer or a real number, as the type of the parameter says.
    enum class Kind { Integer, Real, Bound, Text, Truth, Icon, Free };
    Kind kindOf(QString const& name) const;
    /// Whether the property is a path that the file writes relative to its folder.
    bool isRelative(QString const& name, Kolt::ValuePtr const& value) const;
    Kolt::ValuePtr readProperty(JsonNode const& node) const;
    void checkRanges(JsonNode const& node, Kolt::ValueMap const& properties) const;

    QString const typeKey_;
    QString const folder_;
};

} // namespace Talo

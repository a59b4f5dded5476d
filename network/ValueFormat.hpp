#pragma once

#include <lattice/Parameter.hpp>
#include <network/JsonNode.hpp>
#include <string>
#include <tessera/Export.hpp>
#include <vector>

namespace Talo {

/// How a network file writes the values of one type.
struct TALO_EXPORT ValueFormat {
    /// The texts among which a value chooses; empty for types that do not choose.
    using Entries = std::vector<std::string>;

    /// The type's key in the file.
    char const* key;
    /// The readable name of the type (Tessera::Typename), by which editors are chosen.
    std::string typeName;
    /// Whether values choose among the entries of their parameter.
    bool choosesEntries;
    /// A new value object; throws a FormatError for what is no value of the type.
    Kolt::ValuePtr (*read)(JsonNode const& node, Entries const& entries);
    /// The value as JSON; undefined when the object is not one that `read` makes, or holds a text that is not UTF-8.
    QJsonValue (*write)(Kolt::ValuePtr const& value);

    /// Stores the content of a value object that `read` made in another one of the same kind.
    void (*copy)(Kolt::ValuePtr const& from, Kolt::ValuePtr const& to);

    /// The format of a key; null for an unknown one. Formats live as long as the process.
    static ValueFormat const* ofKey(QString const& key);
    /// The format of a readable type name; null for an unknown one.
    static ValueFormat const* ofType(std::string const& typeName);
    /// The keys of all formats, for messages.
    static QString keys();
};

/// The entries among which a value chooses; null when it refers to no list.
TALO_EXPORT ValueFormat::Entries const* entriesOf(Kolt::ValuePtr const& value);

/// Whether two values choose among the same entries, or set the same flags. True for values that do neither.
TALO_EXPORT bool offerSameChoices(Kolt::ValuePtr const& left, Kolt::ValuePtr const& right);

/// A number as JsonNode::real reads it.
TALO_EXPORT QJsonValue realToJson(double number);

} // namespace Talo

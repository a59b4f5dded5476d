#pragma once

#include <lattice/Parameter.hpp>
#include <lattice/ValueFormat.hpp>
#include <network/JsonNode.hpp>
#include <string>
#include <tessera/Export.hpp>
#include <vector>

namespace Talo {

/// The texts among which a value chooses; empty for types that do not choose.
using Entries = std::vector<std::string>;

/// A format that reads and writes JSON without a detour through text, names the line of an error within a value, and
/// can have entries. The formats of the host's own types are of this kind. Registered like any other.
class TALO_EXPORT JsonFormat : public Kolt::VValueFormat {
public:
    /// A new value object; throws a FormatError for what is no value of the type.
    using Read = Kolt::ValuePtr (*)(JsonNode const& node, Entries const& entries);
    /// The value as JSON; undefined when the object is not one that `Read` makes, or holds a text that is not UTF-8.
    using Write = QJsonValue (*)(Kolt::ValuePtr const& value);
    /// What the values of the type are for.
    enum class Purpose {
        Plain,          ///< none of the others
        ChoosesEntries, ///< they choose among the entries of their parameter
        ShowsState      ///< they show how something stands
    };

    /// `typeName` is the readable name of the type (Tessera::Typename).
    JsonFormat(std::string key, std::string typeName, Read readJson, Write writeJson, Purpose purpose = Purpose::Plain);
    ~JsonFormat() override;

    /// A new value object; throws a FormatError for what is no value of the type.
    Kolt::ValuePtr readNode(JsonNode const& node, Entries const& entries) const { return read_(node, entries); }
    /// The value as JSON; undefined for one that cannot be written.
    QJsonValue writeNode(Kolt::ValuePtr const& value) const { return write_(value); }
    /// Whether values choose among the entries of their parameter.
    bool choosesEntries() const { return purpose_ == Purpose::ChoosesEntries; }

    std::string description() const override;
    bool showsState() const override { return purpose_ == Purpose::ShowsState; }
    std::optional<std::string> write(Kolt::ValuePtr const& value) const override;
    /// A new value object that chooses among no entries; null for what is no value of the type.
    Kolt::ValuePtr read(std::string const& text) const override;

private:
    Read const read_;
    Write const write_;
    Purpose const purpose_;
};

/// A new value object of a format's type; throws a FormatError for what is no value of the type.
TALO_EXPORT Kolt::ValuePtr readValue(Kolt::VValueFormat const& format, JsonNode const& node, Entries const& entries);

/// The value as JSON; undefined for one that cannot be written.
TALO_EXPORT QJsonValue writeValue(Kolt::VValueFormat const& format, Kolt::ValuePtr const& value);

/// The format of a parameter's declared type; null if it has none. Do not keep it (Kolt::VValueFormat::ofKey).
TALO_EXPORT Kolt::VValueFormat const* formatOf(Kolt::VParameter const& parameter);

/// A type for people: the key of its format, else its readable name.
TALO_EXPORT QString shortTypeName(std::string const& typeName);

/// Whether the format's values choose among the entries of their parameter.
TALO_EXPORT bool choosesEntries(Kolt::VValueFormat const& format);

/// The entries among which a value chooses; null when it refers to no list.
TALO_EXPORT Entries const* entriesOf(Kolt::ValuePtr const& value);

/// Whether two values choose among the same entries, or set the same flags. True for values that do neither.
TALO_EXPORT bool offerSameChoices(Kolt::ValuePtr const& left, Kolt::ValuePtr const& right);

/// A number as JsonNode::real reads it.
TALO_EXPORT QJsonValue realToJson(double number);

} // namespace Talo

#pragma once

#include <network/JsonFormat.hpp>
#include <network/NetworkReader.hpp>
#include <network/ValueText.hpp>
#include <parameters/commands/TypedJson.hpp>
#include <QJsonDocument>
#include <string>

namespace fuzz {

/// A parameter of each type.
inline Talo::Network& pasteTarget() {
    static auto const network = Talo::NetworkReader::read(Talo::JsonNode::parse(R"({ "pools": ["p"], "objects": [
        { "name": "o", "parameters": [
            { "name": "0", "type": "bool", "value": true },
            { "name": "1", "type": "int", "value": 4, "properties": { "min": 1, "max": 9 } },
            { "name": "2", "type": "double", "value": 0.5 },
            { "name": "3", "type": "string", "value": "text" },
            { "name": "4", "type": "stringarray", "value": ["one"] },
            { "name": "5", "type": "colour", "value": [0, 0.5, 1, 1] },
            { "name": "6", "type": "enum", "value": "b", "entries": ["a", "b"] },
            { "name": "7", "type": "selection", "value": null, "entries": ["a", "b"] },
            { "name": "8", "type": "multiselection", "value": ["a"], "entries": ["a", "b", "c"] },
            { "name": "9", "type": "flags", "value": { "x": true, "y": false } }] }] })"),
                                                          QStringLiteral("paste.json"));
    return *network;
}

} // namespace fuzz

/// Pastes a text into a parameter, which the first byte chooses; the rest is the text. What is wrong, a sentence; empty
/// where the text is refused, or the value survives being copied and pasted again.
inline std::string problemOfPastedValue(QByteArray const& bytes) {
    if (bytes.isEmpty())
        return {};
    auto& network = fuzz::pasteTarget();
    auto const& parameters = network.objects().front()->parameters();
    auto const chosen = static_cast<unsigned char>(bytes[0]);
    auto const& parameter = *parameters[chosen % parameters.size()];
    auto const& pool = network.pools().front();
    auto const text = bytes.mid(1);
    auto const typed = Talo::valueFromTypedJson(text, parameter, pool);
    if (typed.value && !typed.reason.isEmpty())
        return "a value is taken and refused at once";
    auto const& format = *Talo::formatOf(parameter);
    for (auto const& value : {typed.value, Talo::valueFromText(parameter, pool, QString::fromUtf8(text))}) {
        if (!value)
            continue;
        QJsonObject const copied{{QStringLiteral("type"), QString::fromStdString(format.key())},
                                 {QStringLiteral("value"), Talo::writeValue(format, value)}};
        if (copied.value(QStringLiteral("value")).isUndefined())
            return "what was pasted cannot be copied";
        auto const again = Talo::valueFromTypedJson(QJsonDocument(copied).toJson(), parameter, pool);
        if (!again.value)
            return "what was copied cannot be pasted: " + again.reason.toStdString();
        if (Talo::writeValue(format, again.value) != copied.value(QStringLiteral("value")))
            return "another value is pasted than was copied";
    }
    return {};
}

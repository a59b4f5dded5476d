// The formats of the host's own value types. They are registered when this library is loaded, before any other format.

#include <network/JsonFormat.hpp>

#include <algorithm>
#include <bramble/Action.hpp>
#include <bramble/Color.hpp>
#include <bramble/Enum.hpp>
#include <bramble/EnumSelection.hpp>
#include <bramble/FlagList.hpp>
#include <bramble/Info.hpp>
#include <bramble/MultipleStringSelection.hpp>
#include <bramble/ObjectStatus.hpp>
#include <bramble/StringSelection.hpp>
#include <charconv>
#include <cmath>
#include <limits>
#include <optional>
#include <QJsonArray>
#include <QJsonObject>
#include <QStringList>

namespace Talo {

namespace {

using ActionPtr = Tessera::StrongPtr<Kolt::VAction>;
using StringArray = std::array<std::string, 1>;

/// The content of a value object as JSON by `write`; undefined for an object of another type.
template <typename T, typename Write>
QJsonValue written(Kolt::ValuePtr const& value, Write const& write) {
    auto const content = Kolt::valueIn<T>(value);
    return content ? QJsonValue(write(*content)) : QJsonValue(QJsonValue::Undefined);
}

/// The text; undefined for bytes that are not UTF-8, which JSON cannot hold.
QJsonValue textToJson(std::string const& text) {
    auto const unicode = QString::fromStdString(text);
    return unicode.toStdString() == text ? QJsonValue(unicode) : QJsonValue(QJsonValue::Undefined);
}

Kolt::ValuePtr readBool(JsonNode const& node, Entries const&) {
    return Kolt::makeValue(node.truth("a bool value"));
}

QJsonValue writeBool(Kolt::ValuePtr const& value) {
    return written<bool>(value, [](bool content) { return content; });
}

Kolt::ValuePtr readInt(JsonNode const& node, Entries const&) {
    return Kolt::makeValue(node.integer("an int value"));
}

QJsonValue writeInt(Kolt::ValuePtr const& value) {
    return written<int>(value, [](int content) { return content; });
}

Kolt::ValuePtr readDouble(JsonNode const& node, Entries const&) {
    return Kolt::makeValue(node.real("a double value"));
}

QJsonValue writeDouble(Kolt::ValuePtr const& value) {
    return written<double>(value, realToJson);
}

Kolt::ValuePtr readAction(JsonNode const& node, Entries const&) {
    if (node.isNull())
        return Kolt::makeValue(ActionPtr());
    return Kolt::makeValue(ActionPtr(new Kolt::VAction(node.text("the name of an action").toStdString())));
}

QJsonValue writeAction(Kolt::ValuePtr const& value) {
    return written<ActionPtr>(value, [](ActionPtr const& action) { //
        return action ? textToJson(action->Name()) : QJsonValue();
    });
}

Kolt::ValuePtr readColour(JsonNode const& node, Entries const&) {
    auto const what = QStringLiteral("a colour value, a list of red, green, blue and alpha");
    auto const& channels = node.elements(what);
    if (channels.size() != 4)
        node.refuse(what);
    auto const channel = [&](std::size_t index) {
        auto const number = channels[index].real("a colour channel");
        if (std::isfinite(number) && std::abs(number) > static_cast<double>(std::numeric_limits<float>::max()))
            channels[index].refuse(QStringLiteral("a colour channel in the range of a float"));
        return static_cast<float>(number);
    };
    return Kolt::makeValue(Ferro::rgba_float_t{channel(0), channel(1), channel(2), channel(3)});
}

/// The double with the shortest text that still reads as the float, so that 0.3 is written as 0.3.
double shortestDouble(float number) {
    char text[32];
    auto const* const end = std::to_chars(text, text + sizeof text, number).ptr;
    double shortest = 0.0;
    std::from_chars(text, end, shortest);
    return shortest;
}

QJsonValue writeColour(Kolt::ValuePtr const& value) {
    return written<Ferro::rgba_float_t>(value, [](Ferro::rgba_float_t const& colour) {
        QJsonArray channels;
        for (float const channel : {colour.red, colour.green, colour.blue, colour.alpha})
            channels.append(realToJson(shortestDouble(channel)));
        return channels;
    });
}

[[noreturn]] void refuseEntry(JsonNode const& node, QString const& what) {
    node.refuse(what + QStringLiteral(", one of the entries"));
}

/// One of the entries, by its text.
std::string readEntry(JsonNode const& node, Entries const& entries, QString const& what) {
    auto const text = node.text(what).toStdString();
    if (std::find(entries.begin(), entries.end(), text) == entries.end())
        refuseEntry(node, what);
    return text;
}

Kolt::ValuePtr readEnum(JsonNode const& node, Entries const& entries) {
    Tessera::StrongPtr<Kolt::VEnumSelection, Tessera::StringList> const names(new Kolt::VEnumSelection(entries));
    if (!node.isNull()) {
        auto const chosen = readEntry(node, entries, QStringLiteral("an enum value"));
        names->select(static_cast<unsigned>(std::find(entries.begin(), entries.end(), chosen) - entries.begin()));
    }
    return Kolt::makeValue(Kolt::Enum(names));
}

QJsonValue writeEnum(Kolt::ValuePtr const& value) {
    return written<Kolt::Enum>(value, [](Kolt::Enum const& choice) {
        auto const* const names = dynamic_cast<Kolt::VEnumSelection const*>(choice.names().get());
        bool const chosen = names && names->selectedNumber() >= 0;
        return chosen ? textToJson(Kolt::VValueTrait<Kolt::Enum>::Text(choice)) : QJsonValue();
    });
}

Kolt::ValuePtr readSelection(JsonNode const& node, Entries const& entries) {
    Kolt::VStringList const selection(new Kolt::StringSelection(entries));
    if (!node.isNull())
        selection->select(readEntry(node, entries, QStringLiteral("a selection value")));
    return Kolt::makeValue(selection);
}

QJsonValue writeSelection(Kolt::ValuePtr const& value) {
    return written<Kolt::VStringList>(value, [](Kolt::VStringList const& selection) {
        bool const chosen = selection && !selection->selected().empty();
        return chosen ? textToJson(selection->selected()) : QJsonValue();
    });
}

Kolt::ValuePtr readMultipleSelection(JsonNode const& node, Entries const& entries) {
    Kolt::VMultipleStringList const selection(new Kolt::MultipleStringSelection(entries));
    for (auto const& element : node.elements("a multiselection value")) {
        auto const what = QStringLiteral("a chosen text");
        auto const text = element.text(what).toStdString();
        // By the index of the texts, as there may be as many as entries.
        if (!selection->contains(text))
            refuseEntry(element, what);
        if (selection->isInSelection(text))
            element.refuse(QStringLiteral("each chosen text once"));
        selection->add(text);
    }
    return Kolt::makeValue(selection);
}

QJsonValue writeMultipleSelection(Kolt::ValuePtr const& value) {
    return written<Kolt::VMultipleStringList>(value, [](Kolt::VMultipleStringList const& selection) {
        QJsonArray chosen;
        if (selection)
            for (auto const& text : *selection)
                if (selection->isInSelection(text))
                    chosen.append(textToJson(text));
        return chosen;
    });
}

Kolt::ValuePtr readFlags(JsonNode const& node, Entries const&) {
    Kolt::FlagList flags;
    for (auto const& member : node.members("a flags value"))
        flags[member.key().toStdString()] = member.truth("a flag");
    return Kolt::makeValue(flags);
}

QJsonValue writeFlags(Kolt::ValuePtr const& value) {
    return written<Kolt::FlagList>(value, [](Kolt::FlagList const& flags) {
        QJsonObject switches;
        for (auto const& [name, on] : flags)
            switches.insert(QString::fromStdString(name), on);
        return switches;
    });
}

Kolt::ValuePtr readInfo(JsonNode const& node, Entries const&) {
    return Kolt::makeValue(Kolt::info{node.text("an info value").toStdString()});
}

QJsonValue writeInfo(Kolt::ValuePtr const& value) {
    return written<Kolt::info>(value, [](Kolt::info const& content) { return textToJson(content.text); });
}

Kolt::ValuePtr readStatus(JsonNode const& node, Entries const&) {
    return Kolt::makeValue(Kolt::VObjectStatus(node.text("a status value").toStdString()));
}

QJsonValue writeStatus(Kolt::ValuePtr const& value) {
    return written<Kolt::VObjectStatus>(value, [](auto const& status) { return textToJson(status.text()); });
}

Kolt::ValuePtr readString(JsonNode const& node, Entries const&) {
    return Kolt::makeValue(node.text("a string value").toStdString());
}

QJsonValue writeString(Kolt::ValuePtr const& value) {
    return written<std::string>(value, textToJson);
}

// The editor of an array of one text edits a text, so a text is what the parameter holds.
Kolt::ValuePtr readStringArray(JsonNode const& node, Entries const&) {
    auto const what = QStringLiteral("a stringarray value, a list of one text");
    auto const& elements = node.elements(what);
    if (elements.size() != 1)
        node.refuse(what);
    return Kolt::makeValue(elements[0].text("the text of a stringarray value").toStdString());
}

QJsonValue writeStringArray(Kolt::ValuePtr const& value) {
    auto const array = Kolt::valueIn<StringArray>(value);
    auto const text = array ? std::optional<std::string>(array->front()) : Kolt::valueIn<std::string>(value);
    return text ? QJsonValue(QJsonArray{textToJson(*text)}) : QJsonValue(QJsonValue::Undefined);
}

using Purpose = JsonFormat::Purpose;

template <typename T>
JsonFormat ownFormat(char const* key, JsonFormat::Read read, JsonFormat::Write write,
                     Purpose purpose = Purpose::Plain) {
    return JsonFormat(key, Tessera::Typename(typeid(T)), read, write, purpose);
}

// Messages list the keys in this order.
JsonFormat const boolFormat = ownFormat<bool>("bool", readBool, writeBool);
JsonFormat const intFormat = ownFormat<int>("int", readInt, writeInt);
JsonFormat const doubleFormat = ownFormat<double>("double", readDouble, writeDouble);
JsonFormat const actionFormat = ownFormat<ActionPtr>("action", readAction, writeAction);
JsonFormat const colourFormat = ownFormat<Ferro::rgba_float_t>("colour", readColour, writeColour);
JsonFormat const enumFormat = ownFormat<Kolt::Enum>("enum", readEnum, writeEnum, Purpose::ChoosesEntries);
JsonFormat const flagsFormat = ownFormat<Kolt::FlagList>("flags", readFlags, writeFlags);
JsonFormat const infoFormat = ownFormat<Kolt::info>("info", readInfo, writeInfo, Purpose::ShowsState);
JsonFormat const selectionFormat =
    ownFormat<Kolt::VStringList>("selection", readSelection, writeSelection, Purpose::ChoosesEntries);
JsonFormat const multipleSelectionFormat = ownFormat<Kolt::VMultipleStringList>(
    "multiselection", readMultipleSelection, writeMultipleSelection, Purpose::ChoosesEntries);
JsonFormat const statusFormat = ownFormat<Kolt::VObjectStatus>("status", readStatus, writeStatus, Purpose::ShowsState);
JsonFormat const stringFormat = ownFormat<std::string>("string", readString, writeString);
JsonFormat const stringArrayFormat = ownFormat<StringArray>("stringarray", readStringArray, writeStringArray);

} // namespace

} // namespace Talo

#include <network/JsonFormat.hpp>

#include <algorithm>
#include <bramble/Enum.hpp>
#include <bramble/FlagList.hpp>
#include <bramble/MultipleStringSelection.hpp>
#include <bramble/StringSelection.hpp>
#include <cmath>
#include <exception>
#include <QJsonArray>
#include <QJsonDocument>

namespace Talo {

namespace {

using Notation = Kolt::VValueFormat::Notation;

// A document is a list or an object, so a value is put into a list.
std::string jsonText(QJsonValue const& value) {
    auto const list = QJsonDocument(QJsonArray{value}).toJson(QJsonDocument::Compact);
    return list.mid(1, list.size() - 2).toStdString();
}

QJsonValue jsonFromText(std::string const& text) {
    auto const list = QJsonDocument::fromJson('[' + QByteArray::fromStdString(text) + ']').array();
    return list.size() == 1 ? list.first() : QJsonValue(QJsonValue::Undefined);
}

/// The node in the format's notation; throws a FormatError if a text is expected and it is none.
std::string notationOf(JsonNode const& node, Notation notation, QString const& what) {
    return notation == Notation::Text ? node.text(what).toStdString() : jsonText(node.value());
}

QJsonValue fromNotation(std::string const& text, Notation notation) {
    if (notation == Notation::Json)
        return jsonFromText(text);
    auto const unicode = QString::fromStdString(text);
    return unicode.toStdString() == text ? QJsonValue(unicode) : QJsonValue(QJsonValue::Undefined);
}

} // namespace

JsonFormat::JsonFormat(std::string key, std::string typeName, Read readJson, Write writeJson, Purpose purpose)
    : VValueFormat(std::move(key), std::move(typeName), Notation::Json),
      read_(readJson),
      write_(writeJson),
      purpose_(purpose) {}

JsonFormat::~JsonFormat() = default;

std::string JsonFormat::description() const {
    return "a value of type " + key();
}

std::optional<std::string> JsonFormat::write(Kolt::ValuePtr const& value) const {
    auto const json = writeNode(value);
    return json.isUndefined() ? std::nullopt : std::make_optional(jsonText(json));
}

Kolt::ValuePtr JsonFormat::read(std::string const& text) const {
    try {
        auto const root = JsonNode::parse(R"({"value":)" + QByteArray::fromStdString(text) + '}');
        return readNode(root.required("value", "a value"), {});
    } catch (FormatError const&) {
        return nullptr;
    }
}

Kolt::ValuePtr readValue(Kolt::VValueFormat const& format, JsonNode const& node, Entries const& entries) {
    if (auto const* const json = dynamic_cast<JsonFormat const*>(&format))
        return json->readNode(node, entries);
    auto const what = QString::fromStdString("a value of type " + format.key() + ", " + format.description());
    auto const text = notationOf(node, format.notation(), what);
    Kolt::ValuePtr value;
    try {
        value = format.read(text);
    } catch (std::exception const& problem) {
        node.refuse(what + QStringLiteral(" (") + QString::fromUtf8(problem.what()) + QLatin1Char(')'));
    }
    if (!value)
        node.refuse(what);
    auto const typeName = Tessera::Typename(value->valueType());
    if (typeName != format.typeName())
        node.refuse(what, QStringLiteral("a value of type ") + QString::fromStdString(typeName) +
                              QStringLiteral(", which its format made"));
    return value;
}

QJsonValue writeValue(Kolt::VValueFormat const& format, Kolt::ValuePtr const& value) {
    if (auto const* const json = dynamic_cast<JsonFormat const*>(&format))
        return json->writeNode(value);
    try {
        auto const text = format.write(value);
        return text ? fromNotation(*text, format.notation()) : QJsonValue(QJsonValue::Undefined);
    } catch (std::exception const&) {
        return QJsonValue::Undefined;
    }
}

Kolt::VValueFormat const* formatOf(Kolt::VParameter const& parameter) {
    return Kolt::VValueFormat::ofType(parameter.declaredType());
}

QString shortTypeName(std::string const& typeName) {
    auto const* const format = Kolt::VValueFormat::ofType(typeName);
    return QString::fromStdString(format ? format->key() : typeName);
}

bool choosesEntries(Kolt::VValueFormat const& format) {
    auto const* const json = dynamic_cast<JsonFormat const*>(&format);
    return json && json->choosesEntries();
}

Entries const* entriesOf(Kolt::ValuePtr const& value) {
    Tessera::StringList const* list = nullptr;
    if (auto const choice = Kolt::valueIn<Kolt::Enum>(value))
        list = choice->names().get();
    else if (auto const selection = Kolt::valueIn<Kolt::VStringList>(value))
        list = selection->get();
    else if (auto const multiple = Kolt::valueIn<Kolt::VMultipleStringList>(value))
        list = multiple->get();
    return list ? &list->strings() : nullptr;
}

bool offerSameChoices(Kolt::ValuePtr const& left, Kolt::ValuePtr const& right) {
    Kolt::FlagList const none;
    auto const leftFlags = Kolt::valueOr(left, none);
    auto const rightFlags = Kolt::valueOr(right, none);
    auto const* const leftEntries = entriesOf(left);
    auto const* const rightEntries = entriesOf(right);
    bool const haveSameEntries =
        leftEntries && rightEntries ? *leftEntries == *rightEntries : leftEntries == rightEntries;
    return haveSameEntries && std::equal(leftFlags.begin(), leftFlags.end(), rightFlags.begin(), rightFlags.end(),
                                         [](auto const& one, auto const& other) { return one.first == other.first; });
}

QJsonValue realToJson(double number) {
    if (std::isnan(number))
        return QStringLiteral("nan");
    bool const negativeZero = number == 0.0 && std::signbit(number);
    if (std::isfinite(number) && !negativeZero)
        return number;
    return QString::fromStdString(Kolt::VValueTrait<double>::Text(number));
}

} // namespace Talo

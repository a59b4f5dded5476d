#include <network/JsonNode.hpp>

#include <algorithm>
#include <cmath>
#include <lattice/ValueTrait.hpp>
#include <limits>
#include <network/JsonKeys.hpp>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QSet>
#include <QStringList>
#include <QVarLengthArray>
#include <string_view>
#include <utility>

namespace Talo {

QString quoted(QString const& text) {
    int const longest = 60;
    return QLatin1Char('"') + (text.size() > longest ? text.left(longest) + QStringLiteral("...") : text) +
           QLatin1Char('"');
}

namespace {

QString described(QJsonValue const& value) {
    switch (value.type()) {
    case QJsonValue::Null:
        return QStringLiteral("null");
    case QJsonValue::Bool:
        return value.toBool() ? QStringLiteral("true") : QStringLiteral("false");
    case QJsonValue::Double:
        return QStringLiteral("the number ") +
               QString::fromStdString(Kolt::VValueTrait<double>::Text(value.toDouble()));
    case QJsonValue::String:
        return QStringLiteral("the text ") + quoted(value.toString());
    case QJsonValue::Array:
        return QStringLiteral("a list of ") + QString::number(value.toArray().size());
    case QJsonValue::Object:
        return QStringLiteral("an object");
    case QJsonValue::Undefined:
        break;
    }
    return QStringLiteral("nothing");
}

/// The keys of an object, each of which is one object in memory for all keys of the same text. Most objects have few,
/// for which a list is faster than a set.
class TakenKeys {
public:
    /// False if the key was taken already.
    bool take(QString const* key) {
        if (few_.contains(key) || many_.contains(key))
            return false;
        if (few_.size() < mostInList)
            few_.append(key);
        else
            many_.insert(key);
        return true;
    }

private:
    static constexpr int mostInList = 12;
    QVarLengthArray<QString const*, mostInList> few_;
    QSet<QString const*> many_;
};

/// Whether a key is the one in the source. Asked several times for each key of a file; nearly always the first letter
/// tells.
bool isEqual(QString const& key, char const* literal) {
    return !key.isEmpty() && key.at(0) == QLatin1Char(*literal) && key == QLatin1String(literal);
}

/// Whether a text has no half of a surrogate pair.
bool isWhole(QString const& text) {
    for (int place = 0; place < text.size(); ++place) {
        if (!text.at(place).isSurrogate())
            continue;
        bool const isPair =
            text.at(place).isHighSurrogate() && place + 1 < text.size() && text.at(place + 1).isLowSurrogate();
        if (!isPair)
            return false;
        ++place;
    }
    return true;
}

} // namespace

/// Finds out where the values stand that Qt read: it keeps no places. The text was accepted by Qt's parser, so this one
/// only has to tell values apart.
class JsonNode::Scanner {
public:
    Scanner(QByteArray const& json, JsonKeys& keys) : keys_(keys), next_(json.begin()), end_(json.end()) {
        if (json.startsWith("\xEF\xBB\xBF"))
            next_ += 3;
    }

    void scan(JsonNode& node) {
        skipBlanks();
        node.line_ = line_;
        if (node.value_.isObject())
            scanObject(node);
        else if (node.value_.isArray())
            scanArray(node);
        else if (node.value_.isString())
            scanText(node);
        else
            next_ = std::find_if(next_, end_, [](char c) { return isBlank(c) || c == ',' || c == ']' || c == '}'; });
    }

private:
    static bool isBlank(char c) { return c == ' ' || c == '\t' || c == '\n' || c == '\r'; }

    void advance() {
        if (next_ == end_)
            throw FormatError{line_, QStringLiteral("expected valid JSON, found its end")};
        if (*next_++ == '\n')
            ++line_;
    }
    // Half of a file is blanks.
    void skipBlanks() {
        while (next_ != end_ && isBlank(*next_))
            if (*next_++ == '\n')
                ++line_;
    }
    /// Skips blanks and then a mark, if there is one.
    bool skip(char mark) {
        skipBlanks();
        if (next_ == end_ || *next_ != mark)
            return false;
        ++next_;
        return true;
    }

    /// Goes behind a text.
    void skipString() {
        advance();
        while (next_ != end_ && *next_ != '"') {
            if (*next_ == '\\')
                advance();
            advance();
        }
        advance();
    }
    QString const* readKey() {
        auto const* const begin = next_;
        skipString();
        return keys_.read(std::string_view(begin, static_cast<std::size_t>(next_ - begin)));
    }

    /// The value of a member by its key. Qt compares keys up to a U+0000, and loses a byte order mark at their start,
    /// so it would find the value of another key, or none.
    static QJsonValue valueOf(QJsonObject const& object, JsonNode const& member) {
        auto const found = object.constFind(member.key_);
        if (found == object.constEnd() || member.key_.contains(QChar::Null))
            throw FormatError{member.keyLine_,
                              QStringLiteral("expected a key without the characters U+0000 and U+FEFF, found ") +
                                  quoted(QString(member.key_).remove(QChar::Null))};
        return *found;
    }

    void scanText(JsonNode& node) {
        skipString();
        node.text_ = node.value_.toString();
        node.value_ = QJsonValue(QJsonValue::String);
    }

    void scanObject(JsonNode& node) {
        auto const object = node.value_.toObject();
        TakenKeys keys;
        node.children_.reserve(static_cast<std::size_t>(object.size()));
        ++next_;
        while (!skip('}')) {
            skip(',');
            skipBlanks();
            auto& member = node.children_.emplace_back();
            member.keyLine_ = line_;
            auto const* const key = readKey();
            member.key_ = *key;
            if (!keys.take(key))
                throw FormatError{member.keyLine_, QStringLiteral("expected each key once, found ") +
                                                       quoted(member.key_) + QStringLiteral(" again")};
            skip(':');
            member.value_ = valueOf(object, member);
            scan(member);
        }
        node.value_ = QJsonObject();
    }

    void scanArray(JsonNode& node) {
        auto const array = node.value_.toArray();
        node.children_.reserve(static_cast<std::size_t>(array.size()));
        ++next_;
        for (auto const& value : array) {
            skip(',');
            auto& element = node.children_.emplace_back();
            element.value_ = value;
            scan(element);
        }
        skip(']');
        node.value_ = QJsonArray();
    }

    JsonKeys& keys_;
    char const* next_;
    char const* const end_;
    int line_ = 1;
};

QString Expectation::text() const {
    if (!literal_)
        return *text_;
    auto const name = QString::fromUtf8(literal_);
    return text_ ? name + QLatin1Char(' ') + quoted(*text_) : name;
}

JsonNode JsonNode::parse(QByteArray const& json) {
    JsonKeys keys;
    return parse(json, keys);
}

JsonNode JsonNode::parse(QByteArray const& json, JsonKeys& keys) {
    QJsonParseError error{};
    auto const document = QJsonDocument::fromJson(json, &error);
    if (error.error != QJsonParseError::NoError) {
        auto const lines =
            std::count(json.begin(), json.begin() + std::clamp<qint64>(error.offset, 0, json.size()), '\n');
        throw FormatError{static_cast<int>(lines) + 1,
                          QStringLiteral("expected valid JSON, found: ") + error.errorString()};
    }
    JsonNode root;
    root.value_ = document.isArray() ? QJsonValue(document.array()) : QJsonValue(document.object());
    Scanner(json, keys).scan(root);
    return root;
}

QJsonValue JsonNode::value() const {
    if (value_.isString())
        return text_;
    if (value_.isObject()) {
        QJsonObject object;
        for (auto const& child : children_)
            object.insert(child.key_, child.value());
        return object;
    }
    if (value_.isArray()) {
        QJsonArray array;
        for (auto const& child : children_)
            array.append(child.value());
        return array;
    }
    return value_;
}

void JsonNode::refuse(QString const& expected) const {
    refuse(expected, described(value()));
}

void JsonNode::refuse(QString const& expected, QString const& found) const {
    throw FormatError{line_, QStringLiteral("expected ") + expected + QStringLiteral(", found ") + found};
}

QString JsonNode::text(Expectation const& what) const {
    if (!value_.isString())
        refuse(what.text() + QStringLiteral(", a text"));
    if (!isWhole(text_))
        refuse(what.text() + QStringLiteral(", a text of whole Unicode characters"));
    return text_;
}

QString JsonNode::nonEmptyText(Expectation const& what) const {
    auto const read = text(what);
    if (read.isEmpty())
        refuse(what.text() + QStringLiteral(", a text that is not empty"));
    return read;
}

bool JsonNode::truth(Expectation const& what) const {
    if (!value_.isBool())
        refuse(what.text() + QStringLiteral(", true or false"));
    return value_.toBool();
}

int JsonNode::integer(Expectation const& what) const {
    using Limits = std::numeric_limits<int>;
    auto const number = value_.toDouble(std::nan(""));
    if (!(number >= Limits::min() && number <= Limits::max() && std::trunc(number) == number))
        refuse(what.text() + QStringLiteral(", a whole number from %1 to %2").arg(Limits::min()).arg(Limits::max()));
    return static_cast<int>(number);
}

double JsonNode::real(Expectation const& what) const {
    if (value_.isDouble())
        return value_.toDouble();
    double number = 0.0;
    if (!QStringList{QStringLiteral("nan"), QStringLiteral("inf"), QStringLiteral("-inf"), QStringLiteral("-0")}
             .contains(text_) ||
        !Kolt::VValueTrait<double>::setValueFromText(number, text_.toStdString()))
        refuse(what.text() + QStringLiteral(R"(, a number or one of "nan", "inf", "-inf", "-0")"));
    return number;
}

std::vector<JsonNode> const& JsonNode::elements(Expectation const& what) const {
    if (!value_.isArray())
        refuse(what.text() + QStringLiteral(", a list"));
    return children_;
}

std::vector<JsonNode> const& JsonNode::members(Expectation const& what) const {
    if (!value_.isObject())
        refuse(what.text() + QStringLiteral(", an object"));
    return children_;
}

std::vector<JsonNode> const& JsonNode::members(Expectation const& what,
                                               std::initializer_list<char const*> known) const {
    for (auto const& member : members(what)) {
        if (std::any_of(known.begin(), known.end(), [&](auto const* key) { return isEqual(member.key_, key); }))
            continue;
        QStringList keys;
        for (auto const* const key : known)
            keys << QLatin1String(key);
        throw FormatError{member.keyLine_, QStringLiteral("expected only the keys ") + keys.join(QStringLiteral(", ")) +
                                               QStringLiteral(" in ") + what.text() + QStringLiteral(", found ") +
                                               quoted(member.key_)};
    }
    return children_;
}

JsonNode const* JsonNode::find(char const* key) const {
    auto const found =
        std::find_if(children_.begin(), children_.end(), [&](auto const& child) { return isEqual(child.key_, key); });
    return value_.isObject() && found != children_.end() ? &*found : nullptr;
}

JsonNode* JsonNode::find(char const* key) {
    return const_cast<JsonNode*>(std::as_const(*this).find(key));
}

JsonNode const& JsonNode::required(char const* key, Expectation const& what) const {
    auto const* const found = find(key);
    if (!found)
        refuse(QStringLiteral("the key ") + quoted(QLatin1String(key)) + QStringLiteral(" in ") + what.text(),
               QStringLiteral("none"));
    return *found;
}

} // namespace Talo

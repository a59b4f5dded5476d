#pragma once

#include <initializer_list>
#include <QJsonValue>
#include <QString>
#include <tessera/Export.hpp>
#include <vector>

namespace Talo {

class JsonKeys;

/// An error in a network file. Thrown by everything that reads one.
struct TALO_EXPORT FormatError {
    /// The line of the file, counted from 1; 0 where the file itself cannot be read.
    int line;
    QString text; ///< "expected ..., found ..."
};

/// The name of an expected thing, as "the name of a pool". That of a literal is made into a text only for an error, as
/// a large file has a million of expectations that are met. Lives no longer than what it was made of.
class TALO_EXPORT Expectation {
public:
    /// A name in the source.
    Expectation(char const* literal) : literal_(literal) {}
    /// A name that was put together.
    Expectation(QString const& text) : text_(&text) {}
    /// A name in the source, and behind it a text in quotation marks.
    Expectation(char const* literal, QString const& inQuotes) : literal_(literal), text_(&inQuotes) {}
    /// The name.
    QString text() const;

private:
    char const* literal_ = nullptr;
    QString const* text_ = nullptr;
};

/// A value of a JSON file, with the line in which it is. A function that asks for another type than the node has throws
/// a FormatError; `what` is the name of the expected thing in its text ("the name of a pool"). Any thread.
class TALO_EXPORT JsonNode {
public:
    /// Reads a whole file, whose outermost value must be an object. An object with two equal keys is
    /// refused.
    static JsonNode parse(QByteArray const& json);
    /// The same, for one of many texts with the same keys.
    static JsonNode parse(QByteArray const& json, JsonKeys& keys);

    /// The key of the node in its object; empty in a list and for the outermost value.
    QString const& key() const { return key_; }
    /// The node as Qt reads it.
    QJsonValue value() const;
    /// What the node is, without a look at what is in it.
    QJsonValue::Type type() const { return value_.type(); }
    /// Whether the node is `null`.
    bool isNull() const { return value_.isNull(); }

    /// The node as a text, which may be empty.
    QString text(Expectation const& what) const;
    /// A text that is not empty.
    QString nonEmptyText(Expectation const& what) const;
    /// The node as `true` or `false`.
    bool truth(Expectation const& what) const;
    /// An integer in the range of int.
    int integer(Expectation const& what) const;
    /// A number, or one of the texts "nan", "inf", "-inf" and "-0", which JSON cannot write as numbers.
    double real(Expectation const& what) const;
    /// The values of a list, in order.
    std::vector<JsonNode> const& elements(Expectation const& what) const;
    /// The values of an object, in the order of the file.
    std::vector<JsonNode> const& members(Expectation const& what) const;
    /// The same; refuses an object with a key that is not among the known ones.
    std::vector<JsonNode> const& members(Expectation const& what, std::initializer_list<char const*> known) const;
    /// The value under a key of an object; null when there is none.
    JsonNode const* find(char const* key) const;
    /// The value under a key of an object; refuses an object without it.
    JsonNode const& required(char const* key, Expectation const& what) const;

    /// Frees what is in an object or a list, after it was read: of a large file that is most of what is kept.
    void release() { children_ = {}; }
    /// The value under a key of an object, to release or move it; null when there is none.
    JsonNode* find(char const* key);
    /// The n-th value of a list. REQUIRES: there is one.
    JsonNode& element(std::size_t n) { return children_[n]; }

    /// Throws "expected ..., found ..." with a description of the node.
    [[noreturn]] void refuse(QString const& expected) const;
    /// Throws "expected ..., found ..." with this description of what was found.
    [[noreturn]] void refuse(QString const& expected, QString const& found) const;

private:
    class Scanner;

    QString key_;
    int keyLine_ = 1;
    int line_ = 1;
    // Of a text, a list and an object the type alone: Qt's value of a text would keep all that the file has beside it
    // and below.
    QJsonValue value_;
    QString text_;
    std::vector<JsonNode> children_;
};

/// A text in quotation marks, shortened where it is long.
TALO_EXPORT QString quoted(QString const& text);

} // namespace Talo

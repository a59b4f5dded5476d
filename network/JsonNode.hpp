#pragma once

#include <initializer_list>
#include <QJsonValue>
#include <QString>
#include <vector>

namespace Talo {

/// What is wrong with a file, and in which line, counted from 1.
struct FormatError {
    /// The line of the file, counted from 1.
    int line;
    QString text; ///< "expected ..., found ..."
};

/// A value of a JSON file that knows where it stands. Every function that asks for something the node is not throws
/// a FormatError; `what` is what to call the expected thing in it ("the name of a pool"). Any thread.
class JsonNode {
public:
    /// Reads a whole file, whose outermost value must be an object. Keys that stand twice in one object are refused.
    static JsonNode parse(QByteArray const& json);

    /// Under which key the node stands in its object; empty elsewhere.
    QString const& key() const { return key_; }
    /// The node as Qt reads it.
    QJsonValue const& value() const { return value_; }
    /// Whether the node is `null`.
    bool isNull() const { return value_.isNull(); }

    /// The node as a text, which may be empty.
    QString text(QString const& what) const;
    /// A text that is not empty.
    QString nonEmptyText(QString const& what) const;
    /// The node as `true` or `false`.
    bool truth(QString const& what) const;
    /// A whole number that an int can hold.
    int integer(QString const& what) const;
    /// A number, or one of the texts "nan", "inf", "-inf" and "-0", for which JSON has no number.
    double real(QString const& what) const;
    /// The values of a list, in order.
    std::vector<JsonNode> const& elements(QString const& what) const;
    /// The values of an object, in the order of the file.
    std::vector<JsonNode> const& members(QString const& what) const;
    /// The same for an object whose keys are all among the known ones.
    std::vector<JsonNode> const& members(QString const& what, std::initializer_list<char const*> known) const;
    /// The value under a key of an object; null when there is none.
    JsonNode const* find(char const* key) const;
    /// The value under a key of an object; refuses an object without it.
    JsonNode const& required(char const* key, QString const& what) const;

    /// Throws "expected ..., found ..." with a description of the node, or with the given one.
    [[noreturn]] void refuse(QString const& expected) const;
    /// Throws "expected ..., found ..." with this description of what was found.
    [[noreturn]] void refuse(QString const& expected, QString const& found) const;

private:
    class Scanner;

    QString key_;
    int keyLine_ = 1;
    int line_ = 1;
    QJsonValue value_;
    std::vector<JsonNode> children_;
};

/// A text in quotation marks, shortened where it is long.
QString quoted(QString const& text);

} // namespace Talo

#pragma once

#include <deque>
#include <QHash>
#include <QString>
#include <string>
#include <string_view>
#include <unordered_map>
#include <unordered_set>

namespace Talo {

/// The keys of JSON texts. They are few and come again and again, so all of one text share it.
class JsonKeys {
public:
    JsonKeys() = default;
    JsonKeys(JsonKeys const&) = delete;
    JsonKeys& operator=(JsonKeys const&) = delete;

    /// The key that is written so, in its quotation marks; the same one for equal keys. Lives as long as this object.
    QString const* read(std::string_view written);

private:
    // By the key as it is written. Two ways to write a key share the text.
    std::unordered_map<std::string_view, QString const*> known_;
    std::unordered_set<QString> texts_;
    // What known_ refers to.
    std::deque<std::string> written_;
};

} // namespace Talo

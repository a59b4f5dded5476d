#include <network/JsonKeys.hpp>

#include <QJsonArray>
#include <QJsonDocument>

namespace Talo {

namespace {

QString decoded(std::string_view written) {
    auto const size = static_cast<int>(written.size());
    bool const isEscaped = written.find('\\') != std::string_view::npos;
    if (!isEscaped)
        return QString::fromUtf8(written.data() + 1, size - 2);
    return QJsonDocument::fromJson('[' + QByteArray(written.data(), size) + ']').array().at(0).toString();
}

} // namespace

QString const* JsonKeys::read(std::string_view written) {
    auto const found = known_.find(written);
    if (found != known_.end())
        return found->second;
    auto const* const key = &*texts_.insert(decoded(written)).first;
    known_.emplace(written_.emplace_back(written), key);
    return key;
}

} // namespace Talo

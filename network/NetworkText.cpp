#include <network/NetworkText.hpp>

#include <QJsonArray>
#include <QJsonDocument>

namespace Talo {

namespace {

QByteArray textWith(QJsonObject network, QJsonArray const& objects) {
    network.insert(QLatin1String("objects"), objects);
    return QJsonDocument(network).toJson();
}

} // namespace

NetworkText::NetworkText(QJsonObject const& rest) : withoutObjects_(textWith(rest, {})) {
    auto const empty = textWith({}, {});
    auto const begin = empty.indexOf("[\n") + 2;
    opening_ = empty.left(begin);
    closing_ = '\n' + empty.mid(begin);
    bytes_ = opening_;
}

void NetworkText::add(QJsonObject const& object) {
    auto const text = textWith({}, {object});
    if (!places_.empty())
        bytes_ += ",\n";
    auto const size = text.size() - opening_.size() - closing_.size();
    places_.emplace_back(bytes_.size(), size);
    bytes_.append(text.constData() + opening_.size(), size);
    hasSlots_ = hasSlots_ || object.contains(QLatin1String("slots"));
}

void NetworkText::finish() {
    if (!places_.empty())
        bytes_ += '\n';
    bytes_ += withoutObjects_.mid(opening_.size());
}

QByteArray NetworkText::withObject(std::size_t n) const {
    auto const& [begin, size] = places_[n];
    QByteArray text;
    text.reserve(opening_.size() + size + closing_.size());
    return text.append(opening_).append(bytes_.constData() + begin, size).append(closing_);
}

} // namespace Talo

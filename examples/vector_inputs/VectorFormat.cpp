// How network files write a vector: {"type": "vector3", "value": [1, -2.5, 0]}.

#include "Vector3.hpp"

#include <algorithm>
#include <cmath>
#include <lattice/ValueFormat.hpp>
#include <plugin/QInputWidgetCreator.hpp>
#include <QJsonArray>
#include <QJsonDocument>

namespace VectorInputs {

namespace {

std::string toJson(Vector3 const& vector) {
    QJsonArray list;
    for (double const number : vector.numbers) {
        if (!std::isfinite(number))
            return {};
        list.append(number);
    }
    return QJsonDocument(list).toJson(QJsonDocument::Compact).toStdString();
}

std::optional<Vector3> fromJson(std::string const& json) {
    auto const list = QJsonDocument::fromJson(QByteArray::fromStdString(json)).array();
    Vector3 vector;
    if (list.size() != static_cast<int>(vector.numbers.size()) ||
        !std::all_of(list.begin(), list.end(), [](auto const& number) { return number.isDouble(); }))
        return std::nullopt;
    std::transform(list.begin(), list.end(), vector.numbers.begin(),
                   [](auto const& number) { return number.toDouble(); });
    return vector;
}

TALO_STATIC_CREATOR Kolt::TypedValueFormat<Vector3> const vectorFormat("vector3", "a list of three numbers", toJson,
                                                                       fromJson);

} // namespace

} // namespace VectorInputs

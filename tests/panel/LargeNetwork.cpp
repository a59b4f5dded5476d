#include "LargeNetwork.hpp"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

namespace {

constexpr int objectCount = 4;
constexpr int parametersOfAnObject = 2500;

QJsonObject parameter(int number) {
    QJsonObject made;
    made[QStringLiteral("name")] = QStringLiteral("section %1.value %2").arg(number / 100).arg(number);
    if (number % 2 == 0)
        made[QStringLiteral("perPool")] = true;
    switch (number % 5) {
    case 0:
        made[QStringLiteral("type")] = QStringLiteral("int");
        made[QStringLiteral("value")] = number % 40;
        made[QStringLiteral("properties")] = QJsonObject{
            {QStringLiteral("min"), 0}, {QStringLiteral("max"), 100}, {QStringLiteral("unit"), QStringLiteral("mm")}};
        break;
    case 1:
        made[QStringLiteral("type")] = QStringLiteral("bool");
        made[QStringLiteral("value")] = number % 3 == 0;
        break;
    case 2:
        made[QStringLiteral("type")] = QStringLiteral("double");
        made[QStringLiteral("value")] = number * 0.25;
        break;
    case 3:
        made[QStringLiteral("type")] = QStringLiteral("enum");
        made[QStringLiteral("entries")] = QJsonArray{QStringLiteral("Red"), QStringLiteral("Green")};
        made[QStringLiteral("value")] = QStringLiteral("Red");
        break;
    default:
        made[QStringLiteral("type")] = QStringLiteral("string");
        made[QStringLiteral("preferences")] = QJsonArray{QStringLiteral("OneLine")};
        made[QStringLiteral("value")] = QStringLiteral("text %1").arg(number);
    }
    return made;
}

} // namespace

QByteArray largeNetwork() {
    QJsonArray objects;
    for (int number = 0; number < objectCount; ++number) {
        QJsonArray parameters;
        for (int place = 0; place < parametersOfAnObject; ++place)
            parameters.append(parameter(place));
        objects.append(QJsonObject{{QStringLiteral("name"), QStringLiteral("object %1").arg(number)},
                                   {QStringLiteral("parameters"), parameters}});
    }
    return QJsonDocument(
               QJsonObject{{QStringLiteral("title"), QStringLiteral("Ten thousand values")},
                           {QStringLiteral("pools"), QJsonArray{QStringLiteral("day"), QStringLiteral("night")}},
                           {QStringLiteral("objects"), objects}})
        .toJson();
}

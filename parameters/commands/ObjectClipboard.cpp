#include <parameters/commands/ObjectClipboard.hpp>

#include <algorithm>
#include <lattice/UndoHistory.hpp>
#include <lattice/ValueSnapshot.hpp>
#include <memory>
#include <optional>
#include <parameters/commands/ObjectValues.hpp>
#include <parameters/commands/ResetCommands.hpp>
#include <QClipboard>
#include <QCoreApplication>
#include <QGuiApplication>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QMimeData>

namespace Talo {

namespace {

struct ObjectClipboardTexts {
    Q_DECLARE_TR_FUNCTIONS(ObjectClipboard)
};

struct CopiedObject {
    QString name;
    QJsonObject values;
};

// A JSON object: {"objects": [{"name": "pump", "values": {...}}]}.
QString mimeType() {
    return QStringLiteral("application/x-talo-objects+json");
}

QString nameOf(Kolt::VObject const& object) {
    return QString::fromStdString(object.Name());
}

void putOnClipboard(std::vector<CopiedObject> const& objects, QStringList const& lines) {
    QJsonArray array;
    for (auto const& [name, values] : objects)
        array << QJsonObject{{QStringLiteral("name"), name}, {QStringLiteral("values"), values}};
    auto data = std::make_unique<QMimeData>();
    data->setText(lines.join(QLatin1Char('\n')));
    data->setData(mimeType(), QJsonDocument(QJsonObject{{QStringLiteral("objects"), array}}).toJson());
    QGuiApplication::clipboard()->setMimeData(data.release());
}

QStringList textLines(Kolt::VObject const& object, QJsonObject const& values, Kolt::PoolPtr const& pool) {
    QStringList lines;
    for (auto const& parameter : object.parameters()) {
        auto const name = QString::fromStdString(parameter->Name());
        if (values.contains(name))
            lines << QStringLiteral("%1.%2 = %3")
                         .arg(nameOf(object), name,
                              QString::fromStdString(Kolt::copyEffectiveValue(*parameter, pool).value->Text()));
    }
    return lines;
}

std::vector<CopiedObject> copiedObjects() {
    std::vector<CopiedObject> objects;
    auto const* const data = QGuiApplication::clipboard()->mimeData();
    if (!data)
        return objects;
    auto const root = QJsonDocument::fromJson(data->data(mimeType())).object();
    auto const array = root.value(QLatin1String("objects")).toArray();
    for (auto const& each : array)
        objects.push_back({each.toObject().value(QLatin1String("name")).toString(),
                           each.toObject().value(QLatin1String("values")).toObject()});
    return objects;
}

/// The copied object for one of the objects; null for none.
CopiedObject const* sourceOf(std::vector<CopiedObject> const& copied, std::vector<Kolt::ObjectPtr> const& objects,
                             std::size_t index) {
    if (copied.size() == 1)
        return &copied.front();
    if (copied.size() == objects.size())
        return &copied[index];
    auto const found = std::find_if(copied.begin(), copied.end(),
                                    [&](auto const& each) { return each.name == nameOf(*objects[index]); });
    return found == copied.end() ? nullptr : &*found;
}

} // namespace

void copyObjects(std::vector<Kolt::ObjectPtr> const& objects, Kolt::PoolPtr const& pool) {
    std::vector<CopiedObject> copied;
    QStringList lines;
    for (auto const& object : objects) {
        copied.push_back({nameOf(*object), objectValues(*object, pool)});
        lines << textLines(*object, copied.back().values, pool);
    }
    putOnClipboard(copied, lines);
}

void copySection(Kolt::ObjectPtr const& object, QString const& title, Kolt::PoolPtr const& pool) {
    auto const all = objectValues(*object, pool);
    QJsonObject values;
    for (auto const& parameter : parametersInSection(*object, title)) {
        auto const name = QString::fromStdString(parameter->Name());
        if (all.contains(name))
            values.insert(name, all.value(name));
    }
    putOnClipboard({{nameOf(*object), values}}, textLines(*object, values, pool));
}

bool canPasteObjects() {
    auto const* const data = QGuiApplication::clipboard()->mimeData();
    return data && data->hasFormat(mimeType());
}

QStringList pasteObjects(std::vector<Kolt::ObjectPtr> const& objects, Kolt::PoolPtr const& pool) {
    auto const copied = copiedObjects();
    if (copied.empty())
        return {ObjectClipboardTexts::tr("There are no values of objects on the clipboard.")};
    std::optional<Kolt::UndoHistory::Macro> macro;
    QStringList refused;
    for (std::size_t index = 0; index < objects.size(); ++index) {
        auto const& object = objects[index];
        auto const* const source = sourceOf(copied, objects, index);
        if (!source) {
            refused << ObjectClipboardTexts::tr("No values of %1 were copied.").arg(nameOf(*object));
            continue;
        }
        if (!macro && !object->parameters().empty())
            macro.emplace(object->parameters().front()->history());
        auto const reasons = applyObjectValues(object, pool, source->values);
        for (auto const& reason : reasons)
            refused << ObjectClipboardTexts::tr("%1 keeps a value: %2.").arg(nameOf(*object), reason);
    }
    return refused;
}

} // namespace Talo

#include <algorithm>
#include <bramble/Action.hpp>
#include <network/JsonFormat.hpp>
#include <network/NetworkParts.hpp>
#include <network/NetworkReader.hpp>
#include <network/NetworkText.hpp>
#include <network/PropertyFormat.hpp>
#include <network/SaveFile.hpp>
#include <QDir>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonObject>
#include <tessera/FileContent.hpp>

namespace Talo {

namespace {

using ActionPtr = Tessera::StrongPtr<Kolt::VAction>;

// In bytes. A network of 100,000 parameters takes some 30 MB.
constexpr std::uintmax_t largestFile = 64 << 20;

/// Something of a network that no file can hold; the line has no meaning.
[[noreturn]] void refuseToWrite(QString const& text) {
    throw FormatError{0, text};
}

/// Whether the parameter shows how something stands, which nobody saves.
bool showsState(Kolt::VParameter const& parameter) {
    auto const* const format = formatOf(parameter);
    return format && format->showsState();
}

QJsonArray textsToJson(std::vector<std::string> const& texts) {
    QJsonArray array;
    for (auto const& text : texts)
        array.append(QString::fromStdString(text));
    return array;
}

QJsonObject propertiesToJson(Kolt::VParameter const& parameter, PropertyFormat const& format,
                             QString const& targetFolder) {
    QJsonObject map;
    if (!parameter.properties())
        return map;
    for (auto const& [key, value] : *parameter.properties()) {
        if (parameter.isFilledIn(key))
            continue;
        auto const name = QString::fromStdString(key);
        auto const written = format.write(name, value, targetFolder);
        if (written.isUndefined())
            refuseToWrite(QStringLiteral("no network file can hold the property ") + quoted(name));
        map.insert(name, written);
    }
    return map;
}

/// The JSON in a file; throws a FormatError, of line 0 if the file cannot be read.
JsonNode parseFile(QString const& file) {
    auto const content = Tessera::FileContent::read(QFile::encodeName(file).toStdString(), largestFile);
    if (!content)
        throw FormatError{0, QStringLiteral("expected a file that can be read, found: ") +
                                 QString::fromLocal8Bit(content.reason().c_str())};
    auto const& bytes = content.bytes();
    return JsonNode::parse(QByteArray::fromRawData(bytes.data(), static_cast<int>(bytes.size())));
}

} // namespace

Network::Network() : self_(std::make_shared<Network*>(this)) {}

Network::~Network() = default;

Network::LoadResult Network::load(QString const& file, ObjectFactory const& makeObject) {
    try {
        // A large network need not be in memory as text as well.
        return {NetworkReader::read(parseFile(file), file, makeObject), QString()};
    } catch (FormatError const& error) {
        return {nullptr, file + QLatin1Char(':') + QString::number(error.line) + QStringLiteral(": ") + error.text};
    }
}

std::unique_ptr<Network> Network::create(QString const& title, std::vector<std::string> const& poolNames) {
    std::unique_ptr<Network> network(new Network);
    network->title_ = title;
    for (auto const& name : poolNames)
        network->insertPool(name);
    return network;
}

Kolt::ObjectPtr Network::addObject(std::string const& name, std::vector<Kolt::ParameterPtr> const& parameters) {
    Kolt::ObjectPtr const object(new Kolt::VObject(name));
    for (auto const& parameter : parameters)
        object->addParameter(parameter);
    addObject(object);
    return object;
}

void Network::addObject(Kolt::ObjectPtr const& object, QString const& kind) {
    if (!object)
        return;
    insertObject(object, kind);
    rememberOpened(*object);
    rememberSaved(*object);
}

void Network::reserveObjects(std::size_t count) {
    objects_.reserve(count);
    byName_.reserve(count);
}

void Network::insertObject(Kolt::ObjectPtr const& object, QString const& kind) {
    objects_.push_back(object);
    byName_.insert({object->Name(), object});
    if (!kind.isEmpty())
        kinds_.insert({object.get(), kind});
}

Kolt::ObjectPtr Network::findObject(QString const& name) const {
    auto const found = byName_.find(name.toStdString());
    return found == byName_.end() ? nullptr : found->second;
}

QString Network::kind(Kolt::ObjectPtr const& object) const {
    auto const found = kinds_.find(object.get());
    return found == kinds_.end() ? QString() : found->second;
}

Kolt::ParameterPtr Network::findParameter(QString const& objectDotParameter) const {
    auto const dot = objectDotParameter.indexOf(QLatin1Char('.'));
    auto const object = findObject(objectDotParameter.left(dot));
    return dot < 0 || !object ? nullptr : object->findParameter(objectDotParameter.mid(dot + 1).toStdString());
}

void Network::insertPool(std::string const& name) {
    pools_.emplace_back(new Kolt::ValuePool(name));
    poolsByName_.emplace(name, pools_.back());
}

Kolt::PoolPtr Network::findPool(QString const& name) const {
    auto const found = poolsByName_.find(name.toStdString());
    return found == poolsByName_.end() ? nullptr : found->second;
}

QString Network::nameOf(Kolt::ParameterPtr const& parameter) const {
    if (!parameter)
        return {};
    if (auto const* const holder = parameter->object()) {
        auto const known = byName_.find(holder->Name());
        if (known != byName_.end() && known->second.get() == holder)
            return QString::fromStdString(holder->Name() + '.' + parameter->Name());
    }
    // It may belong to several objects, or its object may have another name now.
    for (auto const& object : objects_) {
        auto const& all = object->parameters();
        if (std::find(all.begin(), all.end(), parameter) != all.end())
            return QString::fromStdString(object->Name() + '.' + parameter->Name());
    }
    return {};
}

QString Network::folder() const {
    return QFileInfo(file_).absolutePath();
}

void Network::connectActions(Kolt::VParameter const& parameter, Kolt::ObjectPtr const& object) const {
    auto const connect = [&](Kolt::ValuePtr const& value) {
        auto const action = Kolt::valueOr(value, ActionPtr());
        if (!action)
            return;
        action->setHandler([network = std::weak_ptr<Network*>(self_),
                            holder = Tessera::WeakPtr<Kolt::VObject, Kolt::VManagedObjectBase>(object)](
                               Kolt::PoolPtr const& pool, Kolt::ParameterPtr const& fired) {
            // A copy, as the handler may replace itself or end the network, of which nothing is held meanwhile.
            auto const handler = [&] {
                auto const living = network.lock();
                return living ? (*living)->actionHandler : nullptr;
            }();
            if (handler)
                handler(holder.strong(), fired, pool);
        });
    };
    connect(parameter.ownValue());
    if (parameter.keepsValuesPerPool())
        for (auto const& pool : pools_)
            connect(parameter.getLocalValue(pool, std::string(), false));
}

QJsonObject Network::parameterToJson(Kolt::VParameter const& parameter, Folders const& folders) const {
    auto const* const format = formatOf(parameter);
    if (!format)
        refuseToWrite(QStringLiteral("no network file can hold a parameter of type ") +
                      QString::fromStdString(parameter.declaredType()));
    auto const key = QString::fromStdString(format->key());
    auto const* const opened = whenOpened(parameter);
    auto const ownValue = opened ? opened->in(nullptr).value : parameter.ownValue();
    bool const chooses = choosesEntries(*format);
    auto const* const ownEntries = chooses ? entriesOf(ownValue) : nullptr;
    auto const json = [&](Kolt::ValuePtr const& value) {
        auto const written = writeValue(*format, value);
        if (written.isUndefined())
            refuseToWrite(QStringLiteral("the value is not of type ") + key +
                          QStringLiteral(", or no file can hold it, as a text that is not UTF-8"));
        auto const* const entries = chooses ? entriesOf(value) : nullptr;
        if (entries && (!ownEntries || *entries != *ownEntries))
            refuseToWrite(QStringLiteral("the value of a pool chooses among other entries than the parameter"));
        return written;
    };

    QJsonObject node{{QStringLiteral("name"), QString::fromStdString(parameter.Name())},
                     {QStringLiteral("type"), key},
                     {QStringLiteral("value"), json(ownValue)}};
    if (chooses)
        node.insert(QStringLiteral("entries"), ownEntries ? textsToJson(*ownEntries) : QJsonArray());
    auto const poolValues = poolValuesToJson(pools_, poolValuesOf(parameter, opened), json);
    if (!poolValues.isEmpty())
        node.insert(QStringLiteral("values"), poolValues);
    else if (parameter.keepsValuesPerPool())
        node.insert(QStringLiteral("perPool"), true);
    if (auto const& preferences = parameter.creationPreferences()) {
        auto const& names = preferences->names();
        node.insert(QStringLiteral("preferences"), textsToJson({names.begin(), names.end()}));
    }
    auto const properties = propertiesToJson(parameter, PropertyFormat(key, folders.now), folders.target);
    if (!properties.isEmpty())
        node.insert(QStringLiteral("properties"), properties);
    return node;
}

QJsonObject Network::objectToJson(Kolt::ObjectPtr const& object, Folders const& folders) const {
    auto const name = QString::fromStdString(object->Name());
    QJsonArray parameters;
    for (auto const& parameter : object->parameters()) {
        try {
            parameters.append(parameterToJson(*parameter, folders));
        } catch (FormatError const& error) {
            refuseToWrite(name + QLatin1Char('.') + QString::fromStdString(parameter->Name()) + QStringLiteral(": ") +
                          error.text);
        }
    }
    QJsonObject node{{QStringLiteral("name"), name}, {QStringLiteral("parameters"), parameters}};
    auto const objectKind = kind(object);
    if (!objectKind.isEmpty())
        node.insert(QStringLiteral("kind"), objectKind);
    QJsonArray slotList;
    for (auto const& slot : object->slotList()) {
        auto const bound = nameOf(slot->parameter());
        slotList.append(QJsonObject{{QStringLiteral("name"), QString::fromStdString(slot->Name())},
                                    {QStringLiteral("parameter"), bound.isEmpty() ? QJsonValue() : QJsonValue(bound)}});
    }
    if (!slotList.isEmpty())
        node.insert(QStringLiteral("slots"), slotList);
    return node;
}

NetworkText Network::toText(QString const& targetFolder) const {
    QJsonArray pools;
    for (auto const& pool : pools_)
        pools.append(nameOfPool(pool));
    NetworkText text(QJsonObject{{QStringLiteral("pools"), pools}, {QStringLiteral("title"), title_}});
    Folders const folders{folder(), targetFolder};
    for (auto const& object : objects_)
        text.add(objectToJson(object, folders));
    text.finish();
    return text;
}

bool Network::save(QString const& file, QString* error) const {
    auto const refused = [&](QString const& reason) {
        return failed(error, QStringLiteral("cannot save ") + file + QStringLiteral(": ") + reason);
    };
    QByteArray json;
    try {
        auto const text = toText(QFileInfo(file).absolutePath());
        // What was added since the file was loaded may be more than the format allows.
        NetworkReader::check(text, file);
        json = text.bytes();
    } catch (FormatError const& problem) {
        return refused(problem.text);
    }
    QSaveFile target(file);
    if (!target.open(QIODevice::WriteOnly) || target.write(json) != json.size())
        return refused(target.errorString());
    auto const reason = commitSaveFile(target);
    return reason.isEmpty() || refused(reason);
}

bool Network::saveAs(QString const& file, QString* error) {
    if (!save(file, error))
        return false;
    auto const oldFolder = folder();
    file_ = file;
    for (auto const& object : objects_) {
        for (auto const& parameter : object->parameters()) {
            auto const* const format = formatOf(*parameter);
            if (!format || !parameter->properties())
                continue;
            PropertyFormat const propertyFormat(QString::fromStdString(format->key()), oldFolder);
            // A copy, as the map changes.
            auto const properties = *parameter->properties();
            for (auto const& [key, value] : properties)
                if (auto const moved = propertyFormat.moved(QString::fromStdString(key), value, folder()))
                    parameter->setProperty(key, moved, nullptr, nullptr, nullptr);
        }
    }
    rememberSaved();
    return true;
}

void Network::rememberDefaults() {
    for (auto const& object : objects_)
        rememberOpened(*object);
    rememberDefaultsAsSaved();
}

void Network::rememberOpened(Kolt::VObject const& object) {
    for (auto const& parameter : object.parameters()) {
        displayed_.erase(parameter.get());
        if (parameter->isEdited())
            parameter->rememberDefaults();
        if (showsState(*parameter))
            displayed_.emplace(parameter.get(), SavedValue{parameter, Kolt::ValueSnapshot(*parameter)});
    }
}

Kolt::ValueSnapshot const* Network::whenOpened(Kolt::VParameter const& parameter) const {
    auto const found = displayed_.find(&parameter);
    // Another one may have been made in its place.
    return found == displayed_.end() || !found->second.parameter.alive() ? nullptr : &found->second.value;
}

void Network::forgetSaved() {
    saved_.clear();
    differing_.clear();
    knowsOthers_ = false;
}

void Network::rememberSaved() {
    forgetSaved();
    for (auto const& object : objects_)
        rememberSaved(*object);
}

void Network::rememberDefaultsAsSaved() {
    std::size_t count = 0;
    for (auto const& object : objects_)
        count += object->parameters().size();
    forgetSaved();
    saved_.reserve(count);
    for (auto const& object : objects_)
        for (auto const& parameter : object->parameters())
            // The copy shares the value objects, of which a large network has many.
            if (auto const* const defaults = parameter->isEdited() ? parameter->defaults() : nullptr)
                saved_.push_back({parameter, *defaults});
}

void Network::rememberSaved(Kolt::VObject const& object) {
    knowsOthers_ = false;
    for (auto const& parameter : object.parameters())
        if (parameter->isEdited())
            saved_.push_back({parameter, Kolt::ValueSnapshot(*parameter)});
}

} // namespace Talo

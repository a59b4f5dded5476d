#include <network/NetworkReader.hpp>

#include <algorithm>
#include <network/Condition.hpp>
#include <network/JsonFormat.hpp>
#include <network/JsonKeys.hpp>
#include <network/NetworkText.hpp>
#include <network/PropertyFormat.hpp>
#include <QStringList>
#include <unordered_set>
#include <utility>

namespace Talo {

namespace {

/// The texts of a list, each of which may stand there once.
std::vector<std::string> differentTexts(JsonNode const& node, QString const& what, QString const& element) {
    std::vector<std::string> texts;
    QSet<QString> seen;
    for (auto const& child : node.elements(what)) {
        auto const text = child.text(element);
        if (seen.contains(text))
            child.refuse(QStringLiteral("each of ") + what + QStringLiteral(" once"),
                         quoted(text) + QStringLiteral(" again"));
        seen.insert(text);
        texts.push_back(text.toStdString());
    }
    return texts;
}

Kolt::VValueFormat const& readFormat(JsonNode const& typeNode) {
    auto const key = typeNode.text("a type").toStdString();
    if (auto const* const format = Kolt::VValueFormat::ofKey(key))
        return *format;
    QStringList keys;
    for (auto const* const format : Kolt::VValueFormat::all())
        keys << QString::fromStdString(format->key());
    typeNode.refuse(QStringLiteral("a type, one of ") + keys.join(QStringLiteral(", ")));
}

/// The entries of a parameter of this type; none for a type without entries.
std::vector<std::string> readEntries(JsonNode const& node, Kolt::VValueFormat const& format) {
    auto const* const entries = node.find("entries");
    bool const chooses = choosesEntries(format);
    if (!entries && !chooses)
        return {};
    auto const key = QString::fromStdString(format.key());
    if (chooses)
        return differentTexts(node.required("entries", QStringLiteral("a parameter of type ") + key),
                              QStringLiteral("the entries"), QStringLiteral("an entry"));
    entries->refuse(QStringLiteral("no entries for the type ") + key);
}

void readPreferences(JsonNode const& node, Kolt::VParameter& parameter) {
    auto const* const preferences = node.find("preferences");
    if (!preferences)
        return;
    auto const names =
        differentTexts(*preferences, QStringLiteral("the preferences"), QStringLiteral("the name of a preference"));
    parameter.setCreationPreferences(Kolt::PreferencesPtr(
        new Kolt::VCreationPreferences(Kolt::VCreationPreferences::Names(names.begin(), names.end()))));
}

std::string rowOf(Kolt::VParameter const& parameter) {
    auto const* const properties = parameter.properties();
    return properties ? Kolt::valueOr(properties->getValue("rowOf"), std::string()) : std::string();
}

/// What is expected instead of a parameter's "rowOf"; empty if it is right or missing.
QString rowFaultOf(Kolt::VObject const& object, Kolt::VParameter const& parameter) {
    auto const name = rowOf(parameter);
    if (name.empty())
        return {};
    for (auto const& other : object.parameters()) {
        if (other.get() == &parameter)
            break;
        if (other->Name() == name && rowOf(*other).empty())
            return {};
    }
    return QStringLiteral("the name of a parameter that comes before and begins a row");
}

/// Calls a function whose errors are about a parameter, and puts "object.parameter" before them.
template <typename Function>
void namingParameter(Kolt::VObject const& object, QString const& name, Function const& function) {
    try {
        function();
    } catch (FormatError& error) {
        error.text.prepend(QString::fromStdString(object.Name()) + QLatin1Char('.') + name + QStringLiteral(": "));
        throw;
    }
}

} // namespace

NetworkReader::NetworkReader(QString const& file, ObjectFactory const& makeObject)
    : network_(new Network), makeObject_(makeObject) {
    network_->file_ = file;
    folder_ = network_->folder();
}

std::unique_ptr<Network> NetworkReader::read(JsonNode root, QString const& file, ObjectFactory const& makeObject) {
    NetworkReader reader(file, makeObject);
    reader.readHead(root);
    reader.readObjects(std::move(root));
    reader.readSlots();
    reader.network_->rememberDefaults();
    return std::move(reader.network_);
}

void NetworkReader::check(NetworkText const& text, QString const& file) {
    ObjectFactory const makeObject;
    NetworkReader reader(file, makeObject);
    JsonKeys keys;
    reader.readHead(JsonNode::parse(text.withoutObjects(), keys));
    for (std::size_t n = 0; n < text.objectCount(); ++n) {
        reader.readObjects(JsonNode::parse(text.withObject(n), keys));
        // Only slots refer to another object.
        if (!text.hasSlots())
            reader.forgetObjects();
    }
    reader.readSlots();
}

void NetworkReader::readHead(JsonNode const& root) {
    root.members("a network", {"objects", "pools", "title"});
    if (auto const* const title = root.find("title"))
        network_->title_ = title->text("the title");

    auto const& pools = root.required("pools", "a network");
    for (auto const& pool : pools.elements("the pools"))
        readPool(pool);
    if (network_->pools_.empty())
        pools.refuse(QStringLiteral("at least one pool"));
}

void NetworkReader::readObjects(JsonNode root) {
    auto const& objects = root.required("objects", "a network").elements("the objects");
    network_->reserveObjects(objects.size());
    for (std::size_t index = 0; index < objects.size(); ++index) {
        readObject(objects[index]);
        auto& read = root.find("objects")->element(index);
        if (auto* const slotList = read.find("slots"))
            slots_.emplace_back(network_->objects_.back(), std::move(*slotList));
        // So that a large network is in memory once and not twice.
        read.release();
    }
}

void NetworkReader::readPool(JsonNode const& node) {
    auto const name = node.nonEmptyText("the name of a pool");
    if (network_->findPool(name))
        node.refuse(QStringLiteral("a pool name that is not taken"), quoted(name) + QStringLiteral(" again"));
    network_->insertPool(name.toStdString());
}

void NetworkReader::readObject(JsonNode const& node) {
    node.members("an object of the network", {"kind", "name", "parameters", "slots"});
    auto const& nameNode = node.required("name", "an object of the network");
    auto const name = nameNode.nonEmptyText("the name of an object");
    if (name.contains(QLatin1Char('.')))
        nameNode.refuse(QStringLiteral("the name of an object, which has no dot"));
    if (takenObjectNames_.contains(name))
        nameNode.refuse(QStringLiteral("an object name that is not taken"), quoted(name) + QStringLiteral(" again"));
    takenObjectNames_.insert(name);

    auto const* const kindNode = node.find("kind");
    auto const kind = kindNode ? kindNode->text("the kind of an object") : QString();
    auto const object = makeObject_ ? makeObject_(kind, name) : Kolt::ObjectPtr(new Kolt::VObject(name.toStdString()));
    network_->insertObject(object, kind);

    takenNames_.clear();
    if (auto const* const parameters = node.find("parameters"))
        readParameters(*parameters, object);
}

void NetworkReader::readParameters(JsonNode const& node, Kolt::ObjectPtr const& object) {
    auto const& nodes = node.elements("the parameters");
    // The factory may have given the object some.
    auto const first = object->parameters().size();
    for (auto const& each : nodes)
        readParameter(each, object);
    // A condition may be on a parameter that comes later.
    for (std::size_t index = 0; index < nodes.size(); ++index)
        checkReferences(nodes[index], *object, *object->parameters()[first + index]);
}

void NetworkReader::checkReferences(JsonNode const& node, Kolt::VObject const& object,
                                    Kolt::VParameter const& parameter) {
    auto const check = [&](char const* property, QString const& fault) {
        if (!fault.isEmpty())
            namingParameter(object, QString::fromStdString(parameter.Name()), [&] {
                node.required("properties", "a parameter").required(property, "the properties").refuse(fault);
            });
    };
    for (auto const* const property : Condition::Properties)
        check(property, Condition::faultOf(object, parameter, property));
    check("rowOf", rowFaultOf(object, parameter));
}

void NetworkReader::readParameter(JsonNode const& node, Kolt::ObjectPtr const& object) {
    auto const& nameNode = node.required("name", "a parameter");
    auto const name = nameNode.nonEmptyText("the name of a parameter");
    if (takenNames_.contains(name))
        nameNode.refuse(QStringLiteral("a parameter name that is not taken in the object"),
                        quoted(name) + QStringLiteral(" again"));
    takenNames_.insert(name);
    namingParameter(*object, name, [&] { readParameter(node, object, name); });
}

void NetworkReader::readParameter(JsonNode const& node, Kolt::ObjectPtr const& object, QString const& name) {
    constexpr char const* what = "a parameter";
    node.members(what, {"entries", "name", "perPool", "preferences", "properties", "type", "value", "values"});
    auto const& format = readFormat(node.required("type", what));
    auto const entries = readEntries(node, format);
    auto const ownValue = readValue(format, node.required("value", what), entries);
    auto const* const poolValues = node.find("values");
    auto const* const perPool = node.find("perPool");
    bool const keepsPerPool = perPool ? perPool->truth("\"perPool\"") : poolValues != nullptr;
    if (poolValues && !keepsPerPool)
        perPool->refuse(QStringLiteral("true where \"values\" are given"));
    using Values = Kolt::VParameter::Values;
    Kolt::ParameterPtr const parameter(new Kolt::VParameter(
        name.toStdString(), ownValue, keepsPerPool ? Values::PerPool : Values::Shared, format.typeName()));
    object->addParameter(parameter);
    if (poolValues)
        readPoolValues(*poolValues, *parameter, format, entries);

    network_->connectActions(*parameter, object);
    readPreferences(node, *parameter);
    if (auto const* const properties = node.find("properties"))
        for (auto const& [key, value] : PropertyFormat(QString::fromStdString(format.key()), folder_).read(*properties))
            parameter->setProperty(key, value, nullptr, nullptr, nullptr);
}

void NetworkReader::readPoolValues(JsonNode const& node, Kolt::VParameter const& parameter,
                                   Kolt::VValueFormat const& format, std::vector<std::string> const& entries) const {
    for (auto const& member : node.members("the values of pools")) {
        auto const pool = network_->findPool(member.key());
        if (!pool)
            member.refuse(QStringLiteral("values of the pools of the network"),
                          QStringLiteral("the pool ") + quoted(member.key()));
        parameter.getLocalValue(pool, std::string(), true)->assign(*readValue(format, member, entries));
    }
}

void NetworkReader::forgetObjects() {
    network_->objects_.clear();
    network_->byName_.clear();
    network_->kinds_.clear();
}

void NetworkReader::readSlots() const {
    for (auto const& [object, node] : slots_)
        readSlots(node, *object);
}

void NetworkReader::readSlots(JsonNode const& node, Kolt::VObject& object) const {
    constexpr char const* what = "a slot";
    std::unordered_set<std::string> taken;
    for (auto const& slot : object.slotList())
        taken.insert(slot->Name());
    for (auto const& slotNode : node.elements("the slots")) {
        slotNode.members(what, {"name", "parameter"});
        auto const& nameNode = slotNode.required("name", what);
        auto const name = nameNode.nonEmptyText("the name of a slot").toStdString();
        if (!taken.insert(name).second)
            nameNode.refuse(QStringLiteral("a slot name that is not taken in the object"),
                            quoted(QString::fromStdString(name)) + QStringLiteral(" again"));

        auto const& bound = slotNode.required("parameter", what);
        Kolt::ParameterPtr parameter;
        if (!bound.isNull()) {
            parameter = network_->findParameter(bound.text("the parameter of a slot"));
            if (!parameter)
                bound.refuse(QStringLiteral("the parameter of a slot, \"object.parameter\" of the network"));
        }
        object.addSlot(Tessera::StrongPtr<Kolt::VSlot>(new Kolt::VSlot(name, parameter)));
    }
}

} // namespace Talo

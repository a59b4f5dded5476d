// What a network says of its values without the rest of a network file, and what it takes over in the same form.

#include <network/Network.hpp>

#include <algorithm>
#include <network/JsonFormat.hpp>
#include <network/NetworkParts.hpp>
#include <network/ValueText.hpp>
#include <QJsonDocument>
#include <QJsonObject>

namespace Talo {

namespace {

/// All values of a parameter; null for what no file can contain.
QJsonObject valuesToJson(Kolt::VParameter const& parameter, std::vector<Kolt::PoolPtr> const& pools) {
    auto const* const format = formatOf(parameter);
    auto const json = [&](Kolt::ValuePtr const& value) {
        auto const written = format ? writeValue(*format, value) : QJsonValue(QJsonValue::Undefined);
        return written.isUndefined() ? QJsonValue() : written;
    };
    QJsonObject entry{{QStringLiteral("value"), json(parameter.ownValue())}};
    if (parameter.keepsValuesPerPool())
        entry.insert(QStringLiteral("values"), poolValuesToJson(pools, poolValuesOf(parameter), json));
    return entry;
}

/// The values of one parameter as valuesToJson wrote them.
struct ReadValues {
    Kolt::ValuePtr own;
    /// For each pool of the network, in their order; null where the pool has no value of its own.
    std::vector<Kolt::ValuePtr> inPools;
};

/// Throws a FormatError for what does not fit the parameter or the pools.
ReadValues readValues(JsonNode const& node, Kolt::VParameter const& parameter,
                      std::vector<Kolt::PoolPtr> const& pools) {
    auto const* const format = formatOf(parameter);
    if (!format || !parameter.isEdited())
        node.refuse(QStringLiteral("a parameter that people edit"));
    auto const* const entries = entriesOf(parameter.ownValue());
    auto const read = [&](JsonNode const& value) { return readValue(*format, value, entries ? *entries : Entries()); };
    ReadValues all{read(node.required("value", "the values of a parameter")),
                   std::vector<Kolt::ValuePtr>(pools.size())};
    auto const* const values = node.find("values");
    if (!values)
        return all;
    for (auto const& value : values->members("the values of pools")) {
        auto const pool =
            std::find_if(pools.begin(), pools.end(), [&](auto const& each) { return nameOfPool(each) == value.key(); });
        if (pool == pools.end() || !parameter.keepsValuesPerPool())
            value.refuse(QStringLiteral("values of the pools of the network"),
                         QStringLiteral("the pool ") + quoted(value.key()));
        all.inPools[static_cast<std::size_t>(pool - pools.begin())] = read(value);
    }
    return all;
}

/// Stores them and notifies everybody of what changed. False if a value cannot be stored.
bool applyValues(Kolt::VParameter& parameter, ReadValues const& values, std::vector<Kolt::PoolPtr> const& pools) {
    if (!parameter.keepsValuesPerPool())
        return Kolt::applyValue(parameter, nullptr, {values.own, false});
    auto const& own = parameter.ownValue();
    bool const isOther = !own->equals(*values.own);
    bool isStored = !isOther || own->assign(*values.own);
    for (std::size_t index = 0; index < pools.size(); ++index) {
        auto const& pool = pools[index];
        auto const& value = values.inPools[index];
        bool const inherits = !value && !parameter.getLocalValue(pool, std::string(), false);
        isStored = Kolt::applyValue(parameter, pool, {value ? value : own, !value}) && isStored;
        if (isOther && inherits)
            parameter.notifyValueChange(own, pool, std::string(), nullptr, nullptr, nullptr);
    }
    return isStored;
}

} // namespace

QByteArray Network::values() const {
    QJsonObject objects;
    for (auto const& object : objects_) {
        QJsonObject parameters;
        for (auto const& parameter : object->parameters())
            parameters.insert(QString::fromStdString(parameter->Name()), valuesToJson(*parameter, pools_));
        objects.insert(QString::fromStdString(object->Name()), parameters);
    }
    return QJsonDocument(objects).toJson();
}

bool Network::isSaved(SavedValue const& saved) const {
    auto const parameter = saved.parameter.strong();
    if (!parameter)
        return true;
    auto const isEffective = [&](auto const& pool) { return saved.value.isEffectiveIn(*parameter, pool); };
    return saved.value.isOwnValueOf(*parameter) &&
           (!parameter->keepsValuesPerPool() || std::all_of(pools_.begin(), pools_.end(), isEffective));
}

bool Network::isModified() const {
    auto const differs = [this](std::size_t place) { return !isSaved(saved_[place]); };
    return std::any_of(differing_.begin(), differing_.end(), differs) || findModified();
}

bool Network::isModifiedAfter(std::optional<std::vector<Kolt::ChangeSignal::Changed>> const& changed) {
    knowsOthers_ = knowsOthers_ && changed;
    if (knowsOthers_)
        for (auto const& each : *changed)
            noteChanged(each);
    while (!differing_.empty()) {
        if (!isSaved(saved_[*differing_.begin()]))
            return true;
        differing_.erase(differing_.begin());
    }
    return !knowsOthers_ && findModified();
}

bool Network::findModified() const {
    auto const found =
        std::find_if(saved_.begin(), saved_.end(), [this](auto const& saved) { return !isSaved(saved); });
    knowsOthers_ = found == saved_.end();
    if (!knowsOthers_)
        differing_.insert(static_cast<std::size_t>(found - saved_.begin()));
    return !knowsOthers_;
}

void Network::noteChanged(Kolt::ChangeSignal::Changed const& changed) {
    if (lastChanged_ >= saved_.size() || saved_[lastChanged_].parameter != changed) {
        auto const found =
            std::find_if(saved_.begin(), saved_.end(), [&](auto const& saved) { return saved.parameter == changed; });
        if (found == saved_.end())
            return;
        lastChanged_ = static_cast<std::size_t>(found - saved_.begin());
    }
    differing_.insert(lastChanged_);
}

QByteArray Network::unsavedValues() const {
    QJsonObject parameters;
    for (auto const& saved : saved_)
        if (!isSaved(saved)) {
            auto const parameter = saved.parameter.strong();
            parameters.insert(nameOf(parameter), valuesToJson(*parameter, pools_));
        }
    return QJsonDocument(parameters).toJson();
}

QStringList Network::takeValues(QByteArray const& json) {
    QStringList refused;
    // Of an own value that no pool inherits nobody is notified.
    knowsOthers_ = false;
    try {
        auto const root = JsonNode::parse(json);
        for (auto const& node : root.members("values of parameters")) {
            auto const parameter = findParameter(node.key());
            try {
                if (!parameter)
                    node.refuse(QStringLiteral("a parameter of the network"));
                if (!applyValues(*parameter, readValues(node, *parameter, pools_), pools_))
                    node.refuse(QStringLiteral("values that the parameter can hold"));
            } catch (FormatError const& error) {
                refused << node.key() + QStringLiteral(": ") + error.text;
            }
        }
    } catch (FormatError const& error) {
        refused << error.text;
    }
    return refused;
}

bool Network::setText(QString const& objectDotParameter, QString const& text, Kolt::PoolPtr const& pool,
                      QString* error) {
    auto const parameter = findParameter(objectDotParameter);
    if (!parameter)
        return failed(error, QStringLiteral("there is no parameter ") + quoted(objectDotParameter) +
                                 QStringLiteral(" in the network"));
    bool const perPool = parameter->keepsValuesPerPool();
    if (perPool && std::find(pools_.begin(), pools_.end(), pool) == pools_.end())
        return failed(error, quoted(objectDotParameter) +
                                 QStringLiteral(" keeps a value per pool and needs a pool of the network"));

    // Read before anything is made: with a wrong text a pool that has no value gets none.
    auto const read = valueFromText(*parameter, pool, text);
    if (!read)
        return failed(error, quoted(text) + QStringLiteral(" is no value of ") + quoted(objectDotParameter) +
                                 QStringLiteral(", which is of type ") +
                                 QString::fromStdString(parameter->declaredType()));

    auto const value = parameter->getLocalValue(pool, std::string(), true);
    value->assign(*read);
    Kolt::markValueChanged(*parameter, pool);
    parameter->notifyValueChange(value, pool, std::string(), nullptr, nullptr, nullptr);
    return true;
}

} // namespace Talo

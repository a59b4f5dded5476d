#include <parameters/commands/ObjectValues.hpp>

#include <lattice/UndoHistory.hpp>
#include <optional>
#include <parameters/commands/SharedEdits.hpp>
#include <parameters/commands/TypedJson.hpp>
#include <parameters/input/InputFilter.hpp>
#include <parameters/rows/ParameterDescription.hpp>
#include <QCoreApplication>
#include <QHash>
#include <QJsonDocument>

namespace Talo {

namespace {

struct ObjectValuesTexts {
    Q_DECLARE_TR_FUNCTIONS(ObjectValues)
};

/// Why the parameter does not take the value; empty if it does.
QString applyOne(Kolt::ParameterPtr const& parameter, Kolt::PoolPtr const& pool, QJsonValue const& json) {
    if (!parameter)
        return ObjectValuesTexts::tr("there is no such parameter");
    if (!isChangeable(*parameter))
        return ObjectValuesTexts::tr("it cannot be changed here");
    auto const read =
        valueFromTypedJson(QJsonDocument(json.toObject()).toJson(QJsonDocument::Compact), *parameter, pool);
    if (!read.value)
        return read.reason.isEmpty() ? ObjectValuesTexts::tr("it is of another type") : read.reason;
    if (!parameter->history().store(parameter, pool, {read.value, false}))
        return ObjectValuesTexts::tr("it does not take a value in this pool");
    return {};
}

} // namespace

QJsonObject objectValues(Kolt::VObject const& object, Kolt::PoolPtr const& pool) {
    QJsonObject values;
    for (auto const& parameter : object.parameters()) {
        auto const json = isChangeable(*parameter) ? typedJson(*parameter, pool) : QJsonObject();
        if (!json.isEmpty())
            values.insert(QString::fromStdString(parameter->Name()), json);
    }
    return values;
}

QStringList applyObjectValues(Kolt::ObjectPtr const& object, Kolt::PoolPtr const& pool, QJsonObject const& values) {
    InputFilter::shared()->gestures().end();
    QHash<QString, Kolt::ParameterPtr> parameters;
    for (auto const& parameter : object->parameters())
        parameters.insert(QString::fromStdString(parameter->Name()), parameter);
    std::optional<Kolt::UndoHistory::Macro> macro;
    if (!parameters.isEmpty())
        macro.emplace(object->parameters().front()->history());
    SharedEdits::Pause const pause;
    QStringList refused;
    for (auto value = values.begin(); value != values.end(); ++value) {
        auto const reason = applyOne(parameters.value(value.key()), pool, value.value());
        if (!reason.isEmpty())
            refused << ObjectValuesTexts::tr("%1: %2").arg(value.key(), reason);
    }
    return refused;
}

} // namespace Talo

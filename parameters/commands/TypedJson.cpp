#include <parameters/commands/TypedJson.hpp>

#include <network/ValueFormat.hpp>
#include <QCoreApplication>

namespace Talo {

namespace {

struct TypedJsonTexts {
    // The texts of the clipboard are about the same values.
    Q_DECLARE_TR_FUNCTIONS(ValueClipboard)
};

} // namespace

QJsonObject typedJson(Kolt::VParameter const& parameter, Kolt::PoolPtr const& pool) {
    auto const* const format = ValueFormat::ofType(parameter.declaredType());
    if (!format)
        return {};
    auto const written = format->write(Kolt::copyEffectiveValue(parameter, pool).value);
    if (written.isUndefined())
        return {};
    return {{QStringLiteral("type"), QLatin1String(format->key)}, {QStringLiteral("value"), written}};
}

TypedValue valueFromTypedJson(QByteArray const& json, Kolt::VParameter const& parameter, Kolt::PoolPtr const& pool) {
    auto const* const format = ValueFormat::ofType(parameter.declaredType());
    if (!format)
        return {};
    try {
        auto const root = JsonNode::parse(json);
        if (root.required("type", "a copied value").text("the type of a copied value") != QLatin1String(format->key))
            return {};
        auto const held = Kolt::copyEffectiveValue(parameter, pool).value;
        auto const* const entries = entriesOf(held);
        auto const read =
            format->read(root.required("value", "a copied value"), entries ? *entries : ValueFormat::Entries());
        auto const value = held->clone();
        if (offerSameChoices(held, read) && value->assign(*read))
            return {value, {}};
        return {nullptr, TypedJsonTexts::tr("it has other flags")};
    } catch (FormatError const& problem) {
        return {nullptr, problem.text};
    }
}

} // namespace Talo

#include <parameters/commands/TypedJson.hpp>

#include <network/JsonFormat.hpp>
#include <QCoreApplication>

namespace Talo {

namespace {

struct TypedJsonTexts {
    // The texts of the clipboard are about the same values.
    Q_DECLARE_TR_FUNCTIONS(ValueClipboard)
};

} // namespace

QJsonObject typedJson(Kolt::VParameter const& parameter, Kolt::PoolPtr const& pool) {
    auto const* const format = formatOf(parameter);
    if (!format)
        return {};
    auto const written = writeValue(*format, Kolt::copyEffectiveValue(parameter, pool).value);
    if (written.isUndefined())
        return {};
    return {{QStringLiteral("type"), QString::fromStdString(format->key())}, {QStringLiteral("value"), written}};
}

TypedValue valueFromTypedJson(QByteArray const& json, Kolt::VParameter const& parameter, Kolt::PoolPtr const& pool) {
    auto const* const format = formatOf(parameter);
    if (!format)
        return {};
    try {
        auto const root = JsonNode::parse(json);
        if (root.required("type", "a copied value").text("the type of a copied value").toStdString() != format->key())
            return {};
        auto const held = Kolt::copyEffectiveValue(parameter, pool).value;
        auto const* const entries = entriesOf(held);
        auto const read = readValue(*format, root.required("value", "a copied value"), entries ? *entries : Entries());
        auto const value = held->clone();
        if (offerSameChoices(held, read) && value->assign(*read))
            return {value, {}};
        return {nullptr, TypedJsonTexts::tr("it has other flags")};
    } catch (FormatError const& problem) {
        return {nullptr, problem.text};
    }
}

} // namespace Talo

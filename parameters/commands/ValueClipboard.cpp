#include <parameters/commands/ValueClipboard.hpp>

#include <algorithm>
#include <bramble/FlagList.hpp>
#include <network/ValueFormat.hpp>
#include <network/ValueText.hpp>
#include <QCoreApplication>
#include <QJsonDocument>
#include <QJsonObject>

namespace Talo {

namespace {

struct ClipboardTexts {
    Q_DECLARE_TR_FUNCTIONS(ValueClipboard)
};

bool haveSameFlags(Kolt::ValuePtr const& left, Kolt::ValuePtr const& right) {
    Kolt::FlagList const none;
    auto const leftFlags = Kolt::valueOr(left, none);
    auto const rightFlags = Kolt::valueOr(right, none);
    return std::equal(leftFlags.begin(), leftFlags.end(), rightFlags.begin(), rightFlags.end(),
                      [](auto const& one, auto const& other) { return one.first == other.first; });
}

/// The typed value for a parameter that holds `held`; null, and the reason unless it is of another type, where there is
/// none.
Kolt::ValuePtr typedValue(QByteArray const& json, ValueFormat const& format, Kolt::ValuePtr const& held,
                          QString& error) {
    try {
        auto const root = JsonNode::parse(json);
        if (root.required("type", "a copied value").text("the type of a copied value") != QLatin1String(format.key))
            return nullptr;
        auto const* const entries = entriesOf(held);
        auto const read =
            format.read(root.required("value", "a copied value"), entries ? *entries : ValueFormat::Entries());
        auto const value = held->clone();
        if (haveSameFlags(held, read) && value->assign(*read))
            return value;
        error = ClipboardTexts::tr("it has other flags");
    } catch (FormatError const& problem) {
        error = problem.text;
    }
    return nullptr;
}

} // namespace

QString ValueClipboard::mimeType() {
    return QStringLiteral("application/x-talo-value+json");
}

std::unique_ptr<QMimeData> ValueClipboard::copy(Kolt::VParameter const& parameter, Kolt::PoolPtr const& pool) {
    auto data = std::make_unique<QMimeData>();
    auto const held = Kolt::copyEffectiveValue(parameter, pool).value;
    data->setText(QString::fromStdString(held->Text()));
    auto const* const format = ValueFormat::ofType(parameter.declaredType());
    if (!format)
        return data;
    auto const written = format->write(held);
    if (!written.isUndefined()) {
        QJsonObject const typed{{QStringLiteral("type"), QLatin1String(format->key)},
                                {QStringLiteral("value"), written}};
        data->setData(mimeType(), QJsonDocument(typed).toJson(QJsonDocument::Compact));
    }
    return data;
}

ValueClipboard::Pasted ValueClipboard::paste(QMimeData const& data, Kolt::VParameter const& parameter,
                                             Kolt::PoolPtr const& pool) {
    auto const name = QString::fromStdString(parameter.Name());
    auto const* const format = ValueFormat::ofType(parameter.declaredType());
    auto const held = Kolt::copyEffectiveValue(parameter, pool).value;
    QString reason;
    if (format && data.hasFormat(mimeType())) {
        if (auto const value = typedValue(data.data(mimeType()), *format, held, reason))
            return {value, QString()};
        if (!reason.isEmpty())
            return {nullptr, ClipboardTexts::tr("The copied value does not fit %1: %2.").arg(name, reason)};
    }
    if (!data.hasText())
        return {nullptr, ClipboardTexts::tr("There is no value to paste into %1.").arg(name)};
    auto const text = data.text();
    if (auto const value = valueFromText(parameter, pool, text))
        return {value, QString()};
    if (auto const value = valueFromText(parameter, pool, text.trimmed()))
        return {value, QString()};
    return {nullptr, ClipboardTexts::tr("%1 is no value of %2, which is of type %3.")
                         .arg(quoted(text), name,
                              format ? QLatin1String(format->key) : QString::fromStdString(parameter.declaredType()))};
}

} // namespace Talo

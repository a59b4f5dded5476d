#include <parameters/commands/ValueClipboard.hpp>

#include <network/ValueFormat.hpp>
#include <network/ValueText.hpp>
#include <optional>
#include <QCoreApplication>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QRegularExpression>
#include <QStringList>

namespace Talo {

namespace {

struct ClipboardTexts {
    Q_DECLARE_TR_FUNCTIONS(ValueClipboard)
};

/// What a parameter holds, as the value and the key of its type; empty for a type without a format.
QJsonObject typedObject(Kolt::VParameter const& parameter, Kolt::ValuePtr const& held) {
    auto const* const format = ValueFormat::ofType(parameter.declaredType());
    auto const written = format ? format->write(held) : QJsonValue(QJsonValue::Undefined);
    if (written.isUndefined())
        return {};
    return {{QStringLiteral("type"), QLatin1String(format->key)}, {QStringLiteral("value"), written}};
}

QByteArray compact(QJsonObject const& object) {
    return QJsonDocument(object).toJson(QJsonDocument::Compact);
}

/// The typed values that were copied together; none if one value was copied, or something else.
std::vector<QJsonObject> typedObjects(QMimeData const& data) {
    std::vector<QJsonObject> objects;
    auto const root = QJsonDocument::fromJson(data.data(ValueClipboard::mimeType())).object();
    auto const values = root.value(QLatin1String("values")).toArray();
    for (auto const& value : values)
        objects.push_back(value.toObject());
    return objects;
}

QStringList wordsOf(QMimeData const& data) {
    return data.text().split(QRegularExpression(QStringLiteral("[\\s,;]+")), Qt::SkipEmptyParts);
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
        if (offerSameChoices(held, read) && value->assign(*read))
            return value;
        error = ClipboardTexts::tr("it has other flags");
    } catch (FormatError const& problem) {
        error = problem.text;
    }
    return nullptr;
}

/// The value for a parameter: the typed one, if there is one, else the one that the text is.
ValueClipboard::Pasted pasted(QByteArray const& typed, std::optional<QString> const& text,
                              Kolt::VParameter const& parameter, Kolt::PoolPtr const& pool) {
    auto const name = QString::fromStdString(parameter.Name());
    auto const* const format = ValueFormat::ofType(parameter.declaredType());
    auto const held = Kolt::copyEffectiveValue(parameter, pool).value;
    QString reason;
    if (format && !typed.isEmpty()) {
        if (auto const value = typedValue(typed, *format, held, reason))
            return {value, QString()};
        if (!reason.isEmpty())
            return {nullptr, ClipboardTexts::tr("The copied value does not fit %1: %2.").arg(name, reason)};
    }
    if (!text)
        return {nullptr, ClipboardTexts::tr("There is no value to paste into %1.").arg(name)};
    if (auto const value = valueFromText(parameter, pool, *text))
        return {value, QString()};
    if (auto const value = valueFromText(parameter, pool, text->trimmed()))
        return {value, QString()};
    return {nullptr, ClipboardTexts::tr("%1 is no value of %2, which is of type %3.")
                         .arg(quoted(*text), name,
                              format ? QLatin1String(format->key) : QString::fromStdString(parameter.declaredType()))};
}

} // namespace

QString ValueClipboard::mimeType() {
    return QStringLiteral("application/x-talo-value+json");
}

std::unique_ptr<QMimeData> ValueClipboard::copy(Kolt::VParameter const& parameter, Kolt::PoolPtr const& pool) {
    auto data = std::make_unique<QMimeData>();
    auto const held = Kolt::copyEffectiveValue(parameter, pool).value;
    data->setText(QString::fromStdString(held->Text()));
    auto const typed = typedObject(parameter, held);
    if (!typed.isEmpty())
        data->setData(mimeType(), compact(typed));
    return data;
}

ValueClipboard::Pasted ValueClipboard::paste(QMimeData const& data, Kolt::VParameter const& parameter,
                                             Kolt::PoolPtr const& pool) {
    auto const typed = typedObjects(data).empty() ? data.data(mimeType()) : QByteArray();
    return pasted(typed, data.hasText() ? std::optional(data.text()) : std::nullopt, parameter, pool);
}

std::unique_ptr<QMimeData> ValueClipboard::copyAll(std::vector<Kolt::ParameterPtr> const& parameters,
                                                   Kolt::PoolPtr const& pool) {
    auto data = std::make_unique<QMimeData>();
    QStringList texts;
    QJsonArray values;
    for (auto const& parameter : parameters) {
        auto const held = Kolt::copyEffectiveValue(*parameter, pool).value;
        texts << QString::fromStdString(held->Text());
        values << typedObject(*parameter, held);
    }
    data->setText(texts.join(QLatin1Char(' ')));
    data->setData(mimeType(), compact({{QStringLiteral("values"), values}}));
    return data;
}

bool ValueClipboard::hasValues(QMimeData const& data, std::size_t count) {
    if (data.hasFormat(mimeType()))
        return typedObjects(data).size() == count;
    return static_cast<std::size_t>(wordsOf(data).size()) == count;
}

ValueClipboard::PastedValues ValueClipboard::pasteAll(QMimeData const& data,
                                                      std::vector<Kolt::ParameterPtr> const& parameters,
                                                      Kolt::PoolPtr const& pool) {
    auto const typed = typedObjects(data);
    auto const words = wordsOf(data);
    PastedValues result;
    for (std::size_t index = 0; index < parameters.size(); ++index) {
        auto const place = static_cast<int>(index);
        auto const word = place < words.size() ? std::optional(words.at(place)) : std::nullopt;
        auto const [value, error] =
            pasted(index < typed.size() && !typed[index].isEmpty() ? compact(typed[index]) : QByteArray(), word,
                   *parameters[index], pool);
        if (!value)
            return {{}, error};
        result.values.push_back(value);
    }
    return result;
}

} // namespace Talo

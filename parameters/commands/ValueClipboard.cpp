#include <parameters/commands/ValueClipboard.hpp>

#include <network/JsonFormat.hpp>
#include <network/JsonNode.hpp>
#include <network/ValueText.hpp>
#include <optional>
#include <parameters/commands/TypedJson.hpp>
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

/// The value for a parameter: the typed one, if there is one, else the one that the text is.
ValueClipboard::Pasted pasted(QByteArray const& typed, std::optional<QString> const& text,
                              Kolt::VParameter const& parameter, Kolt::PoolPtr const& pool) {
    auto const name = QString::fromStdString(parameter.Name());
    if (!typed.isEmpty()) {
        auto const [value, reason] = valueFromTypedJson(typed, parameter, pool);
        if (value)
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
                         .arg(quoted(*text), name, shortTypeName(parameter.declaredType()))};
}

} // namespace

QString ValueClipboard::mimeType() {
    return QStringLiteral("application/x-talo-value+json");
}

std::unique_ptr<QMimeData> ValueClipboard::copy(Kolt::VParameter const& parameter, Kolt::PoolPtr const& pool) {
    auto data = std::make_unique<QMimeData>();
    auto const held = Kolt::copyEffectiveValue(parameter, pool).value;
    data->setText(QString::fromStdString(held->Text()));
    auto const typed = typedJson(parameter, pool);
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
        values << typedJson(*parameter, pool);
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

#include <network/PropertyFormat.hpp>

#include <cmath>
#include <limits>
#include <network/JsonFormat.hpp>
#include <QDir>
#include <QHash>
#include <QJsonObject>
#include <QStringList>

namespace Talo {

PropertyFormat::PropertyFormat(QString typeKey, QString folder)
    : typeKey_(std::move(typeKey)), folder_(std::move(folder)) {}

PropertyFormat::Kind PropertyFormat::kindOf(QString const& name) const {
    // Asked for each property of a network, of which there may be a hundred thousand.
    static QHash<QString, Kind> const kinds = {
        {QStringLiteral("min"), Kind::Bound},         {QStringLiteral("max"), Kind::Bound},
        {QStringLiteral("increment"), Kind::Bound},   {QStringLiteral("softMinimum"), Kind::Bound},
        {QStringLiteral("softMaximum"), Kind::Bound}, {QStringLiteral("precision"), Kind::Integer},
        {QStringLiteral("wrap"), Kind::Integer},      {QStringLiteral("tooltip"), Kind::Text},
        {QStringLiteral("inputmask"), Kind::Text},    {QStringLiteral("Extension"), Kind::Text},
        {QStringLiteral("label"), Kind::Text},        {QStringLiteral("help"), Kind::Text},
        {QStringLiteral("unit"), Kind::Text},         {QStringLiteral("group"), Kind::Text},
        {QStringLiteral("rowOf"), Kind::Text},        {QStringLiteral("visibleWhen"), Kind::Text},
        {QStringLiteral("enabledWhen"), Kind::Text},  {QStringLiteral("advanced"), Kind::Truth},
        {QStringLiteral("readOnly"), Kind::Truth},    {QStringLiteral("icon"), Kind::Icon}};
    auto const kind = kinds.value(name, Kind::Free);
    if (kind != Kind::Bound)
        return kind;
    return typeKey_ == QStringLiteral("double") ? Kind::Real : Kind::Integer;
}

Kolt::ValuePtr PropertyFormat::readProperty(JsonNode const& node) const {
    Expectation const what("the property", node.key());
    auto const kind = kindOf(node.key());

    if (kind == Kind::Text)
        return Kolt::makeValue(node.text(what).toStdString());
    if (kind == Kind::Truth)
        return Kolt::makeValue(node.truth(what));
    if (kind == Kind::Icon) {
        auto const path = node.text(what);
        bool const relative = !path.isEmpty() && QDir::isRelativePath(path);
        return Kolt::makeValue((relative ? folder_ + QLatin1Char('/') + path : path).toStdString());
    }
    if (node.type() == QJsonValue::Object) {
        auto const& tags = node.members(what, {"int", "double"});
        if (tags.size() != 1)
            node.refuse(what.text() + QStringLiteral(R"(, {"int": ...} or {"double": ...})"));
        return tags[0].key() == QStringLiteral("int") ? Kolt::makeValue(tags[0].integer(what))
                                                      : Kolt::makeValue(tags[0].real(what));
    }
    if (kind == Kind::Real && node.type() != QJsonValue::Double)
        node.refuse(what.text() + QStringLiteral(", a number"));
    if (kind == Kind::Real)
        return Kolt::makeValue(node.real(what));
    if (kind == Kind::Free && node.type() == QJsonValue::String)
        return Kolt::makeValue(node.text(what).toStdString());
    if (kind == Kind::Free && node.type() == QJsonValue::Bool)
        return Kolt::makeValue(node.truth(what));
    if (kind == Kind::Free && node.type() != QJsonValue::Double)
        node.refuse(what.text() + QStringLiteral(", a number, a text, true or false"));
    return Kolt::makeValue(node.integer(what));
}

void PropertyFormat::checkRanges(JsonNode const& node, Kolt::ValueMap const& properties) const {
    auto const refuse = [&](char const* name, QString const& expected) {
        node.required(name, "the properties")
            .refuse(QStringLiteral("the property ") + quoted(QLatin1String(name)) + QStringLiteral(", ") + expected);
    };
    auto const minimum = properties.getValue("min");
    auto const maximum = properties.getValue("max");
    auto const increment = properties.getValue("increment");

    if (Kolt::valueOr(properties.getValue("wrap"), 1) < 1)
        refuse("wrap", QStringLiteral("at least 1"));
    if (minimum && maximum && Kolt::valueOr(minimum, 0) > Kolt::valueOr(maximum, std::numeric_limits<int>::max()))
        refuse("max", QStringLiteral("not below \"min\""));
    for (auto const* const name : {"min", "max"})
        if (!std::isfinite(Kolt::valueOr(properties.getValue(name), 0.0)))
            refuse(name, QStringLiteral("a finite number"));
    auto const least = Kolt::valueIn<double>(minimum);
    auto const most = Kolt::valueIn<double>(maximum);
    if (least && most && *least >= *most)
        refuse("max", QStringLiteral("above \"min\""));
    // It counts the positions of the control.
    auto const positions = Kolt::valueOr(increment, 2.0);
    if (!(positions >= 2.0 && positions <= double{std::numeric_limits<int>::max()}))
        refuse("increment", QStringLiteral("a number from 2 to %1").arg(std::numeric_limits<int>::max()));
}

Kolt::ValueMap PropertyFormat::read(JsonNode const& node) const {
    Kolt::ValueMap properties;
    for (auto const& member : node.members("the properties"))
        properties.setValue(member.key().toStdString(), readProperty(member));
    checkRanges(node, properties);
    return properties;
}

QJsonValue PropertyFormat::write(QString const& name, Kolt::ValuePtr const& value, QString const& targetFolder) const {
    auto const kind = kindOf(name);
    if (auto const on = Kolt::valueIn<bool>(value))
        return *on;
    if (auto const number = Kolt::valueIn<int>(value))
        return kind == Kind::Real ? QJsonValue(QJsonObject{{QStringLiteral("int"), *number}}) : QJsonValue(*number);
    if (auto const real = Kolt::valueIn<double>(value)) {
        auto const number = realToJson(*real);
        return kind == Kind::Real && number.isDouble() ? number
                                                       : QJsonValue(QJsonObject{{QStringLiteral("double"), number}});
    }
    auto const content = Kolt::valueIn<std::string>(value);
    if (!content)
        return QJsonValue::Undefined;
    auto const text = QString::fromStdString(*content);
    if (!isRelative(name, value))
        return text;
    // As it was written, unless the file goes to another folder.
    return targetFolder == folder_ ? text.mid(folder_.size() + 1) : QDir(targetFolder).relativeFilePath(text);
}

bool PropertyFormat::isRelative(QString const& name, Kolt::ValuePtr const& value) const {
    return kindOf(name) == Kind::Icon &&
           QString::fromStdString(Kolt::valueOr(value, std::string())).startsWith(folder_ + QLatin1Char('/'));
}

Kolt::ValuePtr PropertyFormat::moved(QString const& name, Kolt::ValuePtr const& value,
                                     QString const& targetFolder) const {
    if (targetFolder == folder_ || !isRelative(name, value))
        return nullptr;
    return Kolt::makeValue(
        (targetFolder + QLatin1Char('/') + write(name, value, targetFolder).toString()).toStdString());
}

} // namespace Talo

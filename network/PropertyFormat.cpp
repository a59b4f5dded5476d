#include <network/PropertyFormat.hpp>

#include <cmath>
#include <limits>
#include <network/JsonFormat.hpp>
#include <QDir>
#include <QHash>
#include <QJsonObject>
#include <QSet>
#include <QStringList>

namespace Talo {

PropertyFormat::PropertyFormat(QString typeKey, QString folder)
    : typeKey_(std::move(typeKey)), folder_(std::move(folder)) {}

PropertyFormat::Kind PropertyFormat::kindOf(QString const& name) const {
    auto const bound = typeKey_ == "double" ? Kind::Real : Kind::Integer;
    // Asked for each property of a network, of which there may be a hundred thousand.
    static QHash<QString, Kind> const kinds = {
        {"precision", Kind::Integer}, {"wrap", Kind::Integer},     {"tooltip", Kind::Text},
        {"inputmask", Kind::Text},    {"Extension", Kind::Text},   {"label", Kind::Text},
        {"help", Kind::Text},         {"unit", Kind::Text},        {"group", Kind::Text},
        {"rowOf", Kind::Text},        {"visibleWhen", Kind::Text}, {"enabledWhen", Kind::Text},
        {"advanced", Kind::Truth},    {"readOnly", Kind::Truth},   {"icon", Kind::Icon}};
    static QSet<QString> const bounds = {"min", "max", "increment", "softMinimum", "softMaximum"};
    return bounds.contains(name) ? bound : kinds.value(name, Kind::Free);
}

Kolt::ValuePtr PropertyFormat::readProperty(JsonNode const& node) const {
    auto const what = "the property " + quoted(node.key());
    auto const kind = kindOf(node.key());

    if (kind == Kind::Text)
        return Kolt::makeValue(node.text(what).toStdString());
    if (kind == Kind::Truth)
        return Kolt::makeValue(node.truth(what));
    if (kind == Kind::Icon) {
        auto const path = node.text(what);
        bool const relative = !path.isEmpty() && QDir::isRelativePath(path);
        return Kolt::makeValue((relative ? folder_ + '/' + path : path).toStdString());
    }
    if (node.value().isObject()) {
        auto const& tags = node.members(what, {"int", "double"});
        if (tags.size() != 1)
            node.refuse(what + R"(, {"int": ...} or {"double": ...})");
        return tags[0].key() == "int" ? Kolt::makeValue(tags[0].integer(what)) : Kolt::makeValue(tags[0].real(what));
    }
    if (kind == Kind::Real) {
        if (!node.value().isDouble())
            node.refuse(what + ", a number");
        return Kolt::makeValue(node.value().toDouble());
    }
    if (kind == Kind::Free && node.value().isString())
        return Kolt::makeValue(node.value().toString().toStdString());
    if (kind == Kind::Free && node.value().isBool())
        return Kolt::makeValue(node.value().toBool());
    if (kind == Kind::Free && !node.value().isDouble())
        node.refuse(what + ", a number, a text, true or false");
    return Kolt::makeValue(node.integer(what));
}

void PropertyFormat::checkRanges(JsonNode const& node, Kolt::ValueMap const& properties) const {
    auto const refuse = [&](char const* name, QString const& expected) {
        node.required(name, "the properties").refuse("the property " + quoted(name) + ", " + expected);
    };
    auto const minimum = properties.getValue("min");
    auto const maximum = properties.getValue("max");
    auto const increment = properties.getValue("increment");

    if (Kolt::valueOr(properties.getValue("wrap"), 1) < 1)
        refuse("wrap", "at least 1");
    if (minimum && maximum && Kolt::valueOr(minimum, 0) > Kolt::valueOr(maximum, std::numeric_limits<int>::max()))
        refuse("max", "not below \"min\"");
    for (auto const* const name : {"min", "max"})
        if (!std::isfinite(Kolt::valueOr(properties.getValue(name), 0.0)))
            refuse(name, "a finite number");
    auto const least = Kolt::valueIn<double>(minimum);
    auto const most = Kolt::valueIn<double>(maximum);
    if (least && most && *least >= *most)
        refuse("max", "above \"min\"");
    // It counts the positions of the control.
    auto const positions = Kolt::valueOr(increment, 2.0);
    if (!(positions >= 2.0 && positions <= double{std::numeric_limits<int>::max()}))
        refuse("increment", QString("a number from 2 to %1").arg(std::numeric_limits<int>::max()));
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
        return kind == Kind::Real ? QJsonValue(QJsonObject{{"int", *number}}) : QJsonValue(*number);
    if (auto const real = Kolt::valueIn<double>(value)) {
        auto const number = realToJson(*real);
        return kind == Kind::Real && number.isDouble() ? number : QJsonValue(QJsonObject{{"double", number}});
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
           QString::fromStdString(Kolt::valueOr(value, std::string())).startsWith(folder_ + '/');
}

Kolt::ValuePtr PropertyFormat::moved(QString const& name, Kolt::ValuePtr const& value,
                                     QString const& targetFolder) const {
    if (targetFolder == folder_ || !isRelative(name, value))
        return nullptr;
    return Kolt::makeValue((targetFolder + '/' + write(name, value, targetFolder).toString()).toStdString());
}

} // namespace Talo

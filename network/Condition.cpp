#include <network/Condition.hpp>

#include <algorithm>
#include <network/JsonNode.hpp>
#include <set>

namespace Talo {

namespace {

/// The value that the parameter has when it is set to a text; null if it cannot be.
Kolt::ValuePtr valueFrom(Kolt::VParameter const& parameter, std::string const& text) {
    auto value = parameter.ownValue()->clone();
    return value->setValueFromText(text) ? value : nullptr;
}

/// Whether the parameter's own conditions lead to it again.
bool isCircular(Kolt::VObject const& object, Kolt::VParameter const& parameter) {
    std::set<std::string> reached;
    std::vector<Kolt::VParameter const*> open{&parameter};
    while (!open.empty()) {
        auto const& next = *open.back();
        open.pop_back();
        for (auto const* const property : Condition::Properties) {
            auto const condition = Condition::of(next, property);
            if (!condition)
                continue;
            if (condition->parameterName() == parameter.Name())
                return true;
            auto const other = object.findParameter(condition->parameterName());
            if (other && reached.insert(condition->parameterName()).second)
                open.push_back(other.get());
        }
    }
    return false;
}

} // namespace

std::optional<Condition> Condition::of(Kolt::VParameter const& parameter, char const* property) {
    auto const* const properties = parameter.properties();
    auto const text = properties ? Kolt::valueIn<std::string>(properties->getValue(property)) : std::nullopt;
    return text ? parse(*text) : std::nullopt;
}

std::optional<Condition> Condition::parse(std::string const& text) {
    auto const equals = text.find('=');
    if (equals == 0 || equals == std::string::npos)
        return std::nullopt;
    Condition condition;
    condition.parameterName_ = text.substr(0, equals);
    for (auto begin = equals + 1; begin <= text.size();) {
        auto const end = std::min(text.find('|', begin), text.size());
        condition.values_.push_back(text.substr(begin, end - begin));
        begin = end + 1;
    }
    return condition;
}

bool Condition::holds(Kolt::VParameter const& other, Kolt::PoolPtr const& pool) const {
    auto const effective = other.effectiveValue(pool);
    return std::any_of(values_.begin(), values_.end(), [&](auto const& text) {
        auto const value = valueFrom(other, text);
        return value && value->equals(*effective);
    });
}

QString Condition::faultOf(Kolt::VObject const& object, Kolt::VParameter const& parameter, char const* property) {
    auto const* const properties = parameter.properties();
    if (!properties || !properties->getValue(property))
        return {};
    auto const condition = of(parameter, property);
    if (!condition)
        return QStringLiteral("the name of a parameter, \"=\" and values with \"|\" between them");
    auto const name = QString::fromStdString(condition->parameterName_);
    auto const other = object.findParameter(condition->parameterName_);
    if (!other)
        return QStringLiteral("a condition on another parameter of the object; %1 is none").arg(quoted(name));
    for (auto const& value : condition->values_)
        if (!valueFrom(*other, value))
            return QStringLiteral("a condition that can hold; %1 cannot be %2")
                .arg(quoted(name), quoted(QString::fromStdString(value)));
    if (isCircular(object, parameter))
        return QStringLiteral("a condition that does not depend on itself");
    return {};
}

} // namespace Talo

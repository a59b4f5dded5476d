#include <parameters/commands/ParameterFilter.hpp>

#include <algorithm>
#include <network/Condition.hpp>
#include <parameters/rows/ParameterDescription.hpp>

namespace Talo {

namespace {

/// Whether a name or other texts contain each of the words. The others are read only if the name lacks a word.
template <typename OtherTexts>
bool containAll(QStringList const& words, QString const& name, OtherTexts const& otherTexts) {
    QString others;
    bool asked = false;
    return std::all_of(words.begin(), words.end(), [&](QString const& word) {
        if (name.contains(word, Qt::CaseInsensitive))
            return true;
        if (!std::exchange(asked, true))
            others = otherTexts();
        return others.contains(word, Qt::CaseInsensitive);
    });
}

/// Whether the condition under which the object shows the parameter holds.
bool isVisible(Kolt::VObject const& object, Kolt::VParameter const& parameter, Kolt::PoolPtr const& pool) {
    auto const condition = Condition::of(parameter, Condition::Properties[0]);
    auto const other = condition ? object.findParameter(condition->parameterName()) : nullptr;
    return !other || condition->holds(*other, pool);
}

} // namespace

ParameterFilter::ParameterFilter(QString const& text, bool onlyChanged)
    : words_(text.simplified().split(QLatin1Char(' '), Qt::SkipEmptyParts)), onlyChanged_(onlyChanged) {}

bool ParameterFilter::finds(Kolt::VObject const& object, Kolt::VParameter const& parameter, Kolt::PoolPtr const& pool,
                            QString const& kind) const {
    if (onlyChanged_ && !isChanged(parameter, pool))
        return false;
    if (words_.isEmpty())
        return true;
    return containAll(words_, QString::fromStdString(object.Name() + '.' + parameter.Name()), [&] {
        ParameterDescription const description(parameter);
        return QStringList{kind, description.label, description.help,
                           QString::fromStdString(parameter.effectiveValue(pool)->Text())}
            .join(QLatin1Char('\n'));
    });
}

std::optional<int> ParameterFilter::countIn(Kolt::VObject const& object, Kolt::PoolPtr const& pool,
                                            QString const& kind) const {
    auto const& parameters = object.parameters();
    auto const count = std::count_if(parameters.begin(), parameters.end(), [&](auto const& parameter) {
        return finds(object, *parameter, pool, kind) && isVisible(object, *parameter, pool);
    });
    bool const isFoundItself =
        !onlyChanged_ && containAll(words_, QString::fromStdString(object.Name()), [&] { return kind; });
    return count > 0 || isFoundItself ? std::optional(static_cast<int>(count)) : std::nullopt;
}

bool isChanged(Kolt::VParameter const& parameter, Kolt::PoolPtr const& pool) {
    auto const* const defaults = parameter.defaults();
    return defaults && !defaults->isEffectiveIn(parameter, pool);
}

} // namespace Talo

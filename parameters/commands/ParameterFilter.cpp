#include <parameters/commands/ParameterFilter.hpp>

#include <algorithm>
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

} // namespace

ParameterFilter::ParameterFilter(QString const& text)
    : words_(text.simplified().split(QLatin1Char(' '), Qt::SkipEmptyParts)) {}

bool ParameterFilter::finds(Kolt::VObject const& object, Kolt::VParameter const& parameter,
                            Kolt::PoolPtr const& pool) const {
    if (isEmpty())
        return true;
    return containAll(words_, QString::fromStdString(object.Name() + '.' + parameter.Name()), [&] {
        ParameterDescription const description(parameter);
        return QStringList{description.label, description.help,
                           QString::fromStdString(parameter.effectiveValue(pool)->Text())}
            .join(QLatin1Char('\n'));
    });
}

bool ParameterFilter::finds(Kolt::VObject const& object, Kolt::PoolPtr const& pool) const {
    auto const& parameters = object.parameters();
    return containAll(words_, QString::fromStdString(object.Name()), [] { return QString(); }) ||
           std::any_of(parameters.begin(), parameters.end(),
                       [&](auto const& parameter) { return finds(object, *parameter, pool); });
}

} // namespace Talo

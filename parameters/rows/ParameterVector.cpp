#include <parameters/rows/ParameterVector.hpp>

#include <algorithm>
#include <parameters/rows/ParameterDescription.hpp>
#include <unordered_map>

namespace Talo {

namespace {

/// Whether a name can be cut here: not within a word.
bool isWordEnd(QString const& name, int place) {
    if (place <= 0 || place >= name.size())
        return true;
    auto const before = name.at(place - 1);
    auto const after = name.at(place);
    return !before.isLetterOrNumber() || !after.isLetterOrNumber() || after.isUpper() || after.isDigit();
}

/// How many characters all names begin with; 0 if that is within a word of one of them.
int commonStart(QStringList const& names) {
    auto const& first = names.front();
    auto common = first.size();
    for (auto const& name : names) {
        auto const differ = std::mismatch(first.begin(), first.begin() + qMin(common, name.size()), name.begin()).first;
        common = static_cast<int>(differ - first.begin());
    }
    bool const isWord =
        std::all_of(names.begin(), names.end(), [common](auto const& name) { return isWordEnd(name, common); });
    return isWord ? common : 0;
}

QString withoutSeparators(QString text) {
    auto const isSeparator = [](QChar character) { return !character.isLetterOrNumber(); };
    while (!text.isEmpty() && isSeparator(text.back()))
        text.chop(1);
    while (!text.isEmpty() && isSeparator(text.front()))
        text.remove(0, 1);
    return text;
}

void nameComponents(ParameterVector& vector) {
    QStringList names;
    for (auto const& member : vector.members)
        names << QString::fromStdString(member->Name()).section(QLatin1Char('.'), -1);
    auto const common = commonStart(names);
    vector.name = ParameterDescription(*vector.members.front()).label;
    bool const isNamed = !textProperty(*vector.members.front(), "label").isEmpty();
    if (auto const start = withoutSeparators(names.front().left(common)); !isNamed && !start.isEmpty())
        vector.name = start;
    for (int index = 0; index < names.size(); ++index) {
        auto const label = textProperty(*vector.members[static_cast<std::size_t>(index)], "label");
        vector.components << (index > 0 && !label.isEmpty() ? label : withoutSeparators(names.at(index).mid(common)));
    }
}

} // namespace

std::vector<ParameterVector> vectorsOf(std::vector<Kolt::ParameterPtr> const& parameters) {
    bool const hasVector = std::any_of(parameters.begin(), parameters.end(), [](auto const& each) {
        auto const& parameter = *each;
        return findProperty(parameter, "rowOf") && !textProperty(parameter, "rowOf").isEmpty();
    });
    if (!hasVector)
        return {};
    std::unordered_map<std::string, Kolt::ParameterPtr> firsts;
    std::unordered_map<std::string, std::size_t> numbers;
    std::vector<ParameterVector> vectors;
    for (auto const& parameter : parameters) {
        auto const name = textProperty(*parameter, "rowOf").toStdString();
        if (name.empty())
            firsts.insert({parameter->Name(), parameter});
        auto const first = firsts.find(name);
        if (name.empty() || first == firsts.end())
            continue;
        auto const [number, isNew] = numbers.insert({name, vectors.size()});
        if (isNew)
            vectors.push_back({QString(), {}, {first->second}});
        vectors[number->second].members.push_back(parameter);
    }
    for (auto& vector : vectors)
        nameComponents(vector);
    return vectors;
}

} // namespace Talo

#include <parameters/rows/FormPlan.hpp>

#include <algorithm>
#include <map>

namespace Talo {

namespace {

std::string heightClassOf(Kolt::VParameter const& parameter) {
    auto heightClass = parameter.declaredType();
    if (auto const& preferences = parameter.creationPreferences())
        heightClass += ' ' + Kolt::preferenceText(preferences->names());
    return heightClass;
}

} // namespace

FormPlan::FormPlan(std::vector<Kolt::ParameterPtr> const& parameters) {
    std::map<QString, std::size_t> sections;
    std::map<std::string, std::size_t> heightClasses;
    for (auto const& parameter : parameters) {
        auto const name = QString::fromStdString(parameter->Name());
        auto const title = name.left(qMax(0, name.lastIndexOf(QLatin1Char('.'))));
        auto const [section, isNew] = sections.insert({title, sections.size()});
        if (isNew)
            sectionTitles.push_back(title);
        auto const heightClass = heightClasses.insert({heightClassOf(*parameter), heightClasses.size()}).first->second;
        rows.push_back({parameter, name, section->second, heightClass});
        auto const shownName = name.mid(title.isEmpty() ? 0 : title.size() + 1);
        if (shownName.size() > longestName.size())
            longestName = shownName;
    }
    std::stable_sort(rows.begin(), rows.end(),
                     [](auto const& left, auto const& right) { return left.section < right.section; });
}

} // namespace Talo

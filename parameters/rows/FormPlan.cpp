#include <parameters/rows/FormPlan.hpp>

#include <algorithm>
#include <map>
#include <parameters/rows/ParameterDescription.hpp>

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
        ParameterDescription const description(*parameter);
        auto const& title = description.section;
        auto const [section, isNew] = sections.insert({title, sections.size()});
        if (isNew)
            sectionTitles.push_back(title);
        auto const heightClass = heightClasses.insert({heightClassOf(*parameter), heightClasses.size()}).first->second;
        rows.push_back({parameter, description.name, section->second, heightClass});
        if (description.label.size() > longestLabel.size())
            longestLabel = description.label;
    }
    std::stable_sort(rows.begin(), rows.end(),
                     [](auto const& left, auto const& right) { return left.section < right.section; });
}

} // namespace Talo

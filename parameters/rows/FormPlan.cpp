#include <parameters/rows/FormPlan.hpp>

#include <algorithm>
#include <map>
#include <parameters/rows/ParameterDescription.hpp>
#include <unordered_map>
#include <unordered_set>

namespace Talo {

namespace {

std::string heightClassOf(Kolt::VParameter const& parameter) {
    auto heightClass = parameter.declaredType();
    if (auto const& preferences = parameter.creationPreferences())
        heightClass += ' ' + Kolt::preferenceText(preferences->names());
    return heightClass;
}

/// Adds rows to a plan, and the sections that they are in.
class RowCollector {
public:
    explicit RowCollector(FormPlan& plan) : plan_(plan) {}

    void add(Kolt::ParameterPtr const& parameter) {
        ParameterDescription const description(*parameter);
        addRow(parameter, description.name, sectionOf(description));
        addLabel(description.label);
    }
    void add(ParameterVector const& vector) {
        auto const section = sectionOf(ParameterDescription(*vector.members.front()));
        for (auto const& member : vector.members)
            addRow(member, QString::fromStdString(member->Name()), section);
        addLabel(vector.name);
    }

private:
    std::size_t sectionOf(ParameterDescription const& description) {
        auto const [section, isNew] = sections_.insert({description.section, sections_.size()});
        if (isNew)
            plan_.sectionTitles.push_back(description.section);
        return section->second;
    }
    void addRow(Kolt::ParameterPtr const& parameter, QString const& name, std::size_t section) {
        auto const heightClass =
            heightClasses_.insert({heightClassOf(*parameter), heightClasses_.size()}).first->second;
        plan_.rows.push_back({parameter, name, section, heightClass});
    }
    void addLabel(QString const& label) {
        if (label.size() > plan_.longestLabel.size())
            plan_.longestLabel = label;
    }

    FormPlan& plan_;
    std::map<QString, std::size_t> sections_;
    std::map<std::string, std::size_t> heightClasses_;
};

} // namespace

FormPlan::FormPlan(std::vector<Kolt::ParameterPtr> const& parameters) {
    std::unordered_map<Kolt::VParameter const*, ParameterVector> vectorsByFirst;
    std::unordered_set<Kolt::VParameter const*> followers;
    for (auto& vector : vectorsOf(parameters)) {
        for (std::size_t index = 1; index < vector.members.size(); ++index)
            followers.insert(vector.members[index].get());
        vectorsByFirst.insert({vector.members.front().get(), std::move(vector)});
    }
    RowCollector collector(*this);
    for (auto const& parameter : parameters) {
        auto const vector = vectorsByFirst.find(parameter.get());
        if (vector != vectorsByFirst.end())
            collector.add(vector->second);
        else if (followers.count(parameter.get()) == 0)
            collector.add(parameter);
    }
    std::stable_sort(rows.begin(), rows.end(),
                     [](auto const& left, auto const& right) { return left.section < right.section; });
    for (std::size_t row = 0; row < rows.size() && !vectorsByFirst.empty(); ++row)
        if (auto const vector = vectorsByFirst.find(rows[row].parameter.get()); vector != vectorsByFirst.end())
            vectors.insert({row, std::move(vector->second)});
}

} // namespace Talo

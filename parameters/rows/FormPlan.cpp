#include <parameters/rows/FormPlan.hpp>

#include <algorithm>
#include <map>
#include <unordered_map>
#include <unordered_set>
#include <utility>

namespace Talo {

namespace {

/// What is read of each parameter of a form (ParameterDescription); nothing else, as there are ten thousand of them,
/// and as it is written there, because most of it is never shown.
struct Heading {
    explicit Heading(Kolt::VParameter const& parameter) {
        if (auto const* const properties = parameter.properties()) {
            label = Kolt::valueOr(properties->getValue("label"), std::string());
            section = Kolt::valueOr(properties->getValue("group"), std::string());
        }
        if (!label.empty() && !section.empty())
            return;
        auto const name = parameter.Name();
        auto const dot = name.rfind('.');
        if (label.empty())
            label = dot == std::string::npos ? name : name.substr(dot + 1);
        if (section.empty() && dot != std::string::npos)
            section = name.substr(0, dot);
    }

    std::string label;
    std::string section;
};

/// Adds rows to a plan, and the sections that they are in.
class RowCollector {
public:
    explicit RowCollector(FormPlan& plan) : plan_(plan) {}

    void add(Kolt::ParameterPtr const& parameter) {
        Heading const heading(*parameter);
        addRow(parameter, sectionOf(heading.section));
        addLabel(heading.label);
    }
    void add(ParameterVector const& vector) {
        auto const section = sectionOf(Heading(*vector.members.front()).section);
        for (auto const& member : vector.members)
            addRow(member, section);
        addLabel(vector.name.toStdString());
    }

private:
    std::size_t sectionOf(std::string const& title) {
        // Most parameters are in the section of the one before.
        if (!plan_.rows.empty() && title == lastTitle_)
            return plan_.rows.back().section;
        lastTitle_ = title;
        auto const [section, isNew] = sections_.insert({title, sections_.size()});
        if (isNew)
            plan_.sectionTitles.push_back(QString::fromStdString(title));
        return section->second;
    }
    std::size_t heightClassOf(Kolt::VParameter const& parameter) {
        auto const& preferences = parameter.creationPreferences();
        static Kolt::VCreationPreferences::Names const none;
        auto& ofType = heightClasses_[parameter.declaredType()];
        auto const [heightClass, isNew] =
            ofType.try_emplace(preferences ? preferences->names() : none, heightClassCount_);
        heightClassCount_ += isNew ? 1 : 0;
        return heightClass->second;
    }
    void addRow(Kolt::ParameterPtr const& parameter, std::size_t section) {
        plan_.rows.push_back({parameter, section, heightClassOf(*parameter)});
    }
    void addLabel(std::string const& label) {
        // A text has at most as many letters as bytes.
        if (static_cast<int>(label.size()) <= plan_.longestLabel.size())
            return;
        auto shown = QString::fromStdString(label);
        if (shown.size() > plan_.longestLabel.size())
            plan_.longestLabel = std::move(shown);
    }

    FormPlan& plan_;
    std::unordered_map<std::string, std::size_t> sections_;
    std::string lastTitle_;
    std::unordered_map<std::string, std::map<Kolt::VCreationPreferences::Names, std::size_t>> heightClasses_;
    std::size_t heightClassCount_ = 0;
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
    rows.reserve(parameters.size());
    RowCollector collector(*this);
    for (auto const& parameter : parameters) {
        auto const vector = vectorsByFirst.find(parameter.get());
        if (vector != vectorsByFirst.end())
            collector.add(vector->second);
        else if (followers.empty() || followers.count(parameter.get()) == 0)
            collector.add(parameter);
    }
    auto const isBefore = [](auto const& left, auto const& right) { return left.section < right.section; };
    if (!std::is_sorted(rows.begin(), rows.end(), isBefore))
        std::stable_sort(rows.begin(), rows.end(), isBefore);
    for (std::size_t row = 0; row < rows.size() && !vectorsByFirst.empty(); ++row)
        if (auto const vector = vectorsByFirst.find(rows[row].parameter.get()); vector != vectorsByFirst.end())
            vectors.insert({row, std::move(vector->second)});
}

} // namespace Talo

#include <parameters/rows/FormPlan.hpp>

#include <algorithm>
#include <map>
#include <parameters/rows/ParameterDescription.hpp>
#include <unordered_map>
#include <unordered_set>

namespace Talo {

namespace {

/// What is read of each parameter of a form; nothing else, as there are ten thousand of them.
struct Heading {
    explicit Heading(Kolt::VParameter const& parameter) {
        bool const hasProperties = parameter.properties();
        if (hasProperties) {
            label = textProperty(parameter, "label");
            section = textProperty(parameter, "group");
        }
        if (!label.isEmpty() && !section.isEmpty())
            return;
        auto const name = QString::fromStdString(parameter.Name());
        auto const dot = name.lastIndexOf(QLatin1Char('.'));
        if (label.isEmpty())
            label = name.mid(dot + 1);
        if (section.isEmpty())
            section = name.left(qMax(0, dot));
    }

    QString label;
    QString section;
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
        addLabel(vector.name);
    }

private:
    std::size_t sectionOf(QString const& title) {
        // Most parameters are in the section of the one before.
        if (!plan_.rows.empty() && plan_.sectionTitles.at(static_cast<int>(plan_.rows.back().section)) == title)
            return plan_.rows.back().section;
        auto const [section, isNew] = sections_.insert({title, sections_.size()});
        if (isNew)
            plan_.sectionTitles.push_back(title);
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
    void addLabel(QString const& label) {
        if (label.size() > plan_.longestLabel.size())
            plan_.longestLabel = label;
    }

    FormPlan& plan_;
    std::map<QString, std::size_t> sections_;
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

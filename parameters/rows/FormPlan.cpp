#include <parameters/rows/FormPlan.hpp>

#include <algorithm>
#include <map>
#include <optional>
#include <parameters/rows/ParameterDescription.hpp>
#include <string_view>
#include <unordered_map>
#include <unordered_set>
#include <utility>

namespace Talo {

namespace {

/// Some order of sets of names: by what is quickest to compare.
struct BySize {
    bool operator()(Kolt::VCreationPreferences::Names const& left,
                    Kolt::VCreationPreferences::Names const& right) const {
        if (left.size() != right.size())
            return left.size() < right.size();
        for (auto one = left.begin(), other = right.begin(); one != left.end(); ++one, ++other) {
            if (one->size() != other->size())
                return one->size() < other->size();
            if (auto const order = one->compare(*other))
                return order < 0;
        }
        return false;
    }
};

/// Adds rows to a plan, and the sections that they are in.
class RowCollector {
public:
    explicit RowCollector(FormPlan& plan) : plan_(plan) {}

    void add(Kolt::VParameter& parameter) {
        ParameterHeading const heading(parameter);
        auto const title = heading.section();
        // Most parameters are in the section of the one before.
        bool const isInSame = !plan_.rows.empty() && title == lastTitle_;
        addRow(parameter, isInSame ? plan_.rows.back().section : sectionOf(title));
        addLabel(heading.label());
    }
    void add(ParameterVector const& vector) {
        auto const section = sectionOf(ParameterHeading(*vector.members.front()).section());
        for (auto const& member : vector.members)
            addRow(*member, section);
        addLabel(vector.name.toStdString());
    }
    /// Whether the rows are in the order of their sections.
    bool isInOrder() const { return isInOrder_; }

private:
    /// The height classes of the parameters of one type, those that were met.
    struct HeightClasses {
        std::string const* type = nullptr; // of the parameters (VParameter::declaredType)
        std::optional<std::uint32_t> plain;
        std::map<Kolt::VCreationPreferences::Names, std::optional<std::uint32_t>, BySize> withPreferences;
    };

    std::uint32_t sectionOf(std::string_view title) {
        lastTitle_ = title;
        auto const [section, isNew] = sections_.insert({lastTitle_, static_cast<std::uint32_t>(sections_.size())});
        if (isNew)
            plan_.sectionTitles.push_back(QString::fromStdString(lastTitle_));
        return section->second;
    }
    std::uint32_t heightClassOf(Kolt::VParameter const& parameter) {
        auto const& preferences = parameter.creationPreferences();
        auto& ofType = heightClassesOf(parameter.declaredType());
        // Most parameters have no preferences.
        bool const isPlain = !preferences || preferences->names().empty();
        auto& heightClass = isPlain ? ofType.plain : ofType.withPreferences[preferences->names()];
        if (!heightClass)
            heightClass = heightClassCount_++;
        return *heightClass;
    }
    HeightClasses& heightClassesOf(std::string const& type) {
        auto const found = std::find_if(heightClasses_.begin(), heightClasses_.end(),
                                        [&](auto const& each) { return each.type == &type; });
        return found == heightClasses_.end() ? heightClasses_.emplace_back(HeightClasses{&type, {}, {}}) : *found;
    }
    void addRow(Kolt::VParameter& parameter, std::uint32_t section) {
        isInOrder_ = isInOrder_ && (plan_.rows.empty() || section >= plan_.rows.back().section);
        plan_.rows.push_back({&parameter, section, heightClassOf(parameter)});
    }
    void addLabel(std::string_view label) {
        // A text has at most as many letters as bytes.
        if (static_cast<int>(label.size()) <= plan_.longestLabel.size())
            return;
        auto shown = QString::fromUtf8(label.data(), static_cast<int>(label.size()));
        if (shown.size() > plan_.longestLabel.size())
            plan_.longestLabel = std::move(shown);
    }

    FormPlan& plan_;
    std::unordered_map<std::string, std::uint32_t> sections_;
    std::string lastTitle_;
    std::vector<HeightClasses> heightClasses_;
    std::uint32_t heightClassCount_ = 0;
    bool isInOrder_ = true;
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
    for (auto const& each : parameters) {
        auto& parameter = *each;
        // Most forms have no vectors.
        auto const vector = vectorsByFirst.empty() ? vectorsByFirst.end() : vectorsByFirst.find(&parameter);
        if (vector != vectorsByFirst.end())
            collector.add(vector->second);
        else if (followers.empty() || followers.count(&parameter) == 0)
            collector.add(parameter);
    }
    if (!collector.isInOrder())
        std::stable_sort(rows.begin(), rows.end(),
                         [](auto const& left, auto const& right) { return left.section < right.section; });
    for (std::size_t row = 0; row < rows.size() && !vectorsByFirst.empty(); ++row)
        if (auto const vector = vectorsByFirst.find(rows[row].parameter); vector != vectorsByFirst.end())
            vectors.insert({row, std::move(vector->second)});
}

} // namespace Talo

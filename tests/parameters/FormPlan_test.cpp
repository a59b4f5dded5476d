// In which sections and height classes a form shows its parameters.

#include "support/TaloTest.hpp"

#include <lattice/TypedParameter.hpp>
#include <parameters/rows/FormPlan.hpp>
#include <set>

using Kolt::Parameter;
using Kolt::ParameterPtr;

namespace {

class FormPlanTest : public TaloTest {
protected:
    template <typename T>
    void add(std::string const& name, T const& value, Kolt::VCreationPreferences::Names const& preferences = {}) {
        parameters_.push_back(Parameter<T>(name, value));
        parameters_.back()->setCreationPreferences(Kolt::PreferencesPtr(new Kolt::VCreationPreferences(preferences)));
    }
    std::vector<ParameterPtr> const& parameters() const { return parameters_; }

private:
    std::vector<ParameterPtr> parameters_;
};

} // namespace

TEST_F(FormPlanTest, RowsOfAHeightClassHaveOneTypeAndOneSetOfPreferences) {
    std::vector<Kolt::VCreationPreferences::Names> const sets{{},
                                                              {"dial"},
                                                              {"menu"},
                                                              {"periodic"},
                                                              {"dial", "periodic"},
                                                              {"knob", "periodic"},
                                                              {"dial", "menu"},
                                                              {"a", "dial", "menu"},
                                                              {"dials"},
                                                              {"menu", "periodic"}};
    constexpr int rounds = 3;
    for (int round = 0; round < rounds; ++round)
        for (auto const& set : sets) {
            add(std::to_string(parameters().size()), 1, set);
            add(std::to_string(parameters().size()), 1.0, set);
        }
    Talo::FormPlan const plan(parameters());
    ASSERT_EQ(plan.rows.size(), parameters().size());
    auto const kinds = 2 * sets.size();
    std::set<std::uint32_t> classes;
    for (std::size_t row = 0; row < plan.rows.size(); ++row) {
        EXPECT_EQ(plan.rows[row].parameter, parameters()[row].get());
        EXPECT_EQ(plan.rows[row].heightClass, plan.rows[row % kinds].heightClass) << row;
        classes.insert(plan.rows[row].heightClass);
    }
    EXPECT_EQ(classes.size(), kinds);
    EXPECT_EQ(*classes.rbegin(), kinds - 1) << "The classes are numbered without gaps.";
}

TEST_F(FormPlanTest, NoPreferencesAreLikeAnEmptySet) {
    add("empty", 1);
    add("none", 1);
    parameters().back()->setCreationPreferences(nullptr);
    Talo::FormPlan const plan(parameters());
    EXPECT_EQ(plan.rows[0].heightClass, plan.rows[1].heightClass);
}

TEST_F(FormPlanTest, SectionsAreInTheOrderOfTheirFirstParameters) {
    for (auto const* const name : {"b.one", "a.one", "none", "b.two", "a.b.one", "a.two"})
        add(name, 1);
    Talo::FormPlan const plan(parameters());
    EXPECT_EQ(plan.sectionTitles,
              (QStringList{QStringLiteral("b"), QStringLiteral("a"), QString(), QStringLiteral("a.b")}));
    std::vector<std::string> names;
    std::vector<std::uint32_t> sections;
    for (auto const& row : plan.rows) {
        names.push_back(row.parameter->Name());
        sections.push_back(row.section);
    }
    EXPECT_EQ(names, (std::vector<std::string>{"b.one", "b.two", "a.one", "a.two", "none", "a.b.one"}));
    EXPECT_EQ(sections, (std::vector<std::uint32_t>{0, 0, 1, 1, 2, 3}));
    EXPECT_EQ(plan.longestLabel, QStringLiteral("none"));
}

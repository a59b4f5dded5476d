#include <checker/SampleValues.hpp>

#include <algorithm>
#include <array>
#include <bramble/Action.hpp>
#include <bramble/Color.hpp>
#include <bramble/Enum.hpp>
#include <bramble/EnumSelection.hpp>
#include <bramble/FlagList.hpp>
#include <bramble/Info.hpp>
#include <bramble/MultipleStringSelection.hpp>
#include <bramble/ObjectStatus.hpp>
#include <bramble/StringSelection.hpp>
#include <lattice/ValueCreator.hpp>
#include <map>
#include <tessera/Typename.hpp>
#include <vector>

namespace Checker {

namespace {

using ActionPtr = Tessera::StrongPtr<Kolt::VAction>;
using EnumNames = Tessera::StrongPtr<Kolt::VEnumSelection, Tessera::StringList>;

std::vector<std::string> const& texts() {
    static std::vector<std::string> const all = {"sine", "noise", "spiral"};
    return all;
}

template <typename T>
std::pair<std::string const, ValueMaker> valuesOf(std::function<T(std::size_t)> const& make) {
    return {Tessera::Typename(typeid(T)),
            [make](int n) { return Kolt::makeValue<T>(make(static_cast<std::size_t>(n))); }};
}

std::map<std::string, ValueMaker> const& ofTheHost() {
    using Array = std::array<std::string, 1>;
    static std::map<std::string, ValueMaker> const all = {
        valuesOf<bool>([](auto n) { return n == 1; }),
        valuesOf<int>([](auto n) {
            return std::array{7, 40, 12}[n];
        }),
        valuesOf<double>([](auto n) {
            return std::array{0.25, 0.5, 0.0625}[n];
        }),
        valuesOf<std::string>([](auto n) { return texts()[n]; }),
        // The editor of an array of one text edits a text, so a text is what the parameter holds.
        {Tessera::Typename(typeid(Array)), [](int n) { return Kolt::makeValue(texts()[static_cast<std::size_t>(n)]); }},
        valuesOf<ActionPtr>([](auto n) { return ActionPtr(new Kolt::VAction(texts()[n])); }),
        valuesOf<Ferro::rgba_float_t>([](auto n) {
            return Ferro::rgba_float_t{n == 0 ? 1.0F : 0.0F, n == 1 ? 1.0F : 0.0F, n == 2 ? 1.0F : 0.0F, 1.0F};
        }),
        valuesOf<Kolt::Enum>([](auto n) {
            EnumNames const names(new Kolt::VEnumSelection(texts()));
            names->select(static_cast<unsigned>(n));
            return Kolt::Enum(names);
        }),
        valuesOf<Kolt::FlagList>([](auto n) {
            return Kolt::FlagList{{"grid", n == 0}, {"axes", n == 1}, {"legend", n == 2}};
        }),
        valuesOf<Kolt::info>([](auto n) { return Kolt::info{texts()[n]}; }),
        valuesOf<Kolt::VStringList>(
            [](auto n) { return Kolt::VStringList(new Kolt::StringSelection(texts(), texts()[n])); }),
        valuesOf<Kolt::VMultipleStringList>([](auto n) {
            Kolt::VMultipleStringList const selection(new Kolt::MultipleStringSelection(texts()));
            selection->add(texts()[n]);
            return selection;
        }),
        valuesOf<Kolt::VObjectStatus>([](auto n) { return Kolt::VObjectStatus(texts()[n]); })};
    return all;
}

/// Values of a type that is known by its creator alone.
Kolt::ValuePtr fresh(std::string const& typeName, int n) {
    auto value = Kolt::VValueCreator::create(typeName);
    static std::vector<std::string> const tried = {"1",         "2",         "3 4",     "5 6",     "1 2 3",
                                                   "4 5 6",     "1 2 3 4",   "5 6 7 8", "1, 2, 3", "4, 5, 6",
                                                   "(1, 2, 3)", "(4, 5, 6)", "true",    "a text",  "another text"};
    std::vector<std::string> seen{value->Text()};
    for (auto text = tried.begin(); text != tried.end() && static_cast<int>(seen.size()) <= n; ++text) {
        auto const next = Kolt::VValueCreator::create(typeName);
        if (!next->setValueFromText(*text) || std::count(seen.begin(), seen.end(), next->Text()) > 0)
            continue;
        seen.push_back(next->Text());
        value = next;
    }
    return value;
}

} // namespace

ValueMaker sampleValues(std::string const& typeName) {
    auto const known = ofTheHost().find(typeName);
    if (known != ofTheHost().end())
        return known->second;
    if (!Kolt::VValueCreator::create(typeName))
        return {};
    return [typeName](int n) { return fresh(typeName, n); };
}

bool areDifferent(ValueMaker const& make) {
    auto const first = make(0);
    auto const second = make(1);
    auto const third = make(2);
    return !first->equals(*second) && !second->equals(*third);
}

} // namespace Checker

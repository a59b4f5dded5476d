#include <checker/Check.hpp>

#include <algorithm>

namespace Checker {

std::vector<Check> const& allChecks() {
    static auto const all = [] {
        std::vector<Check> checks;
        addFileChecks(checks);
        addLoadChecks(checks);
        addEditorChecks(checks);
        addContractChecks(checks);
        addResidueChecks(checks);
        addValueChecks(checks);
        addEventChecks(checks);
        addSpeedChecks(checks);
        std::stable_sort(checks.begin(), checks.end(),
                         [](auto const& left, auto const& right) { return left.level < right.level; });
        return checks;
    }();
    return all;
}

Check const* findCheck(std::string const& name) {
    auto const found =
        std::find_if(allChecks().begin(), allChecks().end(), [&](auto const& check) { return check.name == name; });
    return found == allChecks().end() ? nullptr : &*found;
}

} // namespace Checker

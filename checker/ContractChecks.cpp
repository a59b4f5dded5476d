#include <checker/Check.hpp>
#include <checker/EditorContract.hpp>
#include <checker/LoadedPlugin.hpp>
#include <checker/UnknownEditor.hpp>

namespace Checker {

namespace {

/// Whether the editors can be worked with from outside, which all that follows relies on.
void understandAll(Subject const& subject, Findings& findings) {
    LoadedPlugin plugin(subject.file, findings);
    plugin.forEachEditor([&](Kolt::InputRegistry::Entry const& entry) { (void)unknownEditor(entry, findings); });
}

/// One check of the contract, for each editor.
void keep(EditorContract::Check const& check, Subject const& subject, Findings& findings) {
    LoadedPlugin plugin(subject.file, findings);
    plugin.forEachEditor([&](Kolt::InputRegistry::Entry const& entry) {
        // The check "shown" reports what is wrong with the description.
        Findings ignored;
        auto const editor = unknownEditor(entry, ignored);
        if (!editor.makeValue || !EditorContract::concerns(check, editor))
            return;
        EditorContract contract(editor, {}, findings);
        (contract.*check.run)();
    });
}

/// "TheCreatorIsChosen" as "contract.the-creator-is-chosen".
std::string checkName(std::string const& name) {
    std::string text = "contract.";
    for (char const letter : name) {
        bool const isUpper = letter >= 'A' && letter <= 'Z';
        if (isUpper && text.back() != '.')
            text += '-';
        text += isUpper ? static_cast<char>(letter - 'A' + 'a') : letter;
    }
    return text;
}

} // namespace

void addContractChecks(std::vector<Check>& checks) {
    checks.push_back({6, "shown", "An editor shows different values differently, and can be edited.", understandAll});
    for (auto const& check : EditorContract::checks())
        checks.push_back({6, checkName(check.name), check.meaning,
                          [check](Subject const& subject, Findings& findings) { keep(check, subject, findings); }});
}

} // namespace Checker

#include <algorithm>
#include <checker/Check.hpp>
#include <checker/LoadedPlugin.hpp>
#include <checker/SampleValues.hpp>
#include <lattice/ValueCreator.hpp>
#include <lattice/ValueFormat.hpp>

namespace Checker {

namespace {

/// The types that the plug-in edits or brings, each once.
std::vector<std::string> typesOf(LoadedPlugin const& plugin) {
    std::vector<std::string> types;
    auto const add = [&](std::string const& type) {
        if (std::find(types.begin(), types.end(), type) == types.end())
            types.push_back(type);
    };
    for (auto const& entry : plugin.creators())
        add(entry.valueType);
    for (auto const* const format : Kolt::VValueFormat::all())
        add(format->typeName());
    return types;
}

/// Calls a function with each value of each type; the findings name the type meanwhile.
template <typename Function>
void forEachValue(Subject const& subject, Findings& findings, Function const& function) {
    LoadedPlugin plugin(subject.file, findings);
    for (auto const& type : typesOf(plugin)) {
        findings.setSubject("the type " + type + ": ");
        auto const make = sampleValues(type);
        if (!findings.expect(bool(make), "there is no value creator for it"))
            continue;
        for (int n = 0; n < 3; ++n)
            function(make, n);
    }
    findings.setSubject({});
}

void textsAreRead(Subject const& subject, Findings& findings) {
    forEachValue(subject, findings, [&](ValueMaker const& make, int n) {
        auto const value = make(n);
        auto const text = value->Text();
        auto const other = make((n + 1) % 3);
        if (!other->setValueFromText(text)) {
            // Not every type can be read; one that reads some texts reads its own.
            findings.expect(!value->setValueFromText(text) && !value->isEdited(),
                            "its own text cannot be read: " + text);
            return;
        }
        findings.expectEqual(other->Text(), text, "a value that is read from its text");
        findings.expect(other->equals(*value), "a value that is read from its text differs: " + text);
    });
}

void copiesAreEqual(Subject const& subject, Findings& findings) {
    forEachValue(subject, findings, [&](ValueMaker const& make, int n) {
        auto const value = make(n);
        auto const copy = value->clone();
        if (!findings.expect(bool(copy), "it cannot be copied"))
            return;
        findings.expect(copy->equals(*value) && value->equals(*copy), "a copy differs");
        findings.expect(copy.get() != value.get(), "a copy is the value itself");
        auto const target = make((n + 1) % 3);
        findings.expect(target->assign(*value) && target->equals(*value), "a value cannot be assigned");
        auto const before = value->clone();
        auto const other = make((n + 2) % 3);
        if (!other->equals(*value) && copy->assign(*other))
            findings.expect(value->equals(*before), "a change of a copy changes the value");
    });
}

void formatsReadWhatTheyWrite(Subject const& subject, Findings& findings) {
    forEachValue(subject, findings, [&](ValueMaker const& make, int n) {
        auto const value = make(n);
        auto const* const format = Kolt::VValueFormat::ofType(Tessera::Typename(value->valueType()));
        // The host's own types have none in this process.
        if (!format)
            return;
        auto const text = format->write(value);
        if (!findings.expect(text.has_value(), "its format cannot write " + value->Text()))
            return;
        auto const read = format->read(*text);
        if (findings.expect(bool(read), "its format cannot read what it writes: " + *text))
            findings.expect(read->equals(*value), "its format reads another value than it writes: " + *text);
    });
}

} // namespace

void addValueChecks(std::vector<Check>& checks) {
    checks.push_back({8, "values.text", "Values are read from the texts that they write.", textsAreRead});
    checks.push_back({8, "values.format", "Files give back the values of its own types.", formatsReadWhatTheyWrite});
    checks.push_back({8, "values.copy", "Copies of values are equal and independent.", copiesAreEqual});
}

} // namespace Checker

#include <checker/Check.hpp>
#include <checker/ChosenPools.hpp>
#include <checker/LoadedPlugin.hpp>
#include <checker/SampleValues.hpp>
#include <checker/StrangeValue.hpp>
#include <QApplication>
#include <QWidget>
#include <sorrel/InputFrontEnd.hpp>

namespace Checker {

namespace {

using Entry = Kolt::InputRegistry::Entry;
using Values = Kolt::VParameter::Values;

/// Which way an editor is opened.
struct Opening {
    Kolt::ParameterPtr parameter;
    /// Whether the parameter dies before the editor is made.
    bool isDead = false;
    /// Whether there is a pool.
    bool hasPool = true;
    /// Whether there is a source of pools.
    bool hasSource = true;
};

Kolt::ParameterPtr parameterOf(Entry const& entry, Values values = Values::Shared) {
    auto const make = sampleValues(entry.valueType);
    if (!make)
        return nullptr;
    return Kolt::ParameterPtr(new Kolt::VParameter("object.parameter", make(0), values, entry.valueType));
}

/// What a creator made must be a widget of its own in the given parent, with an input.
void expectEditor(std::pair<QPointer<QWidget>, Kolt::InputRef> const& made, QWidget& parent, Findings& findings) {
    auto const* const widget = made.first.data();
    if (!findings.expect(widget, "its creator makes no widget"))
        return;
    if (!findings.expect(widget != &parent, "its creator hands out the host's own widget"))
        return;
    findings.expect(widget->parentWidget() == &parent, "its widget has another parent than the given one");
    findings.expect(!widget->isWindow(), "its widget is a window of its own");
    findings.expect(made.second.alive(), "its widget has no input");
}

void open(Entry const& entry, Opening opening, Findings& findings) {
    if (!findings.expect(bool(opening.parameter), "there is no value creator for its type"))
        return;
    auto const maker = entry.creator.strong()->getInterface<Kolt::QInputCreator>();
    if (!findings.expect(bool(maker), "it makes no Qt widgets"))
        return;
    // Outlives the editor.
    ChosenPools pools;
    QWidget parent;
    if (opening.hasPool)
        pools.use(Kolt::PoolPtr(new Kolt::ValuePool("draft")));
    Kolt::ParameterRef const parameter(opening.parameter);
    if (opening.isDead)
        opening.parameter.reset();
    expectEditor(maker->create(parameter, &parent, opening.hasSource ? &pools : nullptr), parent, findings);
    parent.show();
    QApplication::processEvents();
}

/// A check that opens each editor in the way that `make` says.
template <typename Make>
std::function<void(Subject const&, Findings&)> opened(Make const& make) {
    return [make](Subject const& subject, Findings& findings) {
        LoadedPlugin plugin(subject.file, findings);
        plugin.forEachEditor([&](Entry const& entry) { open(entry, make(entry), findings); });
    };
}

Opening strangeValue(Entry const& entry) {
    return {Kolt::ParameterPtr(
        new Kolt::VParameter("object.parameter", Kolt::makeValue(StrangeValue()), Values::Shared, entry.valueType))};
}

/// Properties that an editor may know, each of another type or with values that no editor wants.
Opening hostileProperties(Entry const& entry) {
    auto const parameter = parameterOf(entry);
    if (!parameter)
        return {};
    auto const set = [&](char const* name, Kolt::ValuePtr const& value) {
        parameter->setProperty(name, value, nullptr, nullptr, nullptr);
    };
    std::string const longText(100000, 'x');
    set("min", Kolt::makeValue(std::string("least")));
    set("max", Kolt::makeValue(-5));
    set("increment", Kolt::makeValue(0.0));
    set("precision", Kolt::makeValue(-1));
    set("wrap", Kolt::makeValue(0));
    set("inputmask", Kolt::makeValue(std::string("\\\\9;;")));
    set("icon", Kolt::makeValue(std::string("/dev/zero")));
    set("tooltip", Kolt::makeValue(longText));
    set("Extension", Kolt::makeValue(std::string("(((")));
    set("unit", Kolt::makeValue(StrangeValue()));
    set("", Kolt::makeValue(true));
    return {parameter};
}

} // namespace

void addEditorChecks(std::vector<Check>& checks) {
    checks.push_back({5, "open", "Each creator makes an editor for a fresh parameter, in the given parent.",
                      opened([](Entry const& entry) { return Opening{parameterOf(entry)}; })});
    checks.push_back({5, "open.per-pool", "It does so for a parameter that has a value for each pool.",
                      opened([](Entry const& entry) { return Opening{parameterOf(entry, Values::PerPool)}; })});
    checks.push_back({5, "open.no-pool", "It does so without a pool.", opened([](Entry const& entry) {
                          return Opening{parameterOf(entry), false, false};
                      })});
    checks.push_back({5, "open.no-source", "It does so without a source of pools.", opened([](Entry const& entry) {
                          return Opening{parameterOf(entry), false, false, false};
                      })});
    checks.push_back({5, "open.dead", "It does so for a parameter that is gone.", opened([](Entry const& entry) {
                          return Opening{parameterOf(entry), true};
                      })});
    checks.push_back(
        {5, "open.other-type", "It does so for a parameter whose value is of another type.", opened(strangeValue)});
    checks.push_back(
        {5, "open.hostile", "It does so for a parameter with senseless properties.", opened(hostileProperties)});
}

} // namespace Checker

#include <checker/UnknownEditor.hpp>

#include <bramble/Action.hpp>
#include <bramble/Enum.hpp>
#include <checker/ChosenPools.hpp>
#include <checker/Gesture.hpp>
#include <checker/Recorders.hpp>
#include <checker/SampleValues.hpp>
#include <checker/ShownState.hpp>
#include <lattice/UndoHistory.hpp>
#include <optional>
#include <QCoreApplication>
#include <QEvent>
#include <set>
#include <sorrel/InputFrontEnd.hpp>

namespace Checker {

namespace {

/// An editor on a parameter of its own, in a window of its own.
class Trial {
public:
    Trial(Kolt::InputRegistry::Entry const& entry, Kolt::ValuePtr const& value)
        : parameter_(
              new Kolt::VParameter("object.parameter", value, Kolt::VParameter::Values::Shared, entry.valueType)) {
        pools_.use(Kolt::PoolPtr(new Kolt::ValuePool("draft")));
        // As large as the window of the contract, so that both are drawn alike.
        window_.resize(600, 400);
        editor_ = Kolt::makeEditor(parameter_, &window_, &pools_, entry.creator);
        if (editor_.widget)
            editor_.widget->show();
        parameter_->addNotifier(Tessera::WeakPtr<Kolt::ValueNotifier>(&recorder_));
    }
    ~Trial() {
        delete editor_.widget;
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        Kolt::UndoHistory::theHistory().forget([](auto const&) { return true; });
    }

    QWidget* widget() const { return editor_.widget; }
    /// What the gesture does to the value: nothing, a new value, or only a notification.
    enum class Effect { None, Notified, Written };
    Effect effectOf(Gesture const& gesture) {
        auto const before = parameter_->ownValue()->Text();
        perform(gesture, *editor_.widget);
        if (parameter_->ownValue()->Text() != before)
            return Effect::Written;
        return recorder_.values.empty() ? Effect::None : Effect::Notified;
    }

private:
    QWidget window_;
    ChosenPools pools_;
    Kolt::ParameterPtr const parameter_;
    RecordingNotifier recorder_;
    Kolt::Editor editor_;
};

/// The first gesture that changes each of the three values; else one that notifies. Empty for a display.
struct FoundEdit {
    std::optional<Gesture> gesture;
    bool writes = false;
};

FoundEdit findEdit(Kolt::InputRegistry::Entry const& entry, ValueMaker const& make) {
    Trial const shape(entry, make(0));
    FoundEdit found;
    for (auto const& gesture : gesturesFor(*shape.widget())) {
        int written = 0;
        for (int n = 0; n < 3; ++n) {
            Trial trial(entry, make(n));
            auto const effect = trial.widget() ? trial.effectOf(gesture) : Trial::Effect::None;
            written += effect == Trial::Effect::Written ? 1 : 0;
            if (effect == Trial::Effect::Notified && !found.gesture)
                found = {gesture, false};
            if (effect == Trial::Effect::None)
                break;
        }
        if (written == 3)
            return {gesture, true};
    }
    return found;
}

/// How many different looks the editor has when it is opened on the three values.
std::size_t looks(Kolt::InputRegistry::Entry const& entry, ValueMaker const& make) {
    std::set<std::string> seen;
    for (int n = 0; n < 3; ++n) {
        Trial const trial(entry, make(n));
        if (trial.widget())
            seen.insert(shownState(*trial.widget()));
    }
    return seen.size();
}

/// What the documentation of some editors says of them.
void addKnownWays(EditorCase& editor, Kolt::InputRegistry::Entry const& entry) {
    if (entry.valueType == Tessera::Typename(typeid(Kolt::Enum)) && editor.creator == "enum") {
        editor.commitsWhatItShows = true;
        editor.notificationsWithTwoEditors = 2;
        editor.changesInPlace = true;
    }
    // They choose in the list that the value refers to.
    if (editor.creator == "selection")
        editor.changesInPlace = true;
    // These are buttons: one fires, the others are named after what they save until a file was chosen.
    bool const isFileButton = editor.creator == "FileNameCreator" || editor.creator == "FileNameCreatorPDF" ||
                              editor.creator == "OpenFileCreator";
    editor.showsValue =
        !isFileButton && entry.valueType != Tessera::Typename(typeid(Tessera::StrongPtr<Kolt::VAction>));
}

} // namespace

std::string editorName(Kolt::InputRegistry::Entry const& entry) {
    auto const creator = entry.creator.strong();
    return "the editor \"" + (creator ? creator->Name() : std::string()) + "\" for " + entry.valueType + ": ";
}

EditorCase unknownEditor(Kolt::InputRegistry::Entry const& entry, Findings& findings) {
    EditorCase editor;
    editor.isKnown = false;
    editor.chosen = entry.creator;
    editor.creator = entry.creator.strong()->Name();
    editor.declaredType = entry.valueType;
    auto const make = sampleValues(entry.valueType);
    if (!make) {
        findings.fault("there is no value creator for its type");
        return editor;
    }
    if (!findings.expect(Trial(entry, make(0)).widget(), "no editor is made"))
        return editor;
    addKnownWays(editor, entry);
    editor.makeValue = make;
    if (editor.showsValue && areDifferent(make))
        findings.expect(looks(entry, make) > 1, "it looks the same for different values");
    editor.change = [make](Kolt::VValueBase& value, int n) { value.assign(*make(n)); };
    editor.shown = shownState;
    editor.expected = [entry](Kolt::VValueBase const& value) {
        Trial const reference(entry, value.clone());
        return reference.widget() ? shownState(*reference.widget()) : std::string();
    };
    if (!areDifferent(make)) {
        findings.note("no different values are known, so its edits are not looked at");
        return editor;
    }
    auto const found = findEdit(entry, make);
    editor.writes = found.writes;
    if (found.gesture)
        editor.edit = [gesture = *found.gesture](QWidget& widget) { perform(gesture, widget); };
    else
        findings.note("no edit is found, so it counts as a display");
    return editor;
}

} // namespace Checker

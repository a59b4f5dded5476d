#include <checker/EditorContract.hpp>

#include <algorithm>
#include <checker/StrangeValue.hpp>
#include <lattice/UndoHistory.hpp>
#include <QCoreApplication>
#include <QEvent>
#include <QWidget>

namespace Checker {

namespace {

using Values = Kolt::VParameter::Values;
using Kolt::ParameterPtr;

} // namespace

EditorContract::EditorContract(EditorCase editor, TakeOutput takeOutput, Findings& findings)
    : case_(std::move(editor)),
      takeOutput_(std::move(takeOutput)),
      findings_(findings),
      firstPool_(new Kolt::ValuePool("draft")),
      secondPool_(new Kolt::ValuePool("final")),
      parent_(new QWidget) {
    pools_.use(firstPool_);
    parent_->resize(600, 400);
}

EditorContract::~EditorContract() {
    expectSilence("at the end");
    delete parent_;
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    Kolt::UndoHistory::theHistory().forget([](auto const&) { return true; });
}

std::size_t EditorContract::undoSteps() {
    return Kolt::UndoHistory::theHistory().steps().size();
}

std::string EditorContract::joined(std::vector<std::string> const& lines) {
    std::string text;
    for (auto const& line : lines)
        text += (text.empty() ? "" : "; ") + line;
    return text;
}

std::vector<EditorContract::Check> const& EditorContract::checks() {
    using C = EditorContract;
    static std::vector<Check> const all = {
        {"TheCreatorIsChosen", "The creator makes the editor.", For::All, &C::theCreatorIsChosen},
        {"OpeningShowsTheValueAndWritesNothing", "Opening an editor shows the value and writes nothing.", For::All,
         &C::openingShowsTheValueAndWritesNothing},
        {"NothingIsDeliveredBeforeTheEditorIsMade", "An editor listens once it is made, not before.", For::All,
         &C::nothingIsDeliveredBeforeTheEditorIsMade},
        {"AChangeFromElsewhereIsShownAndNotSentBack", "A change from elsewhere is shown and not sent back.", For::All,
         &C::aChangeFromElsewhereIsShownAndNotSentBack},
        {"AValueOfAnotherTypeIsIgnored", "A notification with a value of another type, or without one, is ignored.",
         For::All, &C::aValueOfAnotherTypeIsIgnored},
        {"AParameterWithAValueOfAnotherTypeOpens", "A value of another type is left alone.", For::All,
         &C::aParameterWithAValueOfAnotherTypeOpens},
        {"AnEditorForAParameterThatIsGoneOpens",
         "An editor opens, and can be worked with, though its parameter is gone.", For::All,
         &C::anEditorForAParameterThatIsGoneOpens},
        {"EachPoolShowsItsOwnValue", "An editor shows the value of the pool and stores none by showing it.", For::All,
         &C::eachPoolShowsItsOwnValue},
        {"AChangeInAnotherPoolIsNotShown", "A change in another pool is not shown.", For::All,
         &C::aChangeInAnotherPoolIsNotShown},
        {"TheEditorMayDieInsideANotification", "An editor may be deleted in a notification.", For::All,
         &C::theEditorMayDieInsideANotification},
        {"WithoutAPoolNothingIsWritten", "Without a pool an edit writes nothing.", For::Editable,
         &C::withoutAPoolNothingIsWritten},
        {"WithoutAPoolSourceNothingIsWritten", "Without a source of pools an edit writes nothing.", For::Editable,
         &C::withoutAPoolSourceNothingIsWritten},
        {"AParameterThatWentIsReportedOnceForEachEdit", "An edit after the parameter went does no harm.", For::Editable,
         &C::aParameterThatWentIsReportedOnceForEachEdit},
        {"AnEditIsStoredNotifiedOnceAndStamped", "An edit is stored, notified once, and marks the value as changed.",
         For::Writing, &C::anEditIsStoredNotifiedOnceAndStamped},
        {"AnEditNamesItsEditor", "An edit names its editor as the source, which is not notified itself.", For::Writing,
         &C::anEditNamesItsEditor},
        {"TwoEditorsFollowEachOtherWithoutAnEcho", "Two editors of one parameter follow each other without an echo.",
         For::Writing, &C::twoEditorsFollowEachOtherWithoutAnEcho},
        {"AnEditReachesItsPoolAlone", "An edit changes the value of its pool alone.", For::Writing,
         &C::anEditReachesItsPoolAlone},
        {"TheParameterMayDieInsideTheNotificationOfAnEdit", "The parameter may die in the notification of an edit.",
         For::Writing, &C::theParameterMayDieInsideTheNotificationOfAnEdit},
        {"ThePanelMayCloseInsideTheNotificationOfAnEdit", "The panel may close in the notification of an edit.",
         For::Writing, &C::thePanelMayCloseInsideTheNotificationOfAnEdit}};
    return all;
}

bool EditorContract::concerns(Check const& check, EditorCase const& editor) {
    return check.editors == For::All || (editor.edit && (check.editors == For::Editable || editor.writes));
}

std::string EditorContract::declaredType() const {
    return case_.declaredType.empty() ? Tessera::Typename(case_.makeValue(0)->valueType()) : case_.declaredType;
}

ParameterPtr EditorContract::parameterWith(Kolt::ValuePtr const& value, Values values) {
    ParameterPtr const parameter(new Kolt::VParameter("object.parameter", value, values, declaredType()));
    if (!case_.preferences.empty())
        parameter->setCreationPreferences(Kolt::PreferencesPtr(new Kolt::VCreationPreferences(
            Kolt::VCreationPreferences::Names(case_.preferences.begin(), case_.preferences.end()))));
    return parameter;
}

ParameterPtr EditorContract::parameterWith(int n, Values values) {
    return parameterWith(case_.makeValue(n), values);
}

Tessera::StrongPtr<Kolt::QInputCreator, Tessera::InterfaceBase> EditorContract::creator() const {
    auto chosen = case_.chosen.strong();
    for (auto const& entry : Kolt::InputRegistry::theRegistry().entries()) {
        auto const each = chosen ? nullptr : entry.creator.strong();
        bool matches = each && entry.valueType == declaredType() && each->Name() == case_.creator;
        for (auto const& preference : case_.preferences)
            matches = matches && each->preferences()->contains(preference);
        if (matches)
            chosen = each;
    }
    return chosen ? chosen->getInterface<Kolt::QInputCreator>() : nullptr;
}

Kolt::Editor EditorContract::open(ParameterPtr const& parameter, Kolt::ValuePoolSource* source) {
    auto const editor = case_.chosen.alive() ? Kolt::makeEditor(parameter, parent_, source, case_.chosen)
                                             : Kolt::makeEditor(parameter, parent_, source);
    if (findings_.expect(editor.widget, "no editor is made"))
        editor.widget->show();
    return editor;
}

Kolt::Editor EditorContract::open(ParameterPtr const& parameter) {
    return open(parameter, &pools_);
}

void EditorContract::changeElsewhere(ParameterPtr const& parameter, Kolt::ValuePtr const& value, int n,
                                     Kolt::PoolPtr const& pool) {
    case_.change(*value, n);
    parameter->notifyValueChange(value, pool, std::string(), nullptr, nullptr, nullptr);
}

void EditorContract::expectShown(Kolt::Editor const& editor, Kolt::VValueBase const& value, std::string const& when) {
    if (case_.showsValue && findings_.expect(editor.widget, "the editor is gone " + when))
        findings_.expectEqual(case_.shown(*editor.widget), case_.expected(value), "what the editor shows " + when);
}

void EditorContract::expectUntouched(Kolt::VParameter const& parameter, std::string const& when) {
    findings_.expect(parameter.ownValue()->age() == 0, "the value is marked as changed " + when);
}

void EditorContract::expectPrinted(std::vector<std::string> const& lines, std::string const& when) {
    if (!takeOutput_)
        return;
    auto printed = takeOutput_();
    if (!case_.isKnown)
        return;
    printed.erase(std::remove_if(printed.begin(), printed.end(),
                                 [&](auto const& line) { return !case_.trace.empty() && line == case_.trace; }),
                  printed.end());
    findings_.expectEqual(joined(printed), joined(lines), "what is printed " + when);
}

void EditorContract::expectAddedProperties(Kolt::VParameter const& parameter) {
    if (!case_.isKnown)
        return;
    std::vector<std::string> properties;
    if (parameter.properties())
        for (auto const& property : *parameter.properties())
            properties.push_back(property.first);
    auto added = case_.addedProperties;
    std::sort(added.begin(), added.end());
    findings_.expectEqual(joined(properties), joined(added), "the list of properties that opening adds");
}

void EditorContract::theCreatorIsChosen() {
    auto const parameter = parameterWith(0);
    auto const editor = open(parameter);
    if (!editor.widget)
        return;
    auto const made = editor.choice.creator.strong();
    findings_.expectEqual(made ? made->Name() : std::string(), case_.creator, "the creator that is chosen");
    findings_.expect(bool(editor.input), "the editor has no input");
}

void EditorContract::openingShowsTheValueAndWritesNothing() {
    for (int n = 0; n < 3; ++n) {
        auto const parameter = parameterWith(n, Values::Shared);
        auto const before = parameter->ownValue()->Text();
        RecordingNotifier recorder;
        parameter->addNotifier(Tessera::WeakPtr<Kolt::ValueNotifier>(&recorder));

        auto const editor = open(parameter);
        expectShown(editor, *parameter->ownValue(), "after opening");
        findings_.expectEqual(parameter->ownValue()->Text(), before, "the value after opening");
        expectUntouched(*parameter, "by opening");
        findings_.expectEqual(recorder.values.size(), 0, "the number of notifications of opening");
        findings_.expectEqual(undoSteps(), 0, "the number of undo steps of opening");
        if (case_.isKnown)
            findings_.expectEqual(joined(warnings_.texts), "", "the text of the warnings of opening");
        expectSilence("by opening");
        expectAddedProperties(*parameter);
    }
}

void EditorContract::nothingIsDeliveredBeforeTheEditorIsMade() {
    auto const parameter = parameterWith(0);
    RecordingNotifier recorder;
    std::size_t most = 1;
    recorder.reaction = [&] { most = std::max(most, parameter->size()); };
    parameter->addNotifier(Tessera::WeakPtr<Kolt::ValueNotifier>(&recorder));
    auto const editor = open(parameter);
    findings_.expectEqual(most, 1, "the number of listeners while the editor is made");
    if (case_.isKnown)
        findings_.expectEqual(static_cast<std::size_t>(recorder.propertyChanges), case_.addedProperties.size(),
                              "the number of changed properties");
    findings_.expectEqual(parameter->size(), 2, "the number of listeners, with a recorder and the editor,");
}

void EditorContract::aChangeFromElsewhereIsShownAndNotSentBack() {
    auto const parameter = parameterWith(0);
    auto const editor = open(parameter);
    for (int const n : {1, 2, 0, 0}) {
        changeElsewhere(parameter, parameter->ownValue(), n, firstPool_);
        expectShown(editor, *case_.makeValue(n), "after a change from elsewhere");
        findings_.expectEqual(parameter->ownValue()->Text(), case_.makeValue(n)->Text(),
                              "the value after a change from elsewhere");
    }
    if (!case_.commitsWhatItShows)
        expectUntouched(*parameter, "by an editor that only shows a change");
    else
        findings_.expect(parameter->ownValue()->age() > 0, "the editor no longer commits what it shows");
    findings_.expectEqual(undoSteps(), 0, "the number of undo steps of a change from elsewhere");
    expectSilence("after a change from elsewhere");
}

void EditorContract::aValueOfAnotherTypeIsIgnored() {
    auto const parameter = parameterWith(1);
    auto const editor = open(parameter);
    auto const input = editor.input.strong();
    if (!findings_.expect(bool(input), "the editor has no input"))
        return;
    input->onValueChange(Kolt::makeValue(StrangeValue()), Kolt::VContext(firstPool_, nullptr), nullptr);
    expectShown(editor, *case_.makeValue(1), "after a notification with a value of another type");
    input->onValueChange(nullptr, Kolt::VContext(nullptr), nullptr);
    expectShown(editor, *case_.makeValue(1), "after a notification without a value");
    expectSilence("after a notification with a value of another type");
    expectUntouched(*parameter, "by a notification with a value of another type");
}

void EditorContract::aParameterWithAValueOfAnotherTypeOpens() {
    auto const parameter = parameterWith(Kolt::makeValue(StrangeValue()), Values::Shared);
    auto const editor = open(parameter);
    if (!editor.widget)
        return;
    if (case_.isKnown)
        findings_.expectEqual(joined(warnings_.texts), joined(case_.warningsForOtherType),
                              "the text of the warnings for a value of another type");
    if (case_.edit)
        edit(editor);
    expectUntouched(*parameter, "though it is of another type");
    findings_.expect(dynamic_cast<Kolt::VValue<StrangeValue>*>(parameter->ownValue().get()) != nullptr,
                     "the value of another type was replaced");
    expectSilence("for a value of another type");
}

void EditorContract::anEditorForAParameterThatIsGoneOpens() {
    auto const maker = creator();
    if (!findings_.expect(bool(maker), "the creator makes no Qt widgets"))
        return;
    // The parameter dies at the end of this line.
    Kolt::ParameterRef const dead = parameterWith(0);
    auto const made = maker->create(dead, parent_, &pools_);
    if (!findings_.expect(made.first, "no editor is made for a parameter that is gone"))
        return;
    made.first->show();
    expectSilence("when an editor is made for a parameter that is gone");
    if (case_.isKnown)
        findings_.expectEqual(joined(warnings_.texts), joined(case_.warningsWithoutOwner),
                              "the text of the warnings for a parameter that is gone");
    if (!case_.edit)
        return;
    case_.edit(*made.first);
    expectPrinted(case_.editableWithoutOwner ? std::vector<std::string>{missingOwnerLine} : std::vector<std::string>(),
                  "after an edit of a parameter that is gone");
}

void EditorContract::eachPoolShowsItsOwnValue() {
    auto const parameter = parameterWith(0, Values::PerPool);
    case_.change(*parameter->getLocalValue(firstPool_, std::string(), true), 1);
    auto const editor = open(parameter);
    expectShown(editor, *case_.makeValue(1), "in the first pool");

    pools_.use(secondPool_);
    Kolt::showPoolValue(editor, parameter, &pools_);
    expectShown(editor, *case_.makeValue(0), "in the second pool");
    if (!case_.commitsWhatItShows)
        findings_.expect(!parameter->getLocalValue(secondPool_, std::string(), false),
                         "looking at a pool stores a value in it");

    pools_.use(firstPool_);
    Kolt::showPoolValue(editor, parameter, &pools_);
    expectShown(editor, *case_.makeValue(1), "in the first pool again");
    expectUntouched(*parameter, "by looking at pools");
    expectSilence("when the pool is switched");
}

void EditorContract::aChangeInAnotherPoolIsNotShown() {
    auto const parameter = parameterWith(0, Values::PerPool);
    case_.change(*parameter->getLocalValue(firstPool_, std::string(), true), 1);
    auto const editor = open(parameter);

    changeElsewhere(parameter, parameter->getLocalValue(secondPool_, std::string(), true), 2, secondPool_);
    expectShown(editor, *case_.makeValue(1), "after a change in another pool");
    changeElsewhere(parameter, parameter->ownValue(), 2, nullptr);
    expectShown(editor, *case_.makeValue(1), "after a change without a pool");
    changeElsewhere(parameter, parameter->getLocalValue(firstPool_, std::string(), false), 2, firstPool_);
    expectShown(editor, *case_.makeValue(2), "after a change in its pool");
    expectSilence("after changes in pools");
}

void EditorContract::theEditorMayDieInsideANotification() {
    auto const parameter = parameterWith(0);
    auto const first = open(parameter);
    RecordingNotifier recorder;
    parameter->addNotifier(Tessera::WeakPtr<Kolt::ValueNotifier>(&recorder));
    auto const second = open(parameter);
    QPointer<QWidget> const doomed = second.widget;
    recorder.reaction = [&] { delete doomed; };
    changeElsewhere(parameter, parameter->ownValue(), 1, firstPool_);
    findings_.expect(!doomed, "the editor that was deleted in a notification lives");
    findings_.expect(!second.input, "the input of a deleted editor lives");
    expectShown(first, *case_.makeValue(1), "after another one was deleted");
    expectSilence("when an editor is deleted in a notification");
}

} // namespace Checker

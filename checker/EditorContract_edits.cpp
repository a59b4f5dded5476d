// The checks for editors that people edit.

#include <checker/EditorContract.hpp>
#include <lattice/EditRecorder.hpp>
#include <lattice/UndoHistory.hpp>
#include <QCoreApplication>
#include <QEvent>
#include <QWidget>

namespace Checker {

void EditorContract::withoutAPoolNothingIsWritten() {
    auto const parameter = parameterWith(0);
    auto const before = parameter->ownValue()->Text();
    RecordingNotifier recorder;
    parameter->addNotifier(Tessera::WeakPtr<Kolt::ValueNotifier>(&recorder));
    auto const editor = open(parameter);
    if (!editor.widget)
        return;
    pools_.use(nullptr);
    edit(editor);
    pools_.dropProvider();
    edit(editor);
    if (!case_.changesInPlace)
        findings_.expectEqual(parameter->ownValue()->Text(), before, "the value after an edit without a pool");
    findings_.expectEqual(recorder.values.size(), 0, "the number of notifications of an edit without a pool");
    expectUntouched(*parameter, "by an edit without a pool");
    findings_.expectEqual(undoSteps(), 0, "the number of undo steps of an edit without a pool");
    expectSilence("by an edit without a pool");
}

void EditorContract::withoutAPoolSourceNothingIsWritten() {
    auto const parameter = parameterWith(0);
    auto const editor = open(parameter, nullptr);
    if (!editor.widget)
        return;
    edit(editor);
    expectUntouched(*parameter, "by an edit without a pool source");
    expectSilence("by an edit without a pool source");
}

void EditorContract::aParameterThatWentIsReportedOnceForEachEdit() {
    auto parameter = parameterWith(0);
    auto const editor = open(parameter);
    if (!editor.widget)
        return;
    parameter.reset();
    edit(editor);
    std::vector<std::string> const expected{missingOwnerLine};
    expectPrinted(expected, "after an edit of a parameter that went");
    pools_.use(nullptr);
    edit(editor);
    expectPrinted(case_.reportsMissingOwnerWithoutPool ? expected : std::vector<std::string>(),
                  "after an edit of a parameter that went, without a pool");
}

void EditorContract::anEditIsStoredNotifiedOnceAndStamped() {
    auto const parameter = parameterWith(0);
    auto const before = parameter->ownValue()->Text();
    RecordingNotifier recorder;
    parameter->addNotifier(Tessera::WeakPtr<Kolt::ValueNotifier>(&recorder));
    auto const editor = open(parameter);
    if (!editor.widget)
        return;
    auto const time = Tessera::Ageable::GlobalTime.load();
    edit(editor);
    auto const& value = *parameter->ownValue();
    findings_.expect(value.Text() != before, "an edit stores nothing");
    expectShown(editor, value, "after an edit");
    if (findings_.expectEqual(recorder.values.size(), 1, "the number of notifications of an edit")) {
        findings_.expectEqual(recorder.values.back(), value.Text(), "the value that is notified");
        findings_.expect(recorder.pools.back() == firstPool_, "an edit is notified with another pool than its own");
    }
    findings_.expect(value.age() > time && value.age() == Tessera::Ageable::GlobalTime.load(),
                     "the value is not marked as changed after the edit");
    expectSilence("by an edit");
    if (case_.isKnown)
        findings_.expectEqual(joined(warnings_.texts), "", "the text of the warnings of an edit");
}

void EditorContract::anEditNamesItsEditor() {
    Kolt::UndoHistory history;
    auto const parameter = parameterWith(0);
    parameter->setHistory(&history);
    auto const recorder = Kolt::EditRecorder::watch(parameter);
    auto const editor = open(parameter);
    if (!editor.widget)
        return;
    edit(editor);
    // A change without a source is one of the host: nobody can undo it, and the editor itself is notified of it.
    findings_.expect(!history.steps().empty(),
                     "an edit cannot be undone, because it is notified without the editor as its source");
    expectSilence("by an edit that is recorded");
}

void EditorContract::twoEditorsFollowEachOtherWithoutAnEcho() {
    auto const parameter = parameterWith(0);
    auto const first = open(parameter);
    auto const second = open(parameter);
    if (!first.widget || !second.widget)
        return;
    RecordingNotifier recorder;
    parameter->addNotifier(Tessera::WeakPtr<Kolt::ValueNotifier>(&recorder));
    auto const count = static_cast<std::size_t>(case_.notificationsWithTwoEditors);
    std::size_t expected = 0;
    for (auto const& editor : {first, second}) {
        edit(editor);
        expected += count;
        expectShown(first, *parameter->ownValue(), "after an edit in one of two editors");
        expectShown(second, *parameter->ownValue(), "after an edit in one of two editors");
        findings_.expectEqual(recorder.values.size(), expected, "the number of notifications with two editors");
    }
    expectSilence("with two editors");
}

void EditorContract::anEditReachesItsPoolAlone() {
    auto const parameter = parameterWith(0, Kolt::VParameter::Values::PerPool);
    case_.change(*parameter->getLocalValue(firstPool_, std::string(), true), 1);
    auto const editor = open(parameter);
    if (!editor.widget)
        return;
    pools_.use(secondPool_);
    Kolt::showPoolValue(editor, parameter, &pools_);
    edit(editor);
    auto const written = parameter->getLocalValue(secondPool_, std::string(), false);
    if (!findings_.expect(bool(written), "an edit stores nothing in its pool"))
        return;
    findings_.expect(written->Text() != case_.makeValue(0)->Text(), "an edit changes nothing in its pool");
    findings_.expect(written->age() > 0, "the value of the pool is not marked as changed");
    expectShown(editor, *written, "after an edit in a pool");
    findings_.expectEqual(parameter->ownValue()->Text(), case_.makeValue(0)->Text(), "the own value after the edit");
    expectUntouched(*parameter, "by an edit in a pool");
    findings_.expectEqual(parameter->getLocalValue(firstPool_, std::string(), false)->Text(),
                          case_.makeValue(1)->Text(), "the value of another pool");
    expectSilence("by an edit in a pool");
}

void EditorContract::theParameterMayDieInsideTheNotificationOfAnEdit() {
    auto parameter = parameterWith(0);
    auto const editor = open(parameter);
    if (!editor.widget)
        return;
    RecordingNotifier recorder;
    recorder.reaction = [&] { parameter.reset(); };
    parameter->addNotifier(Tessera::WeakPtr<Kolt::ValueNotifier>(&recorder));
    edit(editor);
    findings_.expect(!parameter, "an edit is not notified");
    expectPrinted({missingOwnerLine}, "when the parameter dies in the notification");
}

void EditorContract::thePanelMayCloseInsideTheNotificationOfAnEdit() {
    auto const parameter = parameterWith(0);
    auto const editor = open(parameter);
    if (!editor.widget)
        return;
    RecordingNotifier recorder;
    recorder.reaction = [&] {
        parent_->hide();
        parent_->deleteLater();
    };
    parameter->addNotifier(Tessera::WeakPtr<Kolt::ValueNotifier>(&recorder));
    edit(editor);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    findings_.expect(!editor.widget, "the editor outlives its panel");
    expectSilence("when the panel closes in the notification");
}

} // namespace Checker

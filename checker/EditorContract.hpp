#pragma once

#include <checker/ChosenPools.hpp>
#include <checker/EditorCase.hpp>
#include <checker/Findings.hpp>
#include <checker/Recorders.hpp>
#include <memory>
#include <QPointer>
#include <sorrel/InputFrontEnd.hpp>

namespace Checker {

/// What every editor owes its host: it shows the value and follows it, writes nothing that nobody edited, and tells
/// each edit once. Each check opens editors of its own in a window of its own and leaves nothing behind. User-interface
/// thread.
class EditorContract {
public:
    /// Takes the lines that were printed since the last call; empty if output is not looked at.
    using TakeOutput = std::function<std::vector<std::string>()>;

    /// Which editors a check is for.
    enum class For {
        All,      ///< every editor
        Editable, ///< those that people edit
        Writing   ///< those whose edits write a value
    };
    /// One of the checks.
    struct Check {
        char const* name;              ///< letters only
        char const* meaning;           ///< what holds for a good editor, a sentence
        For editors;                   ///< which editors it is for
        void (EditorContract::*run)(); ///< adds what it finds
    };

    /// All are kept; the findings must outlive the contract.
    EditorContract(EditorCase editor, TakeOutput takeOutput, Findings& findings);
    /// Looks for output that no check took.
    ~EditorContract();

    /// All checks.
    static std::vector<Check> const& checks();
    /// Whether a check is for the editor.
    static bool concerns(Check const& check, EditorCase const& editor);

private:
    void theCreatorIsChosen();
    void openingShowsTheValueAndWritesNothing();
    void nothingIsDeliveredBeforeTheEditorIsMade();
    void aChangeFromElsewhereIsShownAndNotSentBack();
    void aValueOfAnotherTypeIsIgnored();
    void aParameterWithAValueOfAnotherTypeOpens();
    void anEditorForAParameterThatIsGoneOpens();
    void eachPoolShowsItsOwnValue();
    void aChangeInAnotherPoolIsNotShown();
    void theEditorMayDieInsideANotification();
    void withoutAPoolNothingIsWritten();
    void withoutAPoolSourceNothingIsWritten();
    void aParameterThatWentIsReportedOnceForEachEdit();
    void anEditIsStoredNotifiedOnceAndStamped();
    void anEditNamesItsEditor();
    void twoEditorsFollowEachOtherWithoutAnEcho();
    void anEditReachesItsPoolAlone();
    void theParameterMayDieInsideTheNotificationOfAnEdit();
    void thePanelMayCloseInsideTheNotificationOfAnEdit();

    // What an editor of the project says at an edit whose parameter is gone.
    static constexpr char const* missingOwnerLine =
        "**POSSIBLE INTERNAL FAULT**: VInputBase without owner? That's not good.";
    static std::size_t undoSteps();
    static std::string joined(std::vector<std::string> const& lines);

    std::string declaredType() const;
    Kolt::ParameterPtr parameterWith(Kolt::ValuePtr const& value, Kolt::VParameter::Values values);
    Kolt::ParameterPtr parameterWith(int n, Kolt::VParameter::Values values = Kolt::VParameter::Values::Shared);
    Tessera::StrongPtr<Kolt::QInputCreator, Tessera::InterfaceBase> creator() const;
    Kolt::Editor open(Kolt::ParameterPtr const& parameter);
    Kolt::Editor open(Kolt::ParameterPtr const& parameter, Kolt::ValuePoolSource* source);
    void edit(Kolt::Editor const& editor) { case_.edit(*editor.widget); }
    void changeElsewhere(Kolt::ParameterPtr const& parameter, Kolt::ValuePtr const& value, int n,
                         Kolt::PoolPtr const& pool);

    void expectShown(Kolt::Editor const& editor, Kolt::VValueBase const& value, std::string const& when);
    void expectUntouched(Kolt::VParameter const& parameter, std::string const& when);
    void expectPrinted(std::vector<std::string> const& lines, std::string const& when);
    void expectSilence(std::string const& when) { expectPrinted({}, when); }
    void expectAddedProperties(Kolt::VParameter const& parameter);

    EditorCase const case_;
    TakeOutput const takeOutput_;
    Findings& findings_;
    RecordedWarnings warnings_;
    Kolt::PoolPtr const firstPool_;
    Kolt::PoolPtr const secondPool_;
    ChosenPools pools_;
    QPointer<QWidget> parent_;
};

} // namespace Checker

#pragma once

#include <lattice/UndoHistory.hpp>
#include <memory>
#include <parameters/commands/UndoText.hpp>
#include <parameters/input/InputFilter.hpp>
#include <QAction>
#include <QObject>
#include <tessera/Export.hpp>

namespace Talo {

/// Undo and redo of a history as actions with shortcuts. Their texts name the step. User-interface thread.
class TALO_EXPORT UndoActions : public QObject {
    Q_OBJECT

public:
    /// The history must outlive the actions.
    explicit UndoActions(Kolt::UndoHistory& history, QObject* parent = nullptr);
    ~UndoActions() override;

    /// Undoes the latest step; disabled if there is none.
    QAction* undoAction() const { return undoAction_; }
    /// Redoes the step that was undone last; disabled if there is none.
    QAction* redoAction() const { return redoAction_; }
    /// How the texts name parameters from now on; an empty function: by their own names.
    void setNaming(ParameterNaming naming);

public slots:
    /// Ends the gesture that goes on and undoes the latest step.
    void undo();
    /// Ends the gesture that goes on and redoes the step that was undone last.
    void redo();
    /// Undoes or redoes until that many steps are done, counted from the start of the history. The last one is
    /// `restored`.
    void goToState(int steps);

signals:
    /// A step could not be undone or redone: a sentence.
    void refused(QString const& reason);
    /// A step was undone or redone.
    void restored(Kolt::UndoStep const& step);
    /// The history changed.
    void historyChanged();

private:
    /// Ends the gesture that goes on and undoes or redoes a step; null if there is none, or it could not be done.
    Kolt::UndoHistory::Step undoStep();
    Kolt::UndoHistory::Step redoStep();
    void update();

    Kolt::UndoHistory& history_;
    std::shared_ptr<InputFilter> const filter_;
    QAction* const undoAction_;
    QAction* const redoAction_;
    ParameterNaming naming_;
    Kolt::Connection connection_;
};

} // namespace Talo

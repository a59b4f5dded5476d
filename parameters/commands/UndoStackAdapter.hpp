#pragma once

#include <lattice/UndoHistory.hpp>
#include <parameters/commands/UndoText.hpp>
#include <QObject>
#include <QUndoStack>
#include <tessera/Export.hpp>

namespace Talo {

/// Makes the undo steps of a history commands of a QUndoStack, for hosts whose other commands are there: each new step
/// is pushed as a command with the step's text, and undoing or redoing the command undoes or redoes the step.
///
/// From then on the host undoes through the stack only, and does not clear or limit the stack while steps are in it.
/// Clearing the history clears the stack. User-interface thread.
class TALO_EXPORT UndoStackAdapter : public QObject {
    Q_OBJECT

public:
    /// Both must outlive the adapter; the commands in the stack do nothing after the adapter was destroyed.
    UndoStackAdapter(Kolt::UndoHistory& history, QUndoStack& stack, QObject* parent = nullptr);
    ~UndoStackAdapter() override;

    /// How texts name parameters from now on; an empty function: by their own names.
    void setNaming(ParameterNaming naming) { naming_ = std::move(naming); }

private:
    class Command;
    void historyChanged();
    void pushClosedSteps();

    Kolt::UndoHistory& history_;
    QUndoStack& stack_;
    ParameterNaming naming_;
    Kolt::Connection connection_;
    // The step of the last command that is done; null at the start.
    Kolt::UndoHistory::Step last_;
    bool isApplying_ = false;
};

} // namespace Talo

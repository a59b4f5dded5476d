#pragma once

#include <lattice/UndoHistory.hpp>
#include <parameters/commands/UndoText.hpp>
#include <QListWidget>
#include <tessera/Export.hpp>
#include <vector>

namespace Talo {

/// The undo steps of a history as a list: first the start, then the steps, the latest last, then the undone ones,
/// muted. The current row is the current state; a click on a row, or Return, chooses the state of that row.
/// User-interface thread.
class TALO_EXPORT HistoryView : public QListWidget {
    Q_OBJECT

public:
    /// The history must outlive the view.
    explicit HistoryView(Kolt::UndoHistory& history, QWidget* parent = nullptr);
    ~HistoryView() override;

    /// How parameters are named from now on; an empty function shows their own names.
    void setNaming(ParameterNaming naming);
signals:
    /// The user chose the state after that many steps, counted from the start, undone steps included.
    void stateChosen(int steps);

protected:
    void showEvent(QShowEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    void showName();
    /// The list is shown anew as soon as it is visible and other events were handled.
    void historyChanged();
    void refresh();
    /// Shows whether the history begins at the first row, and how much memory it takes if that is notable.
    void showStart();
    void showStep(int row, Kolt::UndoStep const& step, bool undone);

    Kolt::UndoHistory& history_;
    ParameterNaming naming_;
    std::vector<Kolt::UndoHistory::Step> shown_;
    // How many of them are not undone.
    int shownDone_ = 0;
    bool refreshWaits_ = false;
    Kolt::Connection connection_;
};

} // namespace Talo

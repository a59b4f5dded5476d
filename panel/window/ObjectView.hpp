#pragma once

#include <lattice/Object.hpp>
#include <parameters/commands/ParameterFilter.hpp>
#include <parameters/rows/RowArea.hpp>
#include <QLabel>
#include <QTimer>
#include <QWidget>
#include <vector>

namespace Panel {

/// The parameters of one object in a scroll area, below its name and what it is for. Any number of views may show one
/// object; they stay in step through the host's notifications.
///
/// The view refers to the object weakly. User-interface thread.
class ObjectView : public QWidget {
    Q_OBJECT

public:
    /// `kind` says what the object is for, and may be empty. `pools` must outlive the view. The editors are open.
    ObjectView(Kolt::ObjectPtr const& object, QString const& kind, Talo::PoolSource& pools, QWidget* parent = nullptr);
    ~ObjectView() override;

    /// The shown object; null when it is gone.
    Kolt::ObjectPtr object() const { return object_.strong(); }
    /// The rows that stand at the moment; all of them where the object has few parameters and the view was shown.
    std::vector<Talo::ParameterRow*> rows() const { return rows_->rows(); }
    /// The row of a parameter by its whole name, which is made if it does not stand; null when there is none.
    Talo::ParameterRow* row(QString const& parameterName) const { return rows_->row(parameterName); }
    Talo::RowArea* rowArea() const { return rows_; }
    /// Stands in place of the rows where the filter finds none.
    QWidget* emptyNote() const { return emptyNote_; }

    void openEditors() { rows_->openEditors(); }
    /// Hides and deletes all editors, as before a plug-in is unloaded.
    void closeEditors() { rows_->closeEditors(); }
    /// Shows in every row what the chosen pool holds.
    void showPool() { rows_->showPool(); }
    void setRawValuesShown(bool shown) { rows_->setRawValuesShown(shown); }
    /// Shows the parameters that the filter finds in the chosen pool as they are now: one that is edited stays.
    void setFilter(Talo::ParameterFilter const& filter);
    /// Gives the focus to the first control of the first shown row that has one.
    void focusFirstEditor() { rows_->focusFirstControl(); }

signals:
    /// A row has an editor from now on.
    void editorOpened(Talo::ParameterRow* row);

protected:
    void showEvent(QShowEvent* event) override;
    void hideEvent(QHideEvent* event) override;

private:
    Tessera::WeakPtr<Kolt::VObject, Kolt::VManagedObjectBase> const object_;
    Talo::PoolSource const& pools_;
    Talo::RowArea* const rows_;
    QLabel* const emptyNote_;
    QTimer checkTimer_;
};

} // namespace Panel

#pragma once

#include <lattice/Object.hpp>
#include <panel/ParameterRow.hpp>
#include <QTimer>
#include <QWidget>
#include <vector>

class QVBoxLayout;

namespace Panel {

/// The parameters of one object, one row each, grouped by what stands before the last dot of their names, in a scroll
/// area. Any number of views may show one object; they stay in step through the host's notifications.
///
/// The view refers to the object weakly. User-interface thread.
class ObjectView : public QWidget {
    Q_OBJECT

public:
    /// `kind` says what the object is for, and may be empty. `pools` must outlive the view. The editors are open.
    ObjectView(Kolt::ObjectPtr const& object, QString const& kind, PoolSource& pools, QWidget* parent = nullptr);
    ~ObjectView() override;

    /// The shown object; null when it is gone.
    Kolt::ObjectPtr object() const { return object_.strong(); }
    std::vector<ParameterRow*> const& rows() const { return rows_; }
    /// The row of a parameter by its whole name; null when there is none.
    ParameterRow* row(QString const& parameterName) const;

    void openEditors();
    /// Hides and deletes all editors, as before a plug-in is unloaded.
    void closeEditors();
    /// Shows in every row what the chosen pool holds.
    void showPool();
    void setRawValuesShown(bool shown);

protected:
    void showEvent(QShowEvent* event) override;
    void hideEvent(QHideEvent* event) override;

private:
    void checkParameters();
    void alignNames();

    Tessera::WeakPtr<Kolt::VObject, Kolt::VManagedObjectBase> const object_;
    std::vector<ParameterRow*> rows_;
    // Only ever grows, so that the editors stay in their place when another pool is chosen.
    int nameWidth_ = 0;
    QTimer checkTimer_;
};

} // namespace Panel

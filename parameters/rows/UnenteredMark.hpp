#pragma once

#include <lattice/Parameter.hpp>
#include <parameters/PoolSourceRef.hpp>
#include <QLineEdit>

namespace Talo {

/// Marks a text field with an input mask that was left half filled, so that its text was not taken over: a sign in the
/// field, and a tool tip with the parameter's value. The mark disappears when the text is complete, or equals the value
/// again. Owned by the field. User-interface thread.
class UnenteredMark : public QObject {
    Q_OBJECT

public:
    /// The mark of a field with an input mask; null for any other editor, which gets none.
    static UnenteredMark* makeFor(QWidget& editor, Kolt::ParameterPtr const& parameter, PoolSourceRef const& pools);
    ~UnenteredMark() override;

signals:
    /// The mark appeared or went.
    void changed();

protected:
    bool event(QEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    UnenteredMark(QLineEdit& field, Kolt::ParameterPtr const& parameter, PoolSourceRef const& pools);
    /// Whether the field shows a half filled text that the parameter does not hold.
    bool isUnentered(QString const& held) const;
    /// Shows the mark where it is due.
    void refresh();
    /// Says why the field has the mark.
    void explain();
    /// Removes the mark where it is due no longer.
    void removeIfEntered();
    QString heldText() const;

    QLineEdit& field_;
    Kolt::ParameterRef const parameter_;
    PoolSourceRef const pools_;
    // A child of the field; null while there is no mark.
    QAction* sign_ = nullptr;
    // The tool tip that the field had before.
    QString toolTip_;
};

} // namespace Talo

#pragma once

#include <lattice/ValuePoolSource.hpp>
#include <QComboBox>
#include <QLineEdit>
#include <sorrel/QInputCreator.hpp>

namespace Kolt {

/// Commits a text as soon as it is dropped on a field. Qt shows such a text, but fields commit when they lose the
/// focus, and the field of a drop may never get it. A combo box that refuses the text shows its parameter's value
/// again. Belongs to the field; does not belong to the library's interface. User-interface thread.
class CommitOnDrop : public QObject {
    Q_OBJECT

public:
    /// Adds one to the editor, if that is a text field, and to its editable combo boxes. A QLeaveLineEdit needs none.
    /// `poolSource`, which is not owned, must live as long as the editor; null counts as no pool.
    static void addTo(QWidget& editor, InputRef const& input, ValuePoolSource const* poolSource);

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    CommitOnDrop(QLineEdit* field, QComboBox* comboBox, InputRef input, ValuePoolSource const* poolSource);
    void showCurrentValue() const;

    QLineEdit* const field_;
    // The combo box that the field is a part of; null for none.
    QComboBox* const comboBox_;
    InputRef const input_;
    ValuePoolSource const* const poolSource_;
};

} // namespace Kolt

#pragma once

#include <lattice/EditRecorder.hpp>
#include <parameters/PoolSource.hpp>
#include <parameters/rows/ModifiedIndicator.hpp>
#include <parameters/rows/RawValueLabel.hpp>
#include <QLabel>
#include <QPointer>
#include <QWidget>
#include <sorrel/InputFrontEnd.hpp>
#include <vector>

class QHBoxLayout;

namespace Talo {

/// One parameter in the panel: its name, its editor or a PlaceholderEditor, and on demand its raw value. The name's
/// tool tip tells which creator made the editor and why. Where the parameter keeps values per pool, a line below the
/// name says which pool is edited; where somebody deleted the parameter, it says so. A dot beside the name tells that
/// the value is not the default one and resets it.
///
/// For those who do not see it, each control of the editor is named after the parameter, with its own caption behind
/// it, and its description says the object, the type and the pool.
///
/// As long as a value that people edit has an editor here, its edits are steps of the host's history (EditRecorder).
///
/// The row refers to the parameter weakly and stays usable without it. User-interface thread.
class ParameterRow : public QWidget, private Kolt::ValueNotifier {
    Q_OBJECT

public:
    /// `objectName` is the name of the object that the parameter belongs to. Has no editor before `openEditor`. `pools`
    /// must outlive the row.
    ParameterRow(QString const& objectName, Kolt::ParameterPtr const& parameter, PoolSource& pools,
                 QWidget* parent = nullptr);
    ~ParameterRow() override;

    /// The row that a widget is or lies in, its popups and dialogs included; null for none, and for null.
    static ParameterRow* rowOf(QWidget* widget);

    /// The parameter's whole name, also when it is gone.
    QString const& parameterName() const { return parameterName_; }
    /// The parameter; null when it is gone.
    Kolt::ParameterPtr parameter() const { return parameter_.strong(); }
    /// The chosen pool; null for none.
    Kolt::PoolPtr pool() const { return pools_.pool(); }
    /// Marks a value that is not the default; null as long as it never was another.
    ModifiedIndicator* defaultMarker() const { return marker_; }
    /// The label that shows the name; lives as long as the row.
    QLabel* nameLabel() const { return nameLabel_; }
    /// The line below the name; empty for none.
    QString note() const { return noteLabel_ ? noteLabel_->text() : QString(); }
    /// Null as long as it was never shown.
    RawValueLabel* rawValue() const { return rawValue_; }
    /// Which creator made the editor and why, as rich text; the tool tip of the name.
    QString description() const;
    /// The editor or the PlaceholderEditor; null while closed.
    QWidget* editor() const { return editor_.widget; }

    /// Makes the editor, or a PlaceholderEditor where none can be made. Nothing happens where one stands.
    void openEditor();
    /// Hides the editor and deletes it as soon as Qt is done with it.
    void closeEditor();
    /// Shows what the chosen pool holds.
    void showPool();
    /// Shows whether the value is the default, as after other defaults were remembered.
    void showDefault();
    /// Makes the default hold in the chosen pool, as a step of the history. False where there is none.
    bool resetToDefault();
    /// Notes whether the parameter is still there.
    void checkParameter();
    /// Shows or hides the raw value beside the editor.
    void setRawValueShown(bool shown);
    /// Gives the column of names this width, so that the rows of a view are aligned.
    void setNameWidth(int width);
    /// The width that the name and the note need.
    int nameWidth() const;

    /// An editor may ask the widget around it to adjust its size; a row keeps the width that it was given.
    QSize sizeHint() const override;

protected:
    bool event(QEvent* event) override;

private:
    void onValueChange(Kolt::ValuePtr const& newValue, Kolt::VContext const& context,
                       Kolt::ValueMap const* properties) override;
    void nameEditor();
    void updateAccessibility();
    /// The editor and what is in it, as far as it takes the focus.
    std::vector<QWidget*> controls() const;
    void showNote();

    QString const objectName_;
    QString const parameterName_;
    Kolt::ParameterRef const parameter_;
    PoolSource& pools_;
    QWidget* const names_;
    QLabel* const nameLabel_;
    QHBoxLayout* const layout_;
    // Made when they are needed first: most rows never do.
    ModifiedIndicator* marker_ = nullptr;
    QLabel* noteLabel_ = nullptr;
    RawValueLabel* rawValue_ = nullptr;
    // Where the name stands beside the editor.
    Qt::Alignment vertical_ = Qt::AlignVCenter;
    Kolt::Editor editor_;
    std::shared_ptr<Kolt::EditRecorder> recorder_;
};

} // namespace Talo

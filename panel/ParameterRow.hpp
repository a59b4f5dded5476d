#pragma once

#include <panel/PoolSource.hpp>
#include <panel/RawValue.hpp>
#include <QLabel>
#include <QPointer>
#include <QWidget>
#include <sorrel/InputFrontEnd.hpp>

class QHBoxLayout;

namespace Panel {

/// One parameter in the panel: its name, its editor or a MissingEditor, and on demand its raw value. The name's tool
/// tip tells which creator made the editor and why. Where the parameter keeps values per pool, a line below the name
/// says which pool is edited; where somebody deleted the parameter, it says so.
///
/// The row refers to the parameter weakly and stays usable without it. User-interface thread.
class ParameterRow : public QWidget {
    Q_OBJECT

public:
    /// Has no editor before `openEditor`. `pools` must outlive the row.
    ParameterRow(Kolt::ParameterPtr const& parameter, PoolSource& pools, QWidget* parent = nullptr);
    ~ParameterRow() override;

    /// The parameter's whole name, also when it is gone.
    QString const& parameterName() const { return parameterName_; }
    Kolt::ParameterPtr parameter() const { return parameter_.strong(); }
    QLabel* nameLabel() const { return nameLabel_; }
    QLabel* noteLabel() const { return noteLabel_; }
    RawValue* rawValue() const { return rawValue_; }
    /// The editor or the MissingEditor; null while closed.
    QWidget* editor() const { return editor_.widget; }

    /// Makes the editor, or a MissingEditor where none can be made. Nothing happens where one stands.
    void openEditor();
    /// Hides the editor and deletes it as soon as Qt is done with it.
    void closeEditor();
    /// Shows what the chosen pool holds.
    void showPool();
    /// Notes whether the parameter is still there.
    void checkParameter();
    void setRawValueShown(bool shown);
    /// Gives the column of names this width, so that the rows of a view are aligned.
    void setNameWidth(int width);
    /// The width that the name and the note need.
    int nameWidth() const;

private:
    void describeChoice();
    void nameEditor();
    void showNote();

    QString const parameterName_;
    Tessera::WeakPtr<Kolt::VParameter, Kolt::ValueNotifierList> const parameter_;
    PoolSource& pools_;
    QWidget* const names_;
    QLabel* const nameLabel_;
    QLabel* const noteLabel_;
    RawValue* const rawValue_;
    QHBoxLayout* const layout_;
    Kolt::Editor editor_;
};

} // namespace Panel

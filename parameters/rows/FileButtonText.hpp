#pragma once

#include <parameters/rows/EditorExtension.hpp>
#include <QPushButton>

namespace Talo {

/// Says on a button that chooses a file what it does and which file is chosen: the tool tip and the accessible value
/// have the caption and the whole name, and if no name is chosen, the button shows its caption, which the editor itself
/// replaces by the name. The caption is what an editor for an empty name shows. Owned by the button. User-interface
/// thread.
class FileButtonText : public EditorExtension {
    Q_OBJECT

public:
    /// The text of a button that edits a text parameter; null for any other editor, which gets none.
    static FileButtonText* makeFor(QWidget& editor, Kolt::ParameterPtr const& parameter, PoolSourceRef const& pools);
    ~FileButtonText() override;

    void refresh() override;
    /// The chosen name; empty for none.
    QString const& name() const { return name_; }

private:
    FileButtonText(QPushButton& button, Kolt::ParameterPtr const& parameter, PoolSourceRef const& pools);

    QPushButton& button_;
    Kolt::ParameterRef const parameter_;
    PoolSourceRef const pools_;
    QString const caption_;
    QString name_;
};

} // namespace Talo

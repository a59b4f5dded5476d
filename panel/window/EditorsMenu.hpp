#pragma once

#include <parameters/commands/ParameterCommands.hpp>
#include <parameters/EditorChoice.hpp>
#include <QMenu>

namespace Panel {

/// Chooses who edits the parameter whose row has the focus, or had it before the menu took it. User-interface thread.
class EditorsMenu : public QMenu {
    Q_OBJECT

public:
    /// `choice` and `commands`, which know the row, must outlive the menu; it belongs to the parent.
    EditorsMenu(Talo::EditorChoice& choice, Talo::ParameterCommands const& commands, QWidget* parent);
    ~EditorsMenu() override;
};

} // namespace Panel

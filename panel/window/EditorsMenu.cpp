#include <panel/window/EditorsMenu.hpp>

#include <parameters/commands/EditorMenu.hpp>

namespace Panel {

EditorsMenu::EditorsMenu(Talo::EditorChoice& choice, Talo::ParameterCommands const& commands, QWidget* parent)
    : QMenu(tr("&Editors"), parent) {
    setObjectName(QStringLiteral("editors"));
    connect(this, &QMenu::aboutToShow, this, [this, &choice, &commands] {
        auto const* const row = commands.row();
        Talo::fillEditorMenu(*this, row ? row->parameter() : nullptr, choice);
    });
}

EditorsMenu::~EditorsMenu() = default;

} // namespace Panel

#include <parameters/rows/EditorHelp.hpp>

#include <parameters/rows/FileButtonText.hpp>
#include <parameters/rows/SwatchHelp.hpp>

namespace Talo {

EditorHelp* EditorHelp::makeFor(Kolt::Editor const& editor, Kolt::ParameterPtr const& parameter,
                                PoolSourceRef const& pools) {
    if (auto* const swatch = SwatchHelp::makeFor(editor, parameter, pools))
        return swatch;
    return FileButtonText::makeFor(*editor.widget, parameter, pools);
}

EditorHelp::~EditorHelp() = default;

} // namespace Talo

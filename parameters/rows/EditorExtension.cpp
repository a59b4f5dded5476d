#include <parameters/rows/EditorExtension.hpp>

#include <parameters/rows/FileButtonText.hpp>
#include <parameters/rows/SwatchExtension.hpp>

namespace Talo {

EditorExtension* EditorExtension::makeFor(Kolt::Editor const& editor, Kolt::ParameterPtr const& parameter,
                                          PoolSourceRef const& pools) {
    if (auto* const swatch = SwatchExtension::makeFor(editor, parameter, pools))
        return swatch;
    return FileButtonText::makeFor(*editor.widget, parameter, pools);
}

EditorExtension::~EditorExtension() = default;

} // namespace Talo

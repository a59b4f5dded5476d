// It shows a value of another type as if it were of its own.

#include "PlainEditor.hpp"

namespace {

class Editor : public PlainEditor {
public:
    using PlainEditor::PlainEditor;
    void onValueChange(Kolt::ValuePtr const& newValue, Kolt::VContext const& context,
                       Kolt::ValueMap const* map) override {
        if (newValue && newValue->valueType() != typeid(int))
            display(-1);
        PlainEditor::onValueChange(newValue, context, map);
    }
};

} // namespace

PLANT(Editor, takes_any_value);

// Looking at a pool stores a value in it.

#include "PlainEditor.hpp"

namespace {

class Editor : public PlainEditor {
public:
    using PlainEditor::PlainEditor;
    void show(Kolt::ValuePtr const& value) override {
        PlainEditor::show(value);
        auto const parameter = owner().strong();
        if (parameter && pool())
            (void)parameter->getLocalValue(pool(), std::string(), true)->setValueFromText("3");
    }
};

} // namespace

PLANT(Editor, fills_pools);

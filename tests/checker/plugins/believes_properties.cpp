// It takes a property for one of the type that it expects.

#include "PlainEditor.hpp"

namespace {

class Editor : public PlainEditor {
public:
    using PlainEditor::PlainEditor;
    void open() override {
        auto const parameter = owner().strong();
        auto const* const properties = parameter ? parameter->properties() : nullptr;
        auto const least = properties ? properties->getValue("min") : nullptr;
        if (least)
            setMinimum(std::stoi(least->Text()));
        PlainEditor::open();
    }
};

} // namespace

PLANT(Editor, believes_properties);

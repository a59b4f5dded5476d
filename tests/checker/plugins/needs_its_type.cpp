// It takes every value for one of its type.

#include "PlainEditor.hpp"

namespace {

class Editor : public PlainEditor {
public:
    using PlainEditor::PlainEditor;
    void show(Kolt::ValuePtr const& value) override {
        auto const content = dynamic_cast<Kolt::VValue<int> const&>(*value).Text();
        display(std::stoi(content));
    }
};

} // namespace

PLANT(Editor, needs_its_type);

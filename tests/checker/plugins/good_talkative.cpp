// It prints a lot.

#include "PlainEditor.hpp"

namespace {

class Editor : public PlainEditor {
public:
    using PlainEditor::PlainEditor;
    void show(Kolt::ValuePtr const& value) override {
        PlainEditor::show(value);
        std::puts("a value is shown");
    }
};

} // namespace

PLANT(Editor, good_talkative);

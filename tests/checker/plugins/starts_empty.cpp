// It does not show the value when it is opened.

#include "PlainEditor.hpp"

namespace {

class Editor : public PlainEditor {
public:
    using PlainEditor::PlainEditor;
    void open() override {
        PlainEditor::open();
        display(0);
    }
};

} // namespace

PLANT(Editor, starts_empty);

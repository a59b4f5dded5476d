// It shows and cannot be edited.

#include "PlainEditor.hpp"

namespace {

class Editor : public PlainEditor {
public:
    using PlainEditor::PlainEditor;
    void open() override {
        PlainEditor::open();
        setEnabled(false);
        setReadOnly(true);
    }
    void write(int) override {}
};

} // namespace

PLANT(Editor, good_display);

// Opening it writes the value.

#include "PlainEditor.hpp"

namespace {

class Editor : public PlainEditor {
public:
    using PlainEditor::PlainEditor;
    void open() override {
        PlainEditor::open();
        commit(value());
    }
};

} // namespace

PLANT(Editor, writes_at_opening);

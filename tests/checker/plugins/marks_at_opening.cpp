// Opening it marks the value as changed.

#include "PlainEditor.hpp"

namespace {

class Editor : public PlainEditor {
public:
    using PlainEditor::PlainEditor;
    void open() override {
        PlainEditor::open();
        if (auto const value = ownValue())
            value->renewAge();
    }
};

} // namespace

PLANT(Editor, marks_at_opening);

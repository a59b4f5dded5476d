// It leaves a window behind.

#include "PlainEditor.hpp"

namespace {

class Editor : public PlainEditor {
public:
    using PlainEditor::PlainEditor;
    void open() override {
        PlainEditor::open();
        new QWidget;
    }
};

} // namespace

PLANT(Editor, leaves_a_widget);

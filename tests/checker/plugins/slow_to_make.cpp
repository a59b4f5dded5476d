// Making it takes long.

#include "PlainEditor.hpp"
#include <unistd.h>

namespace {

class Editor : public PlainEditor {
public:
    using PlainEditor::PlainEditor;
    void open() override {
        PlainEditor::open();
        usleep(200000);
    }
};

} // namespace

PLANT(Editor, slow_to_make);

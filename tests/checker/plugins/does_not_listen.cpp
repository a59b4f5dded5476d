// It never listens to its parameter.

#include "PlainEditor.hpp"

namespace {

class Editor : public PlainEditor {
public:
    using PlainEditor::PlainEditor;
    void open() override { show(firstValue()); }
};

} // namespace

PLANT(Editor, does_not_listen);

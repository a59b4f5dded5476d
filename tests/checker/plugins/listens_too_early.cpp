// It listens before it was made.

#include "PlainEditor.hpp"

namespace {

class Editor : public PlainEditor {
public:
    using PlainEditor::PlainEditor;
    void open() override {
        activateNotification();
        ensureProperty("min", 0);
        PlainEditor::open();
    }
};

} // namespace

PLANT(Editor, listens_too_early);

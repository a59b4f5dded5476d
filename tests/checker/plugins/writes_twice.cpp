// It writes each edit twice.

#include "PlainEditor.hpp"

namespace {

class Editor : public PlainEditor {
public:
    using PlainEditor::PlainEditor;
    void write(int value) override {
        commit(value);
        commit(value);
    }
};

} // namespace

PLANT(Editor, writes_twice);

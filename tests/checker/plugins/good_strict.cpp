// It refuses some numbers and shows the old one again.

#include "PlainEditor.hpp"

namespace {

class Editor : public PlainEditor {
public:
    using PlainEditor::PlainEditor;
    void write(int value) override {
        if (value == 13)
            display(cached_);
        else
            commit(value);
    }
};

} // namespace

PLANT(Editor, good_strict);

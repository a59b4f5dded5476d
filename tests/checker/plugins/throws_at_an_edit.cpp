// It throws at an edit to a number that it does not like.

#include "PlainEditor.hpp"
#include <stdexcept>

namespace {

class Editor : public PlainEditor {
public:
    using PlainEditor::PlainEditor;
    void write(int value) override {
        if (value % 3 == 2)
            throw std::runtime_error("planted");
        commit(value);
    }
};

} // namespace

PLANT(Editor, throws_at_an_edit);

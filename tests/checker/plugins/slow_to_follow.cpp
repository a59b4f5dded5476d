// Showing a change takes long.

#include "PlainEditor.hpp"
#include <unistd.h>

namespace {

class Editor : public PlainEditor {
public:
    using PlainEditor::PlainEditor;
    void show(Kolt::ValuePtr const& value) override {
        PlainEditor::show(value);
        if (isListening_)
            usleep(100000);
    }
    void open() override {
        PlainEditor::open();
        isListening_ = true;
    }

private:
    bool isListening_ = false;
};

} // namespace

PLANT(Editor, slow_to_follow);

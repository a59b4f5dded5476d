// It leaves a thread behind.

#include "PlainEditor.hpp"
#include <thread>
#include <unistd.h>

namespace {

class Editor : public PlainEditor {
public:
    using PlainEditor::PlainEditor;
    void open() override {
        PlainEditor::open();
        std::thread([] { sleep(20); }).detach();
    }
};

} // namespace

PLANT(Editor, leaves_a_thread);

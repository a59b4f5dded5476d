// It works in a thread, and waits for its end when it is closed.

#include "PlainEditor.hpp"
#include <thread>

namespace {

class Editor : public PlainEditor {
public:
    using PlainEditor::PlainEditor;
    ~Editor() override {
        if (thread_.joinable())
            thread_.join();
    }
    void open() override {
        PlainEditor::open();
        thread_ = std::thread([this] { sum_ = 1; });
    }

private:
    int sum_ = 0;
    std::thread thread_;
};

} // namespace

PLANT(Editor, good_thread);

// It crashes at one of the keys.

#include "PlainEditor.hpp"
#include <csignal>
#include <QKeyEvent>

namespace {

class Editor : public PlainEditor {
public:
    using PlainEditor::PlainEditor;
    void keyPressEvent(QKeyEvent* event) override {
        if (event->key() == Qt::Key_Home)
            std::raise(SIGSEGV);
        PlainEditor::keyPressEvent(event);
    }
};

} // namespace

PLANT(Editor, crashes_at_a_key);

// It throws at one of the keys.

#include "PlainEditor.hpp"
#include <QKeyEvent>
#include <stdexcept>

namespace {

class Editor : public PlainEditor {
public:
    using PlainEditor::PlainEditor;
    void keyPressEvent(QKeyEvent* event) override {
        if (event->key() == Qt::Key_Home)
            throw std::runtime_error("planted");
        PlainEditor::keyPressEvent(event);
    }
};

} // namespace

PLANT(Editor, throws_at_a_key);

// It leaves a timer behind.

#include "PlainEditor.hpp"
#include <QApplication>
#include <QTimer>

namespace {

class Editor : public PlainEditor {
public:
    using PlainEditor::PlainEditor;
    void open() override {
        PlainEditor::open();
        auto* const timer = new QTimer(qApp);
        timer->start(100000);
    }
};

} // namespace

PLANT(Editor, leaves_a_timer);

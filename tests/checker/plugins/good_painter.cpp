// It paints its value itself.

#include "PlainEditor.hpp"
#include <QPainter>

namespace {

class Editor : public PlainEditor {
public:
    using PlainEditor::PlainEditor;
    void paintEvent(QPaintEvent*) override {
        QPainter(this).drawText(rect(), Qt::AlignCenter, QString::number(value()));
    }
};

} // namespace

PLANT(Editor, good_painter);

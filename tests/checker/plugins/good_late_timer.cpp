// It has a timer and a widget of its own.

#include "PlainEditor.hpp"
#include <QLabel>
#include <QTimer>

namespace {

class Editor : public PlainEditor {
public:
    using PlainEditor::PlainEditor;
    void open() override {
        PlainEditor::open();
        auto* const timer = new QTimer(this);
        connect(timer, &QTimer::timeout, this, [this] { update(); });
        timer->start(1);
        new QLabel(QStringLiteral("beside it"), this);
    }
};

} // namespace

PLANT(Editor, good_late_timer);

// It crashes where its parameter is gone.

#include "PlainEditor.hpp"

namespace {

class Editor : public PlainEditor {
public:
    using PlainEditor::PlainEditor;
    void open() override {
        setObjectName(QString::fromStdString(owner().strong()->Name()));
        PlainEditor::open();
    }
};

} // namespace

PLANT(Editor, needs_parameter);

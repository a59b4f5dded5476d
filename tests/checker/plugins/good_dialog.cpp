// A right click opens a dialog.

#include "PlainEditor.hpp"
#include <QContextMenuEvent>
#include <QDialog>

namespace {

class Editor : public PlainEditor {
public:
    using PlainEditor::PlainEditor;
    void contextMenuEvent(QContextMenuEvent*) override {
        QDialog dialog(this);
        dialog.exec();
    }
};

} // namespace

PLANT(Editor, good_dialog);

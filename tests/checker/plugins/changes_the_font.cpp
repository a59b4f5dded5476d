// It changes the program's font.

#include "PlainEditor.hpp"
#include <QApplication>
#include <QFont>

namespace {

class Editor : public PlainEditor {
public:
    using PlainEditor::PlainEditor;
    void open() override {
        PlainEditor::open();
        QApplication::setFont(QFont(QStringLiteral("Serif"), 31));
    }
};

} // namespace

PLANT(Editor, changes_the_font);

// It changes the language of numbers in the whole program.

#include "PlainEditor.hpp"
#include <QLocale>

namespace {

class Editor : public PlainEditor {
public:
    using PlainEditor::PlainEditor;
    void open() override {
        PlainEditor::open();
        QLocale::setDefault(QLocale(QLocale::German));
    }
};

} // namespace

PLANT(Editor, changes_the_locale);

// It uses its parameter after an edit in which it died.

#include "PlainEditor.hpp"

namespace {

class Editor : public PlainEditor {
public:
    using PlainEditor::PlainEditor;
    void write(int value) override {
        auto* const parameter = owner().strong().get();
        commit(value);
        if (parameter)
            setObjectName(QString::fromStdString(owner().strong()->Name()));
    }
};

} // namespace

PLANT(Editor, needs_the_parameter_after);

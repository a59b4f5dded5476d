// It stores an edit and notifies nobody.

#include "PlainEditor.hpp"

namespace {

class Editor : public PlainEditor {
public:
    using PlainEditor::PlainEditor;
    void write(int value) override {
        auto const parameter = owner().strong();
        auto const stored = parameter ? parameter->getLocalValue(pool(), std::string(), true) : nullptr;
        if (stored && pool()) {
            (void)stored->setValueFromText(std::to_string(value));
            stored->renewAge();
        }
    }
};

} // namespace

PLANT(Editor, notifies_nobody);

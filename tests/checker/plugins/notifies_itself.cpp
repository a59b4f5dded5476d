// It does not name itself as the source of an edit, so it is notified of its own edit.

#include "PlainEditor.hpp"

namespace {

class Editor : public PlainEditor {
public:
    using PlainEditor::PlainEditor;
    void write(int value) override {
        auto const parameter = owner().strong();
        if (parameter && pool() && Kolt::setParameterValue(*parameter, value, pool(), {}, true, nullptr, nullptr))
            Kolt::markValueChanged(*parameter, pool());
    }
};

} // namespace

PLANT(Editor, notifies_itself);

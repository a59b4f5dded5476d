// It does not say that an edit is its own, so that it is notified of it.

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

PLANT(Editor, tells_itself);

// It writes what it is shown.

#include "PlainEditor.hpp"

namespace {

class Editor : public PlainEditor {
public:
    using PlainEditor::PlainEditor;
    void onValueChange(Kolt::ValuePtr const& newValue, Kolt::VContext const& context,
                       Kolt::ValueMap const* map) override {
        int const before = value();
        PlainEditor::onValueChange(newValue, context, map);
        if (value() != before)
            commit(value());
    }
};

} // namespace

PLANT(Editor, sends_back);

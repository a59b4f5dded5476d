// It shows the changes of other pools.

#include "PlainEditor.hpp"

namespace {

class Editor : public PlainEditor {
public:
    using PlainEditor::PlainEditor;
    void onValueChange(Kolt::ValuePtr const& newValue, Kolt::VContext const&, Kolt::ValueMap const*) override {
        show(newValue);
    }
};

} // namespace

PLANT(Editor, shows_other_pools);

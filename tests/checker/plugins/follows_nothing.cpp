// It does not show changes from elsewhere.

#include "PlainEditor.hpp"

namespace {

class Editor : public PlainEditor {
public:
    using PlainEditor::PlainEditor;
    void onValueChange(Kolt::ValuePtr const&, Kolt::VContext const&, Kolt::ValueMap const*) override {}
};

} // namespace

PLANT(Editor, follows_nothing);

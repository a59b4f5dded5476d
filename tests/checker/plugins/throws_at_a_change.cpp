// It throws when it is notified of the value 40.

#include "PlainEditor.hpp"
#include <stdexcept>

namespace {

class Editor : public PlainEditor {
public:
    using PlainEditor::PlainEditor;
    void onValueChange(Kolt::ValuePtr const& newValue, Kolt::VContext const& context,
                       Kolt::ValueMap const* properties) override {
        if (newValue && newValue->Text() == "40")
            throw std::runtime_error("planted");
        PlainEditor::onValueChange(newValue, context, properties);
    }
};

} // namespace

PLANT(Editor, throws_at_a_change);

// It does not mark the value as changed.

#include "PlainEditor.hpp"

namespace {

class Editor : public PlainEditor {
public:
    using PlainEditor::PlainEditor;
    void write(int value) override { (void)Kolt::VInputValue<int>::setValue(pool(), std::string(), value, nullptr); }
};

} // namespace

PLANT(Editor, forgets_the_stamp);

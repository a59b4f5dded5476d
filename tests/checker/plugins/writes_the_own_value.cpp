// It writes the own value of the parameter, whatever the pool.

#include "PlainEditor.hpp"

namespace {

class Editor : public PlainEditor {
public:
    using PlainEditor::PlainEditor;
    void write(int value) override {
        commit(value);
        if (auto const own = ownValue())
            (void)own->setValueFromText(std::to_string(value));
    }
};

} // namespace

PLANT(Editor, writes_the_own_value);

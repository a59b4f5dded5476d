// It writes without a pool.

#include "PlainEditor.hpp"

namespace {

class Editor : public PlainEditor {
public:
    using PlainEditor::PlainEditor;
    void write(int value) override {
        if (pool())
            commit(value);
        else if (auto const own = ownValue())
            (void)own->setValueFromText(std::to_string(value));
    }
};

} // namespace

PLANT(Editor, writes_without_pool);

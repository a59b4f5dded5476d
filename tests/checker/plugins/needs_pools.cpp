// It crashes without a source of pools.

#include "PlainEditor.hpp"

namespace {

class Editor : public PlainEditor {
public:
    using PlainEditor::PlainEditor;
    void open() override {
        setEnabled(bool(pools_->getValuePoolProvider()));
        PlainEditor::open();
    }
};

} // namespace

PLANT(Editor, needs_pools);

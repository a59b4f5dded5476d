#include "support/TestHost.hpp"

#include <memory>
#include <QCheckBox>
#include <QTextEdit>

namespace {

using Kolt::makeEditor;
using Kolt::makeValue;

/// The window of a typical host: its pool source is a member, so it is destroyed before the window's children.
class Window : public QWidget {
public:
    Window() { pools.use(Kolt::PoolPtr(new Kolt::ValuePool("pool"))); }
    TestPools pools;
};

class PoolSources : public PluginTest {
protected:
    void TearDown() override {
        window_.reset();
        PluginTest::TearDown();
    }

    std::unique_ptr<Window> window_ = std::make_unique<Window>();
};

TEST_F(PoolSources, OneThatIsAMemberOfTheWindowMayGoBeforeAFocusedMultiLineText) {
    auto const text = makeParameter("text", makeValue(std::string("old")), {"MultiLine"});
    auto const editor = makeEditor(text, window_.get(), &window_->pools);
    auto* const field = qobject_cast<QTextEdit*>(editor.widget);
    ASSERT_TRUE(field);
    window_->show();
    window_->activateWindow();
    field->setFocus();
    ASSERT_TRUE(waitUntil([&] { return field->hasFocus(); }));
    field->setPlainText("typed");
    window_.reset();
    EXPECT_FALSE(editor.widget);
}

TEST_F(PoolSources, AnEditorWhoseSourceIsDestroyedDropsItsEdits) {
    auto const flag = makeParameter("flag", makeValue(false));
    auto source = std::make_unique<TestPools>();
    source->use(firstPool);
    auto const editor = makeEditor(flag, window_.get(), source.get());
    auto* const box = editor.widget->findChild<QCheckBox*>();
    box->click();
    EXPECT_EQ(flag->ownValue()->Text(), "true");
    source.reset();
    box->click();
    EXPECT_EQ(flag->ownValue()->Text(), "true");
    window_.reset();
    EXPECT_FALSE(editor.input);
}

} // namespace

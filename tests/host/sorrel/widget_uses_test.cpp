// A plug-in is not unloaded while a widget or an icon of its classes lives, also one that is no editor.

#include "support/TaloTest.hpp"

#include <lattice/InputRegistry.hpp>
#include <lattice/PluginLoader.hpp>
#include <memory>
#include <plugins_bad/own_widget.hpp>
#include <sorrel/VIcon.hpp>

namespace {

class WidgetUses : public TaloTest {
protected:
    void SetUp() override {
        auto const loaded = loader_.load(file_);
        ASSERT_TRUE(loaded.ok) << loaded.message;
    }
    static Tessera::StrongPtr<OwnWidgetWorkshop, Tessera::InterfaceBase> workshop() {
        return Kolt::InputRegistry::theRegistry().entries().at(0).creator.strong()->getInterface<OwnWidgetWorkshop>();
    }
    void expectInUse(std::string const& what) {
        EXPECT_EQ(loader_.unload(file_).message,
                  "The plug-in " + file_ + " cannot be unloaded while these are in use: " + what + ".");
    }
    std::string const file_ = TALO_BAD_PLUGINS "own_widget.talo";
    Kolt::PluginLoader loader_;
};

TEST_F(WidgetUses, AWidgetOfThePluginCounts) {
    std::unique_ptr<QWidget> window(workshop()->makeWidget());
    expectInUse("1 widget");
    QWidget parent;
    workshop()->makeWidget()->setParent(&parent);
    expectInUse("2 widgets");
    window.reset();
    expectInUse("1 widget");
}

TEST_F(WidgetUses, AnIconOfThePluginCounts) {
    std::unique_ptr<Kolt::VIcon> const icon(workshop()->makeIcon());
    std::unique_ptr<QWidget> const window(workshop()->makeWidget());
    expectInUse("1 icon, 1 widget");
}

TEST_F(WidgetUses, WidgetsOfTheHostDoNot) {
    QWidget const window;
    EXPECT_TRUE(loader_.unload(file_).ok);
}

} // namespace

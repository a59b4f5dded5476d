// Editors of plug-ins that break the rules: the host warns, and the rest of the panel works on.

#include "parameters/FormTest.hpp"
#include "support/FreshHome.hpp"
#include "support/RunTests.hpp"

#include <parameters/rows/ParameterRow.hpp>
#include <parameters/rows/PlaceholderEditor.hpp>
#include <QLineEdit>
#include <QSpinBox>
#include <sorrel/GuardedApplication.hpp>

using testing::AllOf;
using testing::Contains;
using testing::HasSubstr;
using testing::IsEmpty;

namespace {

class EditorFaultsTest : public FormTest {
protected:
    EditorFaultsTest() : FormTest("object") {}

    void TearDown() override {
        FormTest::TearDown();
        auto const unloaded = loader.unload(file());
        EXPECT_TRUE(unloaded.ok) << unloaded.message;
    }

    /// Shows a parameter with an editor of this plug-in, and one with the usual editor.
    void showWith(char const* plugin) {
        name = plugin;
        auto const loaded = loader.load(file());
        ASSERT_TRUE(loaded.ok) << loaded.message;
        warnings.texts.clear();
        add(faulty = Kolt::Parameter<int>("faulty", 7).preferences(name));
        add(usual = Kolt::Parameter<int>("usual", 7));
        show();
    }
    std::string file() const { return TALO_PLANTED "/" + name + ".talo"; }
    /// What the row shows instead of its editor; empty while it shows one.
    std::string placeholder() const {
        auto const* const shown = qobject_cast<Talo::PlaceholderEditor*>(row("faulty")->editor());
        return shown ? shown->text().toStdString() : std::string();
    }
    /// The usual editor still follows its parameter.
    void expectTheRestGoesOn() {
        ASSERT_TRUE(Kolt::setParameterValue(*usual, 23, firstPool, "", true, nullptr, nullptr));
        EXPECT_EQ(control<QLineEdit>("usual")->text(), "23");
    }

    std::string name;
    Kolt::ParameterPtr faulty;
    Kolt::ParameterPtr usual;
};

struct BadCreator {
    char const* plugin;
    char const* says;
};

void PrintTo(BadCreator const& creator, std::ostream* stream) {
    *stream << creator.plugin;
}

class RefusedEditor : public EditorFaultsTest, public testing::WithParamInterface<BadCreator> {};
class AdoptedEditor : public EditorFaultsTest, public testing::WithParamInterface<BadCreator> {};

} // namespace

TEST_P(RefusedEditor, IsReplacedByASentence) {
    showWith(GetParam().plugin);
    EXPECT_THAT(placeholder(), HasSubstr(GetParam().says));
    EXPECT_THAT(warnings.texts,
                Contains(AllOf(HasSubstr("object.faulty"), HasSubstr(name + ".talo"), HasSubstr(GetParam().says))));
    EXPECT_TRUE(parent->isVisible());
    expectTheRestGoesOn();
}

TEST_P(AdoptedEditor, IsPutIntoItsRow) {
    showWith(GetParam().plugin);
    EXPECT_THAT(placeholder(), IsEmpty());
    auto* const editor = row("faulty")->editor();
    EXPECT_EQ(editor->parentWidget(), row("faulty"));
    EXPECT_FALSE(editor->isWindow());
    EXPECT_TRUE(editor->isVisible());
    EXPECT_THAT(warnings.texts, Contains(AllOf(HasSubstr("object.faulty"), HasSubstr(GetParam().says))));
    expectTheRestGoesOn();
}

TEST_F(EditorFaultsTest, AnExceptionInANotificationReplacesTheEditor) {
    showWith("throws_at_a_change");
    EXPECT_THAT(placeholder(), IsEmpty());
    ASSERT_TRUE(Kolt::setParameterValue(*faulty, 40, firstPool, "", true, nullptr, nullptr));
    EXPECT_THAT(placeholder(), AllOf(HasSubstr("object.faulty"), HasSubstr("planted")));
    EXPECT_THAT(warnings.texts, Contains(HasSubstr("throws_at_a_change.talo, ended with an exception: planted")));
    EXPECT_EQ(Kolt::valueOr(faulty->ownValue(), 0), 40) << "the value that the host wrote stays";
    expectTheRestGoesOn();
}

TEST_F(EditorFaultsTest, TheOthersAreToldAfterAnException) {
    showWith("throws_at_a_change");
    RecordingNotifier recorder;
    faulty->addNotifier(Tessera::WeakPtr<Kolt::ValueNotifier>(&recorder));
    ASSERT_TRUE(Kolt::setParameterValue(*faulty, 40, firstPool, "", true, nullptr, nullptr));
    EXPECT_EQ(recorder.values, std::vector<std::string>{"40"});
}

TEST_F(EditorFaultsTest, AnExceptionInAnEventReplacesTheEditor) {
    showWith("throws_at_a_key");
    QTest::keyClick(row("faulty")->editor(), Qt::Key_Up);
    EXPECT_EQ(Kolt::valueOr(faulty->ownValue(), 0), 8);
    QTest::keyClick(row("faulty")->editor(), Qt::Key_Home);
    EXPECT_THAT(placeholder(), AllOf(HasSubstr("throws_at_a_key.talo"), HasSubstr("planted")));
    EXPECT_THAT(warnings.texts, Contains(HasSubstr("ended with an exception: planted")));
    EXPECT_EQ(Kolt::valueOr(faulty->ownValue(), 0), 8) << "unsaved work stays";
    history.undo();
    EXPECT_EQ(Kolt::valueOr(faulty->ownValue(), 0), 7);
    expectTheRestGoesOn();
}

INSTANTIATE_TEST_SUITE_P(Plugins, RefusedEditor,
                         testing::Values(BadCreator{"makes_nothing", "made no widget"},
                                         BadCreator{"takes_the_window", "handed out a widget of the host's own"},
                                         BadCreator{"throws_in_create", "ended with an exception: planted"}),
                         [](auto const& creator) { return std::string(creator.param.plugin); });
INSTANTIATE_TEST_SUITE_P(Plugins, AdoptedEditor,
                         testing::Values(BadCreator{"other_parent", "another one than the given parent"},
                                         BadCreator{"own_window", "made a window of its own"},
                                         BadCreator{"no_input", "made a widget without an input"}),
                         [](auto const& creator) { return std::string(creator.param.plugin); });

// The application object is the one of hosts that survive exceptions.
int main(int argc, char* argv[]) {
    testing::InitGoogleMock(&argc, argv);
    FreshHome const home;
    setenv("QT_QPA_PLATFORM", "offscreen", 0);
    QApplication::setDesktopSettingsAware(false);
    Kolt::GuardedApplication const application(argc, argv);
    QApplication::setQuitOnLastWindowClosed(false);
    return runTests();
}

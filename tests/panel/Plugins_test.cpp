#include "PanelTest.hpp"
#include "support/PluginFile.hpp"

#include <parameters/rows/PlaceholderEditor.hpp>
#include <plugins_bad/own_value.hpp>
#include <QMessageBox>

using testing::HasSubstr;

namespace {

class PluginsTest : public PanelTest {
protected:
    Talo::PlaceholderEditor* missing(char const* name) const {
        return qobject_cast<Talo::PlaceholderEditor*>(window->currentView()->row(QString::fromUtf8(name))->editor());
    }
};

} // namespace

TEST_F(PluginsTest, UnloadPutsStandInsInPlaceOfEditors) {
    window->addView();
    QPointer<QCheckBox> const old = box("on");
    action("unload")->trigger();
    EXPECT_FALSE(old);
    EXPECT_TRUE(plugins.loadedFiles().isEmpty());
    EXPECT_TRUE(Kolt::InputRegistry::theRegistry().entries().empty());
    for (auto const* const view : window->findChildren<Panel::ObjectView*>()) {
        for (auto const* const row : view->rows())
            EXPECT_NE(qobject_cast<Talo::PlaceholderEditor*>(row->editor()), nullptr)
                << qPrintable(row->parameterName());
    }
    ASSERT_NE(missing("on"), nullptr);
    EXPECT_EQ(missing("on")->text(), QStringLiteral("No editor is registered for the type bool without preferences."));
    EXPECT_FALSE(action("unload")->isEnabled());
    EXPECT_TRUE(action("reload")->isEnabled());
}

TEST_F(PluginsTest, ReloadAfterUnloadBringsTheEditorsBack) {
    action("unload")->trigger();
    set("lamp.steady", "false");
    action("reload")->trigger();
    ASSERT_EQ(plugins.loadedFiles(), QStringList{QString::fromUtf8(pluginFile)});
    ASSERT_NE(box("steady"), nullptr);
    EXPECT_FALSE(box("steady")->isChecked());
    QTest::mouseClick(box("steady"), Qt::LeftButton);
    EXPECT_EQ(valueOf("lamp.steady"), "true");
}

TEST_F(PluginsTest, ReloadOfALoadedPluginKeepsTheChosenPool) {
    window->choosePool(QStringLiteral("night"));
    for (int round = 0; round < 10; ++round) {
        QString error;
        ASSERT_TRUE(plugins.reload(&error)) << qPrintable(error);
        ASSERT_NE(box("on"), nullptr);
        EXPECT_TRUE(box("on")->isChecked());
    }
}

TEST_F(PluginsTest, AMissingFileIsReportedAndNothingIsLost) {
    QString error;
    auto const file = folder.filePath(QStringLiteral("missing.talo"));
    EXPECT_FALSE(plugins.load(file, &error));
    EXPECT_THAT(error.toStdString(), HasSubstr(file.toStdString()));
    EXPECT_FALSE(plugins.knownFiles().contains(file));
    EXPECT_NE(box("on"), nullptr);
}

TEST_F(PluginsTest, AFileThatIsNoPluginIsReportedAndNothingIsLost) {
    QString error;
    EXPECT_FALSE(plugins.load(networkFile("no.talo", "no library"), &error));
    EXPECT_FALSE(error.isEmpty());
    EXPECT_NE(box("on"), nullptr);
}

TEST_F(PluginsTest, AMissingFileIsReportedAtReload) {
    auto const copy = folder.filePath(QStringLiteral("qtalo_inputs.talo"));
    QString error;
    ASSERT_TRUE(plugins.unload(&error));
    ASSERT_TRUE(QFile::copy(QString::fromUtf8(pluginFile), copy));
    ASSERT_TRUE(plugins.load(copy, &error)) << qPrintable(error);
    EXPECT_NE(box("on"), nullptr);
    ASSERT_TRUE(plugins.unload(&error));
    ASSERT_TRUE(QFile::remove(copy));
    EXPECT_FALSE(plugins.reload(&error));
    EXPECT_THAT(error.toStdString(), HasSubstr(copy.toStdString()));
    // The previous plug-in is loaded again.
    EXPECT_NE(box("on"), nullptr);

    action("reload")->trigger();
    QPointer<QMessageBox> const box = window->findChild<QMessageBox*>();
    ASSERT_TRUE(box);
    EXPECT_TRUE(box->isVisible());
    EXPECT_THAT(box->informativeText().toStdString(), HasSubstr(copy.toStdString()));
    EXPECT_THAT(window->messages()->texts(Panel::MessageList::Source::Error).join(QLatin1Char(' ')).toStdString(),
                HasSubstr(copy.toStdString()));
    box->accept();
    EXPECT_TRUE(waitUntil([&] { return box.isNull(); }));
}

TEST_F(PluginsTest, AnEditorInUseElsewhereKeepsThePluginLoaded) {
    QWidget parent;
    auto const editor = Kolt::makeEditor(parameter("lamp.on"), &parent, &window->pools());
    ASSERT_TRUE(editor.widget);
    QString error;
    EXPECT_FALSE(plugins.unload(&error));
    EXPECT_THAT(error.toStdString(), HasSubstr("in use"));
    EXPECT_NE(box("on"), nullptr);
    delete editor.widget;
    EXPECT_TRUE(plugins.unload());
}

TEST_F(PluginsTest, NothingIsClosedWhileCodeOfAPluginIsRunning) {
    QString error;
    ASSERT_TRUE(plugins.load(QStringLiteral(TALO_BAD_PLUGINS "own_value.talo"), &error)) << qPrintable(error);
    QPointer<QCheckBox> const editor = box("on");
    ASSERT_TRUE(editor);
    auto const call = [](std::function<void()> const& function) {
        for (auto const& entry : Kolt::InputRegistry::theRegistry().entries()) {
            if (auto const workshop = entry.creator.strong()->getInterface<OwnValueWorkshop>())
                return workshop->call(function);
        }
        FAIL() << "the plug-in has no workshop";
    };
    call([&] { EXPECT_FALSE(plugins.unload(&error)); });
    EXPECT_THAT(error.toStdString(), testing::EndsWith("own_value.talo cannot be unloaded while its own code is "
                                                       "running."));
    error.clear();
    call([&] { EXPECT_FALSE(plugins.reload(&error)); });
    EXPECT_THAT(error.toStdString(), HasSubstr("its own code is running"));
    EXPECT_TRUE(editor) << "no editor was closed";
    EXPECT_EQ(plugins.loadedFiles().size(), 2);
    EXPECT_TRUE(plugins.unload(&error)) << qPrintable(error);
}

TEST_F(PluginsTest, AValueOfAPluginsOwnTypeKeepsThePluginLoaded) {
    QString error;
    ASSERT_TRUE(plugins.load(QStringLiteral(TALO_BAD_PLUGINS "own_value.talo"), &error)) << qPrintable(error);
    Kolt::ValuePtr kept;
    for (auto const& entry : Kolt::InputRegistry::theRegistry().entries()) {
        if (auto const workshop = entry.creator.strong()->getInterface<OwnValueWorkshop>())
            kept = workshop->makeOwnType();
    }
    ASSERT_TRUE(kept);
    EXPECT_FALSE(plugins.unload(&error));
    EXPECT_THAT(error.toStdString(), HasSubstr("1 value of type Kolt::VValue<OwnValue::Vector>"));
    EXPECT_EQ(plugins.loadedFiles().size(), 1) << "the other file is unloaded";
    kept.reset();
    EXPECT_TRUE(plugins.unload(&error)) << qPrintable(error);
}

TEST_F(PluginsTest, AStandInNamesTypeAndPreferences) {
    Kolt::VParameter parameter("text", Kolt::makeValue(std::string()));
    parameter.setCreationPreferences(Kolt::PreferencesPtr(new Kolt::VCreationPreferences("Save as", "QT")));
    Talo::PlaceholderEditor const standIn(parameter);
    EXPECT_EQ(standIn.text(),
              QStringLiteral("No editor is registered for the type std::string with the preferences {QT, Save as}."));
}

using PanelWithoutPlugins = TaloTest;

TEST_F(PanelWithoutPlugins, CanBeUsedWithoutANetwork) {
    Panel::Plugins plugins;
    Panel::MainWindow window(plugins);
    EXPECT_EQ(window.network(), nullptr);
    EXPECT_EQ(window.currentView(), nullptr);
    EXPECT_FALSE(window.saveValues(QStringLiteral("/nowhere")));
    EXPECT_FALSE(window.choosePool(QStringLiteral("day")));
    window.undo();
}

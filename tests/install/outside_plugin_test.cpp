#include "support/PluginFile.hpp"
#include "support/TestHost.hpp"

#include <dlfcn.h>
#include <lattice/HostObserver.hpp>
#include <lattice/ValueFormat.hpp>
#include <panel/window/MainWindow.hpp>
#include <QLineEdit>
#include <QSpinBox>
#include <QTemporaryDir>

/// A plug-in that was built outside the project, against the installed package only.
class OutsidePluginTest : public TaloTest {
protected:
    Kolt::VInitialization host;
    Kolt::PluginLoader loader{host};
    TestPools pools;
};

TEST_F(OutsidePluginTest, ItsEditorIsChosenByItsPreferenceAndWrites) {
    auto const loaded = loader.load(TALO_OUTSIDE_PLUGIN);
    ASSERT_TRUE(loaded.ok) << loaded.message;
    pools.use(Kolt::PoolPtr(new Kolt::ValuePool));
    {
        Kolt::ParameterPtr const parameter(new Kolt::VParameter("count", Kolt::makeValue(41)));
        parameter->setCreationPreferences(Kolt::PreferencesPtr(new Kolt::VCreationPreferences(std::string("spin"))));
        QWidget parent;
        auto const editor = Kolt::makeEditor(parameter, &parent, &pools);
        ASSERT_TRUE(editor.widget) << editor.choice.explanation;
        parent.show();
        auto* const spinBox = qobject_cast<QSpinBox*>(editor.widget.data());
        ASSERT_NE(spinBox, nullptr);
        EXPECT_EQ(spinBox->value(), 41);
        QTest::keyClick(spinBox, Qt::Key_Up);
        EXPECT_EQ(parameter->ownValue()->Text(), "42");
        EXPECT_FALSE(loader.unload(TALO_OUTSIDE_PLUGIN).ok) << "an editor of it lives";
    }
    auto const unloaded = loader.unload(TALO_OUTSIDE_PLUGIN);
    EXPECT_TRUE(unloaded.ok) << unloaded.message;
    EXPECT_EQ(dlopen(TALO_OUTSIDE_PLUGIN, RTLD_NOW | RTLD_NOLOAD), nullptr);
}

TEST_F(OutsidePluginTest, ASecondOneWithSeveralEditorsWorksBesideIt) {
    ASSERT_TRUE(loader.load(TALO_OUTSIDE_PLUGIN).ok);
    auto const loaded = loader.load(TALO_OUTSIDE_MORE_PLUGIN);
    ASSERT_TRUE(loaded.ok) << loaded.message;
    pools.use(Kolt::PoolPtr(new Kolt::ValuePool));
    {
        Kolt::ParameterPtr const parameter(new Kolt::VParameter("count", Kolt::makeValue(41)));
        parameter->setCreationPreferences(Kolt::PreferencesPtr(new Kolt::VCreationPreferences(std::string("field"))));
        QWidget parent;
        auto const editor = Kolt::makeEditor(parameter, &parent, &pools);
        ASSERT_TRUE(editor.widget) << editor.choice.explanation;
        parent.show();
        QTest::keyClick(editor.widget, Qt::Key_Up);
        EXPECT_EQ(parameter->ownValue()->Text(), "42");
    }
    EXPECT_TRUE(loader.unload(TALO_OUTSIDE_MORE_PLUGIN).ok);
    EXPECT_EQ(dlopen(TALO_OUTSIDE_MORE_PLUGIN, RTLD_NOW | RTLD_NOLOAD), nullptr);
}

TEST_F(OutsidePluginTest, ItReportsToTheHostWhenItIsLoadedAndUnloaded) {
    struct Observer : Kolt::HostObserver {
        Observer() { setObserver(this); }
        ~Observer() override { setObserver(nullptr); }
        void creatorRegistered(std::string const&, Kolt::VInputCreatorBase const&) override {
            events.emplace_back("registered");
        }
        void creatorUnregistered(std::string const&, Kolt::VInputCreatorBase const&) override {
            events.emplace_back("unregistered");
        }
        void pluginCalled(Kolt::VInitialization::InitPluginReason reason, std::string const& plugin,
                          std::string const& key) override {
            events.push_back(std::to_string(reason) + " " + plugin + " " + key);
        }
        std::vector<std::string> events;
    } const observer;
    ASSERT_TRUE(loader.load(TALO_OUTSIDE_PLUGIN).ok);
    ASSERT_TRUE(loader.unload(TALO_OUTSIDE_PLUGIN).ok);
    EXPECT_EQ(observer.events, (std::vector<std::string>{"registered", "0 spin_inputs TALO_API_VERSION",
                                                         "1 spin_inputs TALO_API_VERSION", "unregistered"}));
}

TEST_F(OutsidePluginTest, ItsEditorWorksInThePanel) {
    QTemporaryDir const folder;
    QFile file(folder.filePath(QLatin1String("counter.json")));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(R"({ "title": "Counter", "pools": ["only"], "objects": [ { "name": "counter", "parameters": [
        { "name": "count", "type": "int", "value": 41, "preferences": ["spin"] } ] } ] })");
    file.close();

    Panel::Plugins plugins;
    QString error;
    ASSERT_TRUE(plugins.load(QString::fromUtf8(pluginFile), &error)) << qPrintable(error);
    ASSERT_TRUE(plugins.load(QString::fromUtf8(TALO_OUTSIDE_PLUGIN), &error)) << qPrintable(error);
    {
        Panel::MainWindow window(plugins);
        ASSERT_TRUE(window.openNetwork(file.fileName(), &error)) << qPrintable(error);
        window.show();
        auto const* const view = window.currentView();
        ASSERT_NE(view, nullptr);
        auto* const spinBox = view->findChild<QSpinBox*>();
        ASSERT_NE(spinBox, nullptr);
        QTest::keyClick(spinBox, Qt::Key_Up);
        EXPECT_EQ(window.network()->findParameter(QLatin1String("counter.count"))->ownValue()->Text(), "42");
    }
    EXPECT_TRUE(plugins.unload(&error)) << qPrintable(error);
}

TEST_F(OutsidePluginTest, AValueTypeOfItsOwnWorksInThePanelAndLeavesNothing) {
    Panel::Plugins plugins;
    QString error;
    ASSERT_TRUE(plugins.load(QString::fromUtf8(pluginFile), &error)) << qPrintable(error);
    ASSERT_TRUE(plugins.load(QString::fromUtf8(TALO_OUTSIDE_VECTOR_PLUGIN), &error)) << qPrintable(error);
    {
        Panel::MainWindow window(plugins);
        ASSERT_TRUE(window.openNetwork(QStringLiteral(TALO_VECTOR_NETWORK), &error)) << qPrintable(error);
        window.show();
        auto* const row = window.currentView()->row(QStringLiteral("target"));
        auto const fields = row->editor()->findChildren<QLineEdit*>();
        ASSERT_EQ(fields.size(), 3);
        fields[0]->setText(QStringLiteral("2.5"));
        QTest::keyClick(fields[0], Qt::Key_Return);
        EXPECT_EQ(window.network()->findParameter(QStringLiteral("camera.target"))->ownValue()->Text(), "2.5 1 0");
        window.undo();
        EXPECT_EQ(fields[0]->text(), QStringLiteral("0"));
    }
    EXPECT_NE(Kolt::VValueFormat::ofKey("vector3"), nullptr);
    EXPECT_TRUE(plugins.unload(&error)) << qPrintable(error);
    EXPECT_EQ(dlopen(TALO_OUTSIDE_VECTOR_PLUGIN, RTLD_NOW | RTLD_NOLOAD), nullptr);
    EXPECT_EQ(Kolt::VValueFormat::ofKey("vector3"), nullptr) << "its code is gone";
    EXPECT_FALSE(Kolt::VValueCreator::create("VectorInputs::Vector3"));
}

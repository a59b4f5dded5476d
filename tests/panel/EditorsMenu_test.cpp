// View > Editors in the panel, with both plug-ins.

#include "PanelTest.hpp"
#include "support/PluginFile.hpp"

#include <panel/window/Session.hpp>
#include <QAbstractSpinBox>
#include <QMenu>
#include <QSlider>

namespace {

class EditorsMenuTest : public PanelTest {
protected:
    void SetUp() override {
        PanelTest::SetUp();
        QString error;
        ASSERT_TRUE(plugins.load(QStringLiteral(TALO_MORE_PLUGIN_FILE), &error)) << qPrintable(error);
        settings = folder.filePath(QStringLiteral("settings/panel.ini"));
        start();
    }

    void start() {
        auto const network = window->network()->file();
        session.reset();
        window = std::make_unique<Panel::MainWindow>(plugins);
        QString error;
        ASSERT_TRUE(window->openNetwork(network, &error)) << qPrintable(error);
        session = std::make_unique<Panel::Session>(settings);
        session->follow(*window);
        window->showObject(QStringLiteral("second lamp"));
        window->show();
        window->activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(window.get()));
    }
    QWidget* editor(char const* name) const { return window->currentView()->row(QLatin1String(name))->editor(); }
    bool isField(char const* name) const { return qobject_cast<QAbstractSpinBox*>(editor(name)); }
    bool isSlider(char const* name) const { return editor(name)->findChild<QSlider*>(); }
    /// Opens the menu for the row that has the focus. Submenu 0 is for the parameter, 1 for its type.
    QAction* choice(int submenu, char const* creator) const {
        auto* const menu = window->findChild<QMenu*>(QStringLiteral("editors"));
        emit menu->aboutToShow();
        auto const submenus = menu->findChildren<QMenu*>(QString(), Qt::FindDirectChildrenOnly);
        for (auto* const action : submenus.value(submenu)->actions())
            if (!action->isSeparator() && action->data().toString() == QLatin1String(creator))
                return action;
        return nullptr;
    }
    void focus(char const* name) const { editor(name)->setFocus(); }

    static constexpr char field[] = "field {QT, field}";
    QString settings;
    std::unique_ptr<Panel::Session> session;
};

} // namespace

TEST_F(EditorsMenuTest, ChoosesForTheRowThatHasTheFocus) {
    ASSERT_TRUE(isSlider("level"));
    focus("level");
    ASSERT_NE(choice(0, field), nullptr);
    EXPECT_EQ(choice(0, "switch {QT, switch}"), nullptr) << "of another type";
    choice(0, field)->trigger();
    EXPECT_TRUE(isField("level"));
    EXPECT_TRUE(choice(0, field)->isChecked());
    EXPECT_FALSE(window->isWindowModified());
    EXPECT_TRUE(window->history().steps().empty());
    choice(0, "")->trigger();
    EXPECT_TRUE(isSlider("level"));
}

TEST_F(EditorsMenuTest, WithoutARowThereIsNothingToChoose) {
    window->findChild<QLineEdit*>(QStringLiteral("filter"))->setFocus();
    auto* const menu = window->findChild<QMenu*>(QStringLiteral("editors"));
    emit menu->aboutToShow();
    ASSERT_EQ(menu->actions().size(), 1);
    EXPECT_FALSE(menu->actions().first()->isEnabled());
    EXPECT_TRUE(menu->findChildren<QMenu*>().isEmpty());
}

TEST_F(EditorsMenuTest, AllViewsAndObjectsFollowATypesChoice) {
    auto* const view = window->addView();
    focus("on");
    choice(1, "switch {QT, switch}")->trigger();
    EXPECT_STREQ(editor("on")->metaObject()->className(), "MoreInputs::SwitchInput");
    EXPECT_STREQ(view->row(QStringLiteral("on"))->editor()->metaObject()->className(), "MoreInputs::SwitchInput");
    window->showObject(QStringLiteral("lamp"));
    EXPECT_STREQ(editor("steady")->metaObject()->className(), "MoreInputs::SwitchInput");
}

TEST_F(EditorsMenuTest, TheSessionRemembersBothKinds) {
    focus("level");
    choice(0, field)->trigger();
    focus("on");
    choice(1, "switch {QT, switch}")->trigger();
    ASSERT_TRUE(window->close());
    start();
    EXPECT_TRUE(isField("level"));
    EXPECT_STREQ(editor("on")->metaObject()->className(), "MoreInputs::SwitchInput");

    // Another network has other parameters; the types are the same.
    QString error;
    ASSERT_TRUE(window->openNetwork(networkFile("other.json", lamps), &error)) << qPrintable(error);
    window->showObject(QStringLiteral("second lamp"));
    EXPECT_TRUE(isSlider("level"));
    EXPECT_STREQ(editor("on")->metaObject()->className(), "MoreInputs::SwitchInput");
    ASSERT_TRUE(window->openNetwork(folder.filePath(QStringLiteral("lamps.json")), &error)) << qPrintable(error);
    window->showObject(QStringLiteral("second lamp"));
    EXPECT_TRUE(isField("level"));
}

TEST_F(EditorsMenuTest, AChoiceIsKeptWhileItsPluginIsUnloaded) {
    focus("level");
    choice(0, field)->trigger();
    QString error;
    ASSERT_TRUE(plugins.unload(&error)) << qPrintable(error);
    ASSERT_TRUE(plugins.load(QString::fromUtf8(pluginFile), &error)) << qPrintable(error);
    EXPECT_TRUE(isSlider("level"));
    focus("level");
    ASSERT_NE(choice(0, field), nullptr);
    EXPECT_EQ(choice(0, field)->text(), QStringLiteral("field {QT, field} is not loaded"));
    EXPECT_FALSE(choice(0, field)->isEnabled());
    ASSERT_TRUE(plugins.load(QStringLiteral(TALO_MORE_PLUGIN_FILE), &error)) << qPrintable(error);
    EXPECT_TRUE(isField("level"));
}

TEST_F(EditorsMenuTest, AFilledInRangeBindsNoFieldAfterwards) {
    // The slider fills in a range from 0 to 99 for a parameter without one.
    ASSERT_TRUE(isSlider("level"));
    focus("level");
    choice(0, field)->trigger();
    focus("level");
    editor("level")->findChild<QLineEdit*>()->selectAll();
    QTest::keyClicks(editor("level"), QStringLiteral("1000\r"));
    EXPECT_EQ(valueOf("second lamp.level"), "1000");
}

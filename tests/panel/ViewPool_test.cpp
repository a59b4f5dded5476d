#include "PanelTest.hpp"

#include <panel/window/Session.hpp>
#include <panel/window/ViewDock.hpp>
#include <QComboBox>
#include <QMenu>
#include <QTextEdit>

using testing::ElementsAre;

namespace {

class ViewPoolTest : public PanelTest {
protected:
    void SetUp() override {
        PanelTest::SetUp();
        window->show();
        window->activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(window.get()));
    }

    /// Opens a view from the menu, as a user does.
    Panel::ViewDock* openView(char const* pool) const {
        auto* const menu = window->findChild<QMenu*>(QStringLiteral("viewPoolMenu"));
        emit menu->aboutToShow();
        for (auto* const each : menu->actions())
            if (each->text() == QString::fromUtf8(pool))
                each->trigger();
        auto const docks = window->findChildren<Panel::ViewDock*>();
        return docks.isEmpty() ? nullptr : docks.last();
    }
    static Panel::ObjectView* view(Panel::ViewDock const* dock) {
        return static_cast<Panel::ObjectView*>(dock->widget());
    }
    static QComboBox* selector(Panel::ViewDock const* dock) {
        return dock->findChild<QComboBox*>(QStringLiteral("viewPool"));
    }
    std::string textIn(char const* name, char const* pool) const {
        return parameter(name)->effectiveValue(window->network()->findPool(QString::fromUtf8(pool)))->Text();
    }
    std::vector<std::string> titles() const {
        std::vector<std::string> all;
        for (auto const* const dock : window->findChildren<Panel::ViewDock*>())
            all.push_back(dock->windowTitle().toStdString());
        return all;
    }
};

} // namespace

TEST_F(ViewPoolTest, AViewOnAnotherPoolShowsAndEditsThatPool) {
    auto* const dock = openView("night");
    ASSERT_NE(dock, nullptr);
    EXPECT_EQ(dock->windowTitle(), QStringLiteral("lamp in pool night"));
    EXPECT_TRUE(waitUntil([&] { return box(view(dock), "on") != nullptr; }));
    EXPECT_TRUE(box(view(dock), "on")->isChecked());
    EXPECT_FALSE(box("on")->isChecked());
    QTest::mouseClick(box(view(dock), "on"), Qt::LeftButton);
    EXPECT_EQ(textIn("lamp.on", "night"), "false");
    QTest::mouseClick(box("on"), Qt::LeftButton);
    EXPECT_EQ(textIn("lamp.on", "day"), "true");
    EXPECT_FALSE(box(view(dock), "on")->isChecked());
}

TEST_F(ViewPoolTest, AnEditInAViewIsUndoneInItsPool) {
    auto* const dock = openView("night");
    EXPECT_TRUE(waitUntil([&] { return box(view(dock), "on") != nullptr; }));
    QTest::mouseClick(box(view(dock), "on"), Qt::LeftButton);
    EXPECT_TRUE(waitUntil([&] { return action("undo")->isEnabled(); }));
    action("undo")->trigger();
    EXPECT_EQ(textIn("lamp.on", "night"), "true");
    EXPECT_EQ(textIn("lamp.on", "day"), "false");
    EXPECT_TRUE(box(view(dock), "on")->isChecked());
}

TEST_F(ViewPoolTest, AViewKeepsItsPoolWhenTheWindowHasAnother) {
    auto* const own = openView("day");
    auto* const following = qobject_cast<Panel::ViewDock*>(window->addView()->parentWidget());
    EXPECT_TRUE(waitUntil([&] { return box(view(own), "on") && box(view(following), "on"); }));
    window->choosePool(QStringLiteral("night"));
    EXPECT_FALSE(box(view(own), "on")->isChecked());
    EXPECT_TRUE(box(view(following), "on")->isChecked());
    EXPECT_THAT(titles(), ElementsAre("lamp in pool day", "lamp"));
}

TEST_F(ViewPoolTest, ThePoolOfAViewIsChosenInItsHead) {
    auto* const dock = qobject_cast<Panel::ViewDock*>(window->addView()->parentWidget());
    EXPECT_TRUE(waitUntil([&] { return box(view(dock), "on") && selector(dock)->isVisible(); }));
    selector(dock)->setFocus();
    QTest::keyClick(selector(dock), Qt::Key_End);
    EXPECT_EQ(selector(dock)->currentText(), QStringLiteral("night"));
    EXPECT_TRUE(box(view(dock), "on")->isChecked());
    EXPECT_EQ(dock->windowTitle(), QStringLiteral("lamp in pool night"));
    QTest::keyClick(selector(dock), Qt::Key_Home);
    EXPECT_FALSE(box(view(dock), "on")->isChecked());
    EXPECT_EQ(dock->windowTitle(), QStringLiteral("lamp"));
}

TEST_F(ViewPoolTest, AViewThatIsClosedIsGone) {
    QPointer<Panel::ViewDock> const dock = openView("night");
    ASSERT_TRUE(dock);
    auto* const button = dock->findChild<QAbstractButton*>(QStringLiteral("qt_dockwidget_closebutton"));
    ASSERT_NE(button, nullptr);
    EXPECT_TRUE(waitUntil([&] { return button->isVisible(); }));
    QTest::mouseClick(button, Qt::LeftButton);
    EXPECT_TRUE(waitUntil([&] { return dock.isNull(); }));
    EXPECT_TRUE(titles().empty());
    set("lamp.on", "true");
    EXPECT_TRUE(box("on")->isChecked()) << "the form is still there";
}

TEST_F(ViewPoolTest, ATypedTextGoesToThePoolInWhichItWasTyped) {
    ASSERT_TRUE(window->openNetwork(networkFile("note.json", R"({ "pools": ["day", "night"], "objects": [
        { "name": "note", "parameters": [ { "name": "text", "type": "string", "value": "a", "perPool": true,
          "preferences": ["MultiLine"] } ] } ] })")));
    auto* const dock = openView("night");
    EXPECT_TRUE(waitUntil([&] { return view(dock)->row(QStringLiteral("text"))->editor() != nullptr; }));
    auto* const field = qobject_cast<QTextEdit*>(view(dock)->row(QStringLiteral("text"))->editor());
    ASSERT_NE(field, nullptr);
    field->setFocus();
    field->selectAll();
    QTest::keyClicks(field, "typed");
    // The last letter waits for the field to be left.
    ASSERT_EQ(textIn("note.text", "night"), "type");
    dock->setOwnPool(nullptr);
    EXPECT_EQ(textIn("note.text", "night"), "typed");
    EXPECT_EQ(textIn("note.text", "day"), "a");
}

TEST_F(ViewPoolTest, TheSessionRemembersThePoolsOfViews) {
    auto const file = folder.filePath(QStringLiteral("session.ini"));
    auto const network = window->network()->file();
    {
        Panel::Session session(file);
        session.follow(*window);
        openView("night");
        window->addView();
        openView("day");
        ASSERT_TRUE(window->close());
    }
    window = std::make_unique<Panel::MainWindow>(plugins);
    ASSERT_TRUE(window->openNetwork(network));
    Panel::Session session(file);
    session.follow(*window);
    EXPECT_THAT(titles(), ElementsAre("lamp in pool night", "lamp", "lamp in pool day"));
    // A pool that is not there any more is that of the window.
    auto const other = networkFile("lamps.json", R"({ "pools": ["day"], "objects": [ { "name": "lamp" } ] })");
    ASSERT_EQ(other, network);
    ASSERT_TRUE(window->openNetwork(other));
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_THAT(titles(), ElementsAre("lamp", "lamp", "lamp in pool day"));
}

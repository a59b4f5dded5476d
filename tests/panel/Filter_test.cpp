#include "PanelTest.hpp"

#include <QLineEdit>
#include <QToolBar>

using testing::ElementsAre;
using testing::IsEmpty;

namespace {

class FilterTest : public PanelTest {
protected:
    void SetUp() override {
        PanelTest::SetUp();
        window->show();
        window->activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(window.get()));
    }

    QLineEdit* field() const { return window->findChild<QLineEdit*>(QStringLiteral("filter")); }
    /// Replaces the field's text by typing, as a user does.
    void look(char const* words) {
        field()->setFocus();
        field()->selectAll();
        QTest::keyClicks(field(), words);
    }
    std::vector<std::string> objects() const {
        std::vector<std::string> names;
        auto const* const list = window->objectList();
        for (auto const& row : list->objects()->allRows())
            if (!list->isRowHidden(row.row(), row.parent()))
                names.push_back(row.data().toString().toStdString());
        return names;
    }
    static std::vector<std::string> parameters(Panel::ObjectView const* view) {
        std::vector<std::string> names;
        for (auto const* const row : view->rows())
            if (row->isVisible())
                names.push_back(row->parameterName().toStdString());
        return names;
    }
    std::vector<std::string> parameters() const { return parameters(window->currentView()); }
};

} // namespace

TEST_F(FilterTest, FindsParametersByTheirNames) {
    look("on");
    EXPECT_THAT(objects(), ElementsAre("lamp", "second lamp"));
    EXPECT_THAT(parameters(), ElementsAre("on"));
    look("PAINT");
    EXPECT_THAT(objects(), ElementsAre("lamp"));
    EXPECT_THAT(parameters(), ElementsAre("housing.painted"));
}

TEST_F(FilterTest, FindsParametersByTheirObjects) {
    look("second");
    EXPECT_THAT(objects(), ElementsAre("second lamp"));
    EXPECT_EQ(window->currentView()->object(), window->network()->findObject(QStringLiteral("second lamp")));
    EXPECT_THAT(parameters(), ElementsAre("on", "start", "level"));
}

TEST_F(FilterTest, FindsParametersByTheirValuesInTheChosenPool) {
    look("5");
    EXPECT_THAT(objects(), ElementsAre("second lamp"));
    EXPECT_THAT(parameters(), ElementsAre("level"));
    window->choosePool(QStringLiteral("night"));
    EXPECT_THAT(objects(), IsEmpty());
    look("2");
    EXPECT_THAT(parameters(), ElementsAre("level"));
}

TEST_F(FilterTest, FindsParametersByTheKindsOfTheirObjects) {
    look("light SOURCE");
    EXPECT_THAT(objects(), ElementsAre("lamp"));
    EXPECT_THAT(parameters(), ElementsAre("on", "steady", "housing.painted"));
    look("source paint");
    EXPECT_THAT(parameters(), ElementsAre("housing.painted"));
}

TEST_F(FilterTest, SaysHowManyParametersAndObjectsItFound) {
    auto const* const found = window->findChild<QLabel*>(QStringLiteral("found"));
    EXPECT_EQ(found->text(), QString());
    look("lamp.on");
    EXPECT_EQ(found->text(), QStringLiteral("2 parameters · 2 objects"));
    look("level");
    EXPECT_EQ(found->text(), QStringLiteral("1 parameter · 1 object"));
    look("nowhere");
    EXPECT_EQ(found->text(), QStringLiteral("0 parameters · 0 objects"));
    EXPECT_TRUE(found->isVisible());
    QTest::keyClick(field(), Qt::Key_Escape);
    EXPECT_EQ(found->text(), QString());
}

TEST_F(FilterTest, DoesNotCountWhatTheObjectHidesNow) {
    ASSERT_TRUE(window->openNetwork(networkFile("hidden.json", R"({ "pools": ["a"], "objects": [
        { "name": "lamp", "parameters": [
            { "name": "on", "type": "bool", "value": false },
            { "name": "on time", "type": "int", "value": 3, "properties": { "visibleWhen": "on=true" } } ] } ] })")));
    auto const* const found = window->findChild<QLabel*>(QStringLiteral("found"));
    look("on");
    EXPECT_THAT(parameters(), ElementsAre("on"));
    EXPECT_EQ(found->text(), QStringLiteral("1 parameter · 1 object"));
    set("lamp.on", "true");
    look("lamp.on");
    EXPECT_EQ(found->text(), QStringLiteral("2 parameters · 1 object"));
}

TEST_F(FilterTest, WantsEachWordSomewhere) {
    look("lamp.steady true");
    EXPECT_THAT(objects(), ElementsAre("lamp"));
    EXPECT_THAT(parameters(), ElementsAre("steady"));
    look("steady false");
    EXPECT_THAT(objects(), IsEmpty());
    EXPECT_THAT(parameters(), IsEmpty());
}

TEST_F(FilterTest, ClearedShowsEverythingAgain) {
    look("steady");
    ASSERT_THAT(objects(), ElementsAre("lamp"));
    QTest::keyClick(field(), Qt::Key_Escape);
    EXPECT_EQ(field()->text(), QString());
    EXPECT_THAT(objects(), ElementsAre("lamp", "second lamp"));
    EXPECT_THAT(parameters(), ElementsAre("on", "steady", "housing.painted"));
    look(" ");
    EXPECT_THAT(parameters(), ElementsAre("on", "steady", "housing.painted"));
}

TEST_F(FilterTest, AParameterStaysWhileItIsEdited) {
    look("steady true");
    ASSERT_THAT(parameters(), ElementsAre("steady"));
    QTest::mouseClick(box("steady"), Qt::LeftButton);
    EXPECT_EQ(valueOf("lamp.steady"), "false");
    EXPECT_THAT(parameters(), ElementsAre("steady"));
}

TEST_F(FilterTest, IsReachedByAKeyAndLeadsToWhatItFound) {
    QTest::keyClick(window.get(), Qt::Key_F, Qt::ControlModifier);
    ASSERT_EQ(QApplication::focusWidget(), field());
    QTest::keyClicks(field(), "level");
    QTest::keyClick(field(), Qt::Key_Return);
    EXPECT_TRUE(window->currentView()->row(QStringLiteral("level"))->isAncestorOf(QApplication::focusWidget()));
}

TEST_F(FilterTest, TheKeyShowsAFieldThatHasNoRoom) {
    window->resize(window->minimumSizeHint().width(), 600);
    waitUntil([this] { return !field()->isVisible(); });
    ASSERT_FALSE(field()->isVisible());
    QTest::keyClick(window.get(), Qt::Key_F, Qt::ControlModifier);
    EXPECT_TRUE(field()->isVisible());
    EXPECT_TRUE(field()->hasFocus());
}

TEST_F(FilterTest, TheKeyShowsAToolBarThatIsHidden) {
    window->findChild<QToolBar*>()->hide();
    ASSERT_FALSE(field()->isVisible());
    QTest::keyClick(window.get(), Qt::Key_F, Qt::ControlModifier);
    EXPECT_TRUE(field()->isVisible());
    EXPECT_TRUE(field()->hasFocus());
}

TEST_F(FilterTest, LeadsToTheEditorAndNotToWhatResetsIt) {
    QTest::mouseClick(box("steady"), Qt::LeftButton);
    auto const* const row = window->currentView()->row(QStringLiteral("steady"));
    ASSERT_TRUE(row->modifiedIndicator()->isVisible());
    look("steady");
    QTest::keyClick(field(), Qt::Key_Return);
    EXPECT_EQ(QApplication::focusWidget(), box("steady"));
}

TEST_F(FilterTest, HoldsForViewsMadeLaterAndNotForAnotherNetwork) {
    look("painted");
    auto* const view = window->addView();
    EXPECT_TRUE(waitUntil([&] { return !parameters(view).empty(); }));
    EXPECT_THAT(parameters(view), ElementsAre("housing.painted"));
    ASSERT_TRUE(window->openNetwork(networkFile("again.json", lamps)));
    EXPECT_EQ(field()->text(), QString());
    EXPECT_THAT(objects(), ElementsAre("lamp", "second lamp"));
}

TEST_F(FilterTest, WithoutAMatchSaysSo) {
    look("nowhere");
    EXPECT_THAT(parameters(), IsEmpty());
    EXPECT_TRUE(window->currentView()->findChild<QLabel*>(QStringLiteral("emptyNote"))->isVisible());
    look("steady");
    EXPECT_FALSE(window->currentView()->findChild<QLabel*>(QStringLiteral("emptyNote"))->isVisible());
}

TEST_F(FilterTest, KeepsTheViewsOfTheObjectsChosenLast) {
    QPointer<Panel::ObjectView> const first = window->currentView();
    window->showObject(QStringLiteral("second lamp"));
    window->showObject(QStringLiteral("lamp"));
    EXPECT_EQ(window->currentView(), first);
}

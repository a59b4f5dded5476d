#include "PanelTest.hpp"

using testing::ElementsAre;
using testing::IsEmpty;

namespace {

class OnlyChangedTest : public PanelTest {
protected:
    void SetUp() override {
        PanelTest::SetUp();
        window->show();
        window->activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(window.get()));
    }

    /// Presses the button beside the filter.
    void press() const {
        for (auto* const button : window->findChildren<QToolButton*>())
            if (button->isVisible() && button->defaultAction() == action("onlyChanged"))
                QTest::mouseClick(button, Qt::LeftButton);
    }
    std::vector<std::string> objects() const {
        std::vector<std::string> names;
        auto const* const list = window->objectList();
        for (auto const& row : list->objects()->allRows())
            if (!list->isRowHidden(row.row(), row.parent()))
                names.push_back(row.data().toString().toStdString());
        return names;
    }
    std::vector<std::string> parameters() const {
        std::vector<std::string> names;
        for (auto const* const row : window->currentView()->rows())
            if (row->isVisible())
                names.push_back(row->parameterName().toStdString());
        return names;
    }
    std::string note() const {
        auto const* const label = window->currentView()->findChild<QLabel*>(QStringLiteral("emptyNote"));
        return label->isVisible() ? label->text().toStdString() : std::string();
    }
    std::string found() const { return window->findChild<QLabel*>(QStringLiteral("found"))->text().toStdString(); }
};

} // namespace

TEST_F(OnlyChangedTest, ShowsTheParametersThatDifferFromTheirDefaultsAndTheirObjects) {
    press();
    EXPECT_TRUE(action("onlyChanged")->isChecked());
    EXPECT_THAT(objects(), IsEmpty());
    EXPECT_EQ(note(), "No parameter of this object differs from its default.");
    press();
    QTest::mouseClick(box("steady"), Qt::LeftButton);
    set("second lamp.level", "7");
    press();
    EXPECT_THAT(objects(), ElementsAre("lamp", "second lamp"));
    EXPECT_THAT(parameters(), ElementsAre("steady"));
    EXPECT_EQ(found(), "2 parameters · 2 objects");
    window->showObject(QStringLiteral("second lamp"));
    EXPECT_THAT(parameters(), ElementsAre("level"));
    press();
    EXPECT_THAT(parameters(), ElementsAre("on", "start", "level"));
    EXPECT_EQ(found(), "");
}

TEST_F(OnlyChangedTest, ComparesInTheChosenPool) {
    set("second lamp.level", "7");
    press();
    EXPECT_THAT(objects(), ElementsAre("second lamp"));
    window->choosePool(QStringLiteral("night"));
    EXPECT_THAT(objects(), IsEmpty());
}

TEST_F(OnlyChangedTest, AParameterStaysWhileItIsEdited) {
    QTest::mouseClick(box("steady"), Qt::LeftButton);
    press();
    ASSERT_THAT(parameters(), ElementsAre("steady"));
    // Back to its default.
    QTest::mouseClick(box("steady"), Qt::LeftButton);
    EXPECT_EQ(valueOf("lamp.steady"), "true");
    EXPECT_THAT(parameters(), ElementsAre("steady"));
    press();
    press();
    EXPECT_THAT(objects(), IsEmpty());
}

TEST_F(OnlyChangedTest, GoesTogetherWithWords) {
    QTest::mouseClick(box("steady"), Qt::LeftButton);
    set("lamp.on", "true");
    press();
    EXPECT_THAT(parameters(), ElementsAre("on", "steady"));
    window->setFilter(QStringLiteral("stead"));
    EXPECT_THAT(parameters(), ElementsAre("steady"));
    window->setFilter(QStringLiteral("second"));
    EXPECT_THAT(objects(), IsEmpty());
}

TEST_F(OnlyChangedTest, HoldsForViewsMadeLaterAndNotForAnotherNetwork) {
    QTest::mouseClick(box("steady"), Qt::LeftButton);
    press();
    auto const* const view = window->addView();
    EXPECT_TRUE(waitUntil([&] { return view->rows().size() == 1 && view->rows().front()->isVisible(); }));
    EXPECT_TRUE(view->panel()->onlyChanged());
    ASSERT_TRUE(window->openNetwork(networkFile("again.json", lamps)));
    EXPECT_FALSE(action("onlyChanged")->isChecked());
    EXPECT_THAT(objects(), ElementsAre("lamp", "second lamp"));
}

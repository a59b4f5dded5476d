#include "PanelTest.hpp"

#include <panel/MissingEditor.hpp>
#include <QGroupBox>
#include <thread>

using testing::HasSubstr;

namespace {

class ObjectViewTest : public PanelTest {
protected:
    Panel::ParameterRow* row(char const* name) const { return window->currentView()->row(QString::fromUtf8(name)); }
};

} // namespace

TEST_F(ObjectViewTest, GroupsParametersByWhatStandsBeforeTheLastDot) {
    auto const boxes = window->currentView()->findChildren<QGroupBox*>();
    ASSERT_EQ(boxes.size(), 2);
    EXPECT_EQ(boxes[0]->title(), QString());
    EXPECT_EQ(boxes[1]->title(), QStringLiteral("housing"));
    EXPECT_TRUE(boxes[0]->isAncestorOf(row("on")));
    EXPECT_TRUE(boxes[1]->isAncestorOf(row("housing.painted")));
    ASSERT_EQ(window->currentView()->rows().size(), 3U);
    EXPECT_EQ(window->currentView()->row(QStringLiteral("dimmed")), nullptr);
}

TEST_F(ObjectViewTest, AParameterPerPoolNamesThePoolThatIsEdited) {
    EXPECT_EQ(row("on")->noteLabel()->text(), QStringLiteral("in pool day"));
    EXPECT_TRUE(row("steady")->noteLabel()->text().isEmpty());
    window->choosePool(QStringLiteral("night"));
    EXPECT_EQ(row("on")->noteLabel()->text(), QStringLiteral("in pool night"));
}

TEST_F(ObjectViewTest, NamesOfAllRowsAreAsWideAsTheWidest) {
    window->show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(window.get()));
    int const left = row("on")->editor()->x();
    for (auto const* const each : window->currentView()->rows()) {
        EXPECT_EQ(each->editor()->x(), left) << qPrintable(each->parameterName());
        EXPECT_GE(each->nameLabel()->width(), each->nameLabel()->sizeHint().width());
    }
}

TEST_F(ObjectViewTest, TheRawValueFollowsWithItsAge) {
    auto const* const raw = row("steady")->rawValue();
    EXPECT_EQ(raw->text(), QStringLiteral("true"));
    QTest::mouseClick(box("steady"), Qt::LeftButton);
    EXPECT_TRUE(waitUntil([&] { return raw->text() == QStringLiteral("false"); }));
    // The stamp that the edit gave at its end, not the one that stood while everybody was told.
    EXPECT_EQ(raw->stamp(), QStringLiteral("age %1").arg(parameter("lamp.steady")->ownValue()->age()));
    EXPECT_GT(parameter("lamp.steady")->ownValue()->age(), 0U);
}

TEST_F(ObjectViewTest, TheRawValueTellsThePoolsValueFromTheParametersOwn) {
    auto const* const raw = row("on")->rawValue();
    EXPECT_EQ(raw->text(), QStringLiteral("false"));
    EXPECT_THAT(raw->stamp().toStdString(), HasSubstr("own value"));
    window->choosePool(QStringLiteral("night"));
    EXPECT_EQ(raw->text(), QStringLiteral("true"));
    EXPECT_THAT(raw->stamp().toStdString(), HasSubstr("pool night"));
}

TEST_F(ObjectViewTest, TheRawValueHearsOfAChangeOnAnotherThread) {
    // A parameter without an editor: only the raw value may be told from elsewhere.
    Kolt::ParameterPtr const status(new Kolt::VParameter("status", Kolt::makeValue(std::string("idle"))));
    Panel::RawValue const raw(status, window->pools());
    EXPECT_EQ(raw.text(), QStringLiteral("idle"));
    std::thread([&] {
        dynamic_cast<Kolt::VValue<std::string>&>(*status->ownValue()).set("busy");
        status->notifyValueChange(status->ownValue(), nullptr, std::string(), nullptr, nullptr, nullptr);
    }).join();
    EXPECT_TRUE(waitUntil([&] { return raw.text() == QStringLiteral("busy"); }));
}

TEST_F(ObjectViewTest, ADeletedParameterLeavesItsRowUsableWithANote) {
    window->show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(window.get()));
    window->tapStandardOutput();
    auto const lamp = window->network()->findObject(QStringLiteral("lamp"));
    lamp->removeParameter(lamp->findParameter("steady"));
    EXPECT_TRUE(waitUntil([&] { return row("steady")->noteLabel()->text() == QStringLiteral("was removed"); }));
    EXPECT_EQ(row("on")->noteLabel()->text(), QStringLiteral("in pool day"));

    auto const line = QStringLiteral("**POSSIBLE INTERNAL FAULT**: VInputBase without owner? That's not good.");
    QTest::mouseClick(box("steady"), Qt::LeftButton);
    EXPECT_TRUE(
        waitUntil([&] { return window->messages()->texts(Panel::MessageList::Source::Output).contains(line); }));
    EXPECT_EQ(takeOutput(), std::vector<std::string>{line.toStdString()});

    window->choosePool(QStringLiteral("night"));
    window->currentView()->closeEditors();
    window->currentView()->openEditors();
    EXPECT_EQ(row("steady")->editor(), nullptr);
    EXPECT_TRUE(box("on")->isChecked());
}

TEST_F(ObjectViewTest, AnObjectThatIsGoneLeavesItsViewStanding) {
    Panel::ObjectView* view = nullptr;
    QWidget parent;
    {
        Kolt::ObjectPtr const object(new Kolt::VObject("short-lived"));
        object->addParameter(Kolt::ParameterPtr(new Kolt::VParameter("flag", Kolt::makeValue(true))));
        view = new Panel::ObjectView(object, QString(), window->pools(), &parent);
        EXPECT_TRUE(box(view, "flag")->isChecked());
    }
    EXPECT_EQ(view->object(), nullptr);
    view->showPool();
    EXPECT_EQ(view->rows().front()->noteLabel()->text(), QStringLiteral("was removed"));
    EXPECT_EQ(view->rows().front()->rawValue()->stamp(), QStringLiteral("removed"));
}

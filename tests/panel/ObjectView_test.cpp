#include "PanelTest.hpp"

#include <parameters/rows/PlaceholderEditor.hpp>
#include <QDial>
#include <QGroupBox>
#include <QLineEdit>
#include <QScrollBar>
#include <random>
#include <thread>

using testing::HasSubstr;

namespace {

class ObjectViewTest : public PanelTest {
protected:
    Talo::ParameterRow* row(char const* name) const { return window->currentView()->row(QString::fromUtf8(name)); }
};

} // namespace

TEST_F(ObjectViewTest, GroupsParametersByWhatStandsBeforeTheLastDot) {
    window->show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(window.get()));
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
    EXPECT_EQ(row("on")->note(), QStringLiteral("in pool day"));
    EXPECT_TRUE(row("steady")->note().isEmpty());
    window->choosePool(QStringLiteral("night"));
    EXPECT_EQ(row("on")->note(), QStringLiteral("in pool night"));
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

TEST_F(ObjectViewTest, ControlsThatCannotGrowStandTogetherBesideTheName) {
    QString error;
    auto const file = networkFile(QStringLiteral("dials.json"), R"({ "pools": ["day"], "objects": [
        { "name": "dials", "parameters": [
            { "name": "int", "type": "int", "value": 3, "preferences": ["dial"] },
            { "name": "double", "type": "double", "value": 0.5, "preferences": ["dial"] } ] } ] })");
    ASSERT_TRUE(window->openNetwork(file, &error)) << qPrintable(error);
    window->resize(1400, 600);
    window->show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(window.get()));
    for (auto const direction : {Qt::LeftToRight, Qt::RightToLeft}) {
        window->setLayoutDirection(direction);
        QCoreApplication::sendPostedEvents();
        for (auto const* const name : {"int", "double"}) {
            auto const* const editor = row(name)->editor();
            auto const* const dial = editor->findChild<QDial*>();
            auto const* const field = editor->findChild<QLineEdit*>();
            auto const ends =
                std::minmax({dial->x(), field->x(), dial->x() + dial->width(), field->x() + field->width()});
            EXPECT_LT(ends.second - ends.first, dial->width() + field->width() + 20) << name;
            int const gap = direction == Qt::LeftToRight
                                ? editor->x() + ends.first - row(name)->nameLabel()->parentWidget()->geometry().right()
                                : row(name)->nameLabel()->parentWidget()->x() - editor->x() - ends.second;
            EXPECT_LT(gap, 30) << name;
        }
    }
}

TEST_F(ObjectViewTest, TheRawValueFollowsWithItsAge) {
    window->setRawValuesShown(true);
    auto const* const raw = row("steady")->rawValue();
    EXPECT_EQ(raw->text(), QStringLiteral("true"));
    QTest::mouseClick(box("steady"), Qt::LeftButton);
    EXPECT_TRUE(waitUntil([&] { return raw->text() == QStringLiteral("false"); }));
    // The stamp at the end of the edit, not the one during its notifications.
    EXPECT_EQ(raw->stamp(), QStringLiteral("age %1").arg(parameter("lamp.steady")->ownValue()->age()));
    EXPECT_GT(parameter("lamp.steady")->ownValue()->age(), 0U);
}

TEST_F(ObjectViewTest, TheRawValueTellsThePoolsValueFromTheParametersOwn) {
    window->setRawValuesShown(true);
    auto const* const raw = row("on")->rawValue();
    EXPECT_EQ(raw->text(), QStringLiteral("false"));
    EXPECT_THAT(raw->stamp().toStdString(), HasSubstr("not set in pool"));
    window->choosePool(QStringLiteral("night"));
    EXPECT_EQ(raw->text(), QStringLiteral("true"));
    EXPECT_THAT(raw->stamp().toStdString(), HasSubstr("pool night"));
}

TEST_F(ObjectViewTest, TheRawValueHearsOfAChangeOnAnotherThread) {
    // A parameter without an editor: only the raw value may be notified on another thread.
    Kolt::ParameterPtr const status(new Kolt::VParameter("status", Kolt::makeValue(std::string("idle"))));
    Talo::RawValueLabel const raw(status, window->pools());
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
    EXPECT_TRUE(waitUntil([&] { return row("steady")->note() == QStringLiteral("was removed"); }));
    EXPECT_EQ(row("on")->note(), QStringLiteral("in pool day"));

    auto const line = QStringLiteral("**POSSIBLE INTERNAL FAULT**: VInputBase without owner? That's not good.");
    QTest::mouseClick(box("steady"), Qt::LeftButton);
    EXPECT_TRUE(
        waitUntil([&] { return window->messages()->texts(Panel::MessageList::Source::Output).contains(line); }));
    EXPECT_EQ(takeOutput(), std::vector<std::string>{line.toStdString()});

    window->choosePool(QStringLiteral("night"));
    window->currentView()->panel()->closeEditors();
    window->currentView()->panel()->openEditors();
    EXPECT_EQ(row("steady")->editor(), nullptr);
    EXPECT_TRUE(box("on")->isChecked());
}

TEST_F(ObjectViewTest, ARemovedParameterThatNobodyEditsLeavesANote) {
    open(R"({ "pools": ["day"], "objects": [
        { "name": "lamp", "parameters": [ { "name": "state", "type": "status", "value": "on" } ] } ] })");
    auto const lamp = window->network()->findObject(QStringLiteral("lamp"));
    ASSERT_EQ(row("state")->note(), QString());
    lamp->removeParameter(lamp->findParameter("state"));
    EXPECT_TRUE(waitUntil([&] { return row("state")->note() == QStringLiteral("was removed"); }));
}

namespace {

/// Counts the timers that fire in a window.
class TimerCount : public QObject {
public:
    int count = 0;
    bool eventFilter(QObject* watched, QEvent* event) override {
        count += event->type() == QEvent::Timer ? 1 : 0;
        return QObject::eventFilter(watched, event);
    }
};

} // namespace

TEST_F(ObjectViewTest, AnIdleWindowDoesNotWakeUp) {
    window->show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(window.get()));
    // What opening has begun ends.
    QTest::qWait(500);
    TimerCount timers;
    qApp->installEventFilter(&timers);
    QTest::qWait(600);
    EXPECT_EQ(timers.count, 0);
}

TEST_F(ObjectViewTest, TheViewOfADestroyedObjectStaysOpen) {
    Panel::ObjectView* view = nullptr;
    QWidget parent;
    {
        Kolt::ObjectPtr const object(new Kolt::VObject("short-lived"));
        object->addParameter(Kolt::ParameterPtr(new Kolt::VParameter("flag", Kolt::makeValue(true))));
        view = new Panel::ObjectView({object}, QString(), window->pools(), &parent);
        EXPECT_TRUE(box(view, "flag")->isChecked());
    }
    EXPECT_EQ(view->object(), nullptr);
    view->panel()->showPool();
    EXPECT_EQ(view->rows().front()->note(), QStringLiteral("was removed"));
    view->panel()->setRawValuesShown(true);
    EXPECT_EQ(view->rows().front()->rawValue()->stamp(), QStringLiteral("removed"));
}

namespace {

/// A view of an object with many parameters, of which only a few are visible.
class LongObjectView : public PanelTest {
protected:
    static constexpr int count = 10'000;

    void SetUp() override {
        PanelTest::SetUp();
        for (int number = 0; number < count; ++number) {
            auto const name = std::to_string(number);
            auto const value = number % 3 == 0   ? Kolt::makeValue(number)
                               : number % 3 == 1 ? Kolt::makeValue(number % 2 == 0)
                                                 : Kolt::makeValue("text " + name);
            object->addParameter(Kolt::ParameterPtr(new Kolt::VParameter("p" + name, value)));
        }
        frame.resize(700, 500);
        view = new Panel::ObjectView({object}, QString(), window->pools(), &frame);
        view->resize(frame.size());
        frame.show();
        ASSERT_TRUE(QTest::qWaitForWindowExposed(&frame));
    }

    void TearDown() override {
        // The view must be deleted before the plug-in is unloaded.
        delete view;
        PanelTest::TearDown();
    }

    QScrollBar* bar() const { return view->panel()->rowArea()->verticalScrollBar(); }
    QRect seen(QWidget const* widget) const {
        auto const* const viewport = view->panel()->rowArea()->viewport();
        return QRect(widget->mapTo(viewport, QPoint()), widget->size()) & viewport->rect();
    }
    /// Checks that the visible rows have no gaps: each begins where the previous one ends.
    void expectRowsWithoutGaps() const {
        int bottom = -1;
        int visible = 0;
        for (auto const* const row : view->rows()) {
            if (seen(row).isEmpty())
                continue;
            int const top = row->mapTo(view->panel()->rowArea()->viewport(), QPoint()).y();
            if (bottom >= 0)
                EXPECT_EQ(top, bottom + 6) << qPrintable(row->parameterName());
            else
                EXPECT_LE(top, 30) << qPrintable(row->parameterName());
            bottom = top + row->height();
            ++visible;
        }
        EXPECT_GE(bottom, view->panel()->rowArea()->viewport()->height() - 40);
        EXPECT_GE(visible, 5);
    }

    static void tabInto(Talo::ParameterRow const* row) { row->editor()->findChild<QLineEdit*>()->setFocus(); }

    Kolt::ObjectPtr const object{new Kolt::VObject("long")};
    QWidget frame;
    Panel::ObjectView* view = nullptr;
};

} // namespace

TEST_F(LongObjectView, MakesTheRowsThatCanBeSeenAlone) {
    EXPECT_LT(view->rows().size(), 30U);
    EXPECT_EQ(view->panel()->rowArea()->shownCount(), count);
    expectRowsWithoutGaps();
    EXPECT_EQ(view->rows().front()->parameterName(), QStringLiteral("p0"));
}

TEST_F(LongObjectView, ScrolledThroughNeverHasAGapAndKeepsFewRows) {
    std::mt19937 random(11);
    for (int step = 0; step < 200; ++step) {
        SCOPED_TRACE(step);
        bar()->setValue(step % 4 == 3 ? static_cast<int>(random() % static_cast<unsigned>(bar()->maximum()))
                                      : bar()->value() + static_cast<int>(random() % 400) - 100);
        expectRowsWithoutGaps();
        EXPECT_LT(view->rows().size(), 100U);
    }
    bar()->setValue(bar()->maximum());
    EXPECT_EQ(view->rows().back()->parameterName(), QStringLiteral("p9999"));
    EXPECT_FALSE(seen(view->rows().back()).isEmpty());
}

TEST_F(LongObjectView, KeepsWhatIsSeenInItsPlaceWhereARowAboveIsHigherThanThought) {
    bar()->setValue(bar()->maximum() / 2);
    auto const rows = view->rows();
    auto const* const row = rows.at(rows.size() - 4);
    auto const before = seen(row);
    ASSERT_FALSE(before.isEmpty());
    bar()->setValue(bar()->value() - 40);
    EXPECT_EQ(seen(row).top(), before.top() + 40);
    // Let rows outside the visible area grow.
    for (auto* const each : view->rows()) {
        if (each != row && seen(each).isEmpty())
            each->editor()->setMinimumHeight(90);
    }
    QCoreApplication::sendPostedEvents();
    EXPECT_EQ(seen(row).top(), before.top() + 40);
}

TEST_F(LongObjectView, GoesThroughAllControlsByTab) {
    frame.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&frame));
    auto* const first = view->row(QStringLiteral("p0"));
    tabInto(first);
    for (int number = 0; number < 90; ++number) {
        auto* const row = view->row(QStringLiteral("p%1").arg(number));
        ASSERT_TRUE(row->isAncestorOf(QApplication::focusWidget())) << number;
        EXPECT_FALSE(seen(QApplication::focusWidget()).isEmpty()) << number;
        // A number has a handle and a line edit.
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
        if (number % 3 == 0) {
            ASSERT_TRUE(row->isAncestorOf(QApplication::focusWidget())) << number;
            QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
        }
    }
    for (int number = 89; number >= 0; --number) {
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Backtab);
        if (number % 3 == 0)
            QTest::keyClick(QApplication::focusWidget(), Qt::Key_Backtab);
        ASSERT_TRUE(view->row(QStringLiteral("p%1").arg(number))->isAncestorOf(QApplication::focusWidget())) << number;
    }
}

TEST_F(LongObjectView, KeepsTheRowThatHasTheFocus) {
    frame.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&frame));
    QPointer<Talo::ParameterRow> const row = view->row(QStringLiteral("p2"));
    auto* const lineEdit = row->findChild<QLineEdit*>();
    lineEdit->setFocus();
    bar()->setValue(bar()->maximum());
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    ASSERT_TRUE(row);
    QTest::keyClicks(lineEdit, "!");
    EXPECT_EQ(object->findParameter("p2")->ownValue()->Text(), lineEdit->text().toStdString());
    EXPECT_EQ(view->row(QStringLiteral("p2")), row);
}

TEST_F(LongObjectView, ShowsTheParametersOfAFilterAlone) {
    view->panel()->rowArea()->setFilter([](auto const& parameter) { return parameter.Name().size() == 2; });
    EXPECT_EQ(view->panel()->rowArea()->shownCount(), 10);
    std::vector<std::string> names;
    for (auto const* const row : view->rows())
        if (!row->isHidden())
            names.push_back(row->parameterName().toStdString());
    EXPECT_THAT(names, testing::ElementsAre("p0", "p1", "p2", "p3", "p4", "p5", "p6", "p7", "p8", "p9"));
    bar()->setValue(bar()->maximum());
    view->panel()->rowArea()->setFilter({});
    EXPECT_EQ(view->panel()->rowArea()->shownCount(), count);
    EXPECT_EQ(bar()->value(), 0);
    expectRowsWithoutGaps();
}

TEST_F(LongObjectView, LeavesOutAParameterThatWentBeforeItsRowWasMade) {
    object->removeParameter(object->findParameter("p300"));
    for (int value = 0; value < 20'000; value += 200)
        bar()->setValue(value);
    EXPECT_EQ(view->row(QStringLiteral("p300")), nullptr);
    EXPECT_NE(view->row(QStringLiteral("p301")), nullptr);
    EXPECT_EQ(view->panel()->rowArea()->shownCount(), count - 1);
}

TEST_F(LongObjectView, OpensRowsMadeLaterWithoutEditorsWhileTheyAreClosed) {
    view->panel()->closeEditors();
    bar()->setValue(bar()->maximum() / 3);
    for (auto const* const row : view->rows())
        EXPECT_EQ(row->editor(), nullptr) << qPrintable(row->parameterName());
    view->panel()->openEditors();
    for (auto const* const row : view->rows())
        EXPECT_NE(row->editor(), nullptr) << qPrintable(row->parameterName());
    expectRowsWithoutGaps();
}

// Uses the panel at random, with thousands of events for each seed. Nothing may crash, Qt may not warn, and at every
// rest the views must show what the parameters hold, and each value must be explained by an undo step or a write.
//
// A walk writes a log, which stays if the walk fails. In the environment,
// - TALO_WALK_SEED=N walks the seed N alone, TALO_WALK_EVENTS=N makes N acts;
// - TALO_WALK_MINUTES=N walks for so long, and says what it costs (scripts/soak);
// - TALO_WALK_REPLAY=FILE walks what a log says;
// - TALO_WALK_SHORTEN=FILE writes FILE.short, the shortest part of a log that still fails.

#include "FractalPanelTest.hpp"
#include "LargeNetwork.hpp"
#include "PanelCheck.hpp"
#include "RandomWalk.hpp"
#include "RowCheck.hpp"
#include "SoakReport.hpp"
#include "support/VirtualTime.hpp"
#include "WalkPlan.hpp"
#include "WalkShortener.hpp"
#include "WindowCheck.hpp"

#include <QClipboard>
#include <QEventLoop>
#include <QTimer>

using testing::Contains;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

namespace {

constexpr int actsOfSoak = 1000;

bool isOffscreen() {
    return QGuiApplication::platformName() == QLatin1String("offscreen");
}

class RandomWalkTest : public FractalPanelTest {
protected:
    RandomWalkTest() {
        windowSize = {900, 700};
        showsPreview = true;
        // A walk waits for each picture, and large ones of many samples would take most of its time.
        hasSmallPictures = true;
    }

    void SetUp() override {
        // A display answers in real time.
        if (isOffscreen())
            time_ = std::make_unique<VirtualTime>();
        // What an earlier walk leaves in the process must not decide what this one does.
        QApplication::clipboard()->clear();
        QCursor::setPos(0, 0);
        FractalPanelTest::SetUp();
    }

    void TearDown() override {
        QApplication::clipboard()->clear();
        FractalPanelTest::TearDown();
        // The lists of multiple selections print a trace.
        takeOutput();
    }

    // Null on a display.
    std::unique_ptr<VirtualTime> time_;
};

class RandomWalkOfPlan : public RandomWalkTest, public testing::WithParamInterface<WalkPlan> {
protected:
    void SetUp() override;
    void walk();
    void take(RandomWalk& walk, WalkEvents const& events);
    void rest(RandomWalk& walk);
    void goBack(RandomWalk& walk);
    // How many rows were compared with their parameters.
    int compared_ = 0;
    // Of the log.
    int line_ = 0;
};

/// Runs a function from an event loop, as a program does. Only then does Qt keep objects passed to deleteLater alive
/// while a dialog runs a nested loop.
template <typename Function>
void runInEventLoop(Function&& function) {
    QEventLoop loop;
    QTimer::singleShot(0, &loop, [&] {
        function();
        loop.quit();
    });
    loop.exec();
}

} // namespace

TEST_P(RandomWalkOfPlan, LeavesEveryViewInAgreementWithItsParameter) {
    if (GetParam().shortened.isEmpty()) {
        runInEventLoop([this] { walk(); });
        return;
    }
    // Other processes need real time.
    time_.reset();
    EXPECT_EQ(shortenLog(GetParam().shortened), "");
}

void RandomWalkOfPlan::SetUp() {
    RandomWalkTest::SetUp();
    QString error;
    if (GetParam().isLarge) {
        ASSERT_TRUE(window->openNetwork(networkFile("large.json", largeNetwork().constData()), &error))
            << qPrintable(error);
    }
}

void RandomWalkOfPlan::walk() {
    auto const& plan = GetParam();
    ASSERT_EQ(plan.error, "");
    std::fprintf(stderr, "Walk %s; log: %s\n", plan.name.c_str(), qPrintable(plan.log));
    RandomWalk walk(*window, plugins, folder.path(), plan.log);
    take(walk, plan.events);
    SoakReport report(*window, plugins);
    for (unsigned further = 1; report.minutes() < plan.minutes && !HasFailure(); ++further) {
        auto const events = walkOfSeed(plan.events.front().seed + further, actsOfSoak);
        take(walk, events);
        report.openAndUnload();
        std::fprintf(stderr, "%s\n", report.line().c_str());
    }
    if (!HasFailure() && !plan.keepsLog)
        QFile::remove(plan.log);
}

void RandomWalkOfPlan::take(RandomWalk& walk, WalkEvents const& events) {
    int rests = 0;
    for (auto const& event : events) {
        if (HasFailure())
            return;
        SCOPED_TRACE("line " + std::to_string(++line_) + " of " + GetParam().log.toStdString());
        switch (event.kind) {
        case WalkEvent::Kind::Act:
            walk.act(event);
            break;
        case WalkEvent::Kind::Rest:
            rest(walk);
            ++rests;
            break;
        case WalkEvent::Kind::Back:
            goBack(walk);
        }
    }
    // The check has compared rows.
    EXPECT_GE(compared_, rests);
}

void RandomWalkOfPlan::rest(RandomWalk& walk) {
    EXPECT_THAT(focusFaults(*window), IsEmpty());
    ASSERT_EQ(walk.settle(), "");
    // Reports of a worker thread arrive a moment later, and so does the mark of unsaved values.
    waitUntil([this] { return disagreements(*window).empty() && windowFaults(*window).empty(); }, 2000);
    int rows = 0;
    EXPECT_THAT(disagreements(*window, &rows), IsEmpty());
    EXPECT_THAT(walk.unexplained(), IsEmpty());
    EXPECT_THAT(rowFaults(*window), IsEmpty());
    EXPECT_THAT(windowFaults(*window), IsEmpty());
    compared_ += rows;
}

void RandomWalkOfPlan::goBack(RandomWalk& walk) {
    EXPECT_THAT(walk.goBackAndForth(), IsEmpty())
        << qPrintable(window->messages()->texts(Panel::MessageList::Source::Error).join(QLatin1Char('\n')));
    EXPECT_THAT(disagreements(*window), IsEmpty());
    EXPECT_EQ(walk.findPreviewFault(), "");
    walk.beginAnew();
}

INSTANTIATE_TEST_SUITE_P(Plans, RandomWalkOfPlan, testing::ValuesIn(walkPlans(TALO_WALK_EVENTS, TALO_WALK_LOGS)),
                         [](auto const& plan) { return plan.param.name; });

TEST_F(RandomWalkTest, AgreesAtTheStart) {
    int compared = 0;
    EXPECT_THAT(disagreements(*window, &compared), IsEmpty());
    EXPECT_EQ(compared, 8);
    EXPECT_TRUE(window->fractalController().previewAction()->isChecked());
}

TEST_F(RandomWalkTest, FindsAValueThatWasNotNotified) {
    auto const iterations = parameter("formula.iterations");
    iterations->getLocalValue(window->pools().pool(), std::string(), false)->setValueFromText("123");
    EXPECT_THAT(disagreements(*window), ElementsAre(HasSubstr("formula.iterations shows \"100\", not \"123\"")));
}

TEST_F(RandomWalkTest, FindsAHandleThatStaysBehind) {
    auto* const slider = window->currentView()->row(QStringLiteral("iterations"))->editor()->findChild<QSlider*>();
    QSignalBlocker const blocker(slider);
    slider->setValue(300);
    EXPECT_THAT(disagreements(*window), ElementsAre(HasSubstr("formula.iterations a handle at 300, not 100")));
}

TEST_F(RandomWalkTest, FindsAnEditThatUndoDoesNotRevert) {
    RandomWalk walk(*window, plugins, folder.path());
    ASSERT_EQ(walk.settle(), "");
    EXPECT_THAT(walk.goBackAndForth(), IsEmpty());
    set("formula.symmetry", "7");
    EXPECT_THAT(walk.goBackAndForth(),
                Contains(HasSubstr("formula.symmetry is {\"value\":7} after all was taken back")));
}

TEST_F(RandomWalkTest, FindsAValueThatNeitherAStepNorAWriteExplains) {
    RandomWalk walk(*window, plugins, folder.path());
    ASSERT_EQ(walk.settle(), "");
    set("formula.symmetry", "7");
    EXPECT_THAT(walk.unexplained(),
                ElementsAre(HasSubstr("formula.symmetry is \"7\" without a step or a write, not \"0\"")));
}

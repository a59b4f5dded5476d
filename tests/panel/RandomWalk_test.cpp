// Uses the panel at random, with thousands of events for each seed. Nothing may crash, Qt may not warn, and at every
// rest the views must show what the parameters hold.

#include "FractalPanelTest.hpp"
#include "PanelCheck.hpp"
#include "RandomWalk.hpp"

#include <QEventLoop>
#include <QTimer>

using testing::AnyOf;
using testing::Each;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::SizeIs;

namespace {

/// The number of events for each seed. On a display, where each takes longer, a quarter suffices to show that the
/// behaviour is the same.
int eventsOfAWalk() {
    if (int const wanted = qEnvironmentVariableIntValue("TALO_WALK_EVENTS"); wanted > 0)
        return wanted;
    return QGuiApplication::platformName() == QLatin1String("offscreen") ? TALO_WALK_EVENTS : TALO_WALK_EVENTS / 4;
}

// The number of events between two rests.
constexpr int eventsBetweenRests = 250;

/// TALO_WALK_SEED=N in the environment starts other walks.
unsigned firstSeed() {
    auto const seed = qEnvironmentVariableIntValue("TALO_WALK_SEED");
    return seed > 0 ? static_cast<unsigned>(seed) : 1U;
}

// Above this number the history may have dropped its first steps.
constexpr std::size_t mostSteps = Kolt::UndoHistory::Capacity * 3 / 4;

class RandomWalkTest : public FractalPanelTest {
protected:
    RandomWalkTest() { windowSize = {900, 700}; }

    void TearDown() override {
        QApplication::clipboard()->clear();
        FractalPanelTest::TearDown();
        // The lists of multiple selections print a trace.
        takeOutput();
    }
};

class RandomWalkOfSeed : public RandomWalkTest, public testing::WithParamInterface<unsigned> {
protected:
    void walk();
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

TEST_P(RandomWalkOfSeed, LeavesEveryViewInAgreementWithItsParameter) {
    runInEventLoop([this] { walk(); });
}

void RandomWalkOfSeed::walk() {
    RandomWalk walk(*window, plugins, folder.path(), GetParam());
    int const events = eventsOfAWalk();
    int compared = 0;
    for (int event = 1; event <= events && !HasFailure(); ++event) {
        SCOPED_TRACE("seed " + std::to_string(GetParam()) + ", event " + std::to_string(event));
        walk.step();
        if (event % eventsBetweenRests != 0 && event != events)
            continue;
        ASSERT_EQ(walk.settle(), "");
        int rows = 0;
        // Reports of a worker thread arrive a moment later.
        waitUntil([this] { return disagreements(*window).empty(); }, 2000);
        EXPECT_THAT(disagreements(*window, &rows), IsEmpty());
        compared += rows;
        auto const steps = window->history().steps().size();
        if (steps < mostSteps && event != events)
            continue;
        EXPECT_THAT(walk.goBackAndForth(), IsEmpty())
            << qPrintable(window->messages()->texts(Panel::MessageList::Source::Error).join(QLatin1Char('\n')));
        EXPECT_THAT(disagreements(*window), IsEmpty());
        walk.beginAnew();
    }
    // The check has compared rows.
    EXPECT_GT(compared, events / eventsBetweenRests);
}

INSTANTIATE_TEST_SUITE_P(Seeds, RandomWalkOfSeed, testing::Range(firstSeed(), firstSeed() + 5));

TEST_F(RandomWalkTest, AgreesAtTheStart) {
    int compared = 0;
    EXPECT_THAT(disagreements(*window, &compared), IsEmpty());
    EXPECT_EQ(compared, 8);
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
    RandomWalk walk(*window, plugins, folder.path(), 1);
    ASSERT_EQ(walk.settle(), "");
    EXPECT_THAT(walk.goBackAndForth(), IsEmpty());
    set("formula.symmetry", "7");
    EXPECT_THAT(walk.goBackAndForth(),
                ElementsAre(HasSubstr("formula.symmetry is {\"value\":7} after all was taken back")));
}

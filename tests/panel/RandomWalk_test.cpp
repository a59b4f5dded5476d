// The panel is used at random, by tens of thousands of events for each seed. Nothing may crash, Qt may not warn, and
// what the views show and what the parameters hold must be the same at every rest.

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

/// For each seed. On a display, where each takes longer, a quarter shows that it is no different there.
int eventsOfAWalk() {
    if (int const wanted = qEnvironmentVariableIntValue("TALO_WALK_EVENTS"); wanted > 0)
        return wanted;
    return QGuiApplication::platformName() == QLatin1String("offscreen") ? TALO_WALK_EVENTS : TALO_WALK_EVENTS / 4;
}

// Between two rests.
constexpr int eventsBetweenRests = 250;

/// Other walks can be tried with TALO_WALK_SEED=N in the environment.
unsigned firstSeed() {
    auto const seed = qEnvironmentVariableIntValue("TALO_WALK_SEED");
    return seed > 0 ? static_cast<unsigned>(seed) : 1U;
}

// A history with more steps might have forgotten the first of them.
constexpr std::size_t mostSteps = Kolt::UndoHistory::Capacity * 3 / 4;

class RandomWalkTest : public FractalPanelTest {
protected:
    RandomWalkTest() { windowSize = {900, 700}; }

    void TearDown() override {
        QApplication::clipboard()->clear();
        FractalPanelTest::TearDown();
        // The lists for multiple choice say what they do.
        takeOutput();
    }
};

class RandomWalkOfSeed : public RandomWalkTest, public testing::WithParamInterface<unsigned> {
protected:
    void walk();
};

/// Runs a function from an event loop, as everything in a program is. What it deletes later stays as long as a dialog
/// that is opened meanwhile runs a loop of its own; outside of all loops Qt does not wait for that.
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
        // What a worker tells comes a moment later.
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
    // The check has looked at something.
    EXPECT_GT(compared, events / eventsBetweenRests);
}

INSTANTIATE_TEST_SUITE_P(Seeds, RandomWalkOfSeed, testing::Range(firstSeed(), firstSeed() + 5));

TEST_F(RandomWalkTest, AgreesAtTheStart) {
    int compared = 0;
    EXPECT_THAT(disagreements(*window, &compared), IsEmpty());
    EXPECT_EQ(compared, 8);
}

TEST_F(RandomWalkTest, FindsAValueThatNobodyWasToldOf) {
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

TEST_F(RandomWalkTest, FindsAnEditThatIsNotTakenBack) {
    RandomWalk walk(*window, plugins, folder.path(), 1);
    ASSERT_EQ(walk.settle(), "");
    EXPECT_THAT(walk.goBackAndForth(), IsEmpty());
    set("formula.symmetry", "7");
    EXPECT_THAT(walk.goBackAndForth(),
                ElementsAre(HasSubstr("formula.symmetry is {\"value\":7} after all was taken back")));
}

// The walks of the random walk as lists of events: made of a seed, written, read, and shortened.

#include "support/TaloTest.hpp"
#include "WalkEvent.hpp"
#include "WalkShortener.hpp"

#include <algorithm>
#include <QTemporaryDir>

using testing::ElementsAre;
using testing::IsEmpty;

namespace {

class WalkEventTest : public TaloTest {
protected:
    static std::vector<std::string> linesOf(WalkEvents const& walk) {
        std::vector<std::string> lines;
        for (auto const& event : walk)
            lines.push_back(lineOf(event));
        return lines;
    }

    QString fileWith(char const* text) const {
        QFile file(folder.filePath(QStringLiteral("walk.log")));
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(text);
        return file.fileName();
    }

    static WalkEvents acts(unsigned count) {
        WalkEvents walk;
        for (unsigned number = 0; number < count; ++number)
            walk.push_back({WalkEvent::Kind::Act, number});
        return walk;
    }

    static bool has(WalkEvents const& walk, unsigned number) {
        return std::any_of(walk.begin(), walk.end(), [&](WalkEvent const& event) { return event.seed == number; });
    }

    QTemporaryDir const folder;
};

} // namespace

TEST_F(WalkEventTest, ASeedAlwaysMakesTheSameWalkAndAnotherOneAnother) {
    EXPECT_EQ(linesOf(walkOfSeed(7, 600)), linesOf(walkOfSeed(7, 600)));
    EXPECT_NE(linesOf(walkOfSeed(7, 600)), linesOf(walkOfSeed(8, 600)));
}

TEST_F(WalkEventTest, AWalkRestsEvery250ActsAndGoesBackAtItsEnd) {
    auto const lines = linesOf(walkOfSeed(7, 600));
    ASSERT_EQ(lines.size(), 604U);
    EXPECT_EQ(lines[250], "rest");
    EXPECT_EQ(lines[501], "rest");
    EXPECT_EQ(lines[602], "rest");
    EXPECT_EQ(lines[603], "back");
}

TEST_F(WalkEventTest, AWalkIsReadAsItWasWritten) {
    auto const walk = walkOfSeed(7, 300);
    auto const file = folder.filePath(QStringLiteral("walk.log"));
    ASSERT_TRUE(writeWalk(file, walk));
    QString error;
    EXPECT_EQ(linesOf(readWalk(file, &error)), linesOf(walk));
    EXPECT_EQ(error, QString());
}

TEST_F(WalkEventTest, WhatAnActDidIsNotRead) {
    QString error;
    EXPECT_THAT(linesOf(readWalk(fileWith("act 5 key Tab\nrest\nact 4294967295 mo"), &error)),
                ElementsAre("act 5", "rest", "act 4294967295"));
}

TEST_F(WalkEventTest, AFileThatIsNoLogIsRefused) {
    QString error;
    EXPECT_THAT(readWalk(fileWith("act 5\nact five\n"), &error), IsEmpty());
    EXPECT_EQ(error, QStringLiteral("no event: act five"));
}

TEST_F(WalkEventTest, AWalkIsShortenedToTheEventsThatFailTogether) {
    auto const shortest = shortestThatFails(
        acts(1000), [](WalkEvents const& walk) { return has(walk, 3) && has(walk, 499) && has(walk, 998); });
    EXPECT_THAT(linesOf(shortest), ElementsAre("act 3", "act 499", "act 998"));
}

TEST_F(WalkEventTest, AFailureThatNeedsNoEventLeavesNone) {
    EXPECT_THAT(shortestThatFails(acts(5), [](WalkEvents const&) { return true; }), IsEmpty());
}

TEST_F(WalkEventTest, ShorteningTriesHalvesFirst) {
    int tried = 0;
    shortestThatFails(acts(1024), [&](WalkEvents const& walk) {
        ++tried;
        return has(walk, 600);
    });
    EXPECT_LT(tried, 30);
}

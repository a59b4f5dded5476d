#include "support/TaloTest.hpp"

#include <QLabel>

namespace {

// Every test here must fail, except the last, which shows that faults are not blamed on the next test.
class Planted : public TaloTest {};

TEST_F(Planted, Line) {
    std::puts("a line that nobody takes");
}

TEST_F(Planted, Warning) {
    qWarning("a warning that nobody expects");
}

TEST_F(Planted, Widget) {
    new QLabel;
}

TEST_F(Planted, Assertion) {
    std::puts("held back");
    EXPECT_EQ(1, 2) << "shown at once";
    EXPECT_THAT(takeOutput(), testing::ElementsAre("held back"));
}

TEST_F(Planted, SoundTestAfterTheOthers) {
    EXPECT_THAT(takeOutput(), testing::IsEmpty());
}

} // namespace

#include "support/TaloTest.hpp"

#include <QCoreApplication>

namespace {

class TestBaseWithoutApplication : public TaloTest {};

TEST_F(TestBaseWithoutApplication, HasNoApplicationObject) {
    EXPECT_EQ(QCoreApplication::instance(), nullptr);
}

TEST_F(TestBaseWithoutApplication, TakesOutputAndMessages) {
    expectQtWarning("careful");
    qWarning("careful");
    std::puts("a line");
    EXPECT_THAT(takeOutput(), testing::ElementsAre("a line"));
}

} // namespace

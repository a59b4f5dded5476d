#include "PanelTest.hpp"

namespace {

/// A window that listens to what is printed, with a network whose editors print while they are made.
class OutputTest : public PanelTest {
protected:
    void openTalking(int parameters) {
        QStringList each;
        for (int number = 0; number < parameters; ++number)
            each << QStringLiteral(R"({ "name": "%1", "type": "multiselection", "value": [], "entries": ["a", "b"] })")
                        .arg(number);
        auto const text = QStringLiteral(R"({ "pools": ["day"], "objects": [
            { "name": "empty" }, { "name": "choice", "parameters": [%1] } ] })")
                              .arg(each.join(QLatin1Char(',')));
        window->tapStandardOutput();
        window->show();
        ASSERT_TRUE(QTest::qWaitForWindowExposed(window.get()));
        QString error;
        ASSERT_TRUE(window->openNetwork(networkFile("talking.json", text.toUtf8().constData()), &error))
            << qPrintable(error);
        ASSERT_TRUE(window->showObject(QStringLiteral("choice")));
        ASSERT_TRUE(waitUntil([&] { return printed().size() >= parameters; }));
    }
    void TearDown() override {
        window.reset();
        takeOutput();
        PanelTest::TearDown();
    }
    QStringList printed() const { return window->messages()->texts(Panel::MessageList::Source::Output); }
    QToolButton* counter() const { return window->findChild<QToolButton*>(QStringLiteral("outputCount")); }
    /// The texts of the rows that can be seen or scrolled to.
    QStringList shownTexts() const {
        QStringList texts;
        for (int index = 0; index < window->messages()->topLevelItemCount(); ++index) {
            auto const* const item = window->messages()->topLevelItem(index);
            if (!item->isHidden())
                texts << item->text(2);
        }
        return texts;
    }
};

} // namespace

TEST_F(OutputTest, WhatIsPrintedIsCountedAndShownByOneClick) {
    openTalking(2);
    auto const count = printed().size();
    auto const line = printed().constFirst();
    EXPECT_FALSE(shownTexts().contains(line));
    EXPECT_FALSE(shownTexts().isEmpty());
    ASSERT_NE(counter(), nullptr);
    EXPECT_TRUE(counter()->isVisible());
    EXPECT_EQ(counter()->text(), QStringLiteral("%1 lines of output").arg(count));
    QTest::mouseClick(counter(), Qt::LeftButton);
    EXPECT_EQ(shownTexts().count(line), count);
    QTest::mouseClick(counter(), Qt::LeftButton);
    EXPECT_FALSE(shownTexts().contains(line));
}

TEST_F(OutputTest, LinesThatComeWhileOutputIsShownAreShown) {
    openTalking(1);
    ASSERT_NE(counter(), nullptr);
    QTest::mouseClick(counter(), Qt::LeftButton);
    std::puts("one more");
    std::fflush(stdout);
    EXPECT_TRUE(waitUntil([&] { return shownTexts().contains(QStringLiteral("one more")); }));
    EXPECT_EQ(counter()->text(), QStringLiteral("%1 lines of output").arg(printed().size()));
}

TEST_F(OutputTest, WithoutOutputThereIsNothingToClick) {
    window->show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(window.get()));
    ASSERT_NE(counter(), nullptr);
    EXPECT_FALSE(counter()->isVisible());
    window->messages()->add(Panel::MessageList::Source::Output, QStringLiteral("alone"));
    EXPECT_TRUE(counter()->isVisible());
    EXPECT_EQ(counter()->text(), QStringLiteral("1 line of output"));
    window->messages()->clear();
    EXPECT_TRUE(waitUntil([&] { return !counter()->isVisible(); }));
}

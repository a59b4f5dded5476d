#include "support/TaloTest.hpp"

#include <panel/window/KeyList.hpp>
#include <QMainWindow>
#include <QMenuBar>

using testing::ElementsAre;

namespace {

class KeyListTest : public TaloTest {
protected:
    static std::vector<std::string> linesOf(Panel::KeyGroup const& group) {
        std::vector<std::string> lines;
        for (auto const& entry : group.entries)
            lines.push_back(entry.command.toStdString() + ": " + entry.keys.toStdString());
        return lines;
    }

    QMainWindow window;
};

} // namespace

TEST_F(KeyListTest, AMenuIsAGroupOfItsCommandsThatHaveKeys) {
    auto* const menu = window.menuBar()->addMenu(QStringLiteral("&File"));
    menu->addAction(QStringLiteral("&Open..."))->setShortcut(QKeySequence(QStringLiteral("Ctrl+O")));
    menu->addAction(QStringLiteral("Without keys"));
    menu->addAction(QStringLiteral("Save && &close"))
        ->setShortcuts({QKeySequence(QStringLiteral("Ctrl+S")), QKeySequence(QStringLiteral("F2"))});
    auto const groups = Panel::keysOf(window);
    ASSERT_FALSE(groups.isEmpty());
    EXPECT_EQ(groups.front().title, QStringLiteral("File"));
    EXPECT_THAT(linesOf(groups.front()), ElementsAre("Open: Ctrl+O", "Save & close: Ctrl+S, F2"));
}

TEST_F(KeyListTest, TheCommandsOfASubmenuAreListedOnce) {
    auto* const menu = window.menuBar()->addMenu(QStringLiteral("&View"));
    auto* const submenu = menu->addMenu(QStringLiteral("&Size"));
    auto* const larger = submenu->addAction(QStringLiteral("&Larger"));
    larger->setShortcut(QKeySequence(QStringLiteral("Ctrl++")));
    menu->addAction(larger);
    EXPECT_THAT(linesOf(Panel::keysOf(window).front()), ElementsAre("Larger: Ctrl++"));
}

TEST_F(KeyListTest, AMenuWithoutKeysIsNoGroup) {
    window.menuBar()->addMenu(QStringLiteral("&Empty"))->addAction(QStringLiteral("Nothing"));
    auto const groups = Panel::keysOf(window);
    for (auto const& group : groups)
        EXPECT_NE(group.title, QStringLiteral("Empty"));
}

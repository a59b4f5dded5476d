// What the row adds to the swatch of a colour and to its dialog.

#include "PanelTest.hpp"

#include <QColorDialog>
#include <QMenu>
#include <QSpinBox>
#include <QWindow>

namespace {

class ColourTest : public PanelTest {
protected:
    void SetUp() override {
        PanelTest::SetUp();
        QString error;
        auto const file = networkFile("colours.json", R"({ "pools": ["day", "night"], "objects": [
            { "name": "wall", "parameters": [
                { "name": "paint", "type": "colour", "value": [0, 0.2, 0.4, 1], "perPool": true },
                { "name": "grey", "type": "colour", "value": [0.5, 0.5, 0.9, 0.2] },
                { "name": "last", "type": "bool", "value": true } ] },
            { "name": "floor", "parameters": [ { "name": "on", "type": "bool", "value": true } ] } ] })");
        ASSERT_TRUE(window->openNetwork(file, &error)) << qPrintable(error);
        window->show();
        window->activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(window.get()));
    }
    Talo::ParameterRow* row(char const* name) const { return window->currentView()->row(QString::fromUtf8(name)); }
    QLabel* swatch(char const* name) const { return qobject_cast<QLabel*>(row(name)->editor()); }
    QColorDialog* dialog(char const* name) const { return swatch(name)->findChild<QColorDialog*>(); }
    QColorDialog* openDialog(char const* name) const {
        QTest::mouseClick(swatch(name), Qt::LeftButton);
        auto* const opened = dialog(name);
        EXPECT_TRUE(opened->isVisible());
        return opened;
    }
    /// Makes the colour in the dialog another one, as a person does.
    static void change(QColorDialog* dialog) { QTest::keyClick(dialog->findChild<QSpinBox*>(), Qt::Key_Up); }
    /// The text beside the swatch; null for none.
    QLabel* readableText(char const* name) const {
        return row(name)->findChild<QLabel*>(QStringLiteral("readableText"));
    }
};

} // namespace

TEST_F(ColourTest, ARightClickOpensTheMenuAlone) {
    auto const place = swatch("paint")->mapTo(window.get(), swatch("paint")->rect().center());
    QTest::mouseClick(window->windowHandle(), Qt::RightButton, Qt::NoModifier, place);
    EXPECT_TRUE(waitUntil([&] { return qobject_cast<QMenu*>(QApplication::activePopupWidget()) != nullptr; }));
    EXPECT_FALSE(dialog("paint")->isVisible());
    EXPECT_EQ(swatch("paint")->text(), QStringLiteral(" 1.00 "));
    if (auto* const menu = QApplication::activePopupWidget())
        menu->close();
}

TEST_F(ColourTest, TheDialogNamesTheParameterAndClosesWithItsRow) {
    auto const* const opened = openDialog("paint");
    EXPECT_EQ(opened->windowTitle(), QStringLiteral("wall.paint"));
    window->showObject(QStringLiteral("floor"));
    EXPECT_FALSE(opened->isVisible());
    window->showObject(QStringLiteral("wall"));
    EXPECT_FALSE(opened->isVisible());
    openDialog("paint");
    window->setFilter(QStringLiteral("last"));
    EXPECT_FALSE(opened->isVisible());
}

TEST_F(ColourTest, TheDialogClosesWhenAnotherPoolIsChosen) {
    auto const* const opened = openDialog("paint");
    window->choosePool(QStringLiteral("night"));
    EXPECT_FALSE(opened->isVisible());
}

TEST_F(ColourTest, ADialogThatIsClosedWithoutAChoiceLeavesTheValueShown) {
    auto const values = window->network()->values();
    for (auto const* const name : {"paint", "grey"}) {
        auto const text = swatch(name)->text();
        auto* const opened = openDialog(name);
        EXPECT_EQ(swatch(name)->text(), QStringLiteral(" picking"));
        opened->close();
        EXPECT_EQ(swatch(name)->text(), text);
    }
    EXPECT_EQ(window->network()->values(), values);
    EXPECT_TRUE(window->history().steps().empty());
}

TEST_F(ColourTest, EscapeRestoresTheColourThatHeldBefore) {
    auto const values = window->network()->values();
    auto const before = valueOf("wall.paint");
    auto* const opened = openDialog("paint");
    change(opened);
    change(opened);
    EXPECT_NE(valueOf("wall.paint"), before);
    QTest::keyClick(opened, Qt::Key_Escape);
    EXPECT_FALSE(opened->isVisible());
    EXPECT_EQ(valueOf("wall.paint"), before);
    EXPECT_EQ(swatch("paint")->text(), QStringLiteral(" 1.00 "));
    EXPECT_EQ(window->network()->values(), values);
}

TEST_F(ColourTest, EscapeWithoutAChangeIsNoStep) {
    QTest::keyClick(openDialog("paint"), Qt::Key_Escape);
    EXPECT_TRUE(window->history().steps().empty());
}

TEST_F(ColourTest, ReturnAndTheWindowsButtonKeepTheChoice) {
    auto* const opened = openDialog("paint");
    auto const before = valueOf("wall.paint");
    change(opened);
    QTest::keyClick(opened, Qt::Key_Return);
    EXPECT_FALSE(opened->isVisible());
    auto const chosen = valueOf("wall.paint");
    EXPECT_NE(chosen, before);
    openDialog("paint");
    change(opened);
    opened->close();
    EXPECT_NE(valueOf("wall.paint"), chosen);
    EXPECT_NE(valueOf("wall.paint"), before);
}

TEST_F(ColourTest, ATextThatCannotBeReadOnItsColourIsShownBesideIt) {
    EXPECT_TRUE(!readableText("paint") || !readableText("paint")->isVisible()) << "white on dark blue";
    ASSERT_NE(readableText("grey"), nullptr) << "a fifth of black on nearly white";
    EXPECT_TRUE(readableText("grey")->isVisible());
    EXPECT_EQ(readableText("grey")->text(), QStringLiteral("0.20"));
    EXPECT_EQ(swatch("grey")->text(), QStringLiteral(" 0.20 "));
    set("wall.paint", "0.5 0.4 0.6 0.25");
    ASSERT_NE(readableText("paint"), nullptr);
    EXPECT_TRUE(readableText("paint")->isVisible());
    EXPECT_EQ(readableText("paint")->text(), QStringLiteral("0.25"));
    set("wall.paint", "0 0 0 1");
    EXPECT_FALSE(readableText("paint")->isVisible());
}

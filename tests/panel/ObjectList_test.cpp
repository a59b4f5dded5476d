#include "PanelTest.hpp"

#include <QHelpEvent>
#include <QLCDNumber>
#include <QTextDocumentFragment>
#include <QToolTip>

namespace {

class ObjectListTest : public PanelTest {
protected:
    QLCDNumber* icon(char const* object) const {
        return qobject_cast<QLCDNumber*>(window->objectList()->icon(QString::fromUtf8(object)));
    }
};

} // namespace

TEST_F(ObjectListTest, ShowsTheIconOfAnIntegerBesideItsObject) {
    ASSERT_NE(icon("second lamp"), nullptr);
    EXPECT_EQ(icon("second lamp")->intValue(), 5);
    EXPECT_EQ(window->objectList()->icon(QStringLiteral("lamp")), nullptr);
    EXPECT_EQ(window->objectList()->icon(QStringLiteral("third lamp")), nullptr);
}

TEST_F(ObjectListTest, AnIconFollowsItsParameterAndThePool) {
    window->choosePool(QStringLiteral("night"));
    ASSERT_NE(icon("second lamp"), nullptr);
    EXPECT_EQ(icon("second lamp")->intValue(), 2);
    set("second lamp.level", "77");
    EXPECT_EQ(icon("second lamp")->intValue(), 77);
}

TEST_F(ObjectListTest, IconsChangeNoValue) {
    auto const values = window->network()->values();
    window->objectList()->closeIcons();
    window->objectList()->openIcons();
    EXPECT_EQ(window->network()->values(), values);
}

TEST_F(ObjectListTest, IconsGoAndComeWithThePlugin) {
    QPointer<QLCDNumber> const old = icon("second lamp");
    action("unload")->trigger();
    EXPECT_FALSE(old);
    EXPECT_EQ(window->objectList()->icon(QStringLiteral("second lamp")), nullptr);
    action("reload")->trigger();
    ASSERT_NE(icon("second lamp"), nullptr);
    EXPECT_EQ(icon("second lamp")->intValue(), 5);
}

TEST_F(ObjectListTest, AClickOnAnIconChoosesItsObject) {
    window->show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(window.get()));
    auto* const shown = icon("second lamp");
    ASSERT_NE(shown, nullptr);
    // The widget to which the window system would deliver the click.
    auto* const target = window->childAt(shown->mapTo(window.get(), shown->rect().center()));
    ASSERT_EQ(target, window->objectList()->viewport());
    QTest::mouseClick(target, Qt::LeftButton, Qt::NoModifier, shown->mapTo(target, shown->rect().center()));
    EXPECT_EQ(window->currentView()->object(), window->network()->findObject(QStringLiteral("second lamp")));
}

TEST_F(ObjectListTest, AnIconNeverCoversAName) {
    auto* const list = window->objectList();
    window->resize(640, 480);
    window->show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(window.get()));
    auto const nameRight = [&] {
        return list->visualRect(list->objects()->find(QStringLiteral("second lamp"))).right();
    };
    auto const iconLeft = [&] { return icon("second lamp")->mapTo(list->viewport(), QPoint()).x(); };
    EXPECT_GT(nameRight(), 0);
    EXPECT_GT(iconLeft(), nameRight());
    int const width = icon("second lamp")->width();
    auto large = list->font();
    large.setPixelSize(3 * QFontInfo(large).pixelSize());
    list->setFont(large);
    EXPECT_TRUE(waitUntil([&] { return icon("second lamp")->width() > 2 * width; }));
    list->setFixedWidth(200);
    EXPECT_TRUE(
        waitUntil([&] { return iconLeft() > nameRight() && iconLeft() + icon("second lamp")->width() <= 200; }));
    EXPECT_GT(nameRight(), 0);
}

TEST_F(ObjectListTest, NamesHaveTheRoomThatIconsNoLongerTake) {
    auto* const list = window->objectList();
    window->show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(window.get()));
    auto const nameRight = [&] { return list->visualRect(list->objects()->index(0, 0)).right(); };
    int const edge = list->viewport()->rect().right();
    EXPECT_LT(nameRight(), edge);
    int const before = nameRight();
    auto const usual = list->font();
    auto large = usual;
    large.setPixelSize(3 * QFontInfo(usual).pixelSize());
    list->setFont(large);
    EXPECT_TRUE(waitUntil([&] { return nameRight() < before; }));
    list->setFont(usual);
    EXPECT_TRUE(waitUntil([&] { return nameRight() == before; }));
    open(
        R"({ "pools": ["day"], "objects": [ { "name": "lamp", "parameters": [ { "name": "on", "type": "bool", "value": true } ] } ] })");
    EXPECT_TRUE(waitUntil([&] { return nameRight() == edge; }));
}

TEST_F(ObjectListTest, TheToolTipOfAnIconSaysWhatItShows) {
    window->show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(window.get()));
    auto* const viewport = window->objectList()->viewport();
    auto const middle = icon("second lamp")->mapTo(viewport, icon("second lamp")->rect().center());
    QHelpEvent help(QEvent::ToolTip, middle, viewport->mapToGlobal(middle));
    QCoreApplication::sendEvent(viewport, &help);
    EXPECT_EQ(QToolTip::text(), QStringLiteral("level = 5"));
    window->choosePool(QStringLiteral("night"));
    QCoreApplication::sendEvent(viewport, &help);
    EXPECT_EQ(QToolTip::text(), QStringLiteral("level = 2"));
    QToolTip::hideText();
    EXPECT_TRUE(waitUntil([] { return !QToolTip::isVisible(); }));
}

TEST_F(ObjectListTest, AnEditorWithoutAnIconIsAskedForOneOnlyOnce) {
    QString error;
    auto const file = networkFile(QStringLiteral("choice.json"), R"({ "pools": ["day", "night"], "objects": [
        { "name": "lamp", "parameters": [ { "name": "on", "type": "bool", "value": true } ] },
        { "name": "choice", "parameters": [
            { "name": "some", "type": "multiselection", "value": [], "entries": ["a", "b"] } ] } ] })");
    ASSERT_TRUE(window->openNetwork(file, &error)) << qPrintable(error);
    EXPECT_EQ(window->objectList()->icon(QStringLiteral("choice")), nullptr);
    // This editor prints a line when it is created.
    EXPECT_THAT(takeOutput(), testing::Not(testing::IsEmpty()));
    window->choosePool(QStringLiteral("night"));
    EXPECT_EQ(window->objectList()->icon(QStringLiteral("choice")), nullptr);
    ASSERT_TRUE(window->openNetwork(file, &error)) << qPrintable(error);
    EXPECT_EQ(window->objectList()->icon(QStringLiteral("choice")), nullptr);
    EXPECT_THAT(takeOutput(), testing::IsEmpty());
    action("reload")->trigger();
    EXPECT_EQ(window->objectList()->icon(QStringLiteral("choice")), nullptr);
    EXPECT_THAT(takeOutput(), testing::Not(testing::IsEmpty()));
}

TEST_F(ObjectListTest, TheKindOfAnObjectIsNoRichText) {
    QString error;
    auto const* const file = R"({ "pools": ["a"], "objects": [{ "name": "one", "kind": "<img src='x'>" }] })";
    ASSERT_TRUE(window->openNetwork(networkFile("kind.json", file), &error)) << qPrintable(error);
    auto const toolTip = window->objectList()->objects()->index(0, 0).data(Qt::ToolTipRole).toString();
    auto const shown = Qt::mightBeRichText(toolTip) ? QTextDocumentFragment::fromHtml(toolTip).toPlainText() : toolTip;
    EXPECT_EQ(shown, QStringLiteral("one\n<img src='x'>"));
}

#include "PanelTest.hpp"

#include <panel/window/ComparisonView.hpp>
#include <QClipboard>
#include <QComboBox>
#include <QHeaderView>

using testing::ElementsAre;
using testing::IsEmpty;

namespace {

constexpr char const* rooms = R"({ "pools": ["day", "night", "spare"], "objects": [
    { "name": "hall", "parameters": [
        { "name": "lamps", "type": "int", "value": 9, "values": { "day": 10, "night": 2 } },
        { "name": "same", "type": "int", "value": 9, "values": { "day": 9 } },
        { "name": "state", "type": "info", "value": "", "values": { "day": "bright" } },
        { "name": "note", "type": "string", "value": "a\tb", "values": { "night": "c" } } ] },
    { "name": "attic", "parameters": [
        { "name": "lamps", "type": "int", "value": 1, "values": { "day": 3, "night": 20 },
          "properties": { "advanced": true } } ] } ] })";

class PoolComparisonTest : public PanelTest {
protected:
    void SetUp() override {
        PanelTest::SetUp();
        QString error;
        ASSERT_TRUE(window->openNetwork(networkFile("rooms.json", rooms), &error)) << qPrintable(error);
        window->show();
        window->activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(window.get()));
        action("showComparison")->trigger();
        QCoreApplication::processEvents();
    }

    QTreeView* table() const { return window->findChild<QTreeView*>(QStringLiteral("differences")); }
    std::vector<std::string> rows() const {
        std::vector<std::string> all;
        for (int row = 0; row < table()->model()->rowCount(); ++row) {
            QStringList cells;
            for (int column = 0; column < table()->model()->columnCount(); ++column)
                cells << table()->model()->index(row, column).data().toString();
            all.push_back(cells.join(QLatin1Char('|')).toStdString());
        }
        return all;
    }
    void choose(char const* selector, char const* pool) const {
        window->findChild<QComboBox*>(QString::fromUtf8(selector))->setCurrentText(QString::fromUtf8(pool));
    }
    void sortBy(int column) const {
        auto* const header = table()->header();
        QTest::mouseClick(header->viewport(), Qt::LeftButton, Qt::NoModifier,
                          QPoint(header->sectionViewportPosition(column) + 5, header->height() / 2));
    }
    std::string count() const {
        return window->findChild<QLabel*>(QStringLiteral("differenceCount"))->text().toStdString();
    }
};

} // namespace

TEST_F(PoolComparisonTest, ListsTheParametersThatDifferWithBothValues) {
    EXPECT_THAT(rows(), ElementsAre("hall|lamps|10|2", "hall|note|a\\tb|c", "attic|lamps|3|20"));
    EXPECT_EQ(table()->model()->headerData(2, Qt::Horizontal).toString(), QStringLiteral("In pool day"));
    EXPECT_EQ(table()->model()->headerData(3, Qt::Horizontal).toString(), QStringLiteral("In pool night"));
    EXPECT_EQ(count(), "3 parameters differ.");
    choose("firstPool", "spare");
    EXPECT_THAT(rows(), ElementsAre("hall|lamps|9|2", "hall|note|a\\tb|c", "attic|lamps|1|20"));
    choose("secondPool", "spare");
    EXPECT_THAT(rows(), IsEmpty());
}

TEST_F(PoolComparisonTest, FollowsEditsAtOnceAndTheHostWhenAsked) {
    ASSERT_TRUE(window->showObject(QStringLiteral("hall")));
    auto* const field = window->currentView()->row(QStringLiteral("lamps"))->editor()->findChild<QLineEdit*>();
    field->setFocus();
    field->selectAll();
    QTest::keyClicks(field, "2");
    QTest::keyClick(field, Qt::Key_Return);
    EXPECT_TRUE(waitUntil([&] { return rows().size() == 2; }));
    QString error;
    auto const night = window->network()->findPool(QStringLiteral("night"));
    EXPECT_TRUE(window->network()->setText(QStringLiteral("attic.lamps"), QStringLiteral("3"), night, &error));
    EXPECT_EQ(rows().size(), 2U);
    QTest::mouseClick(window->findChild<QToolButton*>(QStringLiteral("refreshComparison")), Qt::LeftButton);
    EXPECT_THAT(rows(), ElementsAre("hall|note|a\\tb|c"));
    EXPECT_EQ(count(), "1 parameter differs.");
}

TEST_F(PoolComparisonTest, IsSortedByAClickOnAColumn) {
    sortBy(0);
    EXPECT_THAT(rows(), ElementsAre("attic|lamps|3|20", "hall|lamps|10|2", "hall|note|a\\tb|c"));
    // Numbers by their values, before texts.
    sortBy(2);
    EXPECT_THAT(rows(), ElementsAre("attic|lamps|3|20", "hall|lamps|10|2", "hall|note|a\\tb|c"));
    sortBy(3);
    EXPECT_THAT(rows(), ElementsAre("hall|lamps|10|2", "attic|lamps|3|20", "hall|note|a\\tb|c"));
}

TEST_F(PoolComparisonTest, IsCopiedAsText) {
    table()->setFocus();
    table()->clearSelection();
    action("copyDifferences")->trigger();
    EXPECT_EQ(QApplication::clipboard()->text().toStdString(),
              "Object\tParameter\tIn pool day\tIn pool night\n"
              "hall\tlamps\t10\t2\nhall\tnote\ta\\tb\tc\nattic\tlamps\t3\t20\n");
    QTest::mouseClick(table()->viewport(), Qt::LeftButton, Qt::NoModifier,
                      table()->visualRect(table()->model()->index(1, 0)).center());
    QTest::keyClick(table(), Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(QApplication::clipboard()->text().toStdString(),
              "Object\tParameter\tIn pool day\tIn pool night\nhall\tnote\ta\\tb\tc\n");
}

TEST_F(PoolComparisonTest, ADoubleClickShowsTheRowWhateverHidesIt) {
    window->setFilter(QStringLiteral("note"));
    auto const place = table()->visualRect(table()->model()->index(2, 0)).center();
    QTest::mouseClick(table()->viewport(), Qt::LeftButton, Qt::NoModifier, place);
    QTest::mouseDClick(table()->viewport(), Qt::LeftButton, Qt::NoModifier, place);
    ASSERT_EQ(window->currentView()->object()->Name(), "attic");
    EXPECT_TRUE(window->currentView()->row(QStringLiteral("lamps"))->isVisible());
    EXPECT_TRUE(window->advancedShown());
}

TEST_F(PoolComparisonTest, AnotherNetworkIsComparedInItsOwnPools) {
    ASSERT_TRUE(window->openNetwork(networkFile("lamps.json", lamps)));
    EXPECT_THAT(rows(), ElementsAre("lamp|on|false|true", "second lamp|level|5|2"));
    ASSERT_TRUE(window->openNetwork(networkFile("one.json", R"({ "pools": ["only"], "objects": [] })")));
    EXPECT_THAT(rows(), IsEmpty());
    EXPECT_EQ(count(), "0 parameters differ.");
}

// What a person looks at stays in its place when another pool is chosen.

#include "PanelTest.hpp"

#include <parameters/rows/RowArea.hpp>
#include <QComboBox>
#include <QScrollBar>

namespace {

class PoolChoiceTest : public PanelTest {
protected:
    void TearDown() override {
        window.reset();
        takeOutput();
        PanelTest::TearDown();
    }
    void open(QString const& file, QSize const& size) {
        QString error;
        ASSERT_TRUE(window->openNetwork(file, &error)) << qPrintable(error);
        window->resize(size);
        window->show();
        window->activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(window.get()));
        settle();
    }
    static void settle() {
        for (int round = 0; round < 3; ++round) {
            QCoreApplication::sendPostedEvents();
            QCoreApplication::processEvents();
        }
    }
    /// Chooses the other pool as a person does, in the tool bar by the keyboard.
    void chooseOtherPool() {
        auto* const selector = window->findChild<QToolBar*>(QStringLiteral("pool"))->findChild<QComboBox*>();
        auto const before = selector->currentIndex();
        selector->setFocus();
        QTest::keyClick(selector, before == 0 ? Qt::Key_Down : Qt::Key_Up);
        EXPECT_NE(selector->currentIndex(), before);
        settle();
    }
    /// The first row that can be seen whole, and its place.
    std::pair<QString, int> firstSeen() const {
        auto* const area = window->currentView()->panel()->rowArea();
        for (auto* const row : area->rows()) {
            int const top = row->mapTo(area->viewport(), QPoint()).y();
            if (row->isVisible() && top >= 0)
                return {row->parameterName(), top};
        }
        return {};
    }
    void expectPlacesKept() {
        for (auto const& object : window->network()->objects()) {
            ASSERT_TRUE(window->showObject(QString::fromStdString(object->Name())));
            settle();
            auto* const bar = window->currentView()->panel()->rowArea()->verticalScrollBar();
            for (int const part : {1, 2, 3, 4}) {
                SCOPED_TRACE(object->Name() + " " + std::to_string(part));
                bar->setValue(bar->maximum() * part / 4);
                settle();
                auto const before = firstSeen();
                chooseOtherPool();
                EXPECT_EQ(firstSeen(), before);
            }
        }
    }
};

} // namespace

TEST_F(PoolChoiceTest, TheFormStaysInItsPlace) {
    open(QStringLiteral(TALO_EXAMPLES "/networks/fractal.json"), {900, 420});
    expectPlacesKept();
}

TEST_F(PoolChoiceTest, AFilteredFormStaysInItsPlace) {
    open(QStringLiteral(TALO_EXAMPLES "/networks/fractal.json"), {900, 420});
    window->setFilter(QStringLiteral("e"));
    settle();
    expectPlacesKept();
}

TEST_F(PoolChoiceTest, AFormWithRawValuesAndFocusStaysInItsPlace) {
    open(QStringLiteral(TALO_EXAMPLES "/networks/fractal.json"), {900, 420});
    window->setRawValuesShown(true);
    for (auto const& object : window->network()->objects()) {
        SCOPED_TRACE(object->Name());
        ASSERT_TRUE(window->showObject(QString::fromStdString(object->Name())));
        settle();
        auto* const area = window->currentView()->panel()->rowArea();
        area->focusFirstControl();
        area->verticalScrollBar()->setValue(area->verticalScrollBar()->maximum());
        settle();
        auto const before = firstSeen();
        auto* const selector = window->findChild<QToolBar*>(QStringLiteral("pool"))->findChild<QComboBox*>();
        selector->setCurrentIndex(1 - selector->currentIndex());
        settle();
        EXPECT_EQ(firstSeen(), before);
    }
}

TEST_F(PoolChoiceTest, AFormWithManyKindsOfRowsStaysInItsPlace) {
    QStringList rows;
    for (int number = 0; number < 300; ++number) {
        QStringList const kinds{
            QStringLiteral(
                R"("type": "enum", "perPool": true, "value": "b", "values": { "night": "a" }, "entries": ["a", "b"])"),
            QStringLiteral(
                R"("type": "multiselection", "value": [], "values": { "night": ["a"] }, "entries": ["a", "b"])"),
            QStringLiteral(R"("type": "int", "value": 1, "values": { "night": 2 })"),
            QStringLiteral(R"("type": "double", "value": 1, "values": { "night": 2 }, "preferences": ["dial"])"),
            QStringLiteral(R"("type": "info", "value": "short", "values": { "night": "short" })"),
            QStringLiteral(
                R"("type": "selection", "value": "a", "values": { "night": "bbb" }, "entries": ["a", "bbb"])")};
        rows << QStringLiteral(R"({ "name": "p%1", %2 })").arg(number).arg(kinds.at(number * 7 % kinds.size()));
    }
    auto const text =
        QStringLiteral(R"({ "pools": ["day", "night"], "objects": [ { "name": "long", "parameters": [%1] } ] })")
            .arg(rows.join(QLatin1Char(',')));
    open(networkFile("long.json", text.toUtf8().constData()), {900, 420});
    expectPlacesKept();
}

TEST_F(PoolChoiceTest, TheListOfObjectsStaysInItsPlace) {
    QStringList objects;
    for (int number = 0; number < 60; ++number)
        objects
            << QStringLiteral(
                   R"({ "name": "o%1", "parameters": [ { "name": "level", "type": "int", "value": 9, "values": { "night": 2 } } ] })")
                   .arg(number);
    auto const text =
        QStringLiteral(R"({ "pools": ["day", "night"], "objects": [%1] })").arg(objects.join(QLatin1Char(',')));
    open(networkFile("objects.json", text.toUtf8().constData()), {900, 420});
    auto* const bar = window->objectList()->verticalScrollBar();
    bar->setValue(bar->maximum() / 2);
    int const before = bar->value();
    ASSERT_GT(before, 0);
    chooseOtherPool();
    EXPECT_EQ(bar->value(), before);
}

#include "PanelTest.hpp"

#include <panel/window/Session.hpp>
#include <QPushButton>
#include <QSignalSpy>

using testing::ElementsAre;
using testing::IsEmpty;

namespace {

constexpr char const* zoo = R"({ "pools": ["day", "night"], "objects": [
    { "name": "wolf", "kind": "mammal", "parameters": [ { "name": "legs", "type": "int", "value": 4 } ] },
    { "name": "zookeeper", "parameters": [ { "name": "on duty", "type": "bool", "value": true } ] },
    { "name": "eagle", "kind": "bird", "parameters": [ { "name": "legs", "type": "int", "value": 2 },
                                                       { "name": "flies", "type": "bool", "value": true } ] },
    { "name": "bear", "kind": "mammal", "parameters": [ { "name": "legs", "type": "int", "value": 4 } ] },
    { "name": "duck 10", "kind": "bird", "parameters": [ { "name": "flies", "type": "bool", "value": true } ] },
    { "name": "Duck 9", "kind": "bird", "parameters": [ { "name": "swims", "type": "bool", "value": true } ] } ] })";

std::vector<std::string> namesOf(std::vector<Kolt::ObjectPtr> const& objects) {
    std::vector<std::string> names;
    for (auto const& object : objects)
        names.push_back(object->Name());
    return names;
}

class ObjectTreeTest : public PanelTest {
protected:
    void SetUp() override {
        PanelTest::SetUp();
        open(zoo);
        connection = QObject::connect(list(), &Panel::ObjectList::objectsChosen, window.get(),
                                      [this](auto const& objects) { reported = namesOf(objects); });
        window->show();
        window->activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(window.get()));
    }

    void open(char const* text) {
        QString error;
        ASSERT_TRUE(window->openNetwork(networkFile("zoo.json", text), &error)) << qPrintable(error);
    }
    Panel::ObjectList* list() const { return window->objectList(); }
    QModelIndex index(char const* object) const { return list()->objects()->find(QString::fromUtf8(object)); }
    QModelIndex kind(char const* name) const {
        for (auto const& row : list()->objects()->allRows())
            if (list()->objects()->isKind(row) && row.data().toString() == QString::fromUtf8(name))
                return row;
        return {};
    }
    /// What a person sees, from top to bottom.
    std::vector<std::string> lines() const {
        std::vector<std::string> all;
        for (auto row = list()->indexAt({1, 1}); row.isValid(); row = list()->indexBelow(row))
            all.push_back(row.siblingAtColumn(0).data().toString().toStdString());
        return all;
    }
    std::string found(QModelIndex const& row) const {
        return row.siblingAtColumn(Panel::ObjectModel::Found).data().toString().toStdString();
    }
    void click(QModelIndex const& row, Qt::KeyboardModifiers keys = Qt::NoModifier) {
        QTest::mouseClick(list()->viewport(), Qt::LeftButton, keys, list()->visualRect(row).center());
    }
    void press(Qt::Key key, Qt::KeyboardModifiers keys = Qt::NoModifier) { QTest::keyClick(list(), key, keys); }
    std::string shown() const { return window->currentView()->object()->Name(); }
    std::vector<std::string> chosen() const { return namesOf(list()->chosenObjects()); }

    std::vector<std::string> reported;
    QMetaObject::Connection connection;
};

} // namespace

TEST_F(ObjectTreeTest, KindsGroupTheObjects) {
    EXPECT_THAT(lines(), ElementsAre("mammal", "wolf", "bear", "zookeeper", "bird", "eagle", "duck 10", "Duck 9"));
    EXPECT_EQ(shown(), "wolf");
}

TEST_F(ObjectTreeTest, WhereKindsGroupNothingTheyMakeNoLevel) {
    open(R"({ "pools": ["a"], "objects": [ { "name": "one", "kind": "k" }, { "name": "two", "kind": "k" },
                                           { "name": "three" } ] })");
    EXPECT_THAT(lines(), ElementsAre("one", "two", "three"));
    open(R"({ "pools": ["a"], "objects": [ { "name": "one", "kind": "k" }, { "name": "two", "kind": "l" } ] })");
    EXPECT_THAT(lines(), ElementsAre("one", "two"));
}

TEST_F(ObjectTreeTest, ArrowKeysFoldAndUnfoldAKind) {
    list()->setFocus();
    // To the kind, and then fold it.
    press(Qt::Key_Left);
    press(Qt::Key_Left);
    EXPECT_THAT(lines(), ElementsAre("mammal", "zookeeper", "bird", "eagle", "duck 10", "Duck 9"));
    EXPECT_EQ(shown(), "wolf");
    press(Qt::Key_Right);
    EXPECT_EQ(lines().size(), 8U);
    press(Qt::Key_Down);
    press(Qt::Key_Down);
    EXPECT_EQ(shown(), "bear");
}

TEST_F(ObjectTreeTest, TypingFindsAnObjectAlsoBelowAFoldedKind) {
    list()->setFocus();
    list()->setFoldedKinds({QStringLiteral("bird")});
    QTest::keyClicks(list(), "du");
    EXPECT_EQ(shown(), "duck 10");
    EXPECT_TRUE(list()->isExpanded(kind("bird")));
    QTest::keyClicks(list(), "ck 9");
    EXPECT_EQ(shown(), "Duck 9");
}

TEST_F(ObjectTreeTest, TheOrderIsChosenInAMenu) {
    action("orderName")->trigger();
    EXPECT_THAT(lines(), ElementsAre("bird", "Duck 9", "duck 10", "eagle", "mammal", "bear", "wolf", "zookeeper"));
    EXPECT_EQ(list()->currentIndex(), index("wolf"));
    action("orderKind")->trigger();
    EXPECT_THAT(lines(), ElementsAre("zookeeper", "bird", "eagle", "duck 10", "Duck 9", "mammal", "wolf", "bear"));
    auto const* const button = window->findChild<QPushButton*>(QStringLiteral("objectOrder"));
    EXPECT_EQ(button->text(), QStringLiteral("By kind"));
    action("orderFile")->trigger();
    EXPECT_EQ(lines().front(), "mammal");
}

TEST_F(ObjectTreeTest, AnotherOrderKeepsWhatIsChosenFoldedAndHidden) {
    click(index("Duck 9"));
    click(index("eagle"), Qt::ControlModifier);
    list()->setFoldedKinds({QStringLiteral("mammal")});
    window->setFilter(QStringLiteral("bird"));
    list()->setOrder(Panel::ObjectModel::Order::Name);
    EXPECT_THAT(lines(), ElementsAre("bird", "Duck 9", "duck 10", "eagle"));
    EXPECT_THAT(chosen(), ElementsAre("Duck 9", "eagle"));
    EXPECT_TRUE(list()->selectionModel()->isSelected(index("eagle")));
    window->setFilter({});
    EXPECT_THAT(lines(), ElementsAre("bird", "Duck 9", "duck 10", "eagle", "mammal", "zookeeper"));
}

TEST_F(ObjectTreeTest, AFilterShowsHowManyParametersItFindsInEachRow) {
    EXPECT_EQ(found(index("eagle")), "");
    EXPECT_TRUE(list()->isColumnHidden(Panel::ObjectModel::Found));
    window->setFilter(QStringLiteral("legs"));
    EXPECT_THAT(lines(), ElementsAre("mammal", "wolf", "bear", "bird", "eagle"));
    EXPECT_FALSE(list()->isColumnHidden(Panel::ObjectModel::Found));
    EXPECT_EQ(found(index("eagle")), "1");
    EXPECT_EQ(found(kind("mammal")), "2");
    window->setFilter(QStringLiteral("bird"));
    EXPECT_EQ(found(index("eagle")), "2");
    EXPECT_EQ(found(kind("bird")), "4");
    window->setFilter({});
    EXPECT_EQ(lines().size(), 8U);
    EXPECT_EQ(found(index("eagle")), "");
}

TEST_F(ObjectTreeTest, CtrlAndShiftChooseSeveralObjects) {
    click(index("eagle"));
    EXPECT_THAT(reported, ElementsAre("eagle"));
    click(index("wolf"), Qt::ControlModifier);
    EXPECT_THAT(reported, ElementsAre("eagle", "wolf"));
    EXPECT_EQ(shown(), "eagle");
    click(index("eagle"), Qt::ControlModifier);
    EXPECT_THAT(reported, ElementsAre("wolf"));
    EXPECT_EQ(shown(), "wolf");
    click(index("bear"));
    click(index("eagle"), Qt::ShiftModifier);
    EXPECT_THAT(reported, ElementsAre("bear", "zookeeper", "eagle"));
    EXPECT_EQ(shown(), "bear");
    press(Qt::Key_Down, Qt::ShiftModifier);
    EXPECT_THAT(reported, ElementsAre("bear", "zookeeper", "eagle", "duck 10"));
    EXPECT_THAT(chosen(), ElementsAre("bear", "zookeeper", "eagle", "duck 10"));
}

TEST_F(ObjectTreeTest, AnObjectThatTheFilterLeavesOutIsNotChosen) {
    click(index("wolf"));
    click(index("eagle"), Qt::ControlModifier);
    click(index("Duck 9"), Qt::ControlModifier);
    window->setFilter(QStringLiteral("legs"));
    EXPECT_THAT(chosen(), ElementsAre("wolf", "eagle"));
    window->setFilter(QStringLiteral("swims"));
    EXPECT_THAT(chosen(), ElementsAre("Duck 9"));
    EXPECT_EQ(shown(), "Duck 9");
    window->setFilter(QStringLiteral("nothing has this"));
    EXPECT_THAT(lines(), IsEmpty());
}

TEST_F(ObjectTreeTest, AChoiceByNameReplacesTheOthersWhateverKeysArePressed) {
    click(index("eagle"));
    // As when undo is called by its shortcut.
    QTest::keyPress(list(), Qt::Key_Control, Qt::ControlModifier);
    EXPECT_TRUE(window->showObject(QStringLiteral("bear")));
    QTest::keyRelease(list(), Qt::Key_Control);
    EXPECT_THAT(chosen(), ElementsAre("bear"));
}

TEST_F(ObjectTreeTest, TheSessionRemembersOrderAndFoldedKinds) {
    auto const file = folder.filePath(QStringLiteral("session.ini"));
    {
        Panel::Session session(file);
        session.follow(*window);
        list()->setOrder(Panel::ObjectModel::Order::Name);
        list()->setFoldedKinds({QStringLiteral("bird")});
        window->close();
    }
    list()->setOrder(Panel::ObjectModel::Order::File);
    list()->setFoldedKinds({});
    Panel::Session again(file);
    again.follow(*window);
    window->show();
    EXPECT_EQ(list()->order(), Panel::ObjectModel::Order::Name);
    EXPECT_THAT(list()->foldedKinds(), ElementsAre(QStringLiteral("bird")));
}

TEST_F(ObjectTreeTest, VeryManyObjectsAreListedFilteredSortedAndChosen) {
    auto network = Talo::Network::create(QStringLiteral("many"), {"only"});
    // A search of the rows for each row would take longer than a test may.
    constexpr int count = 50000;
    for (int number = 0; number < count; ++number)
        network->addObject(Kolt::ObjectPtr(new Kolt::VObject("object " + std::to_string(number))),
                           QStringLiteral("kind %1").arg(number % 50));
    window->showNetwork(std::move(network));
    EXPECT_EQ(list()->objects()->allRows().size(), count + 50U);
    window->setFilter(QStringLiteral("37777"));
    QCoreApplication::processEvents();
    EXPECT_EQ(shown(), "object 37777");
    window->setFilter({});
    list()->setOrder(Panel::ObjectModel::Order::Name);
    list()->selectAll();
    EXPECT_EQ(chosen().size(), std::size_t{count});
    EXPECT_TRUE(window->showObject(QStringLiteral("object 49999")));
    QCoreApplication::processEvents();
}

#include "PanelTest.hpp"

#include <panel/window/Session.hpp>
#include <QDockWidget>
#include <QScreen>
#include <QSplitter>

namespace {

class SessionTest : public PanelTest {
protected:
    void SetUp() override {
        PanelTest::SetUp();
        file = folder.filePath(QStringLiteral("settings/panel.ini"));
    }

    /// Starts a new panel with the fixture's network and restores the session.
    void start() {
        session.reset();
        auto const network = window->network()->file();
        window = std::make_unique<Panel::MainWindow>(plugins);
        QString error;
        ASSERT_TRUE(window->openNetwork(network, &error)) << qPrintable(error);
        follow();
    }
    void follow() {
        session = std::make_unique<Panel::Session>(file);
        QObject::connect(session.get(), &Panel::Session::failed, session.get(),
                         [this](QString const& reason) { failures << reason; });
        session->follow(*window);
        window->show();
    }
    QString shownObject() const { return QString::fromStdString(window->currentView()->object()->Name()); }
    QString pool() const { return QString::fromStdString(window->pools().pool()->Name()); }
    /// The docks of the additional views.
    QList<QDockWidget*> viewDocks() const {
        QList<QDockWidget*> docks;
        for (auto* const dock : window->findChildren<QDockWidget*>()) {
            if (qobject_cast<Panel::ObjectView*>(dock->widget()))
                docks << dock;
        }
        return docks;
    }
    QDockWidget* messageDock() const { return window->findChild<QDockWidget*>(QStringLiteral("messages")); }
    /// Checks that the window is as it is without a session.
    void expectUntouched() {
        EXPECT_EQ(shownObject(), QStringLiteral("lamp"));
        EXPECT_EQ(pool(), QStringLiteral("day"));
        EXPECT_EQ(window->size(), QSize(1200, 800));
        EXPECT_FALSE(window->rawValuesShown());
        EXPECT_FALSE(window->advancedShown());
        EXPECT_TRUE(viewDocks().isEmpty());
        EXPECT_TRUE(messageDock()->isVisible());
        EXPECT_TRUE(window->screen()->availableGeometry().intersects(window->frameGeometry()));
    }

    QString file;
    std::unique_ptr<Panel::Session> session;
    QStringList failures;
};

} // namespace

TEST_F(SessionTest, WithoutAFileTheWindowIsUnchanged) {
    follow();
    expectUntouched();
    EXPECT_FALSE(QFile::exists(file)) << "there is nothing to keep yet";
}

TEST_F(SessionTest, RestoresTheStateOfTheWindow) {
    follow();
    window->showObject(QStringLiteral("second lamp"));
    window->choosePool(QStringLiteral("night"));
    window->setRawValuesShown(true);
    window->setAdvancedShown(true);
    window->setGeometry(40, 50, 820, 610);
    window->addDockWidget(Qt::TopDockWidgetArea, messageDock());
    auto* const splitter = window->findChild<QSplitter*>("columns");
    splitter->setSizes({300, 500});
    auto const columns = splitter->sizes();
    ASSERT_TRUE(window->close());

    start();
    EXPECT_EQ(shownObject(), QStringLiteral("second lamp"));
    EXPECT_EQ(pool(), QStringLiteral("night"));
    EXPECT_TRUE(window->rawValuesShown());
    EXPECT_TRUE(window->advancedShown());
    EXPECT_EQ(window->geometry(), QRect(40, 50, 820, 610));
    EXPECT_EQ(window->dockWidgetArea(messageDock()), Qt::TopDockWidgetArea);
    EXPECT_EQ(window->findChild<QSplitter*>("columns")->sizes(), columns);
    EXPECT_EQ(failures, QStringList());
}

TEST_F(SessionTest, RestoresAdditionalViewsAndTheirPlaces) {
    follow();
    window->showObject(QStringLiteral("second lamp"));
    auto* const floating = qobject_cast<QDockWidget*>(window->addView()->parentWidget());
    window->showObject(QStringLiteral("lamp"));
    auto* const docked = qobject_cast<QDockWidget*>(window->addView()->parentWidget());
    auto* const closed = qobject_cast<QDockWidget*>(window->addView()->parentWidget());
    closed->close();
    floating->setFloating(true);
    window->addDockWidget(Qt::LeftDockWidgetArea, docked);
    messageDock()->hide();
    QCoreApplication::processEvents();
    ASSERT_TRUE(window->close());

    start();
    EXPECT_EQ(shownObject(), QStringLiteral("lamp"));
    ASSERT_EQ(viewDocks().size(), 2);
    for (auto* const dock : viewDocks()) {
        auto const object = qobject_cast<Panel::ObjectView*>(dock->widget())->object()->Name();
        EXPECT_EQ(dock->isFloating(), object == "second lamp");
        EXPECT_EQ(window->dockWidgetArea(dock) == Qt::LeftDockWidgetArea, object == "lamp");
    }
    EXPECT_TRUE(messageDock()->isHidden());
}

TEST_F(SessionTest, EachNetworkHasItsOwnPoolAndObject) {
    follow();
    auto const lampFile = window->network()->file();
    window->showObject(QStringLiteral("second lamp"));
    window->choosePool(QStringLiteral("night"));
    window->addView();
    auto const doors = networkFile(QStringLiteral("doors.json"), R"({ "pools": ["open", "shut"], "objects": [
        { "name": "front", "parameters": [] }, { "name": "back", "parameters": [] } ] })");
    ASSERT_TRUE(window->openNetwork(doors));
    EXPECT_TRUE(viewDocks().isEmpty() || viewDocks().first()->isHidden());
    EXPECT_EQ(shownObject(), QStringLiteral("front"));
    window->showObject(QStringLiteral("back"));
    window->choosePool(QStringLiteral("shut"));

    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    ASSERT_TRUE(window->openNetwork(lampFile));
    EXPECT_EQ(shownObject(), QStringLiteral("second lamp"));
    EXPECT_EQ(pool(), QStringLiteral("night"));
    EXPECT_EQ(viewDocks().size(), 1);
    ASSERT_TRUE(window->openNetwork(doors));
    EXPECT_EQ(shownObject(), QStringLiteral("back"));
    EXPECT_EQ(pool(), QStringLiteral("shut"));
}

TEST_F(SessionTest, SectionsStayFoldedInTheirNetwork) {
    follow();
    auto const folded = [this] { return window->currentView()->panel()->rowArea()->foldedSections(); };
    window->findChild<QAction*>(QStringLiteral("foldAll"))->trigger();
    EXPECT_EQ(folded(), QStringList{QStringLiteral("housing")});
    auto* const second = window->addView();
    EXPECT_EQ(second->panel()->rowArea()->foldedSections(), folded());
    second->panel()->rowArea()->foldAllSections(false);
    EXPECT_EQ(folded(), QStringList()) << "all views of an object are folded alike";
    second->panel()->rowArea()->foldAllSections(true);
    ASSERT_TRUE(window->close());

    start();
    EXPECT_EQ(folded(), QStringList{QStringLiteral("housing")});
    ASSERT_TRUE(window->openNetwork(networkFile("other.json", lamps)));
    EXPECT_EQ(folded(), QStringList()) << "another network";
}

TEST_F(SessionTest, ForgetsWhatIsNotThereAnyMore) {
    follow();
    window->showObject(QStringLiteral("second lamp"));
    window->choosePool(QStringLiteral("night"));
    window->addView();
    ASSERT_TRUE(window->close());
    networkFile(QStringLiteral("lamps.json"), R"({ "pools": ["noon"], "objects": [
        { "name": "lantern", "parameters": [] } ] })");

    start();
    EXPECT_EQ(shownObject(), QStringLiteral("lantern"));
    EXPECT_EQ(pool(), QStringLiteral("noon"));
    EXPECT_TRUE(viewDocks().isEmpty());
}

TEST_F(SessionTest, RemembersALimitedNumberOfNetworks) {
    follow();
    for (int number = 0; number < Panel::Session::Capacity + 5; ++number) {
        auto const network = networkFile(QStringLiteral("%1.json").arg(number), R"({ "pools": ["a"], "objects": [] })");
        ASSERT_TRUE(window->openNetwork(network));
    }
    ASSERT_TRUE(window->close());
    QSettings settings(file, QSettings::IniFormat);
    EXPECT_EQ(settings.beginReadArray(QStringLiteral("networks")), Panel::Session::Capacity);
    settings.setArrayIndex(0);
    EXPECT_TRUE(settings.value(QStringLiteral("file"))
                    .toString()
                    .endsWith(QStringLiteral("/%1.json").arg(Panel::Session::Capacity + 4)));
}

TEST_F(SessionTest, ADamagedFileIsNoHarm) {
    follow();
    window->showObject(QStringLiteral("second lamp"));
    window->addView();
    window->resize(700, 500);
    ASSERT_TRUE(window->close());
    QFile settings(file);
    ASSERT_TRUE(settings.open(QIODevice::ReadOnly));
    auto const good = settings.readAll();
    settings.close();
    ASSERT_GT(good.size(), 400);

    auto const startWith = [&](QByteArray const& content) {
        QFile damaged(file);
        ASSERT_TRUE(damaged.open(QIODevice::WriteOnly));
        damaged.write(content);
        damaged.close();
        start();
        EXPECT_FALSE(shownObject().isEmpty());
        EXPECT_TRUE(window->screen()->availableGeometry().intersects(window->frameGeometry()));
        EXPECT_TRUE(window->isVisible());
        EXPECT_TRUE(waitUntil([&] { return window->width() >= window->minimumSizeHint().width(); }));
    };
    for (int size = 0; size < good.size(); size += 37)
        startWith(good.left(size));
    quint32 random = 1;
    for (int round = 0; round < 60; ++round) {
        auto damaged = good;
        for (int count = 0; count < 8; ++count) {
            random = random * 1664525U + 1013904223U;
            damaged[static_cast<int>((random >> 8U) % static_cast<quint32>(good.size()))] =
                static_cast<char>(random >> 24U);
        }
        startWith(damaged);
    }
    startWith(QByteArray(5000, '\0'));
    expectUntouched();
    startWith("[window]\ngeometry=wide\ncolumns=7\nrawValues=perhaps\ndocks=@Invalid()\n"
              "[networks]\nsize=2000000000\n1\\file=7\n");
}

TEST_F(SessionTest, AWindowThatWasOffTheScreenComesBackOntoIt) {
    follow();
    window->setGeometry(-9000, -7000, 700, 500);
    ASSERT_TRUE(window->close());
    start();
    EXPECT_TRUE(window->screen()->availableGeometry().intersects(window->frameGeometry()));
}

TEST_F(SessionTest, AFileThatCannotBeWrittenIsReportedAndTheWindowCloses) {
    // A folder has the file's name.
    ASSERT_TRUE(QDir().mkpath(file));
    follow();
    EXPECT_TRUE(window->close());
    ASSERT_EQ(failures.size(), 1);
    EXPECT_TRUE(failures.first().contains(file));
}

TEST_F(SessionTest, TheFileIsAmongTheUsersSettings) {
    EXPECT_EQ(Panel::Session::userFile(),
              QString::fromLocal8Bit(qgetenv("XDG_CONFIG_HOME")) + QStringLiteral("/talo/talo_panel.ini"));
}

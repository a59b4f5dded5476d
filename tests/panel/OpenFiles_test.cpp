// How networks come into the window besides the dialog: recent files, revert, and files that are dropped.

#include "UnsavedChangesTest.hpp"

#include <panel/window/Session.hpp>
#include <QDropEvent>
#include <QMenu>
#include <QMimeData>
#include <QStatusBar>

using testing::Contains;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::SizeIs;

namespace {

class OpenFilesTest : public UnsavedChangesTest {
protected:
    Panel::RecentMenu* recent() const { return &window->recentFiles(); }
    QString lampFile() const { return folder.filePath(QStringLiteral("lamps.json")); }
    QAction* entry(QString const& name) const {
        emit recent()->aboutToShow();
        for (auto* const each : recent()->actions())
            if (each->data() == QVariant(name))
                return each;
        return nullptr;
    }
    QString opened() const { return window->network()->file(); }
    std::vector<std::string> errors() const {
        std::vector<std::string> all;
        for (auto const& each : window->messages()->texts(Panel::MessageList::Source::Error))
            all.push_back(each.toStdString());
        for (auto* const box : window->findChildren<QMessageBox*>())
            box->close();
        return all;
    }
    /// Drops these onto the list of objects, as a file manager does. Says whether the window takes them.
    bool drop(QMimeData const& data) const {
        auto const send = [&](QDropEvent& event) {
            QApplication::sendEvent(window.get(), &event);
            return event.isAccepted();
        };
        QDragEnterEvent enter({50, 200}, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
        if (!send(enter))
            return false;
        QDragMoveEvent move({50, 200}, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
        QDropEvent drop({50, 200}, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
        return send(move) && send(drop);
    }
    void dropFiles(QList<QUrl> const& places) const {
        QMimeData data;
        data.setUrls(places);
        EXPECT_TRUE(drop(data));
        QApplication::processEvents();
    }
    /// Calls `asking` and answers its question by a button with this object name.
    static bool answerBy(char const* button, std::function<void()> const& asking) {
        bool asked = false;
        QTimer timer;
        QObject::connect(&timer, &QTimer::timeout, &timer, [&] {
            auto* const box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
            if (!box)
                return;
            asked = true;
            auto* const wanted = box->findChild<QPushButton*>(QLatin1String(button));
            QTest::mouseClick(wanted ? wanted : box->button(QMessageBox::Cancel), Qt::LeftButton);
        });
        timer.start(0);
        asking();
        return asked;
    }
};

} // namespace

TEST_F(OpenFilesTest, TheFilesThatWereOpenAreListedTheLatestFirst) {
    EXPECT_EQ(recent()->files(), (QStringList{file(), lampFile()}));
    ASSERT_TRUE(entry(lampFile()));
    entry(lampFile())->trigger();
    EXPECT_EQ(opened(), lampFile());
    EXPECT_EQ(recent()->files(), (QStringList{lampFile(), file()}));
    auto const copy = folder.filePath(QStringLiteral("copy & more.json"));
    ASSERT_TRUE(window->saveValues(copy));
    EXPECT_EQ(recent()->files(), (QStringList{copy, lampFile(), file()}));
    EXPECT_THAT(entry(copy)->text().toStdString(), HasSubstr("&1  copy && more.json in "));
}

TEST_F(OpenFilesTest, ARecentFileIsOpenedOnlyWhenChangesMayBeLost) {
    edit();
    EXPECT_TRUE(answer(QMessageBox::Cancel, [this] { entry(lampFile())->trigger(); }));
    EXPECT_EQ(opened(), file());
    EXPECT_EQ(held("enum"), "Blue");
    EXPECT_TRUE(answer(QMessageBox::Discard, [this] { entry(lampFile())->trigger(); }));
    EXPECT_EQ(opened(), lampFile());
}

TEST_F(OpenFilesTest, AFileThatIsGoneIsToldAndDropped) {
    auto* const gone = entry(lampFile());
    ASSERT_TRUE(QFile::remove(lampFile()));
    edit();
    EXPECT_FALSE(answer(QMessageBox::Cancel, [&] { gone->trigger(); })) << "nothing is lost";
    EXPECT_EQ(opened(), file());
    EXPECT_EQ(recent()->files(), QStringList{file()});
    EXPECT_THAT(errors(), Contains(HasSubstr("lamps.json is gone.")));
}

TEST_F(OpenFilesTest, ADamagedFileLeavesWhatIsOpen) {
    networkFile("lamps.json", "{");
    entry(lampFile())->trigger();
    EXPECT_EQ(opened(), file());
    EXPECT_THAT(errors(), Contains(HasSubstr("lamps.json:1")));
}

TEST_F(OpenFilesTest, TheListIsShortAndCanBeCleared) {
    for (int number = 0; number < 2 * Panel::RecentMenu::Capacity; ++number)
        ASSERT_TRUE(window->saveValues(folder.filePath(QStringLiteral("%1.json").arg(number))));
    EXPECT_THAT(recent()->files(), SizeIs(Panel::RecentMenu::Capacity));
    EXPECT_EQ(recent()->files().first(), opened());
    EXPECT_TRUE(recent()->menuAction()->isEnabled());
    emit recent()->aboutToShow();
    action("clearRecent")->trigger();
    EXPECT_THAT(recent()->files(), IsEmpty());
    EXPECT_FALSE(recent()->menuAction()->isEnabled());
}

TEST_F(OpenFilesTest, TheSessionRemembersTheList) {
    auto const settings = folder.filePath(QStringLiteral("panel.ini"));
    {
        Panel::Session session(settings);
        session.follow(*window);
        ASSERT_TRUE(window->close());
    }
    QSettings(settings, QSettings::IniFormat)
        .setValue(QStringLiteral("window/recent"), QStringList{file(), lampFile(), QString(), "no path"});
    window = std::make_unique<Panel::MainWindow>(plugins);
    ASSERT_TRUE(window->openNetwork(lampFile()));
    Panel::Session session(settings);
    session.follow(*window);
    EXPECT_EQ(recent()->files(), (QStringList{lampFile(), file()}));
    ASSERT_TRUE(window->close());
    EXPECT_EQ(QSettings(settings, QSettings::IniFormat).value(QStringLiteral("window/recent")).toStringList(),
              (QStringList{lampFile(), file()}));
}

TEST_F(OpenFilesTest, RevertAsksAndBringsBackTheFile) {
    window->choosePool(QStringLiteral("final"));
    ASSERT_TRUE(window->showObject(QStringLiteral("others")));
    set("others.same int", "7");
    EXPECT_TRUE(answerBy("none", [this] { action("revert")->trigger(); }));
    EXPECT_EQ(valueOf("others.same int"), "7");
    EXPECT_TRUE(answerBy("revertValues", [this] { action("revert")->trigger(); }));
    EXPECT_EQ(valuesNow(), text);
    EXPECT_THAT(steps(), IsEmpty());
    EXPECT_FALSE(window->isWindowModified());
    EXPECT_EQ(window->currentView()->object()->Name(), "others") << "what was shown is shown again";
    EXPECT_EQ(window->pools().pool()->Name(), "final");
    EXPECT_FALSE(answerBy("none", [this] { action("revert")->trigger(); })) << "there is nothing to lose";
}

TEST_F(OpenFilesTest, ARevertThatFailsKeepsAll) {
    edit();
    auto const edited = valuesNow();
    networkFile("values.json", R"({ "pools": ["draft"], "objects": [ { "name": )");
    EXPECT_TRUE(answerBy("revertValues", [this] { action("revert")->trigger(); }));
    EXPECT_EQ(valuesNow(), edited);
    EXPECT_THAT(steps(), SizeIs(1));
    EXPECT_THAT(errors(), Contains(HasSubstr("values.json:1")));
}

TEST_F(OpenFilesTest, WithoutAFileThereIsNoRevert) {
    EXPECT_TRUE(action("revert")->isEnabled());
    window->showNetwork(Talo::Network::create(QStringLiteral("New"), {"day"}));
    EXPECT_FALSE(action("revert")->isEnabled());
    EXPECT_THAT(recent()->files(), SizeIs(2));
}

TEST_F(OpenFilesTest, ADroppedNetworkIsOpenedAsOpenDoes) {
    edit();
    EXPECT_TRUE(answer(QMessageBox::Cancel, [this] { dropFiles({QUrl::fromLocalFile(lampFile())}); }));
    EXPECT_EQ(opened(), file());
    EXPECT_TRUE(answer(QMessageBox::Discard, [this] { dropFiles({QUrl::fromLocalFile(lampFile())}); }));
    EXPECT_EQ(opened(), lampFile());
    EXPECT_EQ(recent()->files().first(), lampFile());
}

TEST_F(OpenFilesTest, OtherThingsAreRefusedWithASentence) {
    auto const refusal = [&](QList<QUrl> const& places) {
        window->statusBar()->clearMessage();
        dropFiles(places);
        EXPECT_EQ(opened(), file());
        return window->statusBar()->currentMessage().toStdString();
    };
    auto const lamp = QUrl::fromLocalFile(lampFile());
    EXPECT_EQ(refusal({lamp, lamp}), "Only one network file can be opened at a time.");
    EXPECT_EQ(refusal({QUrl(QStringLiteral("https://example.org/a.json"))}),
              "https://example.org/a.json is no file of this computer.");
    EXPECT_THAT(refusal({QUrl::fromLocalFile(folder.path())}), HasSubstr(" is no file."));
    QMimeData words;
    words.setText(QStringLiteral("words"));
    EXPECT_FALSE(drop(words));
    networkFile("picture.png", "\x89PNG");
    dropFiles({QUrl::fromLocalFile(folder.filePath(QStringLiteral("picture.png")))});
    EXPECT_EQ(opened(), file());
    EXPECT_THAT(errors(), Contains(HasSubstr("picture.png:1")));
}

// A network as large as real ones: it is opened, walked through and saved, and one thirty times as large costs no more
// widgets.

#include "support/PluginFile.hpp"
#include "support/TaloTest.hpp"

#include <checker/ProcessCounts.hpp>
#include <panel/window/MainWindow.hpp>
#include <QProcess>
#include <QScrollBar>
#include <QTemporaryDir>
#include <set>

namespace {

class RealNetwork : public TaloTest {
protected:
    void SetUp() override {
        TaloTest::SetUp();
        QString error;
        ASSERT_TRUE(plugins.load(QString::fromUtf8(pluginFile), &error)) << qPrintable(error);
        ASSERT_TRUE(plugins.load(QStringLiteral(TALO_MORE_PLUGIN_FILE), &error)) << qPrintable(error);
    }
    void TearDown() override {
        window.reset();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        QString error;
        EXPECT_TRUE(plugins.unload(&error)) << qPrintable(error);
        // The editors of selections have a trace.
        takeOutput();
        TaloTest::TearDown();
    }

    static QByteArray bytesOf(QString const& name) {
        QFile source(name);
        EXPECT_TRUE(source.open(QIODevice::ReadOnly)) << qPrintable(name);
        return source.readAll();
    }
    /// What the script makes with so many parameters.
    static QByteArray made(int parameters) {
        QProcess script;
        script.start(QStringLiteral(TALO_SCRIPTS "/transfer_network"),
                     {QStringLiteral("--parameters"), QString::number(parameters)});
        EXPECT_TRUE(script.waitForFinished(60000));
        EXPECT_EQ(script.exitCode(), 0) << script.readAllStandardError().constData();
        return script.readAllStandardOutput();
    }
    QString copyOf(QByteArray const& bytes, char const* name) const {
        QFile copy(folder.filePath(QLatin1String(name)));
        EXPECT_TRUE(copy.open(QIODevice::WriteOnly) && copy.write(bytes) == bytes.size());
        return copy.fileName();
    }
    void open(QString const& name) {
        window = std::make_unique<Panel::MainWindow>(plugins);
        QString error;
        ASSERT_TRUE(window->openNetwork(name, &error)) << qPrintable(error);
        window->resize(1000, 800);
        window->show();
        QCoreApplication::processEvents();
    }
    std::size_t parameterCount() const {
        std::size_t count = 0;
        for (auto const& object : window->network()->objects())
            count += object->parameters().size();
        return count;
    }
    /// Shows every object, and every part of it.
    void walk() {
        for (auto const& object : window->network()->objects()) {
            ASSERT_TRUE(window->showObject(QString::fromStdString(object->Name())));
            auto* const bar = window->currentView()->panel()->rowArea()->verticalScrollBar();
            for (int place = 0; place <= bar->maximum(); place += qMax(1, bar->pageStep())) {
                bar->setValue(place);
                QCoreApplication::processEvents();
            }
        }
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        takeOutput();
    }
    static double heapInUse() { return static_cast<double>(Checker::heapInUse()); }

    QString const file = QStringLiteral(TALO_EXAMPLES "/networks/transfer.json");
    QTemporaryDir folder;
    Panel::Plugins plugins;
    std::unique_ptr<Panel::MainWindow> window;
};

} // namespace

TEST_F(RealNetwork, TheScriptMakesIt) {
    open(file);
    auto const count = static_cast<int>(parameterCount());
    EXPECT_GE(count, 300);
    EXPECT_EQ(made(count), bytesOf(file)) << "scripts/transfer_network makes it anew";
}

TEST_F(RealNetwork, ItSaysWhatItIsAbout) {
    open(file);
    std::set<QString> kinds;
    std::map<std::string, int> properties;
    for (auto const& object : window->network()->objects()) {
        kinds.insert(window->network()->kind(object));
        for (auto const& parameter : object->parameters())
            if (auto const* const map = parameter->properties())
                for (auto const& property : *map)
                    ++properties[property.first];
    }
    EXPECT_GE(kinds.size(), 4U);
    for (auto const* const name : {"label", "help", "group"})
        EXPECT_GE(properties[name], 300) << name;
    for (auto const* const name : {"unit", "advanced", "visibleWhen", "enabledWhen"})
        EXPECT_GE(properties[name], 5) << name;
}

TEST_F(RealNetwork, WalkingThroughItChangesNothing) {
    open(copyOf(bytesOf(file), "transfer.json"));
    window->setAdvancedShown(true);
    auto const before = window->network()->values();
    for (auto const* const pool : {"usual", "careful"}) {
        ASSERT_TRUE(window->choosePool(QLatin1String(pool)));
        walk();
    }
    EXPECT_EQ(window->network()->values(), before);
    EXPECT_FALSE(window->isWindowModified());
    EXPECT_TRUE(window->history().steps().empty());
    QString error;
    ASSERT_TRUE(window->saveValues(folder.filePath(QStringLiteral("saved.json")), &error)) << qPrintable(error);
    EXPECT_EQ(bytesOf(folder.filePath(QStringLiteral("saved.json"))), bytesOf(file));
    ASSERT_TRUE(window->openNetwork(folder.filePath(QStringLiteral("saved.json")), &error)) << qPrintable(error);
    ASSERT_TRUE(window->saveValues(folder.filePath(QStringLiteral("again.json")), &error)) << qPrintable(error);
    EXPECT_EQ(bytesOf(folder.filePath(QStringLiteral("again.json"))), bytesOf(file));
}

TEST_F(RealNetwork, WalkingThroughItAgainTakesNoMemory) {
    open(file);
    window->setAdvancedShown(true);
    // The first walks fill the caches of fonts, styles and estimates.
    walk();
    walk();
    auto const before = heapInUse();
    ASSERT_GT(before, 0);
    walk();
    walk();
    // A kept view takes some 2 MB; a single row that stays behind at each visit of an object would be more than this.
    EXPECT_LT(heapInUse() - before, 200e3);
}

TEST_F(RealNetwork, ThirtyTimesAsManyParametersMakeNoMoreWidgets) {
    open(file);
    auto const rows = window->currentView()->rows().size();
    auto const widgets = QApplication::allWidgets().size();
    window.reset();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);

    open(copyOf(made(11659), "large.json"));
    EXPECT_EQ(parameterCount(), 11659U);
    EXPECT_EQ(window->network()->objects().size(), 654U);
    EXPECT_EQ(window->currentView()->rows().size(), rows);
    EXPECT_LE(QApplication::allWidgets().size(), widgets + 5);
}

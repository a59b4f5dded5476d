// The program itself on a display with a window manager, used by keys and mouse only.

#include "support/Desktop.hpp"

#include <network/Network.hpp>
#include <QTemporaryDir>

namespace {

class DesktopProgramTest : public TaloTest {
protected:
    void SetUp() override {
        TaloTest::SetUp();
        write(file, "true");
    }
    void TearDown() override {
        if (program.state() != QProcess::NotRunning) {
            program.kill();
            program.waitForFinished();
        }
        TaloTest::TearDown();
    }

    static void write(QString const& name, char const* on) {
        QFile target(name);
        ASSERT_TRUE(target.open(QIODevice::WriteOnly));
        target.write(QByteArray(R"({
            "title": "One lamp",
            "pools": ["all"],
            "objects": [
                { "name": "lamp", "parameters": [
                    { "name": "on", "type": "bool", "value": )") +
                     on + R"( },
                    { "name": "level", "type": "int", "value": 3, "properties": { "min": 0, "max": 99 } },
                    { "name": "place", "type": "string", "value": "hall" }
                ] }
            ]
        })");
    }
    QStringList arguments(QString const& network) const {
        return {network, QStringLiteral("--no-session"), QStringLiteral("--size"), QStringLiteral("700x500")};
    }
    void start() {
        program.start(QStringLiteral(TALO_PANEL), arguments(file));
        ASSERT_TRUE(waitUntil(
            [&] {
                id = desktop.ask({QStringLiteral("search"), QStringLiteral("--onlyvisible"), QStringLiteral("--pid"),
                                  QString::number(program.processId()), QStringLiteral("--name"),
                                  QStringLiteral("One lamp")});
                return !id.isEmpty() && !id.contains(QLatin1Char('\n'));
            },
            20000));
        ASSERT_TRUE(waitUntil([&] { return activeWindow() == id; }));
    }
    QString activeWindow() { return desktop.ask({QStringLiteral("getactivewindow")}); }
    QString title() { return desktop.ask({QStringLiteral("getwindowname"), id}); }
    /// The title has a star while values are not saved.
    void awaitModified(bool modified) {
        EXPECT_TRUE(waitUntil([&] { return title().contains(QLatin1Char('*')) == modified; })) << qPrintable(title());
    }
    /// Finds a parameter and types a value.
    void enter(char const* parameter, char const* text) {
        desktop.key("ctrl+f");
        desktop.type(QString::fromUtf8(parameter));
        desktop.key("Return");
        desktop.key("ctrl+a");
        desktop.type(QString::fromUtf8(text));
        desktop.key("Return");
    }
    void finish() {
        EXPECT_TRUE(waitUntil([&] { return program.state() == QProcess::NotRunning; }, 20000));
        EXPECT_EQ(program.exitStatus(), QProcess::NormalExit);
        EXPECT_EQ(program.exitCode(), 0);
        EXPECT_EQ(program.readAllStandardError().toStdString(), "");
    }
    static QByteArray bytes(QString const& name) {
        QFile source(name);
        EXPECT_TRUE(source.open(QIODevice::ReadOnly));
        return source.readAll();
    }
    /// The file that the program should write for these values.
    QByteArray expected(char const* on, char const* level, char const* place) {
        auto const name = folder.filePath(QStringLiteral("expected.json"));
        auto const network = Talo::Network::load(file).network;
        auto const pool = network->pools().front();
        QString error;
        EXPECT_TRUE(network->setText(QStringLiteral("lamp.on"), QLatin1String(on), pool, &error));
        EXPECT_TRUE(network->setText(QStringLiteral("lamp.level"), QLatin1String(level), pool, &error));
        EXPECT_TRUE(network->setText(QStringLiteral("lamp.place"), QLatin1String(place), pool, &error));
        EXPECT_TRUE(network->save(name, &error)) << qPrintable(error);
        return bytes(name);
    }
    /// A screenshot that the program writes of itself, with the lamp on or off.
    QImage picture(char const* on) {
        auto const network = folder.filePath(QStringLiteral("drawn.json"));
        auto const image = folder.filePath(QStringLiteral("drawn.png"));
        write(network, on);
        QProcess drawing;
        drawing.start(QStringLiteral(TALO_PANEL), arguments(network) << QStringLiteral("--screenshot") << image);
        EXPECT_TRUE(drawing.waitForFinished());
        return QImage(image);
    }
    /// The centre of the check mark, the only part of the window that changes when the lamp is switched.
    QPoint switchPlace() {
        auto const on = picture("true");
        auto const off = picture("false");
        EXPECT_EQ(on.size(), QSize(700, 500));
        EXPECT_EQ(off.size(), on.size());
        QRect differing;
        // The lower half shows the messages, which contain the time.
        for (int y = 0; y < on.height() / 2; ++y) {
            for (int x = 0; x < on.width(); ++x) {
                if (on.pixel(x, y) != off.pixel(x, y))
                    differing |= QRect(x, y, 1, 1);
            }
        }
        EXPECT_FALSE(differing.isEmpty());
        EXPECT_LT(differing.width(), 30);
        return differing.center();
    }

    QTemporaryDir folder;
    QString const file = folder.filePath(QStringLiteral("lamp.json"));
    QProcess program;
    QString id;
    Desktop desktop;
};

} // namespace

TEST_F(DesktopProgramTest, IsUsedByKeysAlone) {
    start();
    enter("lamp.level", "42");
    awaitModified(true);
    desktop.key("ctrl+z");
    awaitModified(false);
    desktop.key("ctrl+shift+z");
    awaitModified(true);
    enter("lamp.place", "attic");
    desktop.key("ctrl+s");
    awaitModified(false);
    EXPECT_EQ(bytes(file), expected("true", "42", "attic"));
    desktop.key("ctrl+q");
    finish();
}

TEST_F(DesktopProgramTest, IsUsedByTheMouse) {
    auto const place = switchPlace();
    start();
    desktop.ask({QStringLiteral("mousemove"), QStringLiteral("--sync"), QStringLiteral("--window"), id,
                 QString::number(place.x()), QString::number(place.y()), QStringLiteral("click"), QStringLiteral("1")});
    awaitModified(true);
    desktop.key("ctrl+s");
    awaitModified(false);
    EXPECT_EQ(bytes(file), expected("false", "3", "hall"));
    desktop.key("ctrl+q");
    finish();
}

TEST_F(DesktopProgramTest, AsksForWhatIsNotSavedBeforeItEnds) {
    auto const before = bytes(file);
    start();
    enter("lamp.level", "7");
    awaitModified(true);
    desktop.key("ctrl+q");
    EXPECT_TRUE(waitUntil([&] { return !activeWindow().isEmpty() && activeWindow() != id; }));
    desktop.key("Escape");
    EXPECT_TRUE(waitUntil([&] { return activeWindow() == id; }));
    EXPECT_EQ(bytes(file), before);
    desktop.key("ctrl+q");
    EXPECT_TRUE(waitUntil([&] { return !activeWindow().isEmpty() && activeWindow() != id; }));
    desktop.key("Return");
    finish();
    EXPECT_EQ(bytes(file), expected("true", "7", "hall"));
}

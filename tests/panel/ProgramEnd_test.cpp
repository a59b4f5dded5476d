// How the program ends when it is not closed, and what it leaves behind. It runs without a display or on its own
// display.

#include "support/PluginFile.hpp"
#include "support/TaloTest.hpp"

#include <array>
#include <csignal>
#include <QDir>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QTemporaryDir>

using testing::HasSubstr;

namespace {

class ProgramEndTest : public TaloTest {
protected:
    void SetUp() override {
        TaloTest::SetUp();
        QFile target(file);
        ASSERT_TRUE(target.open(QIODevice::WriteOnly));
        target.write(R"({ "title": "Lamp", "pools": ["all"], "objects": [ { "name": "lamp", "parameters": [
            { "name": "level", "type": "int", "value": 3 } ] } ] })");
    }
    void TearDown() override {
        for (auto* const process : {&program, &display}) {
            process->kill();
            process->waitForFinished();
        }
        TaloTest::TearDown();
    }

    /// Starts the panel with one unsaved value and waits until the value is kept for recovery.
    void start(char const* platform, QString const& displayName = {}) {
        auto environment = QProcessEnvironment::systemEnvironment();
        environment.insert(QStringLiteral("QT_QPA_PLATFORM"), QLatin1String(platform));
        environment.insert(QStringLiteral("XDG_STATE_HOME"), folder.path());
        environment.insert(QStringLiteral("DISPLAY"), displayName);
        program.setProcessEnvironment(environment);
        program.start(QStringLiteral(TALO_PANEL),
                      {file, QStringLiteral("--no-session"), QStringLiteral("--plugin"), QString::fromUtf8(pluginFile),
                       QStringLiteral("--set"), QStringLiteral("lamp.level=42")});
        ASSERT_TRUE(waitUntil([this] { return !kept().isEmpty(); }, 20000))
            << program.readAllStandardError().constData();
    }
    QStringList kept() const { return QDir(states).entryList({QStringLiteral("*.json")}, QDir::Files); }
    QJsonValue keptLevel() const {
        QFile source(states + '/' + kept().value(0));
        EXPECT_TRUE(source.open(QIODevice::ReadOnly));
        auto const content = QJsonDocument::fromJson(source.readAll()).object();
        return content["values"].toObject()["lamp.level"].toObject()["value"];
    }
    /// Removes the kept value, so that the program must write it again when it ends.
    void forgetKept() const { EXPECT_TRUE(QFile::remove(states + '/' + kept().value(0))); }
    bool ends() {
        return waitUntil([this] { return program.state() == QProcess::NotRunning; }, 20000);
    }
    /// Starts a separate display and returns its name.
    QString startDisplay() {
        display.start(QStringLiteral("Xvfb"), {QStringLiteral("-displayfd"), QStringLiteral("1"),
                                               QStringLiteral("-nolisten"), QStringLiteral("tcp")});
        EXPECT_TRUE(waitUntil([this] { return display.canReadLine(); }, 20000));
        return ':' + QString::fromLatin1(display.readLine()).trimmed();
    }

    QTemporaryDir folder;
    QString const file = folder.filePath(QStringLiteral("lamp.json"));
    QString const states = folder.filePath(QStringLiteral("talo/recovery"));
    QProcess program;
    QProcess display;
};

class ProgramEndBySignal : public ProgramEndTest, public testing::WithParamInterface<int> {};

} // namespace

TEST_P(ProgramEndBySignal, KeepsWhatIsUnsavedAndEndsCleanly) {
    start("offscreen");
    forgetKept();
    ASSERT_EQ(kill(static_cast<pid_t>(program.processId()), GetParam()), 0);
    ASSERT_TRUE(ends());
    EXPECT_EQ(program.exitStatus(), QProcess::NormalExit);
    EXPECT_EQ(program.exitCode(), 0);
    ASSERT_EQ(kept().size(), 1);
    EXPECT_EQ(keptLevel(), QJsonValue(42));
}

INSTANTIATE_TEST_SUITE_P(All, ProgramEndBySignal, testing::Values(SIGTERM, SIGHUP),
                         [](auto const& row) { return std::string(row.param == SIGTERM ? "SIGTERM" : "SIGHUP"); });

TEST_F(ProgramEndTest, ALostDisplayLosesNothing) {
    start("xcb", startDisplay());
    forgetKept();
    display.kill();
    ASSERT_TRUE(ends());
    EXPECT_EQ(program.exitStatus(), QProcess::NormalExit);
    EXPECT_EQ(program.exitCode(), 1);
    EXPECT_THAT(program.readAllStandardError().toStdString(), HasSubstr("The display is gone."));
    ASSERT_EQ(kept().size(), 1);
    EXPECT_EQ(keptLevel(), QJsonValue(42));
}

TEST_F(ProgramEndTest, AKilledPanelLeavesWhatItKept) {
    start("offscreen");
    program.kill();
    ASSERT_TRUE(ends());
    ASSERT_EQ(kept().size(), 1);
    EXPECT_EQ(keptLevel(), QJsonValue(42));
}

TEST_F(ProgramEndTest, AClosedOutputPipeDoesNotEndTheProgram) {
    start("offscreen");
    program.closeReadChannel(QProcess::StandardOutput);
    ASSERT_EQ(kill(static_cast<pid_t>(program.processId()), SIGPIPE), 0);
    QTest::qWait(300);
    EXPECT_EQ(program.state(), QProcess::Running);
}

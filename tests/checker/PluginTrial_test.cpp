// The panel tries plug-in files in a process of their own, once, and loads none that would end it.

#include "support/CrashingChildren.hpp"
#include "support/FileDialogs.hpp"
#include "support/TaloTest.hpp"

#include <panel/PluginTrial.hpp>
#include <panel/window/PluginMenu.hpp>
#include <panel/window/Plugins.hpp>
#include <QAbstractButton>
#include <QFileDialog>
#include <QMainWindow>
#include <QMessageBox>
#include <QProcess>
#include <QTemporaryDir>
#include <QTimer>

using testing::AllOf;
using testing::HasSubstr;

namespace {

class PluginTrialTest : public TaloTest {
protected:
    QString copyOf(char const* name) const {
        auto const file = folder.filePath(QLatin1String(name) + ".talo");
        QFile::remove(file);
        EXPECT_TRUE(QFile::copy(QStringLiteral(TALO_PLANTED "/%1.talo").arg(QLatin1String(name)), file));
        return file;
    }
    QString kept() const { return folder.filePath("kept.ini"); }
    std::string problemOf(QString const& file, char const* checker = TALO_CHECK) const {
        Panel::PluginTrial trial(checker, kept());
        trial.setTimeLimit(2);
        return trial.problemOf(file).toStdString();
    }

    CrashingChildren const crashing;
    QTemporaryDir folder;
};

/// Starts the real panel, which draws itself and ends.
struct PanelRun {
    explicit PanelRun(QStringList const& arguments, QString const& pluginPath = {}) {
        auto environment = QProcessEnvironment::systemEnvironment();
        environment.insert("QT_QPA_PLATFORM", "offscreen");
        environment.insert("TALO_PLUGIN_PATH", pluginPath);
        QProcess process;
        process.setProcessEnvironment(environment);
        process.start(TALO_PANEL, arguments);
        EXPECT_TRUE(process.waitForFinished(60000));
        EXPECT_EQ(process.exitStatus(), QProcess::NormalExit);
        status = process.exitCode();
        creators = process.readAllStandardOutput().toStdString();
        errors = process.readAllStandardError().toStdString();
    }
    int status = -1;
    std::string creators;
    std::string errors;
};

} // namespace

TEST_F(PluginTrialTest, AGoodFileHasNoProblem) {
    EXPECT_EQ(problemOf(copyOf("good_plain")), "");
}

TEST_F(PluginTrialTest, ARefusalIsTheHostsOwn) {
    EXPECT_EQ(problemOf(copyOf("says_no")), "");
    EXPECT_EQ(problemOf(folder.filePath("missing.talo")), "");
}

TEST_F(PluginTrialTest, WhatEndsTheProgramIsTold) {
    EXPECT_THAT(problemOf(copyOf("crashes_at_load")), AllOf(HasSubstr("crashes_at_load.talo"), HasSubstr("crashes")));
    EXPECT_THAT(problemOf(copyOf("crashes_at_unload")), HasSubstr("Segmentation fault"));
    EXPECT_THAT(problemOf(copyOf("exits_at_load")), HasSubstr("it ends the program"));
    EXPECT_THAT(problemOf(copyOf("hangs_at_load")), HasSubstr("more than 2 second"));
}

TEST_F(PluginTrialTest, EachStateOfAFileIsTriedOnce) {
    auto const file = copyOf("crashes_at_load");
    auto const problem = problemOf(file);
    EXPECT_NE(problem, "");
    EXPECT_EQ(problemOf(file, "/bin/false"), problem) << "kept, as the file is the same";
    ASSERT_TRUE(QFile::remove(file));
    ASSERT_TRUE(QFile::copy(QStringLiteral(TALO_PLANTED "/good_plain.talo"), file));
    EXPECT_EQ(problemOf(file), "") << "tried again, as the file changed";
}

TEST_F(PluginTrialTest, WithoutAProgramNothingIsTried) {
    EXPECT_EQ(problemOf(copyOf("crashes_at_load"), ""), "");
    EXPECT_EQ(problemOf(folder.filePath("crashes_at_load.talo"), "/nowhere/talo_check"), "");
}

TEST_F(PluginTrialTest, ACheckerThatDoesNotWorkAccusesNobody) {
    for (auto const* const checker : {"/bin/false", "/bin/true"})
        EXPECT_EQ(problemOf(copyOf("good_plain"), checker), "") << checker;
}

TEST_F(PluginTrialTest, AFileThatWasBuiltAgainIsTriedBeforeItIsReloaded) {
    Panel::PluginTrial trial(TALO_CHECK, kept());
    Panel::Plugins plugins;
    plugins.setTrial([&](QString const& file) { return trial.problemOf(file); });
    // The link leads to the author's newest build.
    auto const current = folder.filePath(QStringLiteral("current.talo"));
    auto const lead = [&](QString const& build) {
        QFile::remove(current);
        EXPECT_TRUE(QFile::link(build, current));
    };
    lead(copyOf("good_plain"));
    ASSERT_TRUE(plugins.load(current));
    lead(copyOf("crashes_at_load"));
    QString error;
    EXPECT_FALSE(plugins.reload(&error));
    EXPECT_THAT(error.toStdString(), HasSubstr("it crashes while it is loaded"));
    EXPECT_EQ(plugins.loadedFiles(), QStringList());
    lead(copyOf("good_nested"));
    EXPECT_TRUE(plugins.reload(&error));
    EXPECT_EQ(plugins.loadedFiles().size(), 1);
}

TEST_F(PluginTrialTest, PluginsLoadsNoneThatHasAProblem) {
    Panel::PluginTrial trial(TALO_CHECK, kept());
    Panel::Plugins plugins;
    plugins.setTrial([&](QString const& file) { return trial.problemOf(file); });
    QString error;
    EXPECT_FALSE(plugins.load(copyOf("crashes_at_load"), &error));
    EXPECT_THAT(error.toStdString(), HasSubstr("it crashes while it is loaded"));
    EXPECT_TRUE(plugins.load(copyOf("good_plain"), &error)) << error.toStdString();
}

TEST_F(PluginTrialTest, TheMenuAsksWhetherToLoadItAnyway) {
    auto const file = copyOf("good_plain");
    Panel::Plugins plugins;
    plugins.setTrial([](QString const&) { return QStringLiteral("It would end this program."); });
    QMainWindow window;
    Panel::PluginMenu menu(plugins, window);
    std::unique_ptr<QLabel> const label(menu.statusLabel());
    QStringList asked;
    auto const load = [&](QMessageBox::StandardButton answer) {
        // The question comes after the dialog for the file.
        QTimer timer;
        UnansweredDialog unanswered;
        QObject::connect(&timer, &QTimer::timeout, &timer, [&] {
            auto* const modal = QApplication::activeModalWidget();
            unanswered.look(modal);
            if (auto* const box = qobject_cast<QMessageBox*>(modal)) {
                asked << box->text();
                box->button(answer)->click();
            }
        });
        auto const trigger = [&] { menu.findChild<QAction*>("load")->trigger(); };
        EXPECT_TRUE(withFileDialog(trigger, [&](QFileDialog& dialog) {
            timer.start(10);
            enterFileName(dialog, file);
        }));
    };
    QCoreApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
    load(QMessageBox::No);
    EXPECT_EQ(plugins.loadedFiles(), QStringList());
    load(QMessageBox::Yes);
    EXPECT_EQ(plugins.loadedFiles(), QStringList{file});
    ASSERT_EQ(asked.size(), 2);
    EXPECT_THAT(asked.first().toStdString(), HasSubstr("It would end this program."));
}

TEST_F(PluginTrialTest, ThePanelGoesOnWithoutAFileThatItFound) {
    copyOf("crashes_at_load");
    copyOf("exits_at_load");
    PanelRun const run({"--list-creators"}, folder.path());
    EXPECT_EQ(run.status, 0);
    EXPECT_THAT(run.errors, AllOf(HasSubstr("crashes_at_load.talo"), HasSubstr("exits_at_load.talo")));
    EXPECT_THAT(run.creators, HasSubstr("boolean"));
}

TEST_F(PluginTrialTest, ThePanelEndsWithASentenceWithoutAFileThatWasNamed) {
    PanelRun const run({"--plugin", copyOf("crashes_at_load"), "--list-creators"});
    EXPECT_EQ(run.status, 2);
    EXPECT_THAT(run.errors, HasSubstr("it crashes while it is loaded"));
}

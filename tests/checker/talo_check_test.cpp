// talo_check finds each planted fault, names it, and accuses no good plug-in.

#include "support/CrashingChildren.hpp"
#include "support/TaloTest.hpp"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QTemporaryDir>
#include <QXmlStreamReader>

namespace {

QString planted(char const* name) {
    auto const file = QLatin1String(name) + ".talo";
    auto const own = TALO_PLANTED "/" + file;
    return QFileInfo::exists(own) ? own : TALO_BAD_PLUGINS + file;
}

/// What the checker ended with.
struct Run {
    int status = -1;
    QByteArray output;
    QByteArray errors;

    QJsonArray checks() const { return QJsonDocument::fromJson(output).object().value("checks").toArray(); }
    /// The faults of all checks.
    QStringList faults() const {
        QStringList all;
        for (auto const& each : checks()) {
            auto const check = each.toObject();
            for (auto const& fault : check.value("faults").toArray())
                all << check.value("name").toString() + ": " + fault.toString();
        }
        return all;
    }
    std::string faultText() const { return faults().join('\n').toStdString(); }
};

Run check(QStringList const& arguments) {
    CrashingChildren const crashing;
    QProcess checker;
    checker.start(QStringLiteral(TALO_CHECK), arguments);
    Run run;
    if (checker.waitForFinished(200000) && checker.exitStatus() == QProcess::NormalExit)
        run.status = checker.exitCode();
    run.output = checker.readAllStandardOutput();
    run.errors = checker.readAllStandardError();
    return run;
}

/// A plug-in with a fault, the check that must find it, and what it must say.
struct Fault {
    char const* plugin;
    char const* check;
    char const* says;
};

// Names the plug-in in the output of a failure.
void PrintTo(Fault const& fault, std::ostream* stream) {
    *stream << fault.plugin;
}

class PlantedFault : public TaloTest, public testing::WithParamInterface<Fault> {};
class GoodPlugin : public TaloTest, public testing::WithParamInterface<char const*> {};
class TaloCheck : public TaloTest {};

} // namespace

TEST_P(PlantedFault, IsFoundAndNamed) {
    auto const run = check(
        {"--only", GetParam().check, "--seconds", "5", "--seed", "1", "--format", "json", planted(GetParam().plugin)});
    EXPECT_EQ(run.status, 1);
    EXPECT_THAT(run.faultText(), testing::HasSubstr(GetParam().says)) << run.output.constData();
}

TEST_P(GoodPlugin, IsNotAccused) {
    auto const run = check({"--seed", "1", "--format", "json", planted(GetParam())});
    EXPECT_EQ(run.status, 0) << run.faultText();
    EXPECT_GE(run.checks().size(), 40);
}

TEST_F(TaloCheck, TheOwnPluginPassesEveryLevel) {
    auto const run = check({"--format", "json", TALO_PLUGIN_FILE});
    EXPECT_EQ(run.status, 0) << run.faultText();
}

#ifdef TALO_MORE_PLUGIN_FILE
TEST_F(TaloCheck, TheSecondPluginPassesEveryLevel) {
    auto const run = check({"--format", "json", TALO_MORE_PLUGIN_FILE});
    EXPECT_EQ(run.status, 0) << run.faultText();
}
#endif

TEST_F(TaloCheck, OutputIsNotedAndNoFault) {
    auto const run = check({"--only", "output", planted("good_talkative")});
    EXPECT_EQ(run.status, 0);
    EXPECT_THAT(run.output.toStdString(), testing::ContainsRegex("note: its editors print [0-9]+ lines"));
    EXPECT_THAT(check({"--only", "output", planted("good_plain")}).output.toStdString(),
                testing::Not(testing::HasSubstr("note")));
}

TEST_F(TaloCheck, TheSameSeedGivesTheSameReport) {
    QStringList const arguments{"--only", "events", "--seed", "7", planted("crashes_at_a_key")};
    auto const first = check(arguments);
    EXPECT_EQ(first.output, check(arguments).output);
    EXPECT_THAT(first.output.toStdString(), testing::HasSubstr("seed 7"));
}

TEST_F(TaloCheck, TheReportForPeopleNamesCheckAndFault) {
    auto const run = check({"--only", "open", planted("makes_nothing")});
    EXPECT_EQ(run.status, 1);
    auto const text = run.output.toStdString();
    EXPECT_THAT(text, testing::HasSubstr("FAILED  level  5  open\n"));
    EXPECT_THAT(text, testing::HasSubstr("its creator makes no widget"));
    EXPECT_THAT(text, testing::HasSubstr("0 of 1 checks passed"));
}

TEST_F(TaloCheck, TheReportForBuildServersIsXml) {
    QTemporaryDir folder;
    auto const name = folder.filePath("report.xml");
    auto const run = check({"--only", "open", "--format", "junit", "--output", name, planted("makes_nothing")});
    EXPECT_EQ(run.status, 1);
    EXPECT_EQ(run.output, QByteArray());
    QFile file(name);
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    QXmlStreamReader xml(&file);
    QStringList elements;
    while (!xml.atEnd())
        if (xml.readNext() == QXmlStreamReader::StartElement)
            elements << xml.name().toString();
    EXPECT_FALSE(xml.hasError()) << xml.errorString().toStdString();
    EXPECT_EQ(elements, (QStringList{"testsuite", "testcase", "failure"}));
}

TEST_F(TaloCheck, AReportThatCannotBeWrittenIsTold) {
    auto const run = check({"--only", "load", "--output", "/dev/full/report", planted("good_plain")});
    EXPECT_EQ(run.status, 2);
    EXPECT_THAT(run.errors.toStdString(), testing::HasSubstr("/dev/full/report cannot be written"));
}

TEST_F(TaloCheck, ALevelLeavesOutWhatIsAbove) {
    auto const run = check({"--level", "3", "--format", "json", planted("slow_to_make")});
    EXPECT_EQ(run.status, 0) << run.faultText();
    EXPECT_GE(run.checks().size(), 3);
    for (auto const& each : run.checks())
        EXPECT_LE(each.toObject().value("level").toInt(), 3);
}

TEST_F(TaloCheck, AHangEndsAtTheTimeLimit) {
    auto const run = check({"--only", "load", "--seconds", "1", "--format", "json", planted("hangs_at_load")});
    EXPECT_EQ(run.faults(), QStringList{"load: it did not end within 1 seconds"});
}

TEST_F(TaloCheck, TheHelpNamesTheProgramAndItsOptions) {
    auto const run = check({"--help"});
    EXPECT_EQ(run.status, 0);
    EXPECT_TRUE(run.output.startsWith("Usage: ")) << run.output.constData();
    for (auto const* const word : {"talo_check [options] FILE.talo", "--level <N>", "--format <text|json|junit>"})
        EXPECT_THAT(run.output.toStdString(), testing::HasSubstr(word));
    EXPECT_EQ(run.errors.toStdString(), "");
}

TEST_F(TaloCheck, BadUseIsTold) {
    auto const good = planted("good_plain");
    for (auto const& arguments :
         {QStringList{}, QStringList{"--level", "0", good}, QStringList{"--only", "nothing", good},
          QStringList{"--format", "html", good}, QStringList{good, good}, QStringList{"--nonsense"}}) {
        auto const run = check(arguments);
        EXPECT_EQ(run.status, 2) << arguments.join(' ').toStdString();
        EXPECT_THAT(run.errors.toStdString(), testing::HasSubstr("talo_check --help says more"));
    }
}

TEST_F(TaloCheck, QuicklyLoadsAndUnloads) {
    EXPECT_EQ(check({"--quick", planted("good_plain")}).status, 0);
    auto const refused = check({"--quick", planted("says_no")});
    EXPECT_EQ(refused.status, 1);
    EXPECT_THAT(refused.errors.toStdString(), testing::HasSubstr("not compatible"));
    EXPECT_EQ(check({"--quick", planted("crashes_at_load")}).status, -1) << "the crash is the process's own";
}

INSTANTIATE_TEST_SUITE_P(
    Plugins, PlantedFault,
    testing::Values(
        Fault{"no_export", "file", "Cannot find the export"}, Fault{"two_exports", "file", "several exports"},
        Fault{"without_stamp", "file", "does not say for which interface"},
        Fault{"visible_rest", "hidden", "it exports planted_visible_number"},
        Fault{"stays_in_memory", "unmapped", "in memory"}, Fault{"unresolved", "resolved", "undefined symbol"},
        Fault{"keeps_itself", "unique", "is unique"}, Fault{"says_no", "load", "not compatible"},
        Fault{"throws", "load", "ended with an exception"},
        Fault{"crashes_at_load", "load", "it crashed: Segmentation fault"},
        Fault{"hangs_at_load", "load", "it did not end within 5 seconds"},
        Fault{"exits_at_load", "load", "it ended the program"},
        Fault{"crashes_at_unload", "load", "it crashed: Segmentation fault"},
        Fault{"leaves_creators", "unregistered", "the host warns while it unloads"},
        Fault{"nameless", "creators", "it has no name"},
        Fault{"wrong_key", "registered", "the host warns while it loads"},
        Fault{"not_for_qt", "creators", "its preferences lack"},
        Fault{"no_widgets", "creators", "it makes no Qt widgets"},
        Fault{"registers_twice", "registered", "the host warns while it loads"},
        Fault{"loses_memory", "thousand", "KB behind"}, Fault{"loses_files", "thousand", "open files"},
        Fault{"makes_nothing", "open", "its creator makes no widget"},
        Fault{"takes_the_window", "open", "the host's own widget"}, Fault{"other_parent", "open", "another parent"},
        Fault{"own_window", "open", "a window of its own"}, Fault{"no_input", "open", "its widget has no input"},
        Fault{"throws_in_create", "open", "planted"}, Fault{"needs_parameter", "open.dead", "it crashed"},
        Fault{"needs_pools", "open.no-source", "it crashed"},
        Fault{"needs_its_type", "open.other-type", "an exception left it"},
        Fault{"believes_properties", "open.hostile", "an exception left it"},
        Fault{"writes_at_opening", "contract.opening-shows-the-value-and-writes-nothing", "notifications of opening"},
        Fault{"marks_at_opening", "contract.opening-shows-the-value-and-writes-nothing", "marked as changed"},
        Fault{"starts_empty", "shown", "it looks the same for different values"},
        Fault{"follows_nothing", "contract.a-change-from-elsewhere-is-shown-and-not-sent-back", "after a change"},
        Fault{"sends_back", "contract.a-change-from-elsewhere-is-shown-and-not-sent-back", "only shows a change"},
        Fault{"writes_twice", "contract.an-edit-is-stored-notified-once-and-stamped", "is 2 instead of 1"},
        Fault{"forgets_the_stamp", "contract.an-edit-is-stored-notified-once-and-stamped", "not marked as changed"},
        Fault{"notifies_nobody", "contract.an-edit-is-stored-notified-once-and-stamped", "is 0 instead of 1"}),
    [](auto const& fault) { return std::string(fault.param.plugin); });
// A macro takes no more than fifty.
INSTANTIATE_TEST_SUITE_P(
    MorePlugins, PlantedFault,
    testing::Values(
        Fault{"writes_the_own_value", "contract.an-edit-reaches-its-pool-alone", "the own value after the edit"},
        Fault{"shows_other_pools", "contract.a-change-in-another-pool-is-not-shown", "in another pool"},
        Fault{"fills_pools", "contract.each-pool-shows-its-own-value", "pool"},
        Fault{"writes_without_pool", "contract.without-a-pool-nothing-is-written", "without a pool"},
        Fault{"listens_too_early", "contract.nothing-is-delivered-before-the-editor-is-made", "is 2 instead of 1"},
        Fault{"does_not_listen", "contract.nothing-is-delivered-before-the-editor-is-made", "is 1 instead of 2"},
        Fault{"needs_the_parameter_after", "contract.the-parameter-may-die-inside-the-notification-of-an-edit",
              "it crashed"},
        Fault{"takes_any_value", "contract.a-value-of-another-type-is-ignored", "of another type"},
        Fault{"leaves_a_widget", "left.widgets", "the number of widgets"},
        Fault{"leaves_a_timer", "left.timers", "the number of timers"},
        Fault{"leaves_a_thread", "left.threads", "the number of threads"},
        Fault{"changes_the_locale", "left.locale", "the locale"}, Fault{"changes_the_font", "left.style", "font"},
        Fault{"notifies_itself", "contract.an-edit-names-its-editor", "an edit cannot be undone"},
        Fault{"reports_nothing", "reports", "it does not report attach"},
        Fault{"forgets_texts", "values.text", "a value that is read from its text"},
        Fault{"forgets_in_files", "values.format", "its format reads another value than it writes"},
        Fault{"crashes_at_a_key", "events", "it crashed"},
        Fault{"throws_at_an_edit", "events", "an exception left it: std::runtime_error, planted"},
        Fault{"slow_to_make", "speed.creation", "making it takes"},
        Fault{"slow_to_follow", "speed.change", "showing a change takes"}),
    [](auto const& fault) { return std::string(fault.param.plugin); });

INSTANTIATE_TEST_SUITE_P(Plugins, GoodPlugin,
                         testing::Values("good_plain", "good_empty", "good_talkative", "good_display",
                                         "good_late_timer", "good_nested", "good_thread", "good_dialog", "good_strict",
                                         "good_painter"),
                         [](auto const& good) { return std::string(good.param); });

#include "support/PluginFile.hpp"
#include "support/TaloTest.hpp"

#include <panel/PluginSearch.hpp>
#include <QDir>
#include <QFileInfo>
#include <QProcess>
#include <QTemporaryDir>

using Panel::PluginSearch;
using testing::HasSubstr;
using testing::Not;

namespace {

/// Folders with plug-in files: `own` as beside the program, and two others.
class PluginSearchTest : public TaloTest {
protected:
    QString path(char const* name) const { return QDir(folder.path()).canonicalPath() + '/' + QLatin1String(name); }
    QString write(char const* name, char const* text = "no plug-in") const {
        auto const file = path(name);
        EXPECT_TRUE(QDir().mkpath(QFileInfo(file).path()));
        QFile writer(file);
        EXPECT_TRUE(writer.open(QIODevice::WriteOnly) && writer.write(text) >= 0);
        return file;
    }
    QString copy(char const* source, char const* name) const {
        auto const file = path(name);
        EXPECT_TRUE(QDir().mkpath(QFileInfo(file).path()));
        EXPECT_TRUE(QFile::copy(QString::fromUtf8(source), file)) << name;
        return file;
    }

    QTemporaryDir folder;
    PluginSearch search;
};

/// Starts the real program.
class FoundPlugins : public PluginSearchTest {
protected:
    int run(QStringList const& arguments, QString const& pluginPath = {}, QString const& program = {}) {
        QProcess process;
        auto environment = QProcessEnvironment::systemEnvironment();
        environment.insert(QStringLiteral("QT_QPA_PLATFORM"), QStringLiteral("offscreen"));
        environment.insert(QStringLiteral("TALO_PLUGIN_PATH"), pluginPath);
        environment.insert(QStringLiteral("LD_LIBRARY_PATH"), QFileInfo(QStringLiteral(TALO_PANEL)).path());
        process.setProcessEnvironment(environment);
        process.start(program.isEmpty() ? QStringLiteral(TALO_PANEL) : program, arguments);
        EXPECT_TRUE(process.waitForFinished(60000));
        creators = process.readAllStandardOutput().toStdString();
        errors = process.readAllStandardError().toStdString();
        return process.exitCode();
    }
    QStringList const list{QStringLiteral("--list-creators")};
    std::string creators;
    std::string errors;
};

constexpr char sample[] = "\tsample_plugin\t";
constexpr char second[] = "\tsecond_sample_plugin\t";
constexpr char own[] = "bool\tboolean\tQT\n";

} // namespace

TEST_F(PluginSearchTest, AFolderGivesItsPluginFilesByTheirNames) {
    auto const b = write("one/b.talo");
    auto const a = write("one/a.talo");
    write("one/a.talo.txt");
    write("one/folder.talo/inner.talo");
    EXPECT_TRUE(search.addFolder(path("one")));
    EXPECT_EQ(search.files(), (QStringList{a, b}));
    EXPECT_FALSE(search.addFolder(path("missing")));
    EXPECT_TRUE(search.remarks().isEmpty());
    EXPECT_TRUE(search.hasName(QStringLiteral("a.talo")));
    EXPECT_FALSE(search.hasName(QStringLiteral("inner.talo")));
}

TEST_F(PluginSearchTest, TheFirstOfOneNameIsTakenAndTheOthersAreToldOnce) {
    auto const first = write("one/a.talo");
    auto const other = write("two/a.talo");
    auto const third = write("two/b.talo");
    search.addPath(path("one") + QStringLiteral("::") + path("two") + ':' + path("two"));
    EXPECT_EQ(search.files(), (QStringList{first, third}));
    EXPECT_EQ(search.remarks(),
              (QStringList{QStringLiteral("%1 is not loaded: %2 has the same name and comes first.").arg(other, first),
                           QStringLiteral("%1 is loaded once only.").arg(third)}));
}

TEST_F(PluginSearchTest, ALinkIsTheFileToWhichItLeads) {
    auto const file = write("one/a.talo");
    ASSERT_TRUE(QFile::link(file, path("one/current.talo")));
    search.addFolder(path("one"));
    EXPECT_EQ(search.files(), QStringList{file});
    EXPECT_EQ(
        search.remarks(),
        QStringList{QStringLiteral("%1 is not loaded again: it is the file %2.").arg(path("one/current.talo"), file)});
}

TEST_F(PluginSearchTest, AMissingFolderOfThePathIsTold) {
    auto const file = write("one/a.talo");
    search.addPath(path("missing") + ':' + path("one"));
    EXPECT_EQ(search.files(), QStringList{file});
    EXPECT_EQ(search.remarks(),
              QStringList{QStringLiteral("The folder %1 of TALO_PLUGIN_PATH cannot be read.").arg(path("missing"))});
}

TEST_F(FoundPlugins, TheFoldersOfThePathAreLoadedAfterThePluginFolder) {
    copy(TALO_SAMPLE_PLUGIN, "one/sample_plugin.talo");
    copy(TALO_SECOND_SAMPLE_PLUGIN, "two/second_sample_plugin.talo");
    ASSERT_EQ(run(list, path("one") + ':' + path("two")), 0) << errors;
    EXPECT_THAT(creators, HasSubstr(own));
    EXPECT_LT(creators.find(own), creators.find(sample));
    EXPECT_LT(creators.find(sample), creators.find(second));
    EXPECT_EQ(errors, std::string());
}

TEST_F(FoundPlugins, FixturesInTheBuildFolderAreNotFound) {
    ASSERT_EQ(run(list), 0) << errors;
    EXPECT_THAT(creators, HasSubstr(own));
    EXPECT_THAT(creators, Not(HasSubstr("sample_plugin")));
    EXPECT_EQ(errors, std::string());
}

TEST_F(FoundPlugins, WhatLiesBesideTheProjectsOwnIsLoaded) {
    auto const program = copy(TALO_PANEL, "bin/talo_panel");
    copy(pluginFile, "bin/qtalo_inputs.talo");
    copy(TALO_SAMPLE_PLUGIN, "bin/sample_plugin.talo");
    ASSERT_EQ(run(list, {}, program), 0) << errors;
    EXPECT_THAT(creators, HasSubstr(own));
    EXPECT_THAT(creators, HasSubstr(sample));
}

TEST_F(FoundPlugins, ABadFileIsToldAndTheRestGoesOn) {
    auto const broken = write("one/a_broken.talo");
    copy(TALO_SAMPLE_PLUGIN, "one/sample_plugin.talo");
    ASSERT_EQ(run(list, path("one")), 0) << errors;
    EXPECT_THAT(errors, HasSubstr(broken.toStdString()));
    EXPECT_EQ(std::count(errors.begin(), errors.end(), '\n'), 1);
    EXPECT_THAT(creators, HasSubstr(own));
    EXPECT_THAT(creators, HasSubstr(sample));
}

TEST_F(FoundPlugins, ADuplicateIsToldOnceAndNotLoaded) {
    copy(TALO_SAMPLE_PLUGIN, "one/sample_plugin.talo");
    auto const other = copy(TALO_SAMPLE_PLUGIN, "two/sample_plugin.talo");
    ASSERT_EQ(run(list, path("one") + ':' + path("two") + ':' + path("two")), 0) << errors;
    EXPECT_THAT(errors, HasSubstr(other.toStdString() + " is not loaded: "));
    EXPECT_EQ(std::count(errors.begin(), errors.end(), '\n'), 1);
    EXPECT_EQ(creators.find(sample), creators.rfind(sample));
}

TEST_F(FoundPlugins, ANamedFileIsAddedOrReplacesAllThatAreFound) {
    copy(TALO_SAMPLE_PLUGIN, "one/sample_plugin.talo");
    auto const other = copy(TALO_SECOND_SAMPLE_PLUGIN, "two/second_sample_plugin.talo");
    ASSERT_EQ(run(list + QStringList{QStringLiteral("--plugin"), other}, path("one")), 0) << errors;
    EXPECT_THAT(creators, testing::AllOf(HasSubstr(own), HasSubstr(sample), HasSubstr(second)));
    ASSERT_EQ(run(list + QStringList{QStringLiteral("--only-plugin"), other}, path("one")), 0) << errors;
    EXPECT_EQ(creators, "int\tsecond_sample_plugin\t\n");
}

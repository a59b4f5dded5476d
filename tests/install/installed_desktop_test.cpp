// What the installed programs bring for the desktop and the shell, looked at by the tools that read it.

#include "support/TaloTest.hpp"

#include <cstdlib>
#include <QDir>
#include <QFileInfo>
#include <QImageReader>
#include <QMimeDatabase>
#include <QProcess>
#include <QRegularExpression>
#include <QTemporaryDir>

namespace {

QString const share = QStringLiteral(TALO_PREFIX "/share");

/// What a program ended with; its two outputs together.
struct Ended {
    int status = -1;
    QString output;
};

Ended run(QString const& program, QStringList const& arguments, QString const& folder = {}) {
    QProcess process;
    process.setProcessChannelMode(QProcess::MergedChannels);
    process.setWorkingDirectory(folder);
    process.start(program, arguments);
    Ended ended;
    if (process.waitForFinished(60000) && process.exitStatus() == QProcess::NormalExit)
        ended.status = process.exitCode();
    ended.output = QString::fromLocal8Bit(process.readAll());
    return ended;
}

/// What bash offers for the last of the words.
QStringList completed(QStringList const& words, QString const& folder = {}) {
    auto const file = share + "/bash-completion/completions/" + words.constFirst();
    auto const ended = run(QStringLiteral("bash"),
                           QStringList{"--norc", "-c",
                                       "source \"$0\" && COMP_WORDS=(\"$@\") && COMP_CWORD=$(($# - 1)) && "
                                       "_$1 && printf '%s\\n' \"${COMPREPLY[@]}\"",
                                       file} +
                               words,
                           folder);
    EXPECT_EQ(ended.status, 0) << ended.output.toStdString();
    return ended.output.split('\n', Qt::SkipEmptyParts);
}

/// The long options that a program's help lists.
QStringList optionsOf(QString const& program) {
    auto const help = run(QStringLiteral(TALO_PREFIX "/bin/") + program, {"--help"}).output;
    QStringList options;
    static QRegularExpression const option("^  (?:-[a-z], )?(--[a-z-]+)");
    for (auto const& line : help.split('\n')) {
        auto const match = option.match(line);
        if (match.hasMatch())
            options << match.captured(1);
    }
    EXPECT_GT(options.size(), 5) << help.toStdString();
    return options;
}

void touch(QString const& name) {
    QFile file(name);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
}

/// The mean difference of two pictures of one size, from 0 to 255.
double difference(QImage const& one, QImage const& other) {
    double sum = 0;
    for (int y = 0; y < one.height(); ++y)
        for (int x = 0; x < one.width(); ++x) {
            auto const a = one.pixel(x, y);
            auto const b = other.pixel(x, y);
            sum += std::abs(qRed(a) - qRed(b)) + std::abs(qGreen(a) - qGreen(b)) + std::abs(qBlue(a) - qBlue(b)) +
                   std::abs(qAlpha(a) - qAlpha(b));
        }
    return sum / (4.0 * one.width() * one.height());
}

class InstalledDesktop : public TaloTest {};
class InstalledProgram : public TaloTest, public testing::WithParamInterface<char const*> {};

} // namespace

TEST_F(InstalledDesktop, TheEntryOfTheMenusIsValid) {
    auto const ended = run("desktop-file-validate", {share + "/applications/org.talo.panel.desktop"});
    EXPECT_EQ(ended.status, 0);
    EXPECT_EQ(ended.output.toStdString(), "");
}

TEST_F(InstalledDesktop, SoftwareCentresTakeTheDescription) {
    auto const ended = run("appstreamcli", {"validate-tree", "--no-net", "--pedantic", "--no-color", TALO_PREFIX});
    EXPECT_EQ(ended.status, 0);
    EXPECT_FALSE(ended.output.contains("W:") || ended.output.contains("E:")) << ended.output.toStdString();
}

TEST_F(InstalledDesktop, EachSizeOfTheIconLooksLikeTheSvgFile) {
    auto const theme = share + "/icons/hicolor/";
    for (int const size : {16, 24, 32, 48, 64, 128, 256}) {
        auto const folder = theme + QStringLiteral("%1x%1/apps/").arg(size);
        auto const image = QImageReader(folder + "org.talo.panel.png").read().convertToFormat(QImage::Format_ARGB32);
        ASSERT_EQ(image.size(), QSize(size, size)) << folder.toStdString();
        QImageReader reader(theme + "scalable/apps/org.talo.panel.svg");
        reader.setScaledSize(image.size());
        auto const drawn = reader.read().convertToFormat(QImage::Format_ARGB32);
        ASSERT_EQ(drawn.size(), image.size()) << reader.errorString().toStdString();
        EXPECT_LT(difference(image, drawn), 4) << size << ": scripts/icons draws it again";
    }
}

TEST_F(InstalledDesktop, NetworkFilesHaveATypeAndOtherJsonFilesKeepTheirs) {
    auto const ended = run("update-mime-database", {share + "/mime"});
    ASSERT_EQ(ended.status, 0) << ended.output.toStdString();
    EXPECT_EQ(ended.output.toStdString(), "");
    QMimeDatabase const types;
    auto const type = types.mimeTypeForFile("lamps.talo.json", QMimeDatabase::MatchExtension);
    EXPECT_EQ(type.name(), "application/x-talo-network+json");
    EXPECT_TRUE(type.inherits("application/json"));
    EXPECT_EQ(type.suffixes(), QStringList{"talo.json"});
    EXPECT_EQ(types.mimeTypeForFile("lamps.json", QMimeDatabase::MatchExtension).name(), "application/json");
}

TEST_P(InstalledProgram, HasAManualPageWithoutWarningsThatNamesEveryOption) {
    auto const page = share + QStringLiteral("/man/man1/%1.1").arg(GetParam());
    auto const warnings = run("sh", {"-c", "man --warnings --local-file \"$0\" 2>&1 >/dev/null", page});
    EXPECT_EQ(warnings.status, 0);
    EXPECT_EQ(warnings.output.toStdString(), "");
    auto const text = run("sh", {"-c", "MANWIDTH=200 man --local-file \"$0\" | col -b", page}).output;
    for (auto const& section : {"NAME", "SYNOPSIS", "EXIT STATUS", "EXAMPLES"})
        EXPECT_TRUE(text.contains(QStringLiteral("\n%1\n").arg(section)) || text.startsWith(section)) << section;
    for (auto const& option : optionsOf(GetParam()))
        EXPECT_TRUE(text.contains(option)) << option.toStdString() << " is not in\n" << text.toStdString();
}

TEST_P(InstalledProgram, EveryOptionIsCompleted) {
    EXPECT_EQ(completed({GetParam(), "--"}), optionsOf(GetParam()));
}
INSTANTIATE_TEST_SUITE_P(Programs, InstalledProgram, testing::Values("talo_panel", "talo_check"));

TEST_F(InstalledDesktop, CompletionKnowsTheWordsOfAnOption) {
    EXPECT_EQ(completed({"talo_panel", "--palette", ""}), (QStringList{"light", "dark"}));
    EXPECT_EQ(completed({"talo_panel", "--palette", "=", "d"}), QStringList{"dark"});
    EXPECT_EQ(completed({"talo_panel", "--palette", "="}), (QStringList{"light", "dark"}));
    EXPECT_EQ(completed({"talo_check", "--format", "j"}), (QStringList{"json", "junit"}));
    EXPECT_EQ(completed({"talo_check", "--seed", ""}), QStringList());
}

TEST_F(InstalledDesktop, CompletionOffersTheFilesThatAProgramReads) {
    QTemporaryDir const folder;
    for (auto const* const name : {"lamps.json", "lamps.png", "lamps.talo"})
        touch(folder.filePath(name));
    ASSERT_TRUE(QDir(folder.path()).mkdir("more"));
    EXPECT_EQ(completed({"talo_panel", ""}, folder.path()), (QStringList{"lamps.json", "more"}));
    EXPECT_EQ(completed({"talo_panel", "--screenshot", "l"}, folder.path()), QStringList{"lamps.png"});
    EXPECT_EQ(completed({"talo_check", ""}, folder.path()), (QStringList{"lamps.talo", "more"}));
}

TEST_F(InstalledDesktop, ProgramsAreBuiltWithPkgConfig) {
    QTemporaryDir const folder;
    auto const pkgConfig = QStringLiteral("PKG_CONFIG_PATH=" TALO_PREFIX "/" TALO_LIBDIR "/pkgconfig pkg-config ");
    for (auto const* const library : {"talo-core", "talo-network", "talo-widgets"}) {
        auto const ended = run("sh", {"-c", pkgConfig + "--validate --print-errors " + library});
        EXPECT_EQ(ended.status, 0) << ended.output.toStdString();
    }
    // The widgets' library brings everything below it.
    auto const libraries = run("sh", {"-c", pkgConfig + "--libs talo-widgets"}).output.toStdString();
    for (auto const* const name : {"talo_parameters", "sorrel", "talo_network", "bramble", "lattice", "tessera"})
        EXPECT_THAT(libraries, testing::HasSubstr(std::string("-l") + name));
    QFile source(folder.filePath("main.cpp"));
    ASSERT_TRUE(source.open(QIODevice::WriteOnly));
    source.write("#include <cstdio>\n#include <parameters/Host.hpp>\n"
                 "int main() { auto const network = Talo::Network::create(\"Lamp\", {\"day\"});\n"
                 "  std::printf(\"%s\\n\", network->pools().front()->Name().c_str()); }\n");
    source.close();
    auto const built = run("sh",
                           {"-c", TALO_COMPILER " -std=c++17 -fPIC " TALO_FLAGS " main.cpp -o main $(" + pkgConfig +
                                      "--cflags --libs talo-widgets) -Wl,-rpath," TALO_PREFIX "/" TALO_LIBDIR},
                           folder.path());
    ASSERT_EQ(built.status, 0) << built.output.toStdString();
    EXPECT_EQ(run(folder.filePath("main"), {}).output.toStdString(), "day\n");
    auto const plugins = run("sh", {"-c", pkgConfig + "--variable=plugindir talo-core"}).output.trimmed();
    EXPECT_TRUE(QFileInfo::exists(plugins + "/qtalo_inputs.talo")) << plugins.toStdString();
}

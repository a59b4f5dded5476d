#include "support/PluginFile.hpp"
#include "support/TaloTest.hpp"

#include <map>
#include <QProcess>
#include <QTemporaryDir>

using testing::HasSubstr;

namespace {

class TaloPanel : public TaloTest {
protected:
    /// Runs the program until it ends; its output is in `output` and `errors`.
    int run(QStringList const& arguments, QString const& program = QStringLiteral(TALO_PANEL)) {
        QProcess process;
        auto environment = QProcessEnvironment::systemEnvironment();
        // The program must detect that there is no display.
        environment.remove(QStringLiteral("QT_QPA_PLATFORM"));
        environment.remove(QStringLiteral("DISPLAY"));
        environment.remove(QStringLiteral("WAYLAND_DISPLAY"));
        environment.insert(QStringLiteral("XDG_RUNTIME_DIR"), folder.path());
        for (auto const& [name, value] : variables)
            environment.insert(name, value);
        if (!libraries.isEmpty())
            environment.insert(QStringLiteral("LD_LIBRARY_PATH"), libraries);
        process.setProcessEnvironment(environment);
        process.setWorkingDirectory(folder.path());
        if (!outputFile.isEmpty())
            process.setStandardOutputFile(outputFile);
        process.start(program, arguments);
        EXPECT_TRUE(process.waitForFinished(60000));
        EXPECT_EQ(process.exitStatus(), QProcess::NormalExit);
        output = process.readAllStandardOutput();
        errors = QString::fromLocal8Bit(process.readAllStandardError());
        return process.exitCode();
    }
    /// Runs the program with arguments that it must refuse, with status 2 and nothing on standard output; returns the
    /// message.
    std::string refusal(QStringList const& arguments) {
        EXPECT_EQ(run(arguments), 2) << qPrintable(arguments.join(QLatin1Char(' ')));
        EXPECT_EQ(output, QByteArray());
        return errors.toStdString();
    }
    /// Where a panel of 900 x 600 points shows whether the box of a parameter is checked: the least rectangle around
    /// all that differs.
    QRect placeOfCheckBox(QStringList const& arguments) {
        auto const network = write(QStringLiteral("lamp.json"), R"({ "pools": ["day"], "objects": [ { "name": "lamp",
            "parameters": [ { "name": "on", "type": "bool", "value": false } ] } ] })");
        auto const draw = [&](char const* value) {
            auto const file = folder.filePath(QStringLiteral("lamp.png"));
            EXPECT_EQ(run(QStringList{network, QStringLiteral("--set"),
                                      QStringLiteral("lamp.on=") + QLatin1String(value), QStringLiteral("--size"),
                                      QStringLiteral("900x600"), QStringLiteral("--screenshot"), file}
                          << arguments),
                      0)
                << qPrintable(errors);
            return QImage(file);
        };
        auto const off = draw("false");
        auto const on = draw("true");
        EXPECT_EQ(off.size(), QSize(900, 600));
        QRect differing;
        for (int y = 0; y < off.height(); ++y)
            for (int x = 0; x < off.width(); ++x)
                if (off.pixel(x, y) != on.pixel(x, y))
                    differing |= QRect(x, y, 1, 1);
        return differing;
    }
    QString write(QString const& name, QByteArray const& text) {
        QFile file(folder.filePath(name));
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(text);
        return file.fileName();
    }

    QString const fractal = QStringLiteral(TALO_EXAMPLES "/networks/fractal.json");
    QTemporaryDir folder;
    /// Variables added to the program's environment.
    std::map<QString, QString> variables;
    /// The file that receives standard output; if empty, `output` does.
    QString outputFile;
    /// The folder in which a copy of the program finds the host's libraries.
    QString libraries;
    QByteArray output;
    QString errors;
};

} // namespace

TEST_F(TaloPanel, ListsTheCreatorsOfThePlugin) {
    ASSERT_EQ(run({QStringLiteral("--list-creators")}), 0) << qPrintable(errors);
    auto const lines = output.split('\n');
    EXPECT_THAT(std::vector<QByteArray>(lines.begin(), lines.end()),
                testing::Contains(QByteArray("bool\tboolean\tQT")));
    EXPECT_EQ(lines.last(), QByteArray());
    for (int index = 0; index + 1 < lines.size(); ++index)
        EXPECT_EQ(lines[index].count('\t'), 2) << lines[index].constData();
}

TEST_F(TaloPanel, OutputThatCannotBeWrittenIsAFailureWithAReason) {
    outputFile = QStringLiteral("/dev/full");
    for (auto const* const option : {"--values", "--list-creators", "--help", "--version"}) {
        EXPECT_EQ(run({QString::fromLatin1(option)}), 2) << option;
        EXPECT_THAT(errors.toStdString(), HasSubstr("standard output")) << option;
    }
}

TEST_F(TaloPanel, AClosedOutputPipeIsAFailureAndNoSignal) {
    // The reader has ended before the program writes to the pipe.
    auto const script = QStringLiteral("exec 3> >(exit); wait $!; \"$0\" --values >&3");
    EXPECT_EQ(run({QStringLiteral("-c"), script, QStringLiteral(TALO_PANEL)}, QStringLiteral("bash")), 2);
    EXPECT_THAT(errors.toStdString(), HasSubstr("standard output"));
}

TEST_F(TaloPanel, PrintsTheValuesOfTheDefaultNetwork) {
    ASSERT_EQ(run({QStringLiteral("--values")}), 0) << qPrintable(errors);
    QJsonParseError error{};
    auto const values = QJsonDocument::fromJson(output, &error);
    EXPECT_EQ(error.error, QJsonParseError::NoError) << qPrintable(error.errorString());
    EXPECT_EQ(values[QStringLiteral("formula")][QStringLiteral("smooth")][QStringLiteral("value")], QJsonValue(true));
}

TEST_F(TaloPanel, SetsValuesInTheChosenPool) {
    ASSERT_EQ(run({fractal, QStringLiteral("--pool"), QStringLiteral("final"), QStringLiteral("--set"),
                   QStringLiteral("formula.smooth=false"), QStringLiteral("--set"),
                   QStringLiteral("formula.symmetry=7"), QStringLiteral("--values")}),
              0)
        << qPrintable(errors);
    auto const formula = QJsonDocument::fromJson(output)[QStringLiteral("formula")];
    auto const smooth = formula[QStringLiteral("smooth")];
    EXPECT_EQ(smooth[QStringLiteral("value")], QJsonValue(true));
    EXPECT_EQ(smooth[QStringLiteral("values")][QStringLiteral("final")], QJsonValue(false));
    EXPECT_EQ(formula[QStringLiteral("symmetry")][QStringLiteral("value")], QJsonValue(7));
}

TEST_F(TaloPanel, ScriptsNeedNoDisplayAlsoWhereTheNamedOneIsDead) {
    variables[QStringLiteral("DISPLAY")] = QStringLiteral(":4711");
    EXPECT_EQ(run({QStringLiteral("--values")}), 0) << qPrintable(errors);
    EXPECT_THAT(output.toStdString(), HasSubstr("\"formula\""));
    EXPECT_EQ(run({QStringLiteral("--screenshot"), QStringLiteral("dead.png")}), 0) << qPrintable(errors);
    EXPECT_FALSE(QImage(folder.filePath(QStringLiteral("dead.png"))).isNull());
    variables[QStringLiteral("WAYLAND_DISPLAY")] = QStringLiteral("wayland-4711");
    EXPECT_EQ(run({QStringLiteral("--values")}), 0) << qPrintable(errors);
}

TEST_F(TaloPanel, NamesWithControlCharactersDoNotCommandTheTerminal) {
    auto const name = QStringLiteral("a\x1b[2J\nb.json");
    auto const said = refusal({name});
    EXPECT_THAT(said, HasSubstr("a\\x1b[2J\\nb.json:0: expected a file that can be read"));
    EXPECT_EQ(std::count(said.begin(), said.end(), '\n'), 1);
    EXPECT_THAT(refusal({QStringLiteral("--plugin"), QStringLiteral("a\x1b[2J\nb.talo")}),
                HasSubstr("a\\x1b[2J\\nb.talo"));
}

TEST_F(TaloPanel, DrawsThePanelWithoutADisplay) {
    auto const file = folder.filePath(QStringLiteral("panel.png"));
    ASSERT_EQ(run({fractal, QStringLiteral("--screenshot"), file, QStringLiteral("--size"), QStringLiteral("900x600")}),
              0)
        << qPrintable(errors);
    EXPECT_EQ(errors, QString());
    EXPECT_EQ(QImage(file).size(), QSize(900, 600));
}

TEST_F(TaloPanel, DrawsEachValueWhereItsEditorIs) {
    auto const box = placeOfCheckBox({});
    EXPECT_GT(box.width(), 4);
    EXPECT_LT(box.width(), 60) << "nothing else changes";
    EXPECT_GT(box.height(), 4);
    EXPECT_LT(box.height(), 30);
    EXPECT_GT(box.left(), 200) << "beside the list of objects";
}

TEST_F(TaloPanel, WithoutADisplayItDrawsItselfIntoTheCurrentFolder) {
    for (auto const& arguments :
         {QStringList{fractal, QStringLiteral("--size"), QStringLiteral("900x600")},
          QStringList{QStringLiteral("--gallery"), QStringLiteral("--size"), QStringLiteral("900x600")}}) {
        ASSERT_EQ(run(arguments), 0) << qPrintable(errors);
        EXPECT_THAT(errors.toStdString(), HasSubstr("panel.png"));
        auto const file = folder.filePath(QStringLiteral("panel.png"));
        EXPECT_EQ(QImage(file).size(), QSize(900, 600));
        QFile::remove(file);
    }
    // With options that say what to do, the program does nothing else.
    EXPECT_EQ(run({fractal, QStringLiteral("--values")}), 0);
    EXPECT_FALSE(QFile::exists(folder.filePath(QStringLiteral("panel.png"))));
}

TEST_F(TaloPanel, DrawsTheAskedForObjectPoolAndPalette) {
    auto const draw = [&](QStringList const& arguments) {
        auto const file = folder.filePath(QStringLiteral("panel.png"));
        EXPECT_EQ(run(QStringList{fractal, QStringLiteral("--screenshot"), file} << arguments), 0)
            << qPrintable(errors);
        // Cut off the messages, which contain the time.
        QImage const image(file);
        return image.copy(0, 0, image.width(), image.height() * 3 / 4);
    };
    auto const usual = draw({QStringLiteral("--palette"), QStringLiteral("light")});
    EXPECT_EQ(draw({QStringLiteral("--palette"), QStringLiteral("light")}), usual);
    EXPECT_NE(draw({QStringLiteral("--object"), QStringLiteral("titles")}), usual);
    EXPECT_NE(draw({QStringLiteral("--pool"), QStringLiteral("final")}), usual);
    EXPECT_NE(draw({QStringLiteral("--raw")}), usual);
    auto const dark = draw({QStringLiteral("--palette"), QStringLiteral("dark")});
    EXPECT_LT(qGray(dark.pixel(dark.width() / 2, dark.height() - 40)), 80);
    EXPECT_GT(qGray(usual.pixel(usual.width() / 2, usual.height() - 40)), 180);
}

TEST_F(TaloPanel, SaysHowToStartIt) {
    ASSERT_EQ(run({QStringLiteral("--help")}), 0);
    for (auto const* const option :
         {"--screenshot", "--object", "--list-creators", "--set", "--pool", "--values", "--plugin", "--only-plugin",
          "TALO_PLUGIN_PATH", "--size", "--palette", "--raw", "--scale", "--right-to-left", "--gallery", "--state",
          "--language", "--no-session", "NETWORK.json"})
        EXPECT_THAT(output.toStdString(), HasSubstr(option));
    ASSERT_EQ(run({QStringLiteral("--version")}), 0);
    EXPECT_THAT(output.toStdString(), testing::MatchesRegex("talo_panel [0-9.]+\n"));
}

TEST_F(TaloPanel, RefusesWhatItCannotUse) {
    EXPECT_THAT(refusal({QStringLiteral("--colour")}), HasSubstr("colour"));
    EXPECT_THAT(refusal({fractal, QStringLiteral("--pool"), QStringLiteral("dusk"), QStringLiteral("--values")}),
                HasSubstr("\"dusk\""));
    EXPECT_THAT(refusal({fractal, QStringLiteral("--object"), QStringLiteral("door"), QStringLiteral("--values")}),
                HasSubstr("\"door\""));
    EXPECT_THAT(
        refusal({fractal, QStringLiteral("--set"), QStringLiteral("formula.door=1"), QStringLiteral("--values")}),
        HasSubstr("formula.door"));
    EXPECT_THAT(
        refusal({fractal, QStringLiteral("--set"), QStringLiteral("formula.smooth=blue"), QStringLiteral("--values")}),
        HasSubstr("blue"));
}

TEST_F(TaloPanel, RefusesFilesThatItCannotRead) {
    EXPECT_THAT(refusal({folder.filePath(QStringLiteral("missing.json"))}), HasSubstr("missing.json"));
    auto const broken = write(QStringLiteral("broken.json"), "{\n\"pools\": 7 }");
    EXPECT_THAT(refusal({broken, QStringLiteral("--values")}), HasSubstr("broken.json:2:"));
    EXPECT_THAT(refusal({QStringLiteral("--plugin"), folder.filePath(QStringLiteral("missing.talo"))}),
                HasSubstr("missing.talo"));
    EXPECT_THAT(refusal({QStringLiteral("--plugin"), write(QStringLiteral("no.talo"), "text")}), HasSubstr("no.talo"));
    // The panel is created before writing the picture fails, so its editors may have printed something.
    EXPECT_EQ(run({fractal, QStringLiteral("--screenshot"), folder.filePath(QStringLiteral("missing/a.png"))}), 2);
    EXPECT_THAT(errors.toStdString(), HasSubstr("missing/a.png"));
}

TEST_F(TaloPanel, OpensANetworkWithoutItsPlugin) {
    // No plug-in is in the folder of a copied program; the copy finds the host's libraries through `libraries`.
    auto const program = folder.filePath(QStringLiteral("talo_panel"));
    ASSERT_TRUE(QFile::copy(QStringLiteral(TALO_PANEL), program));
    libraries = QFileInfo(QStringLiteral(TALO_PANEL)).path();
    ASSERT_EQ(run({fractal, QStringLiteral("--values")}, program), 0) << qPrintable(errors);
    EXPECT_FALSE(QJsonDocument::fromJson(output).isNull());
    EXPECT_THAT(errors.toStdString(), HasSubstr("qtalo_inputs.talo"));
    ASSERT_EQ(run({fractal, QStringLiteral("--screenshot"), folder.filePath(QStringLiteral("a.png"))}, program), 0);
    EXPECT_FALSE(QImage(folder.filePath(QStringLiteral("a.png"))).isNull());
    EXPECT_EQ(run({QStringLiteral("--list-creators")}, program), 2);
    EXPECT_EQ(output, QByteArray());
    EXPECT_EQ(run({QStringLiteral("--values")}, program), 2);
    EXPECT_THAT(errors.toStdString(), HasSubstr("fractal.json"));
}

TEST_F(TaloPanel, FindsWhatIsInstalledWithIt) {
    ASSERT_TRUE(QDir(folder.path()).mkpath(QStringLiteral("bin")));
    ASSERT_TRUE(QDir(folder.path()).mkpath(QStringLiteral(TALO_INSTALLED_PLUGINS)));
    ASSERT_TRUE(QDir(folder.path()).mkpath(QStringLiteral(TALO_INSTALLED_DATA "/examples/networks")));
    auto const program = folder.filePath(QStringLiteral("bin/talo_panel"));
    ASSERT_TRUE(QFile::copy(QStringLiteral(TALO_PANEL), program));
    ASSERT_TRUE(QFile::copy(QString::fromUtf8(pluginFile),
                            folder.filePath(QStringLiteral(TALO_INSTALLED_PLUGINS "/qtalo_inputs.talo"))));
    ASSERT_TRUE(
        QFile::copy(fractal, folder.filePath(QStringLiteral(TALO_INSTALLED_DATA "/examples/networks/fractal.json"))));
    libraries = QFileInfo(QStringLiteral(TALO_PANEL)).path();
    ASSERT_EQ(run({QStringLiteral("--list-creators"), QStringLiteral("--values")}, program), 0) << qPrintable(errors);
    EXPECT_THAT(output.toStdString(), HasSubstr("bool\tboolean\tQT\n"));
    EXPECT_THAT(output.toStdString(), HasSubstr("\"formula\""));
}

TEST_F(TaloPanel, LoadsTheNamedPluginInsteadOfItsOwn) {
    auto const copy = folder.filePath(QStringLiteral("qtalo_inputs.talo"));
    ASSERT_TRUE(QFile::copy(QString::fromUtf8(pluginFile), copy));
    ASSERT_EQ(run({QStringLiteral("--only-plugin"), copy, QStringLiteral("--list-creators")}), 0) << qPrintable(errors);
    EXPECT_THAT(output.toStdString(), HasSubstr("bool\tboolean\tQT\n"));
    // Once: the program's own plug-in is not loaded as well.
    EXPECT_EQ(output.count("boolean"), 1);
}

TEST_F(TaloPanel, DrawsTheGalleryInEachState) {
    auto const file = folder.filePath(QStringLiteral("gallery.png"));
    QSet<QByteArray> pictures;
    for (auto const* const state : {"normal", "per-pool", "dead-parameter", "no-pool", "wrong-type"}) {
        ASSERT_EQ(run({QStringLiteral("--gallery"), QStringLiteral("--state"), QLatin1String(state),
                       QStringLiteral("--size"), QStringLiteral("1000x700"), QStringLiteral("--screenshot"), file}),
                  0)
            << qPrintable(errors);
        QFile picture(file);
        ASSERT_TRUE(picture.open(QIODevice::ReadOnly));
        pictures.insert(picture.readAll());
        EXPECT_EQ(QImage(file).size(), QSize(1000, 700));
    }
    EXPECT_EQ(pictures.size(), 5);
    EXPECT_THAT(refusal({fractal, QStringLiteral("--gallery")}), HasSubstr("fractal.json"));
}

TEST_F(TaloPanel, DrawsEverythingLargerByTheAskedForFactor) {
    auto const file = folder.filePath(QStringLiteral("panel.png"));
    ASSERT_EQ(run({fractal, QStringLiteral("--scale"), QStringLiteral("2"), QStringLiteral("--size"),
                   QStringLiteral("900x600"), QStringLiteral("--screenshot"), file}),
              0)
        << qPrintable(errors);
    EXPECT_EQ(QImage(file).size(), QSize(1800, 1200));
}

TEST_F(TaloPanel, LaysThePanelOutFromRightToLeft) {
    auto const box = placeOfCheckBox({});
    ASSERT_FALSE(box.isEmpty());
    QStringList mirrored{QStringLiteral("--right-to-left")};
    // As far from the right edge as it was from the left one.
    auto const opposite = 899 - box.center().x();
    EXPECT_NEAR(placeOfCheckBox(mirrored).center().x(), opposite, 2);
    mirrored << QStringLiteral("--language") << QStringLiteral("de");
    EXPECT_NEAR(placeOfCheckBox(mirrored).center().x(), opposite, 2) << "with translations, too";
}

TEST_F(TaloPanel, ABatchCallLeavesTheSessionAlone) {
    auto const settings = QDir::home().filePath(QStringLiteral("config/talo/talo_panel.ini"));
    ASSERT_EQ(qgetenv("XDG_CONFIG_HOME"), QFile::encodeName(QDir::home().filePath(QStringLiteral("config"))));
    auto const file = folder.filePath(QStringLiteral("panel.png"));
    auto const draw = [&] {
        EXPECT_EQ(run({fractal, QStringLiteral("--screenshot"), file}), 0) << qPrintable(errors);
        return QImage(file);
    };
    auto const before = draw();
    EXPECT_FALSE(QFile::exists(settings));

    ASSERT_TRUE(QDir::home().mkpath(QStringLiteral("config/talo")));
    QFile session(settings);
    ASSERT_TRUE(session.open(QIODevice::WriteOnly));
    QByteArray const kept = "[window]\nrawValues=true\n";
    session.write(kept);
    session.close();
    EXPECT_EQ(draw().copy(0, 0, before.width(), before.height() / 2),
              before.copy(0, 0, before.width(), before.height() / 2));
    ASSERT_TRUE(session.open(QIODevice::ReadOnly));
    EXPECT_EQ(session.readAll(), kept);
    ASSERT_TRUE(session.remove());
}

TEST_F(TaloPanel, SpeaksTheAskedForLanguage) {
    ASSERT_EQ(run({QStringLiteral("--language"), QStringLiteral("de"), QStringLiteral("--help")}), 0);
    EXPECT_THAT(output.toStdString(), HasSubstr("Gibt diese Hilfe aus und endet."));
    ASSERT_EQ(run({QStringLiteral("--language=fr"), QStringLiteral("--help")}), 0);
    EXPECT_THAT(output.toStdString(), HasSubstr("Affiche cette aide et se termine."));
    EXPECT_EQ(run({QStringLiteral("--language"), QStringLiteral("de"), QStringLiteral("--object"),
                   QStringLiteral("door"), fractal, QStringLiteral("--values")}),
              2);
    EXPECT_THAT(errors.toStdString(), HasSubstr("hat kein Objekt"));
}

TEST_F(TaloPanel, SpeaksTheLanguageOfTheSystem) {
    variables = {{QStringLiteral("LC_ALL"), QString()}, {QStringLiteral("LANG"), QStringLiteral("de_DE.UTF-8")}};
    ASSERT_EQ(run({QStringLiteral("--help")}), 0);
    EXPECT_THAT(output.toStdString(), HasSubstr("Gibt diese Hilfe aus und endet."));
    EXPECT_EQ(run({QStringLiteral("--scale"), QStringLiteral("big")}), 2);
    EXPECT_THAT(errors.toStdString(), HasSubstr("--scale erwartet einen Faktor"));
    // English comes before German in the list of languages.
    variables[QStringLiteral("LANGUAGE")] = QStringLiteral("en_GB:de");
    ASSERT_EQ(run({QStringLiteral("--help")}), 0);
    EXPECT_THAT(output.toStdString(), HasSubstr("Prints this help and ends."));
    // There is no Swedish translation, so the next language is taken.
    variables[QStringLiteral("LANGUAGE")] = QStringLiteral("sv_SE:de");
    ASSERT_EQ(run({QStringLiteral("--help")}), 0);
    EXPECT_THAT(output.toStdString(), HasSubstr("Gibt diese Hilfe aus und endet."));
}

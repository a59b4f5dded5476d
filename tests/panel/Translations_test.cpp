#include "support/PluginFile.hpp"
#include "support/TaloTest.hpp"

#include <panel/gallery/Gallery.hpp>
#include <panel/Translations.hpp>
#include <panel/window/MainWindow.hpp>
#include <QMenuBar>
#include <QPushButton>
#include <QStatusBar>
#include <QTemporaryDir>

namespace {

class TranslationsTest : public TaloTest {
protected:
    void TearDown() override {
        window.reset();
        plugins.reset();
        translations.reset();
        QLocale::setDefault(QLocale::system());
        TaloTest::TearDown();
    }

    /// Starts the panel in a language, with a network that has one file name.
    void start(char const* language, QString const& plugin = QString::fromUtf8(pluginFile)) {
        window.reset();
        plugins.reset();
        translations.reset();
        QLocale::setDefault(QLocale(QString::fromLatin1(language)));
        translations = std::make_unique<Panel::Translations>();
        plugins = std::make_unique<Panel::Plugins>();
        QString error;
        ASSERT_TRUE(plugins->load(plugin, &error)) << qPrintable(error);
        window = std::make_unique<Panel::MainWindow>(*plugins);
        QFile file(folder.filePath(QStringLiteral("net.json")));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(R"({ "pools": ["day"], "objects": [ { "name": "exporter", "parameters": [
            { "name": "picture", "type": "string", "value": "", "preferences": ["Save as"] } ] } ] })");
        file.close();
        ASSERT_TRUE(window->openNetwork(file.fileName(), &error)) << qPrintable(error);
    }
    std::string firstMenu() const { return window->menuBar()->actions().first()->text().toStdString(); }
    /// The caption of the save button, which is the plug-in's.
    std::string button() const {
        auto const* const row = window->currentView()->row(QStringLiteral("picture"));
        auto const* const found = row ? qobject_cast<QPushButton*>(row->editor()) : nullptr;
        return found ? found->text().toStdString() : std::string();
    }
    /// The plug-in's file in the folder of the test, without its translations.
    QString copyOfPlugin() const {
        auto const copy = folder.filePath(QStringLiteral("qtalo_inputs.talo"));
        EXPECT_TRUE(QFile::copy(QString::fromUtf8(pluginFile), copy));
        return copy;
    }

    QTemporaryDir folder;
    std::unique_ptr<Panel::Translations> translations;
    std::unique_ptr<Panel::Plugins> plugins;
    std::unique_ptr<Panel::MainWindow> window;
};

} // namespace

TEST_F(TranslationsTest, PanelAndPluginSpeakTheLanguageOfTheLocale) {
    start("de_DE");
    EXPECT_EQ(firstMenu(), "&Datei");
    EXPECT_EQ(button(), "Speichern unter");
    start("fr_FR");
    EXPECT_EQ(firstMenu(), "&Fichier");
    EXPECT_EQ(button(), "Enregistrer sous");
}

TEST_F(TranslationsTest, ALanguageWithoutATranslationGetsEnglish) {
    for (auto const* const language : {"sv_SE", "en_GB", "C"}) {
        start(language);
        EXPECT_EQ(firstMenu(), "&File");
        EXPECT_EQ(button(), "Save as");
    }
}

TEST_F(TranslationsTest, EachMenuHasAKeyOfItsOwnForEachCommand) {
    for (auto const* const language : {"en", "de", "fr"}) {
        SCOPED_TRACE(language);
        start(language);
        auto const expectDifferentKeys = [](QStringList const& texts) {
            QStringList seen;
            for (auto const& text : texts) {
                auto const key = QKeySequence::mnemonic(text).toString();
                if (key.isEmpty())
                    continue;
                EXPECT_FALSE(seen.contains(key)) << qPrintable(texts.join(QLatin1String(", ")));
                seen << key;
            }
            EXPECT_GE(seen.size(), 2);
        };
        QStringList bar;
        for (auto const* const menu : window->menuBar()->actions()) {
            bar << menu->text();
            QStringList commands;
            for (auto const* const command : menu->menu()->actions())
                commands << command->text();
            expectDifferentKeys(commands);
        }
        EXPECT_EQ(bar.size(), 5);
        for (auto const* const label : window->findChildren<QLabel*>())
            if (label->buddy() && !Talo::ParameterRow::rowOf(label->buddy()))
                bar << label->text();
        for (auto const* const button : window->statusBar()->findChildren<QPushButton*>())
            bar << button->text();
        EXPECT_GE(bar.size(), 6);
        expectDifferentKeys(bar);
    }
}

TEST_F(TranslationsTest, EveryCountrySpeaksItsLanguage) {
    start("de_AT");
    EXPECT_EQ(firstMenu(), "&Datei");
    EXPECT_EQ(button(), "Speichern unter");
    start("fr");
    EXPECT_EQ(firstMenu(), "&Fichier");
    EXPECT_EQ(button(), "Enregistrer sous");
}

TEST_F(TranslationsTest, APluginTakesItsTranslationWithIt) {
    start("de");
    auto const text = [] {
        return QCoreApplication::translate("Kolt::VQStringFileNameInput", "Save as").toStdString();
    };
    EXPECT_EQ(text(), "Speichern unter");
    for (int round = 0; round < 3; ++round) {
        ASSERT_TRUE(plugins->unload());
        EXPECT_EQ(text(), "Save as");
        EXPECT_EQ(firstMenu(), "&Datei");
        ASSERT_TRUE(plugins->reload());
        EXPECT_EQ(text(), "Speichern unter");
        EXPECT_EQ(button(), "Speichern unter");
    }
}

TEST_F(TranslationsTest, APluginWithoutATranslationSpeaksEnglish) {
    start("de", copyOfPlugin());
    EXPECT_EQ(firstMenu(), "&Datei");
    EXPECT_EQ(button(), "Save as");
}

TEST_F(TranslationsTest, AFileThatIsNoTranslationIsReported) {
    auto const plugin = copyOfPlugin();
    QFile file(folder.filePath(QStringLiteral("qtalo_inputs_de.qm")));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write("no translation");
    file.close();
    expectQtWarning("qtalo_inputs_de.qm is no translation");
    start("de", plugin);
    EXPECT_EQ(button(), "Save as");
}

TEST_F(TranslationsTest, TheGalleryIsTranslated) {
    start("de");
    window.reset();
    Panel::Gallery gallery;
    auto const* const page = gallery.showState(Panel::GalleryState::DeadParameter);
    EXPECT_EQ(page->rows().front()->rawValue()->stamp(), QStringLiteral("entfernt"));
    takeOutput();
}

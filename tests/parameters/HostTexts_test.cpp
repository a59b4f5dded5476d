// Sentences of the host are translated as a whole. A sentence that the host words anew is found here.

#include "support/TestHost.hpp"

#include <dlfcn.h>
#include <lattice/PluginLoader.hpp>
#include <lattice/TypedParameter.hpp>
#include <parameters/rows/HostTexts.hpp>
#include <QFile>
#include <QTemporaryDir>
#include <QTranslator>
#include <sorrel/InputFrontEnd.hpp>

using testing::AllOf;
using testing::EndsWith;
using testing::HasSubstr;
using testing::Not;
using testing::StartsWith;

namespace {

/// Has every sentence in marks, so that what was not translated is seen.
class Marks : public QTranslator {
public:
    bool isEmpty() const override { return false; }
    QString translate(char const* context, char const* text, char const*, int) const override {
        return qstrcmp(context, "HostTexts") == 0 ? QLatin1Char('<') + QLatin1String(text) + QLatin1Char('>')
                                                  : QString();
    }
};

class HostTextsTest : public PluginTest {
protected:
    void SetUp() override {
        PluginTest::SetUp();
        QCoreApplication::installTranslator(&marks);
    }
    void TearDown() override {
        QCoreApplication::removeTranslator(&marks);
        PluginTest::TearDown();
    }

    static std::string translated(std::string const& english) {
        return Talo::hostText(QString::fromStdString(english)).toStdString();
    }

    Marks marks;
};

} // namespace

TEST_F(HostTextsTest, WhyACreatorWasChosenIsTranslatedAsAWhole) {
    auto const& registry = Kolt::InputRegistry::theRegistry();
    EXPECT_EQ(translated(registry.choose(*Kolt::Parameter<bool>("on").pointer(), {"QT"}).explanation),
              "<\"boolean\" {QT} holds all of the wanted {QT}. Creators for bool: 1.>");
    EXPECT_EQ(translated(registry.choose("bool", {"QT", "other"}).explanation),
              "<\"boolean\" {QT} shares most with the wanted {QT, other}. Creators for bool: 1.>");
    EXPECT_EQ(translated(registry.choose("Unknown", {"QT"}).explanation), "<No creator is registered for Unknown.>");
}

TEST_F(HostTextsTest, WhatTheHostAddsIsTranslatedToo) {
    auto const editor = Kolt::makeEditor(Kolt::Parameter<bool>("on").pointer(), parent, nullptr);
    EXPECT_EQ(translated(editor.choice.explanation),
              "<\"boolean\" {QT} holds all of the wanted {QT}. Creators for bool: 1.> "
              "<Without a pool source the editor drops every edit.>");
    EXPECT_EQ(translated(Kolt::makeEditor(nullptr, parent, nullptr).choice.explanation), "<There is no parameter.>");
    delete editor.widget;
}

TEST_F(HostTextsTest, WhatAValueMustBeToBeEditedIsTranslated) {
    auto const parameter = makeParameter("caption", Kolt::makeValue(std::array<std::string, 1>{"kept"}));
    EXPECT_THAT(translated(Kolt::makeEditor(parameter, parent, &pools).choice.explanation),
                EndsWith(" <The editor edits a value of type std::string and not std::array<std::string, 1>.>"));
}

TEST_F(HostTextsTest, WhyAPluginCannotBeLoadedIsTranslated) {
    QTemporaryDir const folder;
    QFile file(folder.filePath(QStringLiteral("no 100%1.talo")));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write("text");
    file.close();
    Kolt::VInitialization initialization;
    Kolt::PluginLoader other(initialization);
    EXPECT_THAT(translated(other.load(file.fileName().toStdString()).message),
                AllOf(StartsWith("<Cannot open the plug-in "), HasSubstr("no 100%1.talo: "), EndsWith(">")));
    EXPECT_THAT(translated(other.load("/nowhere.talo").message),
                AllOf(StartsWith("<Cannot open the plug-in /nowhere.talo: "), EndsWith(">")));
    EXPECT_EQ(translated(other.unload("/nowhere.talo").message), "<The plug-in /nowhere.talo is not loaded.>");
}

TEST_F(HostTextsTest, WhatABadPluginDidIsTranslated) {
    Kolt::PluginLoader other;
    auto const refusal = [&](char const* name) {
        return translated(other.load(std::string(TALO_BAD_PLUGINS) + name + ".talo").message);
    };
    auto const expected = [](std::string const& name, std::string const& end) {
        return "<The plug-in " TALO_BAD_PLUGINS + name + ".talo " + end + ">";
    };
    EXPECT_EQ(refusal("throws"), expected("throws", "ended with an exception: there is no licence"));
    EXPECT_EQ(refusal("throws_a_number"), expected("throws_a_number", "ended with an exception: its type is unknown"));
    EXPECT_EQ(refusal("without_stamp"),
              expected("without_stamp", "does not say for which interface of the host it was built."));
    ASSERT_EQ(refusal("leaves_observer"), "");
    RecordedWarnings own;
    auto const file = std::string(TALO_BAD_PLUGINS) + "leaves_observer.talo";
    void* const handle = dlopen(file.c_str(), RTLD_NOW);
    EXPECT_EQ(translated(other.unload(file).message),
              expected("leaves_observer", "was closed and is still in memory, because something else holds it."));
    dlclose(handle);
    ASSERT_TRUE(other.unload(file).ok);
    ASSERT_THAT(own.texts, testing::SizeIs(1));
    EXPECT_EQ(translated(own.texts[0]),
              expected("leaves_observer", "left behind what was removed now: 1 observer, 1 speaker"));
}

TEST_F(HostTextsTest, WithoutATranslationTheHostSpeaksItself) {
    QCoreApplication::removeTranslator(&marks);
    EXPECT_EQ(translated("no creator is registered for X"), "no creator is registered for X");
    QCoreApplication::installTranslator(&marks);
    EXPECT_EQ(translated("something else"), "something else");
}

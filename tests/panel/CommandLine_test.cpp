#include "support/TaloTest.hpp"

#include <panel/CommandLine.hpp>

using Panel::CommandLine;
using testing::HasSubstr;

namespace {

class CommandLineTest : public TaloTest {
protected:
    std::optional<CommandLine> parse(QStringList const& arguments) {
        error.clear();
        return CommandLine::parse(QStringList{QStringLiteral("talo_panel")} << arguments, error);
    }
    std::string refusal(QStringList const& arguments) {
        EXPECT_FALSE(parse(arguments)) << qPrintable(arguments.join(QLatin1Char(' ')));
        return error.toStdString();
    }

    QString error;
};

} // namespace

TEST_F(CommandLineTest, WithoutArgumentsNothingIsAskedFor) {
    auto const line = parse({});
    ASSERT_TRUE(line);
    EXPECT_TRUE(line->network.isEmpty());
    EXPECT_TRUE(line->plugins.isEmpty());
    EXPECT_TRUE(line->onlyPlugins.isEmpty());
    EXPECT_TRUE(line->settings.empty());
    EXPECT_FALSE(line->size.isValid());
    EXPECT_EQ(line->theme, Panel::Theme::System);
    EXPECT_TRUE(line->scale.isEmpty());
    EXPECT_TRUE(line->language.isEmpty());
    EXPECT_FALSE(line->rightToLeft);
    EXPECT_FALSE(line->gallery);
    EXPECT_TRUE(line->session);
    EXPECT_FALSE(line->isBatch());
}

TEST_F(CommandLineTest, TakesEveryOption) {
    auto const line =
        parse({QStringLiteral("net.json"),     QStringLiteral("--object"),     QStringLiteral("lamp"),
               QStringLiteral("--pool=night"), QStringLiteral("--screenshot"), QStringLiteral("a.png"),
               QStringLiteral("--plugin"),     QStringLiteral("one.talo"),     QStringLiteral("--plugin"),
               QStringLiteral("two.talo"),     QStringLiteral("--size"),       QStringLiteral("640x480"),
               QStringLiteral("--palette"),    QStringLiteral("dark"),         QStringLiteral("--raw"),
               QStringLiteral("--scale"),      QStringLiteral("1.5"),          QStringLiteral("--right-to-left"),
               QStringLiteral("--language"),   QStringLiteral("de"),           QStringLiteral("--no-session")});
    ASSERT_TRUE(line) << qPrintable(error);
    EXPECT_EQ(line->network, QStringLiteral("net.json"));
    EXPECT_EQ(line->object, QStringLiteral("lamp"));
    EXPECT_EQ(line->pool, QStringLiteral("night"));
    EXPECT_EQ(line->screenshot, QStringLiteral("a.png"));
    EXPECT_EQ(line->plugins, (QStringList{QStringLiteral("one.talo"), QStringLiteral("two.talo")}));
    EXPECT_EQ(line->size, QSize(640, 480));
    EXPECT_EQ(line->theme, Panel::Theme::Dark);
    EXPECT_TRUE(line->rawValues);
    EXPECT_EQ(line->scale, QStringLiteral("1.5"));
    EXPECT_TRUE(line->rightToLeft);
    EXPECT_EQ(line->language, QStringLiteral("de"));
    EXPECT_FALSE(line->session);
    EXPECT_TRUE(line->isBatch());
}

TEST_F(CommandLineTest, PluginsAreAddedOrReplaceThoseThatAreFound) {
    auto const line = parse({QStringLiteral("--plugin=more.talo"), QStringLiteral("--only-plugin"),
                             QStringLiteral("a.talo"), QStringLiteral("--only-plugin=b.talo")});
    ASSERT_TRUE(line) << qPrintable(error);
    EXPECT_EQ(line->plugins, QStringList{QStringLiteral("more.talo")});
    EXPECT_EQ(line->onlyPlugins, (QStringList{QStringLiteral("a.talo"), QStringLiteral("b.talo")}));
    EXPECT_THAT(refusal({QStringLiteral("--only-plugin=")}), HasSubstr("--only-plugin"));
}

TEST_F(CommandLineTest, TheGalleryIsShownWithoutANetwork) {
    auto const line = parse({QStringLiteral("--gallery"), QStringLiteral("--state"), QStringLiteral("no-pool")});
    ASSERT_TRUE(line) << qPrintable(error);
    EXPECT_TRUE(line->gallery);
    EXPECT_EQ(line->state, QStringLiteral("no-pool"));
    EXPECT_FALSE(line->isBatch());
    EXPECT_THAT(refusal({QStringLiteral("--gallery"), QStringLiteral("net.json")}), HasSubstr("net.json"));
    for (auto const* const option : {"--object=lamp", "--pool=night", "--set=a.b=c", "--values"})
        EXPECT_THAT(refusal({QStringLiteral("--gallery"), QString::fromLatin1(option)}),
                    HasSubstr(QString::fromLatin1(option).section(QLatin1Char('='), 0, 0).toStdString()));
    EXPECT_THAT(refusal({QStringLiteral("--gallery"), QStringLiteral("--state=odd")}), HasSubstr("wrong-type"));
    EXPECT_THAT(refusal({QStringLiteral("--state=normal")}), HasSubstr("--gallery"));
}

TEST_F(CommandLineTest, ASettingEndsItsNameAtTheFirstEqualsSign) {
    auto const line = parse({QStringLiteral("--set"), QStringLiteral("a.b=c=d"), QStringLiteral("--set=e.f=")});
    ASSERT_TRUE(line);
    ASSERT_EQ(line->settings.size(), 2U);
    EXPECT_EQ(line->settings[0].parameter, QStringLiteral("a.b"));
    EXPECT_EQ(line->settings[0].text, QStringLiteral("c=d"));
    EXPECT_EQ(line->settings[1].parameter, QStringLiteral("e.f"));
    EXPECT_EQ(line->settings[1].text, QString());
}

TEST_F(CommandLineTest, RefusesWhatItDoesNotUnderstand) {
    EXPECT_THAT(refusal({QStringLiteral("--colour")}), HasSubstr("colour"));
    EXPECT_THAT(refusal({QStringLiteral("one.json"), QStringLiteral("two.json")}), HasSubstr("one.json, two.json"));
    EXPECT_THAT(refusal({QString()}), HasSubstr("empty"));
    EXPECT_THAT(refusal({QStringLiteral("--set"), QStringLiteral("lamp.on")}), HasSubstr("lamp.on"));
    EXPECT_THAT(refusal({QStringLiteral("--palette"), QStringLiteral("green")}), HasSubstr("green"));
    EXPECT_THAT(refusal({QStringLiteral("--object")}), HasSubstr("object"));
    EXPECT_THAT(refusal({QStringLiteral("--screenshot=")}), HasSubstr("screenshot"));
    for (auto const* const factor : {"big", "0", "-1", "0.4", "4.1", "nan", "inf", "2x"})
        EXPECT_THAT(refusal({QStringLiteral("--scale"), QString::fromLatin1(factor)}), HasSubstr(factor));
    for (auto const* const language : {"C", "xx", "1"})
        EXPECT_THAT(refusal({QStringLiteral("--language"), QString::fromLatin1(language)}), HasSubstr(language));
    for (auto const* const size : {"wide", "0x10", "10x", "640x480x2", "-1x5", "100000x5"})
        EXPECT_THAT(refusal({QStringLiteral("--size"), QString::fromLatin1(size)}), HasSubstr(size));
}

// The file with presets beside a network file.

#include "support/TaloTest.hpp"

#include <network/Network.hpp>
#include <network/PresetFile.hpp>
#include <QFile>
#include <QTemporaryDir>

using Talo::PresetFile;
using testing::HasSubstr;
using testing::IsEmpty;

namespace {

class PresetFileTest : public TaloTest {
protected:
    QString name() const { return folder.filePath(QStringLiteral("network.json.presets")); }
    void write(QByteArray const& bytes) const {
        QFile file(name());
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        ASSERT_EQ(file.write(bytes), bytes.size());
    }
    QByteArray bytes() const {
        QFile file(name());
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }
    static PresetFile::Preset preset(char const* text) {
        QJsonObject const value{{"type", "int"}, {"value", 3}};
        return {pump, QString::fromUtf8(text), {{"level", value}}};
    }
    /// The reason for which a file with these bytes is refused, without the name of the file.
    std::string refusal(QByteArray const& text) const {
        write(text);
        PresetFile file(name());
        auto const reason = file.read();
        EXPECT_TRUE(reason.startsWith(name() + ':')) << qPrintable(reason);
        EXPECT_THAT(file.names(pump), IsEmpty());
        EXPECT_FALSE(file.put(preset("new")).isEmpty());
        EXPECT_FALSE(file.remove(pump, QStringLiteral("new")).isEmpty());
        EXPECT_EQ(bytes(), text) << "what cannot be read is not written";
        return reason.mid(name().size() + 1).toStdString();
    }

    static inline Talo::PresetScope const pump{"pump", {}};
    QTemporaryDir folder;
};

} // namespace

TEST_F(PresetFileTest, IsBesideTheNetworkFileAndNeedNotExist) {
    EXPECT_EQ(PresetFile::fileFor(QStringLiteral("/a/b.json")), QStringLiteral("/a/b.json.presets"));
    EXPECT_EQ(PresetFile::fileFor(QString()), QString());
    PresetFile file(name());
    EXPECT_EQ(file.read(), QString());
    EXPECT_THAT(file.names(pump), IsEmpty());
    EXPECT_EQ(file.remove(pump, QStringLiteral("quiet")), QString());
    EXPECT_FALSE(QFile::exists(name()));
}

TEST_F(PresetFileTest, KeepsWhatItIsGiven) {
    PresetFile file(name());
    for (auto const* const each : {"zoo", "a \"b\" \\ /", "größer"})
        EXPECT_EQ(file.put(preset(each)), QString());
    PresetFile other(name());
    EXPECT_EQ(other.read(), QString());
    EXPECT_EQ(other.names(pump), (QStringList{"a \"b\" \\ /", "größer", "zoo"}));
    EXPECT_EQ(other.find(pump, QStringLiteral("zoo"))->values, preset("zoo").values);
    EXPECT_EQ(other.find({{}, "pump"}, QStringLiteral("zoo")), nullptr) << "an object is no kind";
    auto changed = preset("zoo");
    changed.values = {};
    EXPECT_EQ(other.put(changed), QString());
    EXPECT_EQ(other.names(pump).size(), 3);
    EXPECT_EQ(other.find(pump, QStringLiteral("zoo"))->values, QJsonObject());
    EXPECT_EQ(other.remove(pump, QStringLiteral("größer")), QString());
    EXPECT_EQ(file.read(), QString());
    EXPECT_EQ(file.names(pump), (QStringList{"a \"b\" \\ /", "zoo"}));
}

TEST_F(PresetFileTest, KeepsWhatAnotherProgramWroteMeanwhile) {
    PresetFile first(name());
    PresetFile second(name());
    EXPECT_EQ(first.put(preset("one")), QString());
    EXPECT_EQ(second.put(preset("two")), QString());
    EXPECT_EQ(first.put(preset("three")), QString());
    EXPECT_EQ(first.names(pump), (QStringList{"one", "three", "two"}));
}

TEST_F(PresetFileTest, RefusesWhatItDoesNotKnowAndLeavesItAsItIs) {
    EXPECT_THAT(refusal("{"), HasSubstr("1: "));
    EXPECT_THAT(refusal("{}"), HasSubstr("\"presets\""));
    EXPECT_THAT(refusal("{\"presets\": [],\n\"more\": 1}"), HasSubstr("2: "));
    EXPECT_THAT(refusal(R"({"presets": [{"kind": "a", "object": "b", "name": "c", "values": {}}]})"),
                HasSubstr("expected a preset of a kind or of an object, found both"));
    EXPECT_THAT(refusal(R"({"presets": [{"name": "c", "values": {}}]})"), HasSubstr("neither"));
    EXPECT_THAT(refusal(R"({"presets": [{"kind": "a", "name": "", "values": {}}]})"),
                HasSubstr("the name of a preset"));
    EXPECT_THAT(refusal(R"({"presets": [{"kind": "a", "name": "b", "values": []}]})"),
                HasSubstr("the values of a preset"));
    EXPECT_THAT(refusal(R"({"presets": [{"kind": "a", "name": "b", "values": {}},
                                        {"kind": "a", "name": "b", "values": {}}]})"),
                HasSubstr("2: "));
}

TEST_F(PresetFileTest, TellsWhyItCannotBeReadOrWritten) {
    ASSERT_TRUE(QDir(folder.path()).mkdir(QStringLiteral("network.json.presets")));
    PresetFile blocked(name());
    EXPECT_THAT(blocked.read().toStdString(), HasSubstr("it is a folder"));
    PresetFile nowhere(folder.filePath(QStringLiteral("no folder/x.presets")));
    EXPECT_NE(nowhere.put(preset("one")), QString());
    PresetFile nameless{QString()};
    EXPECT_EQ(nameless.read(), QString());
    EXPECT_NE(nameless.put(preset("one")), QString());
}

TEST_F(PresetFileTest, ALinkThatLeadsNowhereIsNotReplaced) {
    ASSERT_TRUE(QFile::link(folder.filePath(QStringLiteral("gone")), name()));
    PresetFile file(name());
    EXPECT_NE(file.put(preset("one")), QString());
    EXPECT_TRUE(QFileInfo(name()).isSymLink());
}

TEST_F(PresetFileTest, TheScopeIsTheKindOrTheObjectItself) {
    auto const network = Talo::Network::create(QStringLiteral("Lamps"), {"day"});
    Kolt::ObjectPtr const lamp(new Kolt::VObject("lamp"));
    network->addObject(lamp, QStringLiteral("light"));
    auto const other = network->addObject("other", {});
    EXPECT_TRUE(Talo::PresetScope::of(*network, lamp) == (Talo::PresetScope{"light", {}}));
    EXPECT_TRUE(Talo::PresetScope::of(*network, other) == (Talo::PresetScope{{}, "other"}));
}

#include "NetworkFile.hpp"
#include "support/FullDisk.hpp"

#include <bramble/FlagList.hpp>
#include <lattice/TypedParameter.hpp>
#include <network/JsonFormat.hpp>
#include <network/ValueText.hpp>

using testing::HasSubstr;

namespace {

class NetworkDefaults : public NetworkFileTest {
protected:
    static bool set(Talo::Network& network, char const* text, char const* pool) {
        QString error;
        bool const done = network.setText("o.p", text, network.findPool(pool), &error);
        EXPECT_EQ(done, error.isEmpty()) << error.toStdString();
        return done;
    }
};

} // namespace

TEST_F(NetworkDefaults, AreWhatTheFileHolds) {
    auto const loaded = network(withParameters(
        R"({ "name": "p", "type": "int", "value": 1, "values": { "draft": 2 } }, { "name": "q", "type": "info", "value": "" })"));
    EXPECT_FALSE(loaded->isModified());
    auto const parameter = parameterOf(*loaded);
    ASSERT_NE(parameter->defaults(), nullptr);
    EXPECT_EQ(parameter->defaults()->in(loaded->findPool("draft")).value->Text(), "2");
    EXPECT_EQ(parameter->defaults()->in(loaded->findPool("final")).value->Text(), "1");
    EXPECT_TRUE(parameter->defaults()->in(loaded->findPool("final")).isInherited);
    EXPECT_EQ(loaded->findParameter("o.q")->defaults(), nullptr) << "nobody edits an information";
}

TEST_F(NetworkDefaults, AnyValueThatDiffersIsAModification) {
    auto const loaded =
        network(withParameters(R"({ "name": "p", "type": "int", "value": 1, "values": { "draft": 2 } })"));
    EXPECT_TRUE(set(*loaded, "1", "final"));
    EXPECT_FALSE(loaded->isModified()) << "what held there before";
    EXPECT_TRUE(set(*loaded, "5", "final"));
    EXPECT_TRUE(loaded->isModified());
    EXPECT_TRUE(set(*loaded, "1", "final"));
    EXPECT_FALSE(loaded->isModified());
    parameterOf(*loaded)->ownValue()->setValueFromText("7");
    EXPECT_TRUE(loaded->isModified()) << "the own value, which no pool may show";
    loaded->rememberDefaults();
    EXPECT_FALSE(loaded->isModified());
}

TEST_F(NetworkDefaults, AnotherDefaultSavesNothing) {
    auto const loaded = network(withParameters(R"({ "name": "p", "type": "int", "value": 1 })"));
    EXPECT_TRUE(set(*loaded, "2", "draft"));
    parameterOf(*loaded)->rememberDefaults();
    EXPECT_TRUE(loaded->isModified()) << "the file still holds 1";
    parameterOf(*loaded)->ownValue()->setValueFromText("1");
    EXPECT_FALSE(loaded->isModified());
}

TEST_F(NetworkDefaults, SavingElsewhereContinuesWithThatFile) {
    auto const loaded = network(withParameters(R"(
        { "name": "p", "type": "int", "value": 1 },
        { "name": "a", "type": "action", "value": "Go", "properties": { "icon": "icons/go.png", "tooltip": "icons" } },
        { "name": "b", "type": "action", "value": "Go", "properties": { "icon": "/elsewhere/go.png" } })"));
    EXPECT_TRUE(set(*loaded, "2", "draft"));
    QDir().mkpath(path("further/down"));
    auto const target = path("further/down/saved.json");
    QString error;
    ASSERT_TRUE(loaded->saveAs(target, &error)) << error.toStdString();
    EXPECT_EQ(loaded->file(), target);
    EXPECT_FALSE(loaded->isModified());
    auto const& defaults = *loaded->findParameter("o.p")->defaults();
    EXPECT_EQ(defaults.in(nullptr).value->Text(), "1") << "the author's value stays the default";

    auto const icon = [](Talo::Network const& of, char const* name) {
        return QDir::cleanPath(
            QString::fromStdString(content<std::string>(of.findParameter(name)->properties()->getValue("icon"))));
    };
    EXPECT_EQ(icon(*loaded, "o.a"), path("icons/go.png"));
    EXPECT_EQ(icon(*loaded, "o.b"), QString("/elsewhere/go.png"));
    auto const bytes = bytesOf(target);
    EXPECT_THAT(bytes.toStdString(), HasSubstr("\"../../icons/go.png\""));
    ASSERT_TRUE(loaded->saveAs(target, &error)) << error.toStdString();
    EXPECT_EQ(bytesOf(target), bytes) << "and once more";
    auto const again = Talo::Network::load(target);
    ASSERT_TRUE(again.network) << again.error.toStdString();
    EXPECT_EQ(icon(*again.network, "o.a"), path("icons/go.png"));
    EXPECT_EQ(again.network->values(), loaded->values());
}

TEST_F(NetworkDefaults, ANetworkOfAHostsOwnObjectsIsSavedLikeAnyOther) {
    auto const made = Talo::Network::create("Lamp", {"day", "night"});
    auto const day = made->findPool("day");
    EXPECT_EQ(made->file(), QString());
    Kolt::ObjectPtr const lamp(new Kolt::VObject("lamp"));
    auto const level = Kolt::Parameter<int>::perPool("level", 3).max(9);
    lamp->addParameter(level);
    made->addObject(lamp, "light");
    made->addObject(nullptr);
    EXPECT_FALSE(made->isModified());
    EXPECT_TRUE(level.write(7, day));
    EXPECT_TRUE(made->isModified());
    EXPECT_EQ(level->defaults()->in(day).value->Text(), "3");
    QString error;
    ASSERT_TRUE(made->saveAs(path("lamp.json"), &error)) << error.toStdString();
    EXPECT_FALSE(made->isModified());
    auto const again = Talo::Network::load(path("lamp.json"));
    ASSERT_TRUE(again.network) << again.error.toStdString();
    EXPECT_EQ(again.network->values(), made->values());
    EXPECT_EQ(again.network->title(), QString("Lamp"));
    EXPECT_EQ(again.network->kind(again.network->findObject("lamp")), QString("light"));
}

TEST_F(NetworkDefaults, ASaveOnAFullDiskFailsAndKeepsTheOldFile) {
    auto const loaded = network(withParameters(R"({ "name": "p", "type": "string", "value": "short" })"));
    auto const before = bytesOf(loaded->file());
    // A text smaller than the buffer fails at the last flush, a larger one at a write.
    for (std::size_t const size : {5000U, 500000U}) {
        ASSERT_TRUE(parameterOf(*loaded)->ownValue()->setValueFromText(std::string(size, 'x')));
        QString error;
        {
            FullDisk const disk(1000);
            EXPECT_FALSE(loaded->saveAs(loaded->file(), &error)) << size;
        }
        EXPECT_THAT(error.toStdString(), HasSubstr(loaded->file().toStdString() + ": "));
        EXPECT_FALSE(error.endsWith(": ")) << "there is a reason";
        EXPECT_EQ(bytesOf(loaded->file()), before);
        EXPECT_TRUE(loaded->isModified());
    }
    QString error;
    EXPECT_TRUE(loaded->saveAs(loaded->file(), &error)) << error.toStdString();
    EXPECT_FALSE(loaded->isModified());
}

TEST_F(NetworkDefaults, AFailedSaveChangesNothing) {
    auto const loaded = network(withParameters(R"({ "name": "p", "type": "int", "value": 1 })"));
    EXPECT_TRUE(set(*loaded, "2", "draft"));
    auto const file = loaded->file();
    QString error;
    EXPECT_FALSE(loaded->saveAs(path("missing/saved.json"), &error));
    EXPECT_FALSE(error.isEmpty());
    EXPECT_EQ(loaded->file(), file);
    EXPECT_TRUE(loaded->isModified());
}

TEST_F(NetworkDefaults, AValueIsReadFromATextWithoutChangingAnything) {
    auto const loaded = network(
        withParameters(R"({ "name": "p", "type": "flags", "value": { "a": true, "b": false }, "perPool": true })"));
    auto const parameter = parameterOf(*loaded);
    auto const pool = loaded->findPool("draft");
    auto const read = Talo::valueFromText(*parameter, pool, "b=true");
    ASSERT_TRUE(read);
    EXPECT_EQ(read->Text(), "a=true\nb=true");
    EXPECT_EQ(Talo::valueFromText(*parameter, pool, "c=true"), nullptr);
    EXPECT_EQ(Talo::valueFromText(*parameter, pool, "b"), nullptr);
    EXPECT_EQ(parameter->getLocalValue(pool, std::string(), false), nullptr);
    EXPECT_FALSE(loaded->isModified());
    EXPECT_TRUE(parameter->isEdited());
}

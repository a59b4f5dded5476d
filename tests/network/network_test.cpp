#include "NetworkFile.hpp"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

namespace {

using ActionPtr = Tessera::StrongPtr<Kolt::VAction>;

TEST_F(Network, KeepsTitleFilePoolsObjectsAndKinds) {
    auto const read =
        network("{ \"title\": \"T\xC3\xA4st\", \"pools\": [\"draft\", \"final\"],"
                "\"objects\": [{ \"name\": \"b\", \"kind\": \"what it is for\" }, { \"name\": \"a\" }] }");
    EXPECT_EQ(read->file(), path("network.json"));
    EXPECT_EQ(read->title().toStdString(), "T\xC3\xA4st");
    ASSERT_EQ(read->pools().size(), 2U);
    EXPECT_EQ(read->pools()[0]->Name(), "draft");
    EXPECT_EQ(read->findPool("final"), read->pools()[1]);
    EXPECT_EQ(read->findPool("Final"), nullptr);
    ASSERT_EQ(read->objects().size(), 2U);
    EXPECT_EQ(read->objects()[0]->Name(), "b");
    EXPECT_EQ(read->findObject("a"), read->objects()[1]);
    EXPECT_EQ(read->findObject(""), nullptr);
    EXPECT_EQ(read->kind(read->objects()[0]), "what it is for");
    EXPECT_EQ(read->kind(read->objects()[1]), "");
    EXPECT_EQ(read->kind(nullptr), "");
}

TEST_F(Network, FindsParametersWhoseNamesHaveDots) {
    auto const read = network(withParameters("{ \"name\": \"a.b\", \"type\": \"bool\", \"value\": true }"));
    ASSERT_NE(read->findParameter("o.a.b"), nullptr);
    EXPECT_EQ(read->findParameter("o.a.b")->Name(), "a.b");
    for (auto const* const unknown : {"", ".", "o", "o.", ".a.b", "o.a", "x.a.b"})
        EXPECT_EQ(read->findParameter(unknown), nullptr) << unknown;
}

TEST_F(Network, PreferencesAreASetAndNoneIsNotTheEmptySet) {
    auto const read = network(withParameters(
        "{ \"name\": \"p\", \"type\": \"int\", \"value\": 1, \"preferences\": [\"periodic\", \"dial\"] },"
        "{ \"name\": \"empty\", \"type\": \"int\", \"value\": 1, \"preferences\": [] },"
        "{ \"name\": \"none\", \"type\": \"int\", \"value\": 1 }"));
    ASSERT_TRUE(read->save(path("saved.json"), nullptr));
    auto const again = Talo::Network::load(path("saved.json"));
    ASSERT_NE(again.network, nullptr) << again.error.toStdString();
    for (auto const* const each : {read.get(), again.network.get()}) {
        EXPECT_EQ(Kolt::preferenceText(parameterOf(*each)->creationPreferences()->names()), "{dial, periodic}");
        ASSERT_NE(each->findParameter("o.empty")->creationPreferences(), nullptr);
        EXPECT_TRUE(each->findParameter("o.empty")->creationPreferences()->names().empty());
        EXPECT_EQ(each->findParameter("o.none")->creationPreferences(), nullptr);
    }
}

TEST_F(Network, TheNameDecidesWhetherANumberIsIntOrDouble) {
    auto const read = network(withParameters(
        R"({ "name": "p", "type": "double", "value": 1, "properties": { "min": 0, "max": 1e2, "increment": 11,)"
        R"( "precision": 2.0, "wrap": 3, "weight": 4, "whole": { "double": 5 }, "limit": { "double": "inf" },)"
        R"( "unit": "kg", "on": true } },)"
        R"({ "name": "i", "type": "int", "value": 1, "properties": { "min": -1, "max": 7.0, "increment": 2 } },)"
        R"({ "name": "tagged", "type": "double", "value": 1, "properties": { "min": { "int": 0 },)"
        R"( "max": { "double": 1 } } })"));
    ASSERT_TRUE(read->save(path("saved.json"), nullptr));
    auto const again = Talo::Network::load(path("saved.json"));
    ASSERT_NE(again.network, nullptr) << again.error.toStdString();
    for (auto const* const each : {read.get(), again.network.get()}) {
        auto const real = parameterOf(*each);
        EXPECT_EQ(propertyOf(real, "min"), "double 0");
        EXPECT_EQ(propertyOf(real, "max"), "double 100");
        EXPECT_EQ(propertyOf(real, "increment"), "double 11");
        EXPECT_EQ(propertyOf(real, "precision"), "int 2");
        EXPECT_EQ(propertyOf(real, "wrap"), "int 3");
        EXPECT_EQ(propertyOf(real, "weight"), "int 4");
        EXPECT_EQ(propertyOf(real, "whole"), "double 5");
        EXPECT_EQ(propertyOf(real, "limit"), "double inf");
        EXPECT_EQ(propertyOf(real, "unit"), "std::string kg");
        EXPECT_EQ(propertyOf(real, "on"), "bool true");
        auto const whole = each->findParameter("o.i");
        EXPECT_EQ(propertyOf(whole, "min"), "int -1");
        EXPECT_EQ(propertyOf(whole, "max"), "int 7");
        EXPECT_EQ(propertyOf(whole, "increment"), "int 2");
        auto const tagged = each->findParameter("o.tagged");
        EXPECT_EQ(propertyOf(tagged, "min"), "int 0");
        EXPECT_EQ(propertyOf(tagged, "max"), "double 1");
    }
    ASSERT_TRUE(again.network->save(path("saved again.json"), nullptr));
    EXPECT_EQ(bytesOf(path("saved again.json")), bytesOf(path("saved.json")));
}

TEST_F(Network, TextPropertiesAreKeptUnchanged) {
    auto const read = network(
        withParameters(R"({ "name": "p", "type": "string", "value": "", "properties": { "inputmask": "999-999;_",)"
                       R"( "tooltip": "1", "Extension": "*.gpl" } })"));
    EXPECT_EQ(propertyOf(parameterOf(*read), "inputmask"), "std::string 999-999;_");
    EXPECT_EQ(propertyOf(parameterOf(*read), "tooltip"), "std::string 1");
    EXPECT_EQ(propertyOf(parameterOf(*read), "Extension"), "std::string *.gpl");
}

class NetworkIcon : public NetworkFileTest {
protected:
    QString load(QByteArray const& icon) {
        auto result = Talo::Network::load(
            write(withParameters("{ \"name\": \"p\", \"type\": \"action\", \"value\": \"a\", \"properties\": "
                                 "{ \"icon\": \"" +
                                 icon + "\" } }"),
                  "here/network.json"));
        EXPECT_NE(result.network, nullptr) << result.error.toStdString();
        network_ = std::move(result.network);
        return iconOf(*network_);
    }
    static QString iconOf(Talo::Network const& network) {
        return QString::fromStdString(content<std::string>(parameterOf(network)->properties()->getValue("icon")));
    }
    /// Saves the network and returns the icon's path in the file.
    QString saved(QString const& name) {
        QDir().mkpath(QFileInfo(path(name)).path());
        QString error;
        EXPECT_TRUE(network_->save(path(name), &error)) << error.toStdString();
        auto const root = QJsonDocument::fromJson(bytesOf(path(name))).object();
        return root["objects"]
            .toArray()[0]
            .toObject()["parameters"]
            .toArray()[0]
            .toObject()["properties"]
            .toObject()["icon"]
            .toString();
    }
    std::unique_ptr<Talo::Network> network_;
};

TEST_F(NetworkIcon, ARelativePathStartsAtTheFolderOfTheFile) {
    EXPECT_EQ(load("icons/a.png"), path("here/icons/a.png"));
    EXPECT_EQ(saved("here/other.json"), "icons/a.png");
}

TEST_F(NetworkIcon, ARelativePathKeepsItsSpellingInTheSameFolder) {
    EXPECT_EQ(load("../here/./icons//a.png"), path("here/../here/./icons//a.png"));
    EXPECT_EQ(saved("here/other.json"), "../here/./icons//a.png");
}

TEST_F(NetworkIcon, SavingInAnotherFolderStillNamesTheSamePicture) {
    load("icons/a.png");
    EXPECT_EQ(saved("there/deep/network.json"), "../../here/icons/a.png");
    auto const moved = Talo::Network::load(path("there/deep/network.json"));
    ASSERT_NE(moved.network, nullptr) << moved.error.toStdString();
    EXPECT_EQ(QDir::cleanPath(iconOf(*moved.network)), path("here/icons/a.png"));
    ASSERT_TRUE(moved.network->save(path("there/deep/again.json"), nullptr));
    EXPECT_EQ(bytesOf(path("there/deep/again.json")), bytesOf(path("there/deep/network.json")));
}

TEST_F(NetworkIcon, AbsolutePathsAndResourcesAreLeftAlone) {
    EXPECT_EQ(load("/usr/share/a.png"), "/usr/share/a.png");
    EXPECT_EQ(saved("there/network.json"), "/usr/share/a.png");
    EXPECT_EQ(load(":/a.png"), ":/a.png");
    EXPECT_EQ(saved("there/network.json"), ":/a.png");
    EXPECT_EQ(load(""), "");
    EXPECT_EQ(saved("there/network.json"), "");
}

QByteArray const twoObjectsWithSlots =
    R"({ "pools": ["draft"], "objects": [)"
    R"({ "name": "first", "slots": [{ "name": "in", "parameter": "second.a.b" }, { "name": "open", "parameter": null }] },)"
    R"({ "name": "second", "parameters": [{ "name": "a.b", "type": "string", "value": "" }],)"
    R"( "slots": [{ "name": "own", "parameter": "second.a.b" }] } ] })";

TEST_F(Network, SlotsAreBoundAlsoToParametersOfLaterObjects) {
    auto const read = network(twoObjectsWithSlots);
    auto const parameter = read->findParameter("second.a.b");
    ASSERT_NE(parameter, nullptr);
    ASSERT_NE(read->findObject("first")->findSlot(parameter), nullptr);
    EXPECT_EQ(read->findObject("first")->findSlot(parameter)->Name(), "in");
    EXPECT_EQ(read->findObject("second")->findSlot(parameter)->Name(), "own");
    ASSERT_EQ(read->findObject("first")->slotList().size(), 2U);
    EXPECT_EQ(read->findObject("first")->slotList()[1]->parameter(), nullptr);
}

TEST_F(Network, ASlotOfADeletedParameterIsSavedUnbound) {
    auto const read = network(twoObjectsWithSlots);
    read->findObject("second")->removeParameter(read->findParameter("second.a.b"));
    QString error;
    ASSERT_TRUE(read->save(path("saved.json"), &error)) << error.toStdString();
    auto const again = Talo::Network::load(path("saved.json"));
    ASSERT_NE(again.network, nullptr) << again.error.toStdString();
    EXPECT_TRUE(again.network->findObject("second")->parameters().empty());
    ASSERT_EQ(again.network->findObject("first")->slotList().size(), 2U);
    EXPECT_EQ(again.network->findObject("first")->slotList()[0]->Name(), "in");
    EXPECT_EQ(again.network->findObject("first")->slotList()[0]->parameter(), nullptr);
}

QByteArray const twoActions = R"({ "name": "p", "type": "action", "value": "Start", "values": { "final": "Go" } })";

TEST_F(Network, AFiredActionReachesTheHandler) {
    auto const read = network(NetworkFileTest::withParameters(twoActions));
    auto const parameter = parameterOf(*read);
    auto const pool = read->findPool("final");
    auto const own = content<ActionPtr>(parameter->ownValue());
    auto const local = content<ActionPtr>(parameter->getLocalValue(pool, {}, false));
    EXPECT_NE(own, local);
    own->emitAction(pool, parameter); // no handler is set yet

    std::vector<std::string> fired;
    read->actionHandler = [&](auto const& object, auto const& firedParameter, auto const& firedPool) {
        fired.push_back(object->Name() + " " + firedParameter->Name() + " " +
                        (firedPool ? firedPool->Name() : "no pool"));
    };
    own->emitAction(nullptr, parameter);
    local->emitAction(pool, parameter);
    EXPECT_EQ(fired, (std::vector<std::string>{"o p no pool", "o p final"}));
}

TEST_F(Network, AnActionMayOutliveTheNetworkAndEndIt) {
    auto read = network(NetworkFileTest::withParameters(twoActions));
    auto const action = content<ActionPtr>(parameterOf(*read)->ownValue());
    int fired = 0;
    read->actionHandler = [&](auto const&, auto const&, auto const&) {
        ++fired;
        read.reset();
        action->emitAction(nullptr, nullptr);
    };
    action->emitAction(nullptr, nullptr);
    EXPECT_EQ(fired, 1);
    EXPECT_EQ(read, nullptr);
    action->emitAction(nullptr, nullptr);
    EXPECT_EQ(fired, 1);
}

} // namespace

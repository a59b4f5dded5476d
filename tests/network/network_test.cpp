#include "NetworkFile.hpp"

#include <array>
#include <bramble/Color.hpp>
#include <bramble/Enum.hpp>
#include <bramble/FlagList.hpp>
#include <bramble/Info.hpp>
#include <bramble/MultipleStringSelection.hpp>
#include <bramble/ObjectStatus.hpp>
#include <bramble/StringSelection.hpp>
#include <lattice/InputRegistry.hpp>
#include <QImage>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QRegularExpression>
#include <set>

namespace {

using ActionPtr = Tessera::StrongPtr<Kolt::VAction>;
using StringArray = std::array<std::string, 1>;
using Value = Kolt::ValuePtr;

/// Counts what it is told and keeps the age that the value had then.
class Listener : public Kolt::ValueNotifier {
public:
    explicit Listener(Kolt::ParameterPtr const& parameter) {
        parameter->addNotifier(Tessera::WeakPtr<Kolt::ValueNotifier>(this));
    }
    void onValueChange(Value const& newValue, Kolt::VContext const& context, Kolt::ValueMap const*) override {
        ++calls;
        text = newValue->Text();
        age = newValue->age();
        pool = context.pool();
    }

    int calls = 0;
    std::string text;
    unsigned long age = 0;
    Kolt::PoolPtr pool;
};

using Network = NetworkFileTest;

/// What a property holds, as its type and its text.
std::string propertyOf(Kolt::ParameterPtr const& parameter, char const* name) {
    auto const value = parameter->properties() ? parameter->properties()->getValue(name) : nullptr;
    return value ? Tessera::Typename(value->valueType()) + " " + value->Text() : "none";
}

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

/// A parameter of one type: how it stands in the file, and what its value reads as.
struct KindOfParameter {
    char const* name;
    QByteArray rest;
    std::string declaredType;
    std::string valueType;
    std::string text;
};

class NetworkType : public NetworkFileTest, public testing::WithParamInterface<KindOfParameter> {};

template <typename T>
std::string nameOfType() {
    return Tessera::Typename(typeid(T));
}

template <typename T>
KindOfParameter kindOf(char const* name, QByteArray const& rest, std::string const& text) {
    return {name, rest, nameOfType<T>(), nameOfType<T>(), text};
}

std::vector<KindOfParameter> kindsOfParameters() {
    return {
        kindOf<bool>("Bool", "\"type\": \"bool\", \"value\": true", "true"),
        kindOf<int>("Int", "\"type\": \"int\", \"value\": -2147483648", "-2147483648"),
        kindOf<int>("IntWrittenAsDouble", "\"type\": \"int\", \"value\": 7.0", "7"),
        kindOf<double>("Double", "\"type\": \"double\", \"value\": 0.1", "0.1"),
        kindOf<double>("WholeDouble", "\"type\": \"double\", \"value\": 3", "3"),
        kindOf<double>("TinyDouble", "\"type\": \"double\", \"value\": 5e-324", "5e-324"),
        kindOf<double>("NotANumber", "\"type\": \"double\", \"value\": \"nan\"", "nan"),
        kindOf<double>("Infinity", "\"type\": \"double\", \"value\": \"inf\"", "inf"),
        kindOf<double>("NegativeInfinity", "\"type\": \"double\", \"value\": \"-inf\"", "-inf"),
        kindOf<double>("NegativeZero", "\"type\": \"double\", \"value\": \"-0\"", "-0"),
        kindOf<ActionPtr>("Action", "\"type\": \"action\", \"value\": \"Start\"", "Start"),
        kindOf<ActionPtr>("NoAction", "\"type\": \"action\", \"value\": null", ""),
        kindOf<Ferro::rgba_float_t>("Colour", "\"type\": \"colour\", \"value\": [0.1, 1, 0.25, \"nan\"]",
                                    "0.1 1 0.25 nan"),
        kindOf<Kolt::Enum>("Enum", "\"type\": \"enum\", \"value\": \"b\", \"entries\": [\"a\", \"b\"]", "b"),
        kindOf<Kolt::Enum>("EnumWithNoneChosen", "\"type\": \"enum\", \"value\": null, \"entries\": [\"a\", \"b\"]",
                           ""),
        kindOf<Kolt::FlagList>("Flags", "\"type\": \"flags\", \"value\": { \"r\": true, \"g\": false }",
                               "g=false\nr=true"),
        kindOf<Kolt::info>("Info", "\"type\": \"info\", \"value\": \"two\\nlines\"", "two\nlines"),
        kindOf<Kolt::VStringList>("Selection", "\"type\": \"selection\", \"value\": \"b\", \"entries\": [\"a\", \"b\"]",
                                  "b"),
        kindOf<Kolt::VStringList>("SelectionWithNoneChosen",
                                  "\"type\": \"selection\", \"value\": null, \"entries\": [\"a\"]", ""),
        kindOf<Kolt::VMultipleStringList>(
            "Multiselection",
            "\"type\": \"multiselection\", \"value\": [\"c\", \"a\"], \"entries\": [\"a\", \"b\", \"c\"]", "a\nc"),
        kindOf<Kolt::VMultipleStringList>("EmptyMultiselection",
                                          "\"type\": \"multiselection\", \"value\": [], \"entries\": [\"a\"]", ""),
        kindOf<Kolt::VObjectStatus>("Status", "\"type\": \"status\", \"value\": \"<b>Ready</b>\"", "<b>Ready</b>"),
        kindOf<std::string>("String", "\"type\": \"string\", \"value\": \"\xE2\x82\xAC \\u0000 \\\"\"",
                            std::string("\xE2\x82\xAC \0 \"", 7)),
        {"StringArray", "\"type\": \"stringarray\", \"value\": [\"x\"]", nameOfType<StringArray>(),
         nameOfType<std::string>(), "x"},
    };
}

TEST_P(NetworkType, IsReadSavedAndReadAgain) {
    auto const& row = GetParam();
    auto read = network(withParameters("{ \"name\": \"p\", " + row.rest + " }"));
    ASSERT_TRUE(read->save(path("saved.json"), nullptr));
    auto const again = Talo::Network::load(path("saved.json"));
    ASSERT_NE(again.network, nullptr) << again.error.toStdString();
    for (auto const* const each : {read.get(), again.network.get()}) {
        auto const parameter = parameterOf(*each);
        EXPECT_EQ(parameter->declaredType(), row.declaredType);
        EXPECT_EQ(Tessera::Typename(parameter->ownValue()->valueType()), row.valueType);
        EXPECT_EQ(parameter->ownValue()->Text(), row.text);
        EXPECT_FALSE(parameter->keepsValuesPerPool());
        EXPECT_EQ(parameter->creationPreferences(), nullptr);
        EXPECT_EQ(parameter->properties(), nullptr);
    }
    ASSERT_TRUE(again.network->save(path("saved again.json"), nullptr));
    EXPECT_EQ(bytesOf(path("saved again.json")), bytesOf(path("saved.json")));
    EXPECT_EQ(again.network->values(), read->values());
}

TEST_P(NetworkType, KeepsValuesPerPoolWhenAsked) {
    auto const& row = GetParam();
    auto const read = network(withParameters("{ \"name\": \"p\", \"perPool\": true, " + row.rest + " }"));
    auto const parameter = parameterOf(*read);
    ASSERT_TRUE(parameter->keepsValuesPerPool());
    auto const local = parameter->getLocalValue(read->findPool("final"), {}, true);
    ASSERT_NE(local, nullptr);
    EXPECT_EQ(local->Text(), row.text);
    EXPECT_NE(local, parameter->ownValue());
    ASSERT_TRUE(read->save(path("saved.json"), nullptr));
    auto const again = Talo::Network::load(path("saved.json"));
    ASSERT_NE(again.network, nullptr) << again.error.toStdString();
    EXPECT_TRUE(parameterOf(*again.network)->keepsValuesPerPool());
    EXPECT_EQ(again.network->values(), read->values());
}

INSTANTIATE_TEST_SUITE_P(All, NetworkType, testing::ValuesIn(kindsOfParameters()),
                         [](auto const& row) { return std::string(row.param.name); });

TEST_F(Network, AFloatColourIsSavedAsShortAsItWasWritten) {
    auto const read = network(withParameters("{ \"name\": \"p\", \"type\": \"colour\", \"value\": [0.3, 0.1, 0, 1] }"));
    EXPECT_EQ(content<Ferro::rgba_float_t>(parameterOf(*read)->ownValue()).red, 0.3F);
    auto const values = QJsonDocument::fromJson(read->values()).object();
    EXPECT_EQ(values["o"].toObject()["p"].toObject()["value"].toArray(), QJsonArray({0.3, 0.1, 0, 1}));
}

TEST_F(Network, PoolsHaveTheirOwnValues) {
    auto const read =
        network(withParameters("{ \"name\": \"p\", \"type\": \"int\", \"value\": 1, \"values\": { \"final\": 3 } }"));
    auto const parameter = parameterOf(*read);
    ASSERT_TRUE(parameter->keepsValuesPerPool());
    EXPECT_EQ(content<int>(parameter->ownValue()), 1);
    EXPECT_EQ(parameter->getLocalValue(read->findPool("draft"), {}, false), nullptr);
    EXPECT_EQ(content<int>(parameter->getLocalValue(read->findPool("final"), {}, false)), 3);
}

TEST_F(Network, EmptyPoolValuesMakeAParameterThatKeepsValuesPerPool) {
    auto const read = network(withParameters("{ \"name\": \"p\", \"type\": \"int\", \"value\": 1, \"values\": {} }"));
    EXPECT_TRUE(parameterOf(*read)->keepsValuesPerPool());
}

class NetworkSelection : public NetworkFileTest, public testing::WithParamInterface<char const*> {};

TEST_P(NetworkSelection, EveryPoolHasASelectionOfItsOwn) {
    auto const value = [](QByteArray const& entry) {
        return QByteArray(GetParam()) == "multiselection" ? "[\"" + entry + "\"]" : "\"" + entry + "\"";
    };
    auto const read = network(withParameters("{ \"name\": \"p\", \"type\": \"" + QByteArray(GetParam()) +
                                             "\", \"entries\": [\"a\", \"b\", \"c\"], \"value\": " + value("a") +
                                             ", \"values\": { \"final\": " + value("b") + " } }"));
    auto const parameter = parameterOf(*read);
    auto const draft = parameter->getLocalValue(read->findPool("draft"), {}, false);
    auto const final = parameter->getLocalValue(read->findPool("final"), {}, false);
    ASSERT_NE(draft, nullptr) << "a pool without a value of its own would share the parameter's selection";
    ASSERT_NE(final, nullptr);
    EXPECT_EQ(draft->Text(), "a");
    EXPECT_EQ(final->Text(), "b");

    // The selections themselves are changed in place.
    ASSERT_TRUE(draft->setValueFromText("c"));
    EXPECT_EQ(parameter->ownValue()->Text(), "a");
    EXPECT_EQ(final->Text(), "b");
    ASSERT_TRUE(parameter->ownValue()->setValueFromText("b"));
    EXPECT_EQ(draft->Text(), "c");
}

INSTANTIATE_TEST_SUITE_P(All, NetworkSelection, testing::Values("enum", "selection", "multiselection"),
                         [](auto const& row) { return std::string(row.param); });

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

TEST_F(Network, TextPropertiesAreKeptAsTheyStand) {
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
    /// What stands in the file after saving.
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
    own->emitAction(pool, parameter); // nobody has asked for it yet

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

TEST_F(Network, SettingAValueTellsEverybodyOnceAndRenewsItsAge) {
    auto const read = network(withParameters(R"({ "name": "p", "type": "int", "value": 1 })"));
    auto const parameter = parameterOf(*read);
    Listener first(parameter);
    Listener second(parameter);
    auto const pool = read->pools()[0];
    auto const before = Tessera::Ageable::GlobalTime.load();

    QString error;
    ASSERT_TRUE(read->setText("o.p", "42", pool, &error)) << error.toStdString();
    EXPECT_EQ(content<int>(parameter->ownValue()), 42);
    for (auto const* const listener : {&first, &second}) {
        EXPECT_EQ(listener->calls, 1);
        EXPECT_EQ(listener->text, "42");
        EXPECT_EQ(listener->pool, pool);
        EXPECT_EQ(listener->age, before + 1) << "whoever is told sees the new stamp";
    }
    EXPECT_EQ(parameter->ownValue()->age(), before + 1);
    EXPECT_EQ(Tessera::Ageable::GlobalTime.load(), before + 1);
}

TEST_F(Network, SettingAValuePerPoolSetsThatOfThePoolAlone) {
    auto const read = network(withParameters(R"({ "name": "p", "type": "int", "value": 1, "perPool": true })"));
    auto const parameter = parameterOf(*read);
    auto const draft = read->findPool("draft");
    Listener listener(parameter);
    ASSERT_TRUE(read->setText("o.p", "2", draft, nullptr));
    EXPECT_EQ(listener.calls, 1);
    EXPECT_EQ(listener.pool, draft);
    EXPECT_EQ(content<int>(parameter->getLocalValue(draft, {}, false)), 2);
    EXPECT_GT(parameter->getLocalValue(draft, {}, false)->age(), 0U);
    EXPECT_EQ(parameter->getLocalValue(read->findPool("final"), {}, false), nullptr);
    EXPECT_EQ(content<int>(parameter->ownValue()), 1);
    EXPECT_EQ(parameter->ownValue()->age(), 0U);
}

TEST_F(Network, ASharedValueCanBeSetWithoutAPool) {
    auto const read = network(withParameters(R"({ "name": "p", "type": "string", "value": "a" })"));
    ASSERT_TRUE(read->setText("o.p", QString::fromUtf8("\xC3\xA4"), nullptr, nullptr));
    EXPECT_EQ(content<std::string>(parameterOf(*read)->ownValue()), "\xC3\xA4");
}

struct SetTextRow {
    char const* name;
    QByteArray rest;
    char const* accepted; ///< empty for a type that takes no text
    char const* refused;  ///< null for a type that takes every text
};

void PrintTo(SetTextRow const& row, std::ostream* stream) {
    *stream << row.name;
}

class NetworkSetText : public NetworkFileTest, public testing::WithParamInterface<SetTextRow> {};

TEST_P(NetworkSetText, TakesWhatTheTypeReadsAndRefusesTheRestWithoutAChange) {
    auto const& row = GetParam();
    for (QByteArray const perPool : {"false", "true"}) {
        auto const read =
            network(withParameters("{ \"name\": \"p\", \"perPool\": " + perPool + ", " + row.rest + " }"));
        auto const parameter = parameterOf(*read);
        auto const pool = read->pools()[0];
        Listener listener(parameter);
        auto const before = read->values();
        auto const age = Tessera::Ageable::GlobalTime.load();
        QString error;
        if (row.refused) {
            EXPECT_FALSE(read->setText("o.p", row.refused, pool, &error));
            EXPECT_EQ(error, "\"" + QString(row.refused) + "\" is no value of \"o.p\", which is of type " +
                                 QString::fromStdString(parameter->declaredType()));
            EXPECT_FALSE(read->setText("o.p", row.refused, pool, nullptr));
            EXPECT_EQ(read->values(), before);
            EXPECT_EQ(listener.calls, 0);
            EXPECT_EQ(Tessera::Ageable::GlobalTime.load(), age);
        }
        if (*row.accepted) {
            ASSERT_TRUE(read->setText("o.p", row.accepted, pool, &error)) << error.toStdString();
            EXPECT_EQ(parameter->getLocalValue(pool, {}, false)->Text(), row.accepted);
            EXPECT_EQ(listener.calls, 1);
            EXPECT_EQ(parameter->getLocalValue(pool, {}, false)->age(), age + 1);
        }
    }
}

INSTANTIATE_TEST_SUITE_P(
    All, NetworkSetText,
    testing::Values(
        SetTextRow{"Bool", R"("type": "bool", "value": false)", "true", "yes"},
        SetTextRow{"Int", R"("type": "int", "value": 1)", "-5", "2147483648"},
        SetTextRow{"Double", R"("type": "double", "value": 1)", "-inf", "1,5"},
        SetTextRow{"Action", R"("type": "action", "value": "Start")", "", "Start"},
        SetTextRow{"Colour", R"("type": "colour", "value": [0, 0, 0, 1])", "1 0.5 0 1", "red"},
        SetTextRow{"Enum", R"("type": "enum", "value": "a", "entries": ["a", "b"])", "b", "c"},
        SetTextRow{"Flags", R"("type": "flags", "value": { "r": true, "g": true })", "g=true\nr=false", "b=true"},
        SetTextRow{"Info", R"("type": "info", "value": "")", "x\ny", nullptr},
        SetTextRow{"Selection", R"("type": "selection", "value": "a", "entries": ["a", "b"])", "b", "c"},
        SetTextRow{"Multiselection", R"("type": "multiselection", "value": [], "entries": ["a", "b"])", "a\nb", "a\nc"},
        SetTextRow{"Status", R"("type": "status", "value": "")", "Ready", nullptr},
        SetTextRow{"String", R"("type": "string", "value": "")", "x", nullptr},
        SetTextRow{"StringArray", R"("type": "stringarray", "value": [""])", "x", nullptr}),
    [](auto const& row) { return std::string(row.param.name); });

TEST_F(Network, SettingAnUnknownParameterOrAPerPoolOneWithoutAPoolIsRefused) {
    auto const read = network(withParameters(R"({ "name": "p", "type": "int", "value": 1, "perPool": true })"));
    auto const before = read->values();
    Kolt::PoolPtr const stranger(new Kolt::ValuePool("draft"));
    QString error;
    EXPECT_FALSE(read->setText("o.q", "1", read->pools()[0], &error));
    EXPECT_EQ(error, "there is no parameter \"o.q\" in the network");
    EXPECT_FALSE(read->setText("o", "1", read->pools()[0], &error));
    EXPECT_EQ(error, "there is no parameter \"o\" in the network");
    for (auto const& pool : {Kolt::PoolPtr(), stranger}) {
        EXPECT_FALSE(read->setText("o.p", "2", pool, &error));
        EXPECT_EQ(error, "\"o.p\" keeps a value per pool and needs a pool of the network");
    }
    EXPECT_EQ(read->values(), before);
}

TEST_F(Network, ValuesAreJsonWithOwnAndPoolValues) {
    auto const read = network(withParameters(
        R"({ "name": "i", "type": "int", "value": 1, "values": { "final": 2 } }, { "name": "d", "type": "double",)"
        R"( "value": "nan" }, { "name": "a", "type": "stringarray", "value": ["x"] })"));
    EXPECT_EQ(QString(read->values()).simplified(), R"({ "o": { "a": { "value": [ "x" ] }, "d": { "value": "nan" }, )"
                                                    R"("i": { "value": 1, "values": { "final": 2 } } } })");
    EXPECT_TRUE(read->values().endsWith("}\n"));
    ASSERT_TRUE(read->setText("o.i", "7", read->findPool("draft"), nullptr));
    auto const values = QJsonDocument::fromJson(read->values()).object();
    EXPECT_EQ(values["o"].toObject()["i"].toObject()["values"].toObject(), (QJsonObject{{"draft", 7}, {"final", 2}}));
}

TEST_F(Network, SavesCurrentValuesAndWhatWasAdded) {
    auto const read = network(withParameters(
        R"({ "name": "p", "type": "int", "value": 1, "values": { "final": 2 } }, { "name": "s", "type": "string", "value": "" })"));
    ASSERT_TRUE(read->setText("o.p", "7", read->findPool("draft"), nullptr));
    ASSERT_TRUE(read->setText("o.s", "new", nullptr, nullptr));
    parameterOf(*read)->setProperty("max", Kolt::makeValue(256), nullptr, nullptr, nullptr);
    ASSERT_TRUE(read->save(path("saved.json"), nullptr));
    auto const again = Talo::Network::load(path("saved.json"));
    ASSERT_NE(again.network, nullptr) << again.error.toStdString();
    EXPECT_EQ(again.network->values(), read->values());
    EXPECT_EQ(propertyOf(parameterOf(*again.network), "max"), "int 256");
}

class NetworkNotSaved : public NetworkFileTest {
protected:
    /// Saving fails for this reason and leaves the file as it was.
    void expectRefused(Talo::Network const& network, std::string const& reason) {
        auto const file = write("precious", "kept.json");
        QString error;
        EXPECT_FALSE(network.save(file, &error));
        EXPECT_EQ(error.toStdString(), "cannot save " + file.toStdString() + ": " + reason);
        EXPECT_EQ(bytesOf(file), "precious");
        EXPECT_EQ(QDir(path(".")).entryList({"kept*"}), QStringList("kept.json"));
    }
};

TEST_F(NetworkNotSaved, WithABinaryText) {
    auto const read = network(withParameters(R"({ "name": "p", "type": "string", "value": "" })"));
    ASSERT_TRUE(
        Kolt::setParameterValue<std::string>(*parameterOf(*read), "\xFF", nullptr, {}, false, nullptr, nullptr));
    expectRefused(*read, "o.p: the value is not of type string or has a text that is not UTF-8");
    EXPECT_TRUE(QJsonDocument::fromJson(read->values()).object()["o"].toObject()["p"].toObject()["value"].isNull());
}

TEST_F(NetworkNotSaved, WithAnUnknownTypeOfParameter) {
    auto const read = network(withParameters(""));
    read->objects()[0]->addParameter(
        Kolt::ParameterPtr(new Kolt::VParameter("p", Kolt::makeValue(1), Kolt::VParameter::Values::Shared, "Strange")));
    expectRefused(*read, "o.p: no network file can hold a parameter of type Strange");
}

TEST_F(NetworkNotSaved, WithAPropertyOfAnotherType) {
    auto const read = network(withParameters(R"({ "name": "p", "type": "int", "value": 1 })"));
    parameterOf(*read)->setProperty("look", Kolt::makeValue(Ferro::rgba_float_t()), nullptr, nullptr, nullptr);
    expectRefused(*read, "o.p: no network file can hold the property \"look\"");
}

TEST_F(NetworkNotSaved, WithAPoolThatChoosesAmongOtherEntries) {
    auto const read = network(
        withParameters(R"({ "name": "p", "type": "selection", "value": "a", "entries": ["a"], "perPool": true })"));
    Kolt::VStringList const other(new Kolt::StringSelection({"a", "b"}, "a"));
    ASSERT_TRUE(Kolt::setParameterValue(*parameterOf(*read), other, read->pools()[0], {}, true, nullptr, nullptr));
    expectRefused(*read, "o.p: the value of a pool chooses among other entries than the parameter");
}

TEST_F(NetworkNotSaved, WithWhatCouldNotBeLoadedAgain) {
    auto const read = network(withParameters(R"({ "name": "p", "type": "enum", "value": "a", "entries": ["a"] })"));
    parameterOf(*read)->setProperty("wrap", Kolt::makeValue(0), nullptr, nullptr, nullptr);
    expectRefused(*read, "expected the property \"wrap\", at least 1, found the number 0");
}

TEST_F(NetworkNotSaved, WhereNoFileCanBe) {
    auto const read = network(withParameters(""));
    QString error;
    EXPECT_FALSE(read->save(path("missing folder/x.json"), &error));
    EXPECT_THAT(error.toStdString(), testing::StartsWith("cannot save " + path("missing folder/x.json").toStdString()));
    EXPECT_FALSE(read->save(path("missing folder/x.json"), nullptr));
}

TEST_F(Network, AFreshValueOfAPoolIsSavedAsNothingChosen) {
    auto const read =
        network(withParameters(R"({ "name": "p", "type": "enum", "value": "a", "entries": ["a"], "perPool": true })"));
    ASSERT_NE(parameterOf(*read)->freshLocalValue(read->pools()[0]), nullptr);
    QString error;
    ASSERT_TRUE(read->save(path("saved.json"), &error)) << error.toStdString();
    auto const again = Talo::Network::load(path("saved.json"));
    ASSERT_NE(again.network, nullptr) << again.error.toStdString();
    EXPECT_EQ(again.network->values(), read->values());
}

TEST_F(Network, TenThousandParametersAreReadAndSaved) {
    QByteArray text;
    for (int i = 0; i < 10000; ++i)
        text += (i ? ",\n" : "") +
                QString(R"({ "name": "p%1", "type": "int", "value": %1, "values": { "draft": 1 } })").arg(i).toUtf8();
    auto const read = network(withParameters(text));
    ASSERT_EQ(read->objects()[0]->parameters().size(), 10000U);
    EXPECT_EQ(content<int>(read->findParameter("o.p9999")->ownValue()), 9999);
    ASSERT_TRUE(read->save(path("saved.json"), nullptr));
    EXPECT_GT(bytesOf(path("saved.json")).size(), 10000 * 50);
}

// ---- The examples -------------------------------------------------------------------------------------------------

QString const fractalFile = TALO_EXAMPLES "/networks/fractal.json";

std::unique_ptr<Talo::Network> fractal() {
    auto result = Talo::Network::load(fractalFile);
    if (!result.network)
        throw std::runtime_error(result.error.toStdString());
    return std::move(result.network);
}

TEST_F(Network, TheFractalNetworkIsSavedAsTheBytesThatItHas) {
    auto const copy = write(bytesOf(fractalFile), "fractal.json");
    auto const read = Talo::Network::load(copy);
    ASSERT_NE(read.network, nullptr) << read.error.toStdString();
    ASSERT_TRUE(read.network->save(path("again.json"), nullptr));
    EXPECT_EQ(bytesOf(path("again.json")), bytesOf(fractalFile));
}

TEST_F(Network, EveryExampleIsLoaded) {
    auto const files = QDir(QStringLiteral(TALO_EXAMPLES "/networks")).entryInfoList({QStringLiteral("*.json")});
    EXPECT_GE(files.size(), 3);
    for (auto const& file : files) {
        auto const read = Talo::Network::load(file.filePath());
        EXPECT_NE(read.network, nullptr) << read.error.toStdString();
    }
}

TEST_F(Network, TheFractalNetworkUsesEveryTypeAndPreference) {
    std::set<std::string> types;
    std::set<std::string> preferences;
    int perPool = 0;
    auto const read = fractal();
    for (auto const& object : read->objects()) {
        EXPECT_NE(read->kind(object), "") << object->Name();
        for (auto const& parameter : object->parameters()) {
            types.insert(parameter->declaredType());
            perPool += parameter->keepsValuesPerPool() ? 1 : 0;
            if (auto const& own = parameter->creationPreferences())
                preferences.insert(own->names().begin(), own->names().end());
        }
    }
    EXPECT_EQ(types, (std::set<std::string>{nameOfType<bool>(), nameOfType<int>(), nameOfType<double>(),
                                            nameOfType<ActionPtr>(), nameOfType<Ferro::rgba_float_t>(),
                                            nameOfType<Kolt::Enum>(), nameOfType<Kolt::FlagList>(),
                                            nameOfType<Kolt::info>(), nameOfType<Kolt::VStringList>(),
                                            nameOfType<Kolt::VMultipleStringList>(), nameOfType<Kolt::VObjectStatus>(),
                                            nameOfType<std::string>(), nameOfType<StringArray>()}));
    EXPECT_EQ(preferences, (std::set<std::string>{"FileInput", "MultiLine", "OneLine", "Save as", "Save as PDF",
                                                  "UpdateOnEnterOnly", "dial", "editable", "periodic"}));
    EXPECT_GE(perPool, 3);
}

/// A creator as a plug-in would register it, of which only the choice is looked at.
template <typename T>
struct Creator : Kolt::VInputCreator<T, Kolt::VInputCreatorBase> {
    Creator(std::string const& name, Kolt::VCreationPreferences::Names preferences)
        : Kolt::VInputCreator<T, Kolt::VInputCreatorBase>(name, 0, withQt(std::move(preferences)), "TALO_API_VERSION") {
    }
    static Kolt::PreferencesPtr withQt(Kolt::VCreationPreferences::Names preferences) {
        preferences.insert("QT");
        return Kolt::PreferencesPtr(new Kolt::VCreationPreferences(std::move(preferences)));
    }
};

TEST_F(Network, EachOfTheTwentyThreeCreatorsIsChosenInTheFractalNetwork) {
    Creator<bool> const boolean("boolean", {});
    Creator<int> const integer("int", {});
    Creator<int> const integerDial("intDial", {"dial"});
    Creator<int> const integerDialPeriodic("intDialPeriodic", {"dial", "periodic"});
    Creator<double> const real("double", {});
    Creator<double> const realDial("FltDial", {"dial"});
    Creator<double> const realDialPeriodic("Periodic FltDial", {"dial", "periodic"});
    Creator<ActionPtr> const action("action", {});
    Creator<Ferro::rgba_float_t> const colour("ColorDisplay", {});
    Creator<Kolt::Enum> const enumeration("enum", {});
    Creator<Kolt::FlagList> const flags("checkboxes", {});
    Creator<Kolt::info> const information("InformationDisplay", {});
    Creator<Kolt::VMultipleStringList> const multiple("selection", {});
    Creator<Kolt::VMultipleStringList> const multipleEditable("selection", {"editable"});
    Creator<Kolt::VObjectStatus> const status("StatusDisplay", {});
    Creator<std::string> const line("simplestring", {Kolt::VValueTrait<std::string>::OneLine()});
    Creator<StringArray> const arrayLine("singlelinestring", {});
    Creator<Kolt::VStringList> const selection("selection", {});
    Creator<Kolt::VStringList> const selectionEditable("selection", {"editable"});
    Creator<std::string> const text("string", {Kolt::VValueTrait<std::string>::MultiLine()});
    Creator<std::string> const saveAs("FileNameCreator", {"Save as"});
    Creator<std::string> const savePdf("FileNameCreatorPDF", {"Save as PDF"});
    Creator<std::string> const open("OpenFileCreator", {"FileInput"});

    auto const& registry = Kolt::InputRegistry::theRegistry();
    ASSERT_EQ(registry.entries().size(), 23U);
    std::set<Kolt::VInputCreatorBase*> chosen;
    auto const read = fractal();
    for (auto const& object : read->objects())
        for (auto const& parameter : object->parameters())
            chosen.insert(registry.choose(*parameter, {"QT"}).creator.strong().get());
    for (auto const& entry : registry.entries()) {
        auto const creator = entry.creator.strong();
        EXPECT_EQ(chosen.count(creator.get()), 1U) << creator->describe() << " for " << entry.valueType;
    }
}

TEST_F(Network, TheFractalNetworkBindsItsFileNamesAndHasItsPicture) {
    auto const read = fractal();
    for (auto const* const name : {"exporter.picture", "exporter.document", "exporter.palette"})
        EXPECT_NE(read->findObject("exporter")->findSlot(read->findParameter(name)), nullptr) << name;
    EXPECT_NE(read->findObject("colouring")->findSlot(read->findParameter("exporter.palette")), nullptr);
    auto const icon = read->findParameter("render.start")->properties()->getValue("icon");
    EXPECT_FALSE(QImage(QString::fromStdString(icon->Text())).isNull()) << icon->Text();
}

TEST_F(Network, EveryPieceOfTheDescriptionIsRight) {
    auto const description = QString::fromUtf8(bytesOf(TALO_EXAMPLES "/../docs/network-files.md"));
    QRegularExpression const block("```json\\n(.*?)```", QRegularExpression::DotMatchesEverythingOption);
    std::set<std::string> types;
    int networks = 0;
    for (auto all = block.globalMatch(description); all.hasNext();) {
        auto const text = all.next().captured(1).toUtf8();
        bool const whole = text.contains("\"objects\"");
        networks += whole ? 1 : 0;
        auto const result = Talo::Network::load(write(whole ? text : withParameters(text)));
        ASSERT_NE(result.network, nullptr) << result.error.toStdString() << "\n" << text.toStdString();
        for (auto const& object : result.network->objects())
            for (auto const& parameter : object->parameters())
                types.insert(parameter->declaredType());
    }
    EXPECT_EQ(networks, 1);
    EXPECT_EQ(types.size(), 13U);
}

} // namespace

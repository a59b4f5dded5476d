#include "NetworkFile.hpp"

#include <array>
#include <bramble/Color.hpp>
#include <bramble/Enum.hpp>
#include <bramble/FlagList.hpp>
#include <bramble/Info.hpp>
#include <bramble/MultipleStringSelection.hpp>
#include <bramble/ObjectStatus.hpp>
#include <bramble/StringSelection.hpp>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

namespace {

using ActionPtr = Tessera::StrongPtr<Kolt::VAction>;
using StringArray = std::array<std::string, 1>;

/// A parameter of one type: its text in the file, and the type and text of the value that is read from it.
struct KindOfParameter {
    char const* name;
    QByteArray rest;
    std::string declaredType;
    std::string valueType;
    std::string text;
};

class NetworkType : public NetworkFileTest, public testing::WithParamInterface<KindOfParameter> {};

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
    // A text that only shows a state is not saved.
    bool const showsState = nameOfType<Kolt::info>() == parameter->declaredType() ||
                            nameOfType<Kolt::VObjectStatus>() == parameter->declaredType();
    EXPECT_EQ(parameterOf(*again.network)->poolsWithValue().size(), showsState ? 0U : 1U);
    if (!showsState) {
        EXPECT_EQ(again.network->values(), read->values());
    }
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

TEST_P(NetworkSelection, OnlyThePoolsOfTheFileHaveSelectionsOfTheirOwn) {
    auto const value = [](QByteArray const& entry) {
        return QByteArray(GetParam()) == "multiselection" ? "[\"" + entry + "\"]" : "\"" + entry + "\"";
    };
    auto const read = network(withParameters("{ \"name\": \"p\", \"type\": \"" + QByteArray(GetParam()) +
                                             "\", \"entries\": [\"a\", \"b\", \"c\"], \"value\": " + value("a") +
                                             ", \"values\": { \"final\": " + value("b") + " } }"));
    auto const parameter = parameterOf(*read);
    EXPECT_EQ(parameter->getLocalValue(read->findPool("draft"), {}, false), nullptr);
    auto const final = parameter->getLocalValue(read->findPool("final"), {}, false);
    ASSERT_NE(final, nullptr);
    EXPECT_EQ(final->Text(), "b");
    ASSERT_TRUE(read->save(path("saved.json"), nullptr));
    EXPECT_FALSE(bytesOf(path("saved.json")).contains("draft\":")) << "nobody chose anything in it";

    // Change the selections in place.
    auto const draft = parameter->getLocalValue(read->findPool("draft"), {}, true);
    ASSERT_TRUE(draft->setValueFromText("c"));
    EXPECT_EQ(parameter->ownValue()->Text(), "a");
    EXPECT_EQ(final->Text(), "b");
    ASSERT_TRUE(parameter->ownValue()->setValueFromText("b"));
    EXPECT_EQ(draft->Text(), "c");
}

INSTANTIATE_TEST_SUITE_P(All, NetworkSelection, testing::Values("enum", "selection", "multiselection"),
                         [](auto const& row) { return std::string(row.param); });

} // namespace

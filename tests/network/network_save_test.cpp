#include "NetworkFile.hpp"

#include <bramble/Color.hpp>
#include <bramble/StringSelection.hpp>
#include <QJsonDocument>
#include <QJsonObject>

namespace {

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

} // namespace

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

TEST_F(Network, SavesTheTextThatQtWritesOfTheSameJson) {
    auto const same = [this](QByteArray const& json) {
        auto const read = network(json);
        ASSERT_TRUE(read->save(path("saved.json"), nullptr));
        EXPECT_EQ(bytesOf(path("saved.json")).toStdString(), QJsonDocument::fromJson(json).toJson().toStdString());
    };
    same(R"({ "title": "", "pools": ["draft"], "objects": [] })");
    same(R"({ "title": "\u00e4 [\n", "pools": ["draft"], "objects": [{ "name": "a", "parameters": [] }] })");
    same(R"({ "title": "t", "pools": ["draft", "final"], "objects": [
        { "name": "first", "parameters": [], "slots": [{ "name": "in", "parameter": "last.p" }] },
        { "name": "second", "kind": "thing", "parameters": [{ "name": "p\n[", "type": "flags", "value": { "\u00e4\"": true } }] },
        { "name": "last", "parameters": [{ "name": "p", "type": "double", "value": 0.1, "values": { "final": 1e300 } }] }] })");
}

class NetworkNotSaved : public NetworkFileTest {
protected:
    /// Checks that saving fails for this reason and leaves the file unchanged.
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
    expectRefused(*read, "o.p: the value is not of type string, or no file can hold it, as a text that is not UTF-8");
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
    expectRefused(*read, "o.p: expected the property \"wrap\", at least 1, found the number 0");
}

TEST_F(NetworkNotSaved, WithTwoObjectsOfOneName) {
    auto const read = network(withParameters(""));
    read->addObject("other", {});
    read->addObject("o", {});
    expectRefused(*read, "expected an object name that is not taken, found \"o\" again");
}

TEST_F(NetworkNotSaved, WithTwoSlotsOfOneName) {
    auto const read = network(withParameters(R"({ "name": "p", "type": "int", "value": 1 })"));
    auto const other = read->addObject("other", {});
    for (int number = 0; number < 2; ++number)
        other->addSlot(Tessera::StrongPtr<Kolt::VSlot>(new Kolt::VSlot("in", parameterOf(*read))));
    expectRefused(*read, "expected a slot name that is not taken in the object, found \"in\" again");
}

TEST_F(NetworkNotSaved, WhereNoFileCanBe) {
    auto const read = network(withParameters(""));
    QString error;
    EXPECT_FALSE(read->save(path("missing folder/x.json"), &error));
    EXPECT_THAT(error.toStdString(), testing::StartsWith("cannot save " + path("missing folder/x.json").toStdString()));
    EXPECT_FALSE(read->save(path("missing folder/x.json"), nullptr));
}

/// A notifier of a parameter with its own reference count, like an editor.
class Listener : public Kolt::ValueNotifier {
public:
    void onValueChange(Kolt::ValuePtr const&, Kolt::VContext const&, Kolt::ValueMap const*) override {}
};

TEST_F(Network, WhatAnEditorFilledInIsNotSavedUntilSomebodySetsIt) {
    auto const read =
        network(withParameters(R"({ "name": "p", "type": "double", "value": 2.5, "properties": { "min": 2.5 } })"));
    auto const parameter = parameterOf(*read);
    Tessera::StrongPtr<Kolt::ValueNotifier> const editor(new Listener);
    parameter->setProperty("max", Kolt::makeValue(1.0), Tessera::WeakPtr<Kolt::ValueNotifier>(editor), nullptr,
                           nullptr);
    auto const savedMaximum = [&] {
        QString error;
        EXPECT_TRUE(read->save(path("saved.json"), &error)) << error.toStdString();
        auto const again = Talo::Network::load(path("saved.json"));
        return again.network ? propertyOf(parameterOf(*again.network), "max") : again.error.toStdString();
    };
    EXPECT_EQ(savedMaximum(), "none");
    parameter->setProperty("max", Kolt::makeValue(5.0), nullptr, nullptr, nullptr);
    EXPECT_EQ(savedMaximum(), "double 5");
    parameter->setProperty("max", Kolt::makeValue(6.0), Tessera::WeakPtr<Kolt::ValueNotifier>(editor), nullptr,
                           nullptr);
    EXPECT_EQ(savedMaximum(), "double 6") << "a person set it, by the editor";
}

TEST_F(Network, WhatOnlyShowsAStateIsSavedAsItWasAtTheStart) {
    auto const read = network(withParameters(
        R"({ "name": "p", "type": "status", "value": "Ready.", "values": { "draft": "Resting." } },
           { "name": "q", "type": "info", "value": "0 %" })"));
    ASSERT_TRUE(read->setText("o.p", "Computing.", read->findPool("draft"), nullptr));
    ASSERT_TRUE(read->setText("o.p", "Waiting.", read->findPool("final"), nullptr));
    ASSERT_TRUE(read->setText("o.q", "50 %", nullptr, nullptr));
    EXPECT_FALSE(read->isModified());
    ASSERT_TRUE(read->saveAs(path("saved.json"), nullptr));
    auto const again = Talo::Network::load(path("saved.json"));
    ASSERT_NE(again.network, nullptr) << again.error.toStdString();
    EXPECT_EQ(parameterOf(*again.network)->ownValue()->Text(), "Ready.");
    EXPECT_EQ(parameterOf(*again.network)->effectiveValue(again.network->findPool("draft"))->Text(), "Resting.");
    EXPECT_EQ(parameterOf(*again.network)->poolsWithValue().size(), 1U);
    EXPECT_EQ(again.network->findParameter("o.q")->ownValue()->Text(), "0 %");
    EXPECT_EQ(read->findParameter("o.q")->ownValue()->Text(), "50 %") << "saving changes nothing";
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

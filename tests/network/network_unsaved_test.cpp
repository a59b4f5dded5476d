#include "NetworkFile.hpp"

using testing::ElementsAre;
using testing::IsEmpty;

namespace {

class UnsavedValues : public NetworkFileTest {
protected:
    std::unique_ptr<Talo::Network> opened() const {
        return network(withParameters(R"(
            { "name": "bool", "type": "bool", "value": false },
            { "name": "int", "type": "int", "value": 1, "values": { "draft": 2 } },
            { "name": "double", "type": "double", "value": 0.5, "perPool": true },
            { "name": "colour", "type": "colour", "value": [0, 0.2, 0.4, 1] },
            { "name": "enum", "type": "enum", "entries": ["Red", "Green"], "value": "Red" },
            { "name": "flags", "type": "flags", "value": { "bold": false, "wide": true } },
            { "name": "selection", "type": "selection", "entries": ["one", "two"], "value": "one", "perPool": true },
            { "name": "many", "type": "multiselection", "entries": ["a", "b", "c"], "value": ["b"] },
            { "name": "text", "type": "string", "value": "" },
            { "name": "array", "type": "stringarray", "value": ["caption"] },
            { "name": "same", "type": "int", "value": 7 },
            { "name": "said", "type": "info", "value": "" })"));
    }
    /// Sets each parameter but "same" in a pool.
    static void edit(Talo::Network& network, char const* pool) {
        std::pair<char const*, char const*> const texts[]{
            {"bool", "true"},        {"int", "-5"},          {"double", "1e-300"}, {"colour", "1 0 0 0.5"},
            {"enum", "Green"},       {"flags", "bold=true"}, {"selection", "two"}, {"many", "a\nc"},
            {"text", "a\"\n\u00e4"}, {"array", "other"},     {"said", "Hello."}};
        for (auto const& [name, text] : texts) {
            QString error;
            EXPECT_TRUE(network.setText(QStringLiteral("o.") + name, text, network.findPool(pool), &error))
                << error.toStdString();
        }
    }
};

TEST_F(UnsavedValues, AreNoneAtTheStart) {
    EXPECT_EQ(QString(opened()->unsavedValues()).simplified(), "{ }");
}

TEST_F(UnsavedValues, HoldWhatPeopleEditedAndNothingElse) {
    auto const edited = opened();
    ASSERT_TRUE(edited->setText("o.int", "3", edited->findPool("final"), nullptr));
    ASSERT_TRUE(edited->setText("o.said", "Hello.", nullptr, nullptr));
    EXPECT_EQ(QString(edited->unsavedValues()).simplified(),
              R"({ "o.int": { "value": 1, "values": { "draft": 2, "final": 3 } } })");
}

TEST_F(UnsavedValues, OfEveryTypeAreTakenOver) {
    for (auto const* const pool : {"draft", "final"}) {
        auto const edited = opened();
        edit(*edited, pool);
        auto const again = opened();
        EXPECT_THAT(again->takeValues(edited->unsavedValues()), IsEmpty());
        ASSERT_TRUE(again->setText("o.said", "Hello.", nullptr, nullptr)) << "nobody edits an information";
        EXPECT_EQ(again->values(), edited->values());
        EXPECT_TRUE(again->isModified());
        EXPECT_EQ(again->unsavedValues(), edited->unsavedValues());
    }
}

TEST_F(UnsavedValues, APoolLosesAValueThatTheOtherNetworkDoesNotHave) {
    auto const edited = opened();
    edited->findParameter("o.int")->removeLocalValue(edited->findPool("draft"));
    auto const again = opened();
    EXPECT_THAT(again->takeValues(edited->unsavedValues()), IsEmpty());
    EXPECT_THAT(again->findParameter("o.int")->poolsWithValue(), IsEmpty());
}

TEST_F(UnsavedValues, OthersStayWhereOneIsRefused) {
    auto const read = opened();
    EXPECT_THAT(read->takeValues(R"({
        "o.int": { "value": 5, "values": { "draft": "six" } },
        "o.gone": { "value": 5 },
        "o.enum": { "value": "Blue" },
        "o.said": { "value": "x" },
        "o.double": { "value": 1, "values": { "third": 1 } },
        "o.same": { "value": 8 } })"),
                ElementsAre("o.int: expected an int value, a whole number from -2147483648 to 2147483647, found the "
                            "text \"six\"",
                            "o.gone: expected a parameter of the network, found an object",
                            "o.enum: expected an enum value, one of the entries, found the text \"Blue\"",
                            "o.said: expected a parameter that people edit, found an object",
                            "o.double: expected values of the pools of the network, found the pool \"third\""));
    EXPECT_EQ(content<int>(read->findParameter("o.int")->ownValue()), 1);
    EXPECT_EQ(content<int>(read->findParameter("o.same")->ownValue()), 8);
    EXPECT_THAT(read->takeValues("no JSON"), ElementsAre("expected valid JSON, found: illegal value"));
}

} // namespace

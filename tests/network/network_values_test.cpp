#include "NetworkFile.hpp"

#include <QJsonDocument>
#include <QJsonObject>

namespace {

/// Counts the notifications of a parameter and keeps the text, age and pool of the last one.
class Listener : public Kolt::ValueNotifier {
public:
    explicit Listener(Kolt::ParameterPtr const& parameter) {
        parameter->addNotifier(Tessera::WeakPtr<Kolt::ValueNotifier>(this));
    }
    void onValueChange(Kolt::ValuePtr const& newValue, Kolt::VContext const& context, Kolt::ValueMap const*) override {
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

TEST_F(Network, SettingAValueNotifiesEverybodyOnceAndRenewsItsAge) {
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
        EXPECT_EQ(listener->age, before + 1) << "a notifier sees the new stamp";
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
    char const* accepted; ///< empty for a type that accepts no text
    char const* refused;  ///< null for a type that accepts every text
};

void PrintTo(SetTextRow const& row, std::ostream* stream) {
    *stream << row.name;
}

class NetworkSetText : public NetworkFileTest, public testing::WithParamInterface<SetTextRow> {};

TEST_P(NetworkSetText, TakesWhatTheTypeReadsAndRefusesTheRestWithoutAChange) {
    auto const& row = GetParam();
    for (auto const* const perPool : {"false", "true"}) {
        auto const read =
            network(withParameters(QByteArray("{ \"name\": \"p\", \"perPool\": ") + perPool + ", " + row.rest + " }"));
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

} // namespace

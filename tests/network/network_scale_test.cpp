// Networks with many parts: what is found by name and what is compared.

#include "NetworkFile.hpp"

#include <bramble/MultipleStringSelection.hpp>

namespace {

constexpr int manyParts = 100'000;

QByteArray names(int count, char const* before) {
    QByteArray list;
    for (int number = 0; number < count; ++number)
        list += (number > 0 ? ",\n\"" : "\"") + QByteArray(before) + QByteArray::number(number) + '"';
    return list;
}

/// A number that counts how often it is compared.
class CountingValue : public Kolt::VValue<int> {
public:
    using VValue::VValue;
    bool equals(VValueBase const& other) const override {
        ++comparisons;
        return VValue::equals(other);
    }
    static inline int comparisons = 0;
};

TEST_F(Network, HasAsManyPoolsAsAFileNames) {
    auto const read = network("{ \"pools\": [" + names(manyParts, "pool ") + "], \"objects\": [] }");
    ASSERT_EQ(read->pools().size(), std::size_t{manyParts});
    EXPECT_EQ(read->findPool("pool 99999"), read->pools().back());
    EXPECT_EQ(read->findPool("pool 100000"), nullptr);
    auto const refused =
        Talo::Network::load(write("{ \"pools\": [" + names(manyParts, "pool ") + ",\n\"pool 7\"], \"objects\": [] }"));
    EXPECT_THAT(refused.error.toStdString(), testing::HasSubstr(":100001: expected a pool name that is not taken"));
}

TEST_F(Network, HasAsManySlotsAsAFileNames) {
    QByteArray slotList;
    for (int number = 0; number < manyParts; ++number)
        slotList +=
            (number > 0 ? ",\n" : "") + ("{\"name\":\"s" + QByteArray::number(number)) + "\",\"parameter\":\"o.p\"}";
    auto const json = [&](QByteArray const& last) {
        return R"({ "pools": ["draft"], "objects": [{ "name": "o", "parameters": [)"
               R"({ "name": "p", "type": "int", "value": 1 }], "slots": [)" +
               slotList + last + "] }] }";
    };
    auto const read = network(json({}));
    ASSERT_EQ(read->objects()[0]->slotList().size(), std::size_t{manyParts});
    EXPECT_EQ(read->objects()[0]->slotList().back()->parameter(), parameterOf(*read));
    ASSERT_TRUE(read->save(path("saved.json"), nullptr));
    EXPECT_EQ(bytesOf(path("saved.json")).count("\"o.p\""), manyParts);
    auto const refused = Talo::Network::load(write(json(R"(, { "name": "s7", "parameter": null })")));
    EXPECT_THAT(refused.error.toStdString(), testing::HasSubstr("expected a slot name that is not taken"));
}

TEST_F(Network, ChoosesAsManyEntriesAsThereAre) {
    auto const json = [](QByteArray const& chosen) {
        return withParameters(R"({ "name": "p", "type": "multiselection", "entries": [)" + names(manyParts, "e") +
                              R"(], "value": [)" + chosen + "] }");
    };
    auto const read = network(json(names(manyParts, "e")));
    EXPECT_EQ(content<Kolt::VMultipleStringList>(parameterOf(*read)->ownValue())->chosenCount(),
              std::size_t{manyParts});
    auto const refused = Talo::Network::load(write(json(names(manyParts, "e") + ", \"e100000\"")));
    EXPECT_THAT(refused.error.toStdString(), testing::HasSubstr("expected a chosen text, one of the entries"));
}

TEST_F(Network, AParameterIsNamedAfterAnObjectThatHasIt) {
    auto const made = Talo::Network::create("made", {"draft"});
    Kolt::ParameterPtr const parameter(new Kolt::VParameter("p", Kolt::makeValue(1)));
    auto const first = made->addObject("first", {parameter});
    EXPECT_EQ(made->nameOf(parameter), "first.p");
    // Another network's object, which has it, too.
    Kolt::ObjectPtr const other(new Kolt::VObject("first"));
    other->addParameter(parameter);
    EXPECT_EQ(made->nameOf(parameter), "first.p");
    other->removeParameter(parameter);
    EXPECT_EQ(made->nameOf(parameter), "first.p");
    first->removeParameter(parameter);
    EXPECT_EQ(made->nameOf(parameter), "");
    EXPECT_EQ(made->nameOf(nullptr), "");
}

TEST_F(Network, WhatDiffersIsLookedAtFirst) {
    constexpr int count = 1000;
    auto const made = Talo::Network::create("made", {"draft"});
    std::vector<Kolt::ParameterPtr> parameters;
    for (int number = 0; number < count; ++number)
        parameters.emplace_back(
            new Kolt::VParameter("p" + std::to_string(number), Kolt::ValuePtr(new CountingValue(number))));
    made->addObject("o", parameters);
    EXPECT_FALSE(made->isModified());
    QString error;
    ASSERT_TRUE(made->setText("o.p999", "-1", nullptr, &error)) << error.toStdString();
    EXPECT_TRUE(made->isModified());
    CountingValue::comparisons = 0;
    ASSERT_TRUE(made->setText("o.p999", "-2", nullptr, &error)) << error.toStdString();
    ASSERT_TRUE(made->setText("o.p3", "-1", nullptr, &error)) << error.toStdString();
    EXPECT_TRUE(made->isModified());
    EXPECT_EQ(CountingValue::comparisons, 1);
    ASSERT_TRUE(made->setText("o.p999", "999", nullptr, &error)) << error.toStdString();
    EXPECT_TRUE(made->isModified());
    ASSERT_TRUE(made->setText("o.p3", "3", nullptr, &error)) << error.toStdString();
    EXPECT_FALSE(made->isModified());
}

} // namespace

#include "support/TaloTest.hpp"
#include <stdexcept>
#include <tessera/StringList.hpp>

namespace {

using Tessera::StringList;
using testing::ElementsAre;

class StringLists : public TaloTest {};

TEST_F(StringLists, KeepOrderDuplicatesAndBytes) {
    StringList const list({"b", "a", "b", std::string("\xff\0x", 3), ""});
    EXPECT_EQ(list.size(), 5U);
    EXPECT_THAT(list.strings(), ElementsAre("b", "a", "b", std::string("\xff\0x", 3), ""));
    EXPECT_EQ(std::vector<std::string>(list.begin(), list.end()), list.strings());
    EXPECT_EQ(list.at(1), "a");
}

TEST_F(StringLists, AreSearchedByteForByte) {
    StringList const list({"Ä", "b"});
    EXPECT_TRUE(list.contains("Ä"));
    EXPECT_FALSE(list.contains("ä"));
    EXPECT_FALSE(list.contains(""));
    EXPECT_FALSE(list.contains("b "));
}

TEST_F(StringLists, AnEmptyListHasNoPlace) {
    StringList const list;
    EXPECT_TRUE(list.empty());
    EXPECT_THROW(list.at(0), std::out_of_range);
    EXPECT_THROW(StringList({"a"}).at(1), std::out_of_range);
}

TEST_F(StringLists, ACloneIsAListOfItsOwn) {
    Tessera::StrongPtr<StringList> const list(new StringList({"a", "b"}));
    auto const clone = list->clone();
    EXPECT_NE(clone, list);
    EXPECT_EQ(clone->strings(), list->strings());
}

} // namespace

#include "support/TaloTest.hpp"
#include <stdexcept>
#include <tessera/MakeStrong.hpp>
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

TEST_F(StringLists, ACloneSharesTheTexts) {
    auto list = Tessera::makeStrong<StringList>(std::vector<std::string>{"a", "b"});
    auto const clone = list->clone();
    EXPECT_EQ(&clone->strings(), &list->strings());
    EXPECT_TRUE(clone->hasSameTexts(*list));
    list.reset();
    EXPECT_THAT(clone->strings(), ElementsAre("a", "b")) << "the texts outlive the first list";
}

TEST_F(StringLists, FindTheFirstPlaceOfAText) {
    StringList const list({"b", "", "b", "a"});
    EXPECT_EQ(list.find("b"), 0U);
    EXPECT_EQ(list.find(""), 1U);
    EXPECT_EQ(list.find("a"), 3U);
    EXPECT_EQ(list.find("c"), list.size());
    EXPECT_EQ(StringList().find(""), 0U) << "the size of an empty list";
    EXPECT_FALSE(StringList().contains(""));
}

TEST_F(StringLists, OfEqualTextsAreTheSameWhateverTheyShare) {
    StringList const list({"a", "b"});
    EXPECT_TRUE(list.hasSameTexts(StringList({"a", "b"})));
    EXPECT_FALSE(list.hasSameTexts(StringList({"b", "a"})));
    EXPECT_FALSE(list.hasSameTexts(StringList({"a"})));
    EXPECT_TRUE(Tessera::sameTexts(nullptr, nullptr));
    EXPECT_FALSE(Tessera::sameTexts(&list, nullptr));
    EXPECT_FALSE(Tessera::sameTexts(nullptr, &list));
}

TEST_F(StringLists, FindsTheLastOfEqualTexts) {
    EXPECT_EQ(StringList({"a", "b", "a", "c"}).findLast("a"), 2U);
    EXPECT_EQ(StringList({"a", "b", "a", "c"}).findLast("b"), 1U);
    EXPECT_EQ(StringList({"a", "b", "a", "c"}).findLast("d"), 4U);
    EXPECT_EQ(StringList({"a", "b"}).findLast("b"), 1U);
    EXPECT_EQ(StringList().findLast(""), 0U);
}

TEST_F(StringLists, ABlockKnowsWhereEachTextIsFirst) {
    Tessera::StringBlock const repeated({"a", "b", "a", "b", "c"});
    std::vector<std::size_t> places;
    for (std::size_t place = 0; place < repeated.strings().size(); ++place)
        places.push_back(repeated.firstPlace(place));
    EXPECT_THAT(places, ElementsAre(0, 1, 0, 1, 4));
    Tessera::StringBlock const different({"a", "b"});
    EXPECT_EQ(different.firstPlace(1), 1U);
}

} // namespace

#include "NumberSelectionCheck.hpp"
#include "support/TaloTest.hpp"

#include <filesystem>
#include <fstream>
#include <random>

namespace {

class NumberSelectionCorpus : public TaloTest {};

} // namespace

TEST_F(NumberSelectionCorpus, EveryTextIsReadAsTheRulesSay) {
    int count = 0;
    for (auto const& entry : std::filesystem::directory_iterator(TALO_FUZZ_CORPUS)) {
        std::ifstream file(entry.path(), std::ios::binary);
        std::string const input((std::istreambuf_iterator<char>(file)), std::istreambuf_iterator<char>());
        EXPECT_TRUE(readsLikeTheReference(input)) << entry.path();
        ++count;
    }
    EXPECT_GT(count, 20);
}

TEST_F(NumberSelectionCorpus, RandomTextsOfTheLanguagesPartsAreReadAsTheRulesSay) {
    std::vector<std::string> const parts = {"0",
                                            "1",
                                            "7",
                                            "42",
                                            "4294967295",
                                            "4294967296",
                                            "2147483648",
                                            "-",
                                            "-",
                                            "+",
                                            ",",
                                            ",",
                                            " ",
                                            "\t",
                                            "th",
                                            "nd",
                                            "rd",
                                            "st",
                                            "t",
                                            "TH",
                                            "x",
                                            "\xC2\xA0",
                                            std::string(1, '\0')};
    std::mt19937 random(20231129);
    for (int round = 0; round < 50000; ++round) {
        std::string input(1, static_cast<char>(random() % 10));
        for (auto length = random() % 12; length > 0; --length)
            input += parts[random() % parts.size()];
        ASSERT_TRUE(readsLikeTheReference(input)) << testing::PrintToString(input);
    }
}
